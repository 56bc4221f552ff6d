// Every menu item of the real program, one after the other: the time from
// choosing the item to the first frame of its window on the screen, and the
// peak memory once every window has been opened and closed.
//
// One process is one pass over the menu, so every window opens for the first
// time (its definition is built then) and then once more (reopening a form
// that is already known). Output, one line per item and then the memory:
//
//   item <menu item> <form> <modal|modeless> <first opening µs> <its CPU µs> <reopening µs>
//   skipped <menu item> <form>          (a form not in the workbook yet)
//   peak_kib <peak resident memory after the first pass, KiB>
//   final_kib <resident memory at the end, KiB>
//
// The CPU column is the processor time the whole process spent over the
// first opening (the X connection's thread included, the X server not): it
// tells a slow machine from a busy one.
//
// `--start K` begins the pass at the K-th item (and wraps round), so that over
// several runs the first window of a session, which pays for what Qt sets up
// on first use, is a different one each time. `--only ITEM` (repeatable)
// keeps those menu items alone, to look at one window closely.
//
// tools/bench-windows.sh runs it several times under Xvfb and takes medians.
#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QEventLoop>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/program.hpp"
#include "shell/form_registry.hpp"
#include "shell/workbook.hpp"
#include "ui/form_window.hpp"
#include "ui/qt_host.hpp"
#include "ui/style.hpp"

namespace {

using bm::ui::FormWindow;

// Far more than any window takes, even on a machine under load: past this a
// window is taken never to paint.
constexpr int kGuardMs = 10000;

// A field of /proc/self/status in KiB ("VmHWM", "VmRSS").
long StatusKiB(const std::string& field) {
    std::ifstream in("/proc/self/status");
    std::string line;
    while (std::getline(in, line))
        if (line.rfind(field + ":", 0) == 0) return std::strtol(line.c_str() + field.size() + 1, nullptr, 10);
    return -1;
}

qint64 ProcessCpuNs() {
    timespec t{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return static_cast<qint64>(t.tv_sec) * 1000000000LL + t.tv_nsec;
}

FormWindow* WindowOf(QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    return widget == nullptr ? nullptr : dynamic_cast<FormWindow*>(widget->window());
}

// Watches for the first paint of one form's window. As in the start-up hook,
// the moment taken is the turn of the loop after that paint: the frame has
// gone to the screen by then.
class FirstPaint : public QObject {
public:
    void expect(const std::string& form) {
        form_ = form;
        shown_.reset();
        armed_ = false;
    }
    const std::optional<qint64>& shownNs() const { return shown_; }
    qint64 cpuNs() const { return cpu_; }
    // Runs once the frame is up (inside the window's own loop when it is modal).
    std::function<void()> onShown;
    // Started once; every moment is read from it.
    QElapsedTimer clock;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && !armed_ && !form_.empty()) {
            if (FormWindow* w = WindowOf(watched); w != nullptr && w->formName() == form_) {
                armed_ = true;
                QTimer::singleShot(0, this, [this] {
                    shown_ = clock.nsecsElapsed();
                    cpu_ = ProcessCpuNs();
                    if (onShown) onShown();
                });
            }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    std::string form_;
    bool armed_ = false;
    std::optional<qint64> shown_;
    qint64 cpu_ = 0;
};

// Closes every calculator window still up (a form may have opened others
// beside itself), the one in front last, through the close box as a user would.
void CloseAllBut(std::string_view keep, const std::string& last) {
    FormWindow* lastWindow = nullptr;
    for (QWidget* top : QApplication::topLevelWidgets()) {
        auto* w = dynamic_cast<FormWindow*>(top);
        if (w == nullptr || !w->isVisible() || w->closedByModel() || w->formName() == keep) continue;
        if (w->formName() == last) {
            lastWindow = w;
            continue;
        }
        w->close();
    }
    if (lastWindow != nullptr && !lastWindow->closedByModel()) lastWindow->close();
}

void Flush() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    bm::ui::ApplyWorkbookStyle(app);

    bm::Workbook workbook;
    bm::ui::QtHost host;
    bm::Program program(workbook, host, bm::NumberLocale::system());
    host.attach(program);
    std::string current;
    // A box shown while a window opens is answered with its default button.
    host.setMessageAnswerer([](QMessageBox& box) {
        return box.defaultButton() != nullptr ? box.standardButton(box.defaultButton()) : QMessageBox::Ok;
    });
    host.setProcessExit([&current](int status) {
        std::fprintf(stderr, "bench-windows: the program ended with status %d while opening %s\n", status,
                     current.c_str());
        std::fflush(nullptr);
        std::_Exit(1);
    });

    FirstPaint probe;
    probe.clock.start();
    app.installEventFilter(&probe);

    probe.expect(std::string(bm::kMainForm));
    if (bm::StartProgram(program) != bm::Program::Status::Running) return 1;
    QMenuBar* bar = host.window(bm::kMainForm)->menuBar();
    {
        QEventLoop wait;
        probe.onShown = [&wait] { wait.quit(); };
        QTimer::singleShot(kGuardMs, &wait, &QEventLoop::quit);
        wait.exec();
        if (!probe.shownNs()) {
            std::fprintf(stderr, "bench-windows: the main window was not painted\n");
            return 1;
        }
    }
    // No one picks a menu item within a moment of the window appearing: what
    // the start-up leaves to do settles first.
    {
        QEventLoop settle;
        QTimer::singleShot(300, &settle, &QEventLoop::quit);
        settle.exec();
    }

    struct Row {
        const bm::MenuItem* item;
        std::vector<double> us;
        double cpuUs = 0;
    };
    std::vector<std::string> only;
    for (int i = 1; i + 1 < argc; ++i)
        if (std::string(argv[i]) == "--only") only.emplace_back(argv[i + 1]);
    std::vector<Row> rows;
    for (const bm::MenuItem& item : bm::FormRegistry::items()) {
        if (item.isSubmenu()) continue;
        if (!only.empty() && std::find(only.begin(), only.end(), item.name) == only.end()) continue;
        if (!program.isBuilt(item.form)) {
            std::printf("skipped %s %s\n", item.name.c_str(), item.form.c_str());
            continue;
        }
        rows.push_back({&item, {}});
    }

    // Chooses one item and waits for its window's first frame; returns µs and CPU µs.
    auto openOnce = [&](const bm::MenuItem& item) -> std::pair<double, double> {
        auto* action = bar->findChild<QAction*>(QString::fromStdString(item.name));
        if (action == nullptr || !action->isEnabled()) {
            std::fprintf(stderr, "bench-windows: no enabled menu item %s\n", item.name.c_str());
            std::_Exit(1);
        }
        current = item.name + " (" + item.form + ")";
        probe.expect(item.form);
        const bool modal = item.modality == bm::Modality::Modal;
        // A modal window runs its own loop inside trigger(): it is closed from
        // there, once painted. A modeless one is waited for here.
        probe.onShown = [&] {
            if (modal) CloseAllBut(bm::kMainForm, item.form);
        };
        // A window that never paints ends the bench, from whatever loop is running.
        QTimer guard;
        guard.setSingleShot(true);
        QObject::connect(&guard, &QTimer::timeout, [&current] {
            std::fprintf(stderr, "bench-windows: %s was not painted within %d s\n", current.c_str(), kGuardMs / 1000);
            std::fflush(nullptr);
            std::_Exit(1);
        });
        guard.start(kGuardMs);
        const qint64 cpuStart = ProcessCpuNs();
        const qint64 start = probe.clock.nsecsElapsed();
        action->trigger();
        if (!probe.shownNs()) {
            QEventLoop wait;
            probe.onShown = [&wait] { wait.quit(); };
            wait.exec();
        }
        guard.stop();
        probe.onShown = nullptr;
        const double us = static_cast<double>(*probe.shownNs() - start) / 1000.0;
        const double cpuUs = static_cast<double>(probe.cpuNs() - cpuStart) / 1000.0;
        CloseAllBut(bm::kMainForm, item.form);
        Flush();
        probe.expect("");
        return {us, cpuUs};
    };

    std::size_t start = 0;
    for (int i = 1; i + 1 < argc; ++i)
        if (std::string(argv[i]) == "--start") start = std::strtoul(argv[i + 1], nullptr, 10);
    if (!rows.empty()) std::rotate(rows.begin(), rows.begin() + static_cast<long>(start % rows.size()), rows.end());

    for (Row& r : rows) {
        const auto [us, cpuUs] = openOnce(*r.item);
        r.us.push_back(us);
        r.cpuUs = cpuUs;
    }
    const long peakKiB = StatusKiB("VmHWM");
    for (Row& r : rows) r.us.push_back(openOnce(*r.item).first);

    for (const Row& r : rows)
        std::printf("item %s %s %s %.0f %.0f %.0f\n", r.item->name.c_str(), r.item->form.c_str(),
                    r.item->modality == bm::Modality::Modal ? "modal" : "modeless", r.us[0], r.cpuUs, r.us[1]);
    std::printf("peak_kib %ld\n", peakKiB);
    std::printf("final_kib %ld\n", StatusKiB("VmRSS"));
    std::fflush(nullptr);
    // Like the program's own exit: at once, whatever is open.
    std::_Exit(0);
}
