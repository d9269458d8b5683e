// SPDX-License-Identifier: MIT
/// Baseline for measuring the program's start: a window with four empty tabs and nothing else.
#include <QApplication>
#include <QTabWidget>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QTabWidget window;
    for (int tab = 1; tab <= 4; ++tab) {
        window.addTab(new QWidget, QString::number(tab));
    }
    window.resize(960, 660);
    window.show();
    return QApplication::exec();
}
