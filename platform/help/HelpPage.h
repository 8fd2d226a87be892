#pragma once

#include "platform/help/HelpBook.h"

#include <QStringList>
#include <QTextBrowser>
#include <QUrl>

#include <memory>

class QPrinter;

namespace help {

/// Shows the pages of a help file in the colours of the desktop. It loads nothing from anywhere else.
class HelpPage : public QTextBrowser
{
public:
    HelpPage(std::shared_ptr<const HelpBook> shown, QWidget* parent);

    /// Shows a page, at its anchor if the reference has one, and marks the words on it.
    void open(const QString& reference, const QStringList& wordsToMark = {});
    QString pageName() const; ///< of the page shown

    /// Goes to the next mark, from the last one to the first. False if nothing is marked.
    bool goToNextMark();
    int marks() const { return static_cast<int>(extraSelections().size()); }

    /// The size of the text: 0 is the desktop's own, each step up or down a tenth of it.
    void setTextSize(int newStep);
    int textSize() const { return step; }

    /// Prints the page shown, dark on light.
    void print(QPrinter& printer);

    /// Never returns null: the toolkit would look for the resource among the files of the machine.
    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void changeEvent(QEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;

private:
    QImage picture(const QUrl& address) const;
    int widthAskedFor(const QUrl& address) const;
    void restyle();
    void markWords(const QStringList& wordsToMark);

    std::shared_ptr<const HelpBook> book;
    QUrl current;      // the page shown; known before the toolkit loads what it refers to
    QStringList words; // marked on the page shown
    qsizetype nextMark = 0;
    int step = 0; // of the text's size
};

} // namespace help
