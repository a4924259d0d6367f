#include <QApplication>
#include <QWidget>

/// The least that a program with a window can be: what the others are compared with.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    window.resize(800, 600);
    window.show();
    return QApplication::exec();
}
