// The main menu's controls without the program, built with the toolkit only: what text, buttons and a menu
// bar cost in any program.

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    for (const char* title : {"File", "Options", "Help"})
        window.menuBar()->addMenu(title)->addAction("Command");

    auto* const area = new QWidget;
    auto* const column = new QVBoxLayout(area);
    auto* const name = new QLabel("Name");
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * 2.4);
    large.setBold(true);
    name->setFont(large);
    column->addWidget(name);
    column->addWidget(new QLabel("What it is"));
    for (int button = 0; button < 5; ++button)
        column->addWidget(new QPushButton("Calculator"));
    window.setCentralWidget(area);
    window.resize(800, 660);
    window.show();
    return QApplication::exec();
}
