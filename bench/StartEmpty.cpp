// The smallest program of the toolkit with a window: what any start costs at least.

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    window.resize(800, 660); // the main menu's
    window.show();
    return QApplication::exec();
}
