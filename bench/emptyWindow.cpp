// The baseline of the start: a main window with an area for child windows and the five menus, without what is in them.
#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMenuBar>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.setCentralWidget(new QMdiArea(&window));
    window.menuBar()->setNativeMenuBar(false);
    for (const char* menu : {"File", "Data", "Templates", "Reports", "Help"})
        window.menuBar()->addMenu(QLatin1String(menu));
    window.resize(1120, 640);
    window.show();
    return QApplication::exec();
}
