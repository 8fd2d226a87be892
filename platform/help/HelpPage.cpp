#include "platform/help/HelpPage.h"

#include "platform/help/HelpColours.h"

#include <QBuffer>
#include <QDesktopServices>
#include <QEvent>
#include <QImageReader>
#include <QMimeData>
#include <QPrinter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QStyle>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <QTextTable>

#include <algorithm>
#include <utility>

namespace help {
namespace {

constexpr int widestPicture = 700; // in device-independent pixels
constexpr int highestPicture = 2000;
constexpr qint64 mostPixels = 16'000'000;
constexpr qsizetype largestStyleSheet = 64 << 10;
constexpr int mostMarks = 500;
constexpr int smallestStep = -4;
constexpr int largestStep = 12;

constexpr QLatin1String helpScheme("help");

QString nameIn(const QUrl& address) { return address.path(QUrl::FullyDecoded).mid(1); }

/// The text, with a tab between the cells of a table's row and a space between the lines of a cell.
QString textWithTabs(const QTextDocumentFragment& fragment)
{
    QTextDocument copy;
    QTextCursor(&copy).insertFragment(fragment);
    QString text;
    const QTextTable* lastTable = nullptr;
    QTextTableCell last;
    for (QTextBlock block = copy.begin(); block.isValid(); block = block.next()) {
        const QTextTable* const table = QTextCursor(block).currentTable();
        const QTextTableCell cell = table != nullptr ? table->cellAt(block.position()) : QTextTableCell();
        if (!cell.isValid() && last.isValid() && block.length() == 1)
            continue; // the toolkit adds an empty line after a table
        if (cell.isValid() && cell == last)
            text += ' ';
        else if (cell.isValid() && table == lastTable && cell.row() == last.row())
            text += QString(cell.column() - last.column(), '\t');
        else
            text += (text.isEmpty() ? "" : "\n") + QString(cell.isValid() ? cell.column() : 0, '\t');
        text += block.text().replace(QChar::LineSeparator, cell.isValid() ? ' ' : '\n');
        lastTable = table;
        last = cell;
    }
    return text.replace(QChar::Nbsp, ' ');
}

} // namespace

HelpPage::HelpPage(std::shared_ptr<const HelpBook> shown, QWidget* parent)
    : QTextBrowser(parent), book(std::move(shown))
{
    setObjectName("helpPage");
    setAccessibleName("Help page");
    setOpenLinks(false);
    document()->setDocumentMargin(22);
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& address) {
        if (address.scheme() == helpScheme)
            setSource(address);
        else if (QStringList{"http", "https", "mailto"}.contains(address.scheme()))
            QDesktopServices::openUrl(address);
    });
    restyle();
}

void HelpPage::open(const QString& reference, const QStringList& wordsToMark)
{
    if (reference.isEmpty())
        return;
    setSource(QUrl(helpScheme + ":/" + reference));
    markWords(wordsToMark);
}

QString HelpPage::pageName() const { return nameIn(current); }

QVariant HelpPage::loadResource(int type, const QUrl& name)
{
    const QUrl address = current.resolved(name);
    const bool isOfHelp = address.scheme() == helpScheme;
    if (type == QTextDocument::ImageResource)
        return isOfHelp ? picture(address) : picture({});
    if (type == QTextDocument::HtmlResource && isOfHelp) {
        current = address.adjusted(QUrl::RemoveFragment);
        words.clear();
        setExtraSelections({});
        return book->page(nameIn(address));
    }
    return isOfHelp ? QString::fromUtf8(book->file(nameIn(address)).left(largestStyleSheet)) : QString();
}

/// A picture at the width that the page specifies, scaled smoothly to the screen's pixels. Returns the
/// toolkit's file icon if it is missing or too large.
QImage HelpPage::picture(const QUrl& address) const
{
    QByteArray bytes = book->file(nameIn(address));
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    const bool isShown = !size.isEmpty() && qint64{size.width()} * size.height() <= mostPixels;
    const QImage image = isShown ? reader.read() : QImage();
    if (image.isNull())
        return style()->standardPixmap(QStyle::SP_FileIcon).toImage();
    const int asked = widthAskedFor(address);
    const int width = std::min(asked > 0 ? asked : size.width(), widestPicture);
    const qreal ratio = devicePixelRatioF();
    const QSize shown = size.scaled(width, highestPicture, Qt::KeepAspectRatio) * ratio;
    QImage scaled = image.scaled(shown.expandedTo({1, 1}), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(ratio);
    return scaled;
}

/// The width in pixels that the page specifies for a picture, or 0.
int HelpPage::widthAskedFor(const QUrl& address) const
{
    for (const QTextFormat& format : document()->allFormats()) {
        const QTextImageFormat image = format.toImageFormat();
        if (format.isImageFormat() && current.resolved(QUrl(image.name())) == address)
            return qRound(image.width());
    }
    return 0;
}

void HelpPage::restyle()
{
    document()->setDefaultStyleSheet(HelpColours(palette()).styleSheet());
    if (current.isEmpty())
        return;
    const int place = verticalScrollBar()->value();
    const QStringList marked = words;
    reload();
    markWords(marked);
    verticalScrollBar()->setValue(place);
}

void HelpPage::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        restyle();
}

void HelpPage::markWords(const QStringList& wordsToMark)
{
    words = wordsToMark;
    QList<ExtraSelection> marks;
    const HelpColours colours(palette());
    const QRegularExpression wanted("(?<![\\p{L}\\p{N}])(" + words.join('|') + ")",
                                    QRegularExpression::CaseInsensitiveOption |
                                        QRegularExpression::UseUnicodePropertiesOption);
    ExtraSelection mark;
    mark.format.setBackground(colours.mark);
    mark.format.setForeground(colours.marked);
    mark.cursor = QTextCursor(document());
    while (!words.isEmpty() && marks.size() < mostMarks) {
        mark.cursor = document()->find(wanted, mark.cursor);
        if (mark.cursor.isNull())
            break;
        marks.append(mark);
    }
    setExtraSelections(marks);
    nextMark = 0;
    goToNextMark();
}

bool HelpPage::goToNextMark()
{
    const QList<ExtraSelection> marks = extraSelections();
    if (marks.isEmpty())
        return false;
    nextMark %= marks.size();
    setTextCursor(marks[nextMark++].cursor); // its selection shows which mark it is
    ensureCursorVisible();
    return true;
}

void HelpPage::resizeText(int change)
{
    step = change == 0 ? 0 : std::clamp(step + change, smallestStep, largestStep);
    QFont sized = parentWidget()->font();
    sized.setPointSizeF(sized.pointSizeF() * (1 + 0.1 * step));
    document()->setDefaultFont(sized);
}

void HelpPage::print(QPrinter& printer)
{
    QTextDocument paper(this); // its resources come from this page
    paper.setDefaultFont(parentWidget()->font());
    paper.setDefaultStyleSheet(HelpColours(QPalette(Qt::white)).styleSheet());
    paper.setHtml(book->page(pageName()));
    paper.print(&printer);
}

/// Copies plain and formatted text only. The toolkit's office document would embed pictures and look for them
/// among the files of the machine.
QMimeData* HelpPage::createMimeDataFromSelection() const
{
    const QTextDocumentFragment selected(textCursor());
    auto* const copied = new QMimeData;
    copied->setText(textWithTabs(selected));
    copied->setHtml(selected.toHtml());
    return copied;
}

} // namespace help
