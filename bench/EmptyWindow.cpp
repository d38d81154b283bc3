// SPDX-License-Identifier: MIT
// What any window costs: the yardstick for the start and the memory of ours.
#include <QApplication>
#include <QWidget>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QWidget window;
    window.resize(640, 480);
    window.setWindowTitle(QStringLiteral("Empty"));
    window.show();
    return QApplication::exec();
}
