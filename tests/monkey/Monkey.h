#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <map>
#include <random>

class QWidget;

/// Uses the program at random: clicks, keys, pastes, menus, dialogs, closings, sizes, colors and letters. It
/// acts by timers, so that it goes on within dialogs. The same seed gives the same actions as long as the
/// program answers alike.
class Monkey : public QObject
{
public:
    Monkey(unsigned seed, int numberOfActions);

    /// Prints how many actions it has done, and where, and how it ended.
    void tell(const QString& end) const;

private:
    void goOn();
    void act();
    void actIn(QWidget& window);

    void clickSomewhere(QWidget& window);
    void pressButton(QWidget& window);
    void chooseEntry(QWidget& window);
    void useKey(QWidget& window);
    void typeNumber(QWidget& window);
    void paste(QWidget& window);
    void turnWheel(QWidget& window);
    void drag(QWidget& window);
    void changeWindow(QWidget& window);
    void changeDesktop();

    /// The fatal report. Ends the process: without failure where the program may end.
    [[noreturn]] void endAt(const QString& report) const;

    int below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
    template <class List>
    auto& oneOf(List& list)
    {
        return list[static_cast<std::size_t>(below(static_cast<int>(std::size(list))))];
    }

    std::mt19937 random;
    int count = 0;
    int last;
    int levelOfAction = -1;           ///< the event loop in which it acts
    std::map<QString, int> actionsIn; ///< a window
    QString place;                    ///< the window and control of the last action
};
