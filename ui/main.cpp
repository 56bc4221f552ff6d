// Bancomisuratore: the main window and its menu; every calculator opens from there.
#include <QApplication>
#include <cstdio>

#include "forms/program.hpp"
#include "shell/workbook.hpp"
#include "ui/exit_after_show.hpp"
#include "ui/qt_host.hpp"
#include "ui/style.hpp"

namespace {

bool HasDisplay() {
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        if (!qEnvironmentVariableIsEmpty(name)) return true;
    return false;
}

}  // namespace

int main(int argc, char** argv) {
    if (!HasDisplay()) {
        std::fprintf(stderr,
                     "bancomisuratore: no display to open the windows on.\n"
                     "Set DISPLAY or WAYLAND_DISPLAY, or start it under Xvfb: xvfb-run bancomisuratore\n");
        return 1;
    }
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Bancomisuratore"));
    QApplication::setQuitOnLastWindowClosed(false);  // the program ends itself, at its exit button
    bm::ui::ApplyWorkbookStyle(app);

    bm::Workbook workbook;
    bm::ui::QtHost host;
    bm::Program program(workbook, host, bm::NumberLocale::system());
    host.attach(program);
    if (bm::StartProgram(program) != bm::Program::Status::Running) return 1;
    if (bm::ui::ExitAfterShowRequested()) bm::ui::ExitAfterFirstPaint(host.window(bm::kMainForm));
    return QApplication::exec();
}
