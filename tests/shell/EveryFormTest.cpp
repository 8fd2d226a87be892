#include "tests/support/EveryForm.h"

#include <QAccessible>
#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <vector>

namespace {

bool isText(const QWidget& widget) { return qobject_cast<const QLabel*>(&widget) != nullptr; }

bool isInput(const QWidget& widget)
{
    return qobject_cast<const QLineEdit*>(&widget) != nullptr ||
           qobject_cast<const QPushButton*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr;
}

/// The size that shows a control's full text. The height of wrapped text depends on its width.
QSize neededSize(const QWidget& widget)
{
    const auto* const label = qobject_cast<const QLabel*>(&widget);
    if (label != nullptr && label->wordWrap())
        return {0, label->heightForWidth(label->width())};
    const auto* const button = qobject_cast<const QPushButton*>(&widget);
    if (button != nullptr)
        return button->fontMetrics().size(Qt::TextShowMnemonic, button->text()) + QSize(8, 4);
    return widget.minimumSizeHint();
}

QString accessibleName(QWidget& widget)
{
    return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
}

} // namespace

class EveryForm : public EveryFormTest
{
protected:
    /// The visible controls that show text, accept input or are a picture.
    std::vector<QWidget*> controls() const
    {
        std::vector<QWidget*> found;
        for (QWidget* const widget : window->findChildren<QWidget*>()) {
            const bool isEmptyLabel =
                isText(*widget) && widget->property("text").toString().trimmed().isEmpty();
            const bool isOurs = isText(*widget) || isInput(*widget) || widget->objectName() == "Image1";
            if (isOurs && !isEmptyLabel && widget->isVisible() && !widget->objectName().isEmpty())
                found.push_back(widget);
        }
        return found;
    }

    QRect placeOf(const QWidget& widget) const { return {widget.mapTo(window, QPoint(0, 0)), widget.size()}; }
};

TEST_P(EveryForm, ShowsNoControlOverAnother)
{
    const std::vector<QWidget*> all = controls();
    ASSERT_GE(all.size(), 3U);
    for (std::size_t i = 0; i < all.size(); ++i) {
        for (std::size_t j = i + 1; j < all.size(); ++j) {
            EXPECT_FALSE(placeOf(*all[i]).intersects(placeOf(*all[j])))
                << all[i]->objectName().toStdString() << " and " << all[j]->objectName().toStdString();
        }
    }
}

TEST_P(EveryForm, ShowsEachControlInsideIt)
{
    for (const QWidget* const control : controls()) {
        const QWidget* const parent = control->parentWidget();
        EXPECT_TRUE(window->rect().contains(placeOf(*control))) << control->objectName().toStdString();
        EXPECT_TRUE(parent->rect().contains(control->geometry())) << control->objectName().toStdString();
    }
    for (const QGroupBox* const frame : window->findChildren<QGroupBox*>()) {
        EXPECT_TRUE(!frame->isVisible() || window->rect().contains(placeOf(*frame)))
            << frame->objectName().toStdString();
    }
}

TEST_P(EveryForm, ShowsTheWholeTextOfEachControl)
{
    for (const QWidget* const control : controls()) {
        const QSize needed = neededSize(*control);
        EXPECT_GE(control->width(), needed.width()) << control->objectName().toStdString();
        EXPECT_GE(control->height(), needed.height()) << control->objectName().toStdString();
    }
    for (const QGroupBox* const frame : window->findChildren<QGroupBox*>()) {
        const int needed = frame->isVisible() ? frame->fontMetrics().horizontalAdvance(frame->title()) : 0;
        EXPECT_GE(frame->width(), needed) << frame->objectName().toStdString();
    }
}

TEST_P(EveryForm, GivesEachFieldALineOrTwo)
{
    for (const QLineEdit* const field : window->findChildren<QLineEdit*>()) {
        const int line = field->fontMetrics().height();
        EXPECT_GT(field->height(), line + 2) << field->objectName().toStdString();
        EXPECT_LE(field->height(), 2 * line) << field->objectName().toStdString();
    }
}

TEST_P(EveryForm, NamesEachControlForAssistiveTechnology)
{
    for (QWidget* const control : controls())
        EXPECT_FALSE(accessibleName(*control).trimmed().isEmpty()) << control->objectName().toStdString();
}

TEST_P(EveryForm, HasALabelForEachFieldThatTabReaches)
{
    std::vector<QWidget*> labelled;
    for (const QLabel* const label : window->findChildren<QLabel*>())
        labelled.push_back(label->buddy());
    for (QWidget* const control : controls()) {
        const bool isField = isInput(*control) && qobject_cast<QPushButton*>(control) == nullptr;
        // The volumes have their unit above them and their own name.
        const bool isVolume = QStringList{"txtcfm1", "txtcfm2", "txtCFM"}.contains(control->objectName());
        const bool needsOne = isField && !isVolume && (control->focusPolicy() & Qt::TabFocus) != Qt::NoFocus;
        EXPECT_TRUE(!needsOne || std::ranges::find(labelled, control) != labelled.end())
            << control->objectName().toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(InBothModes, EveryForm, testing::ValuesIn(EveryFormInBothModes()), NameOf);
