// The smallest toolkit program with a window: the minimum cost of any start.

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    window.resize(800, 660); // the size of the main menu
    window.show();
    return QApplication::exec();
}
