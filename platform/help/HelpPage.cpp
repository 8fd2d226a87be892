#include "platform/help/HelpPage.h"

#include "platform/help/HelpColours.h"
#include "platform/help/HelpMarkup.h"
#include "platform/help/HelpStyle.h"

#include <QBuffer>
#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QImageReader>
#include <QPrinter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>
#include <utility>

namespace {

constexpr int widestPicture = 700; // in pixels of the desktop
constexpr int highestPicture = 2000;
constexpr qint64 mostPixels = 16'000'000;
constexpr int mostMarks = 500;
constexpr int smallestStep = -4;
constexpr int largestStep = 12;

QString nameIn(const QUrl& address)
{
    const QString name = QDir::cleanPath(address.path(QUrl::FullyDecoded));
    return name.startsWith('/') ? name.mid(1) : name;
}

QString notice(const QString& heading, const QString& text)
{
    return "<h2>" + heading + "</h2><p>" + text.toHtmlEscaped() + "</p>";
}

/// The page on paper: its resources come from the page on the screen.
class PrintedPage : public QTextDocument
{
public:
    explicit PrintedPage(HelpPage& shown) : page(shown) {}

    QVariant loadResource(int type, const QUrl& name) override { return page.loadResource(type, name); }

private:
    HelpPage& page;
};

} // namespace

HelpPage::HelpPage(QWidget* parent) : QTextBrowser(parent)
{
    setObjectName("helpPage");
    setAccessibleName("Help page");
    setOpenLinks(false);
    document()->setDocumentMargin(22);
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& address) { follow(address); });
    restyle();
}

void HelpPage::setBook(std::shared_ptr<const HelpBook> shown)
{
    book = std::move(shown);
    isOfOtherBook = true;
}

QUrl HelpPage::addressOf(const QString& reference) const
{
    const QString written = reference.section('#', 0, 0);
    const bool isEncoded = !book->has(written) && book->has(QUrl::fromPercentEncoding(written.toUtf8()));
    QUrl address;
    address.setScheme("help");
    address.setPath("/" + (isEncoded ? QUrl::fromPercentEncoding(written.toUtf8()) : written));
    address.setFragment(reference.section('#', 1));
    return address;
}

void HelpPage::open(const QString& reference, const QStringList& wordsToMark)
{
    const bool isFirstOfBook = isOfOtherBook;
    setSource(addressOf(reference));
    if (isOfOtherBook)
        reload(); // the page shown, of the other book, has the same name
    if (isFirstOfBook)
        clearHistory();
    words = wordsToMark;
    markWords();
}

QString HelpPage::pageName() const { return nameIn(current); }

void HelpPage::follow(const QUrl& address)
{
    if (address.scheme() == "help")
        setSource(address);
    else if (address.scheme() == "http" || address.scheme() == "https" || address.scheme() == "mailto")
        QDesktopServices::openUrl(address);
}

QVariant HelpPage::loadResource(int type, const QUrl& name)
{
    const QUrl address = current.resolved(name);
    if (book == nullptr || address.scheme() != "help")
        return {};
    switch (type) {
    case QTextDocument::HtmlResource:
        startPage(address);
        return pageText(nameIn(address));
    case QTextDocument::StyleSheetResource:
        return StyleToShow(book->readPage(nameIn(address)).value_or(QString()));
    case QTextDocument::ImageResource:
        return picture(address);
    default:
        return {};
    }
}

/// Takes note of the page that is about to be shown; the toolkit's own note comes later than its pictures.
void HelpPage::startPage(const QUrl& address)
{
    current = address.adjusted(QUrl::RemoveFragment);
    isOfOtherBook = false;
    if (isRestyling)
        return;
    words.clear();
    setExtraSelections({});
}

QString HelpPage::pageText(const QString& name) const
{
    if (!book->has(name))
        return notice("No such page", "This help has no page \"" + name + "\".");
    const std::optional<QString> page = book->readPage(name);
    if (!page)
        return notice("Page not readable", "The page \"" + name + "\" of the help file is damaged.");
    return PageToShow(*page) + " "; // an empty page is a page, too
}

/// A picture as the page asks for it: scaled down smoothly to the dots of the screen, where it is larger.
QVariant HelpPage::picture(const QUrl& address) const
{
    QByteArray bytes = book->readFile(nameIn(address)).value_or(QByteArray());
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    if (size.isEmpty() || qint64{size.width()} * size.height() > mostPixels)
        return {};
    const int asked = address.fragment().toInt();
    const int width = std::min(asked > 0 ? asked : size.width(), widestPicture);
    const qreal dots = devicePixelRatioF();
    const QSize shown = size.scaled(width, highestPicture, Qt::KeepAspectRatio) * dots;
    QImage image = reader.read();
    if (image.isNull())
        return {};
    image = image.scaled(shown.expandedTo({1, 1}), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    image.setDevicePixelRatio(dots);
    return image;
}

void HelpPage::restyle()
{
    document()->setDefaultStyleSheet(HelpStyleSheet(HelpColours(palette())));
    if (current.isEmpty())
        return;
    const int place = verticalScrollBar()->value();
    isRestyling = true;
    reload();
    isRestyling = false;
    markWords();
    verticalScrollBar()->setValue(place);
}

void HelpPage::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        restyle();
}

void HelpPage::markWords()
{
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
}

bool HelpPage::goToNextMark()
{
    const QList<ExtraSelection> marks = extraSelections();
    if (marks.isEmpty())
        return false;
    nextMark %= marks.size();
    QTextCursor there = marks[nextMark++].cursor;
    there.setPosition(there.selectionStart());
    setTextCursor(there);
    ensureCursorVisible();
    return true;
}

void HelpPage::setTextSize(int newStep)
{
    step = std::clamp(newStep, smallestStep, largestStep);
    QFont sized = parentWidget()->font();
    sized.setPointSizeF(sized.pointSizeF() * (1 + 0.1 * step));
    document()->setDefaultFont(sized);
}

void HelpPage::print(QPrinter& printer)
{
    PrintedPage paper(*this);
    paper.setDefaultFont(parentWidget()->font());
    paper.setDefaultStyleSheet(HelpStyleSheet(HelpColours(QPalette(Qt::white))));
    paper.setHtml(pageText(pageName()));
    paper.print(&printer);
}
