#include <QApplication>
#include <QMainWindow>

// The least that a window of this toolkit costs: what the program's start and memory are compared
// with.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Bare window"));
    window.resize(1032, 747);
    window.show();
    return QApplication::exec();
}
