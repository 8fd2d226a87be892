#pragma once

#include <QPoint>
#include <QString>

#include <functional>
#include <utility>

class QRect;
class QWidget;

/// A hand at the mouse and the keyboard of a real screen, on a thread of its own beside the program's: it
/// looks up where a control stands and sends real events there, and takes pictures of what the screen shows.
class Hand
{
public:
    explicit Hand(QString pictureFolder) : folder(std::move(pictureFolder)) {}

    void click(const QString& control);
    /// Chooses an entry of a menu, or a command that stands on the menu bar by itself.
    void choose(const QString& entry);
    void clickOk(); ///< of a message box
    void type(const QString& text);
    /// Clicks a field, and types over what stands there.
    void enter(const QString& field, const QString& text);
    void key(const QString& key);

    /// A free place for a report of that name, among the reports beside the pictures.
    QString reportFile(const QString& name) const;

    /// A picture of the window that takes input, with its title bar, under that name.
    void picture(const QString& name);
    /// A picture of all that the program has on the screen.
    void pictureOfAll(const QString& name);

private:
    void clickAt(QPoint place);
    void settle();
    void save(const QString& name, const std::function<QRect()>& frame);

    QString folder;
};
