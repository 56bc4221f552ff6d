// Bancomisuratore: the main window and its menu; every calculator opens from there.
#include <QApplication>
#include <cstdio>
#include <cstring>

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

constexpr const char* kUsage =
    "Uso: bancomisuratore [OPZIONE]\n"
    "Il quaderno tecnico del radioamatore: calcolatori per bobine, filtri, antenne,\n"
    "linee, condensatori, resistenze, stadi a transistor, trasformatori e conversioni.\n"
    "Senza opzioni apre la finestra principale.\n"
    "\n"
    "  -h, --help     mostra questo aiuto ed esce\n"
    "  -V, --version  mostra la versione ed esce\n";

// The command line: only --help and --version; anything else is refused before any window opens.
// Returns the exit status when the program should end here, or -1 to go on.
int ReadOptions(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        const char* arg = argv[i];
        if (std::strcmp(arg, "-h") == 0 || std::strcmp(arg, "--help") == 0) {
            std::fputs(kUsage, stdout);
            return 0;
        }
        if (std::strcmp(arg, "-V") == 0 || std::strcmp(arg, "--version") == 0) {
            std::printf("bancomisuratore %s\n", BM_VERSION);
            return 0;
        }
        // Options Qt itself reads (-platform, -style ...) pass untouched.
        if (std::strcmp(arg, "-platform") == 0 || std::strcmp(arg, "-style") == 0 ||
            std::strcmp(arg, "-display") == 0) {
            ++i;
            continue;
        }
        std::fprintf(stderr, "bancomisuratore: opzione non riconosciuta: %s\n", arg);
        std::fputs("Prova 'bancomisuratore --help' per le opzioni.\n", stderr);
        return 2;
    }
    return -1;
}

}  // namespace

int main(int argc, char** argv) {
    if (const int status = ReadOptions(argc, argv); status >= 0) return status;
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
