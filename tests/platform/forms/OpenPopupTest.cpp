// A form closes under an open menu, list or tip.

#include "platform/forms/Picture.h"
#include "tests/platform/forms/TestForms.h"

#include <QComboBox>
#include <QContextMenuEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QToolTip>

using namespace forms;

namespace {

class NoContents : public PictureContents
{
public:
    std::string version() const override { return "1"; }
    void paint(QPainter& /*painter*/, const QSize& /*size*/, const QWidget& /*on*/) override {}
    std::string tipAt(const QPoint& /*place*/) const override { return "a tip"; }
    std::vector<PictureCommand> commands() override
    {
        return {{"mnuNothing", "&Nothing", "", [] {}}};
    }
};

class PopupForm : public TestForm
{
public:
    static inline Life life;
    PopupForm()
        : TestForm("PopupForm", FormKind::Screen, life),
          Image1(*this, "Image1", std::make_unique<NoContents>())
    {
        area()->layout()->addWidget(Image1.widget());
        mnuFile.add(mnuExit);
        addToMenuBar(mnuFile);
        Combo1.addItem("English, I-P");
        txtSecond.onKeyPress([](int& key) { key = Key::Swallowed; });
    }

    Picture Image1;
    Menu mnuFile{*this, "mnuFile", "&File"};
    MenuCommand mnuExit{*this, "mnuExit", "E&xit"};
};

void openContextMenu(Control& control)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, control.widget()->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(control.widget(), &event);
}

/// A popup over a form, and how to open it.
struct Popup
{
    const char* name;
    void (*open)(PopupForm&);
};

void PrintTo(const Popup& popup, std::ostream* out) { *out << popup.name; }

void showTip(PopupForm& form) { QToolTip::showText({5, 5}, "a tip", form.txtFirst.widget()); }

const Popup popups[] = {
    {"ContextMenuOfAField", [](PopupForm& form) { openContextMenu(form.txtFirst); }},
    {"ContextMenuOfAFieldThatSwallows", [](PopupForm& form) { openContextMenu(form.txtSecond); }},
    {"ContextMenuOfThePicture", [](PopupForm& form) { openContextMenu(form.Image1); }},
    {"DropDownList", [](PopupForm& form) { static_cast<QComboBox*>(form.Combo1.widget())->showPopup(); }},
    {"MenuOfTheBar",
     [](PopupForm& form) {
         auto* const bar = static_cast<QMainWindow*>(form.window())->menuBar();
         QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier,
                           bar->actionGeometry(bar->actions().first()).center());
     }},
    {"Tip", showTip},
};

class OpenPopup : public FormsTest, public testing::WithParamInterface<Popup>
{
protected:
    OpenPopup() { PopupForm::life = {}; }

    /// Runs an action while the popup is open, even if the popup has its own event loop.
    void under(const Handler& action)
    {
        bool isDone = false;
        QTimer::singleShot(0, qApp, [&isDone, action] {
            action();
            comeToRest();
            isDone = true;
        });
        GetParam().open(form<PopupForm>());
        ASSERT_TRUE(QTest::qWaitFor([&isDone] { return isDone; }));
    }

    static bool isPopupOpen()
    {
        return QApplication::activePopupWidget() != nullptr || QToolTip::isVisible();
    }
};

INSTANTIATE_TEST_SUITE_P(Under, OpenPopup, testing::ValuesIn(popups),
                         [](const auto& popup) { return std::string(popup.param.name); });

} // namespace

TEST_P(OpenPopup, AFormMayBeClosedByItsBox)
{
    form<PopupForm>().Show();
    comeToRest();
    under([this] {
        EXPECT_TRUE(isPopupOpen());
        user.closeWindow();
    });
    EXPECT_EQ(calls.back(), "PopupForm is destroyed");
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_P(OpenPopup, AModalFormMayBeClosedByItsBox)
{
    showFirstScreen().btnFirst.onClick([] {
        form<PopupForm>().ShowModal();
        calls.push_back("the caller goes on");
    });
    user.inDialog("PopupForm", [this] {
        comeToRest();
        under([this] {
            EXPECT_TRUE(isPopupOpen());
            user.closeWindow();
        });
    });
    user.click("btnFirst");
    comeToRest();
    EXPECT_EQ(Only({"the caller goes on", "PopupForm is destroyed"}).size(), 2U);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_P(OpenPopup, AFormMayBeHiddenAndShownAgain)
{
    form<PopupForm>().Show();
    comeToRest();
    under([] { form<PopupForm>().Hide(); });
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "nothing is left that takes the mouse";
    form<PopupForm>().Show();
    comeToRest();
    user.click("txtThird");
    EXPECT_EQ(user.focus(), "txtThird");
}

TEST_P(OpenPopup, TheProcessMayEnd)
{
    form<PopupForm>().Show();
    comeToRest();
    QTimer::singleShot(0, qApp, [] { GetParam().open(form<PopupForm>()); });
    QTimer::singleShot(0, qApp, [] { EndProcess(); });
    EXPECT_EQ(QApplication::exec(), 0);
    FormRegistry::clear();
    EXPECT_EQ(calls.back(), "PopupForm is destroyed");
}

TEST_P(OpenPopup, AMessageBoxMayCome)
{
    form<PopupForm>().Show();
    comeToRest();
    under([this] {
        MsgBox("a message");
        user.closeWindow();
    });
    EXPECT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(calls.back(), "PopupForm is destroyed");
}
