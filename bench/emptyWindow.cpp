// The baseline of the start: a main window with an area for child windows and nothing else.
#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.setCentralWidget(new QMdiArea(&window));
    window.resize(1120, 640);
    window.show();
    return QApplication::exec();
}
