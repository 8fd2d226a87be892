#pragma once

#include <QPoint>
#include <QString>

#include <functional>
#include <utility>

class QRect;
class QWidget;

/// Controls the mouse and keyboard of a real screen from its own thread. It looks up where a control is,
/// sends real events there, and takes screenshots.
class Hand
{
public:
    explicit Hand(QString pictureFolder) : folder(std::move(pictureFolder)) {}

    void click(const QString& control);
    /// Chooses a menu entry, or a command on the menu bar.
    void choose(const QString& entry);
    void clickOk(); ///< of a message box
    void type(const QString& text);
    /// Clicks a field and replaces its text.
    void enter(const QString& field, const QString& text);
    void key(const QString& key);

    /// An unused path for a report of that name, in the reports folder beside the pictures.
    QString reportFile(const QString& name) const;

    /// Saves a picture of the active window, with its title bar, under that name.
    void picture(const QString& name);
    /// Saves a picture of everything that the program shows on the screen.
    void pictureOfAll(const QString& name);

private:
    void clickAt(QPoint place);
    void settle();
    void save(const QString& name, const std::function<QRect()>& frame);

    QString folder;
};
