// The least a Qt Widgets program can show: one window of the main window's
// size with a menu bar. bancomisuratore's start-up is measured against it.
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>

#include "ui/exit_after_show.hpp"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("minimal"));
    QMenu* menu = window.menuBar()->addMenu(QStringLiteral("&Volt"));
    menu->addAction(QStringLiteral("Volt R.M.S."));
    window.setFixedSize(565, 407);
    window.show();
    if (bm::ui::ExitAfterShowRequested()) bm::ui::ExitAfterFirstPaint(&window);
    return QApplication::exec();
}
