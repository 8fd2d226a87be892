#pragma once

#include "platform/help/HelpBook.h"

#include <QStringList>
#include <QTextBrowser>
#include <QUrl>

#include <memory>

class QPrinter;

namespace help {

/// Shows the pages of a help file in the desktop's colors. Loads nothing from outside the help file.
class HelpPage : public QTextBrowser
{
public:
    HelpPage(std::shared_ptr<const HelpBook> shown, QWidget* parent);

    /// Shows a page, marks the words, and goes to the first mark, or to the reference's anchor if there is
    /// none. A no-op if the reference is empty.
    void open(const QString& reference, const QStringList& wordsToMark = {});
    QString pageName() const; ///< the current page

    /// Marks these words instead of others, and goes to the first mark.
    void markWords(const QStringList& wordsToMark);
    const QStringList& markedWords() const { return words; }
    /// Goes to the next mark, and from the last to the first. Returns false if nothing is marked.
    bool goToNextMark();
    int marks() const { return static_cast<int>(extraSelections().size()); }

    /// Makes the text larger or smaller by steps of 10 %. 0 restores the desktop's size.
    void resizeText(int change);
    int textSize() const { return step; }

    /// Prints the current page, dark on light.
    void print(QPrinter& printer);

    /// Never returns null: the toolkit would then look for the resource among the files of the machine.
    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void changeEvent(QEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;

private:
    QImage picture(const QUrl& address) const;
    int widthAskedFor(const QUrl& address) const;
    void restyle();

    std::shared_ptr<const HelpBook> book;
    QUrl current;      // the current page; set before the toolkit loads the page's resources
    QStringList words; // marked on the current page
    qsizetype nextMark = 0;
    int step = 0; // text size
};

} // namespace help
