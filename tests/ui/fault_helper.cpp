// A child process for the fault test: opens a window whose button divides by
// zero, clicks it, answers the run-time box as a user would (printing what it
// showed), and lets the host end the process as it ends the real program.
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <cstdio>

#include "forms/form_context.hpp"
#include "ui/qt_host.hpp"
#include "ui/style.hpp"

namespace {

class OneForm : public bm::FormLibrary {
public:
    OneForm() {
        form_.button("cmdguasto", {240, 240, 1200, 420}, "GUASTO");
        form_.onClick("cmdguasto", [](bm::FormContext& c) { c.fail(bm::FaultKind::DivisionByZero); });
    }
    const bm::CalculatorForm* find(std::string_view name) const override { return name == form_.name ? &form_ : nullptr; }

private:
    bm::CalculatorForm form_{"frmguasto", "GUASTO", {600, 600, 3000, 1800}};
};

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    bm::ui::ApplyWorkbookStyle(app);
    OneForm library;
    bm::ui::QtHost host;
    bm::Program program(library, host, bm::NumberLocale::english());
    host.attach(program);
    program.open("frmguasto", bm::OpenModeless);

    // The user reads the box and presses OK.
    auto* answer = new QTimer(&app);
    QObject::connect(answer, &QTimer::timeout, [] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) return;
        std::printf("title=%s\ntext=%s\nicon=%d\n", box->windowTitle().toUtf8().constData(),
                    box->text().toUtf8().constData(), static_cast<int>(box->icon()));
        std::fflush(stdout);
        box->button(QMessageBox::Ok)->click();
    });
    answer->start(20);
    QTimer::singleShot(0, [&host] { qobject_cast<QPushButton*>(host.window("frmguasto")->control("cmdguasto"))->click(); });
    // The host ends the process after the box; reaching this point is the failure under test.
    QTimer::singleShot(10000, [] {
        std::printf("still running\n");
        std::_Exit(99);
    });
    QApplication::exec();
    std::printf("event loop returned\n");
    return 98;
}
