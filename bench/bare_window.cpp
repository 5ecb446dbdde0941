// SPDX-License-Identifier: MIT
// The least that any such program must do: a main window with one empty child window. The start is measured against it.
#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    QMdiArea area;
    window.setCentralWidget(&area);
    area.addSubWindow(new QWidget);
    window.resize(1200, 700);
    window.show();
    return QApplication::exec();
}
