// The least a Qt Widgets program can show with the workbook's menu: one window
// of the main window's size with the same menu bar, built from the same menu
// tree by the same code, every item enabled. No style, no picture, no forms.
// bancomisuratore's start-up is measured against it, so what the comparison
// shows is what the program adds to a window with that menu.
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <string>
#include <string_view>

#include "shell/form_registry.hpp"
#include "ui/exit_after_show.hpp"
#include "ui/main_menu.hpp"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("minimal"));
    bm::ui::BuildMainMenu(
        *window.menuBar(), bm::FormRegistry::items(), [](std::string_view) { return true; },
        [](const std::string&) {});
    window.setFixedSize(565, 407);
    window.show();
    if (bm::ui::ExitAfterShowRequested()) bm::ui::ExitAfterFirstPaint(&window);
    return QApplication::exec();
}
