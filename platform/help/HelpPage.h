#pragma once

#include "platform/help/HelpBook.h"

#include <QStringList>
#include <QTextBrowser>
#include <QUrl>

#include <memory>

class QPrinter;

/// Shows the pages of a help file in the colours of the desktop. It loads nothing from anywhere else.
class HelpPage : public QTextBrowser
{
public:
    explicit HelpPage(QWidget* parent);

    void setBook(std::shared_ptr<const HelpBook> shown);
    /// Shows a page, at its anchor where the reference has one, and marks the words on it.
    void open(const QString& reference, const QStringList& wordsToMark = {});
    QString pageName() const; ///< of the page shown

    /// Goes to the next mark, from the last one to the first. False where nothing is marked.
    bool goToNextMark();
    int marks() const { return static_cast<int>(extraSelections().size()); }

    /// The size of the text: 0 is the desktop's own, each step up or down a tenth of it.
    void setTextSize(int newStep);
    int textSize() const { return step; }

    /// Prints the page shown, dark on light.
    void print(QPrinter& printer);

    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void changeEvent(QEvent* event) override;

private:
    QUrl addressOf(const QString& reference) const;
    QString pageText(const QString& name) const;
    QVariant picture(const QUrl& address) const;
    void startPage(const QUrl& address);
    void follow(const QUrl& address);
    void restyle();
    void markWords();

    std::shared_ptr<const HelpBook> book;
    QUrl current;      // the page shown
    QStringList words; // to mark on the page shown
    qsizetype nextMark = 0;
    int step = 0; // of the text's size
    bool isRestyling = false;
    bool isOfOtherBook = false; // what is shown
};
