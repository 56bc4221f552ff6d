// Draws every window of the workbook as it looks right after opening, one PNG
// per form, and lists what looks cut or out of place: captions that do not fit
// their box and controls that pass the edge of their window or frame.
#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QFileInfo>
#include <cstdio>
#include <exception>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "calc/catalogue.hpp"
#include "forms/program.hpp"
#include "runner/scenario.hpp"
#include "shell/workbook.hpp"
#include "ui/form_window.hpp"
#include "ui/pictures.hpp"
#include "ui/qt_host.hpp"
#include "ui/style.hpp"

namespace {

using bm::ui::FormWindow;

std::vector<std::string> GalleryForms() {
    std::vector<std::string> forms{std::string(bm::kMainForm)};
    for (const bm::CatalogueEntry& e : bm::CalculatorCatalogue()) forms.emplace_back(e.name);
    for (const char* shellForm : {"frmavvertenza", "frmabaut", "frmhelpcondensatore"}) forms.emplace_back(shellForm);
    return forms;
}

std::vector<std::string> LayoutProblems(const FormWindow& window) {
    std::vector<std::string> problems;
    if (const QMenuBar* bar = window.menuBar()) {
        for (QAction* a : bar->actions())
            if (!bar->rect().contains(bar->actionGeometry(a)) || bar->actionGeometry(a).isEmpty())
                problems.push_back("menu " + a->text().toStdString() + " does not fit on the menu bar");
    }
    for (const bm::ControlDef& d : window.definition().controls) {
        QWidget* w = window.control(d.key);
        if (w == nullptr || w->isHidden()) continue;
        const std::string name = d.key.str();
        if (!d.picture.empty() && !bm::ui::IsKnownPicture(d.picture))
            problems.push_back(name + ": picture \"" + d.picture + "\" is not drawn yet (placeholder shown)");
        const QRect area = w->parentWidget()->rect();
        // A control wholly past the edge waits below the fold for a window that
        // grows (frmdB's example); one cut in two is a fault of the layout.
        if (!area.contains(w->geometry()) && area.intersects(w->geometry()))
            problems.push_back(name + " passes the edge of " +
                               (w->parentWidget() == window.clientArea() ? std::string("the window") : d.container));
        if (auto* label = qobject_cast<QLabel*>(w); label != nullptr && !label->text().isEmpty()) {
            const int needed = label->wordWrap() ? label->heightForWidth(label->width())
                                                 : label->fontMetrics().horizontalAdvance(label->text());
            const int room = label->wordWrap() ? label->height() : label->width();
            if (needed > room + 1)
                problems.push_back(name + ": its text needs " + std::to_string(needed) + " px, it has " +
                                   std::to_string(room));
        }
        if (auto* button = qobject_cast<QAbstractButton*>(w); button != nullptr && !button->text().isEmpty()) {
            if (button->sizeHint().width() > button->width() + 2)
                problems.push_back(name + ": its caption needs " + std::to_string(button->sizeHint().width()) +
                                   " px, it has " + std::to_string(button->width()));
        }
        if (auto* frame = qobject_cast<QGroupBox*>(w); frame != nullptr && !frame->title().isEmpty()) {
            if (frame->fontMetrics().horizontalAdvance(frame->title()) + 16 > frame->width())
                problems.push_back(name + ": its title is wider than the frame");
        }
    }
    return problems;
}

// A window drawn from a form's record only to be looked at: nothing it reports goes anywhere.
struct NoSink final : bm::ui::EventSink {
    void controlClicked(const std::string&, const bm::ControlKey&) override {}
    void controlEdited(const std::string&, const bm::ControlKey&, const std::string&) override {}
    void timerElapsed(const std::string&, const bm::ControlKey&) override {}
    void closeBoxPressed(const std::string&) override {}
};

// Runs scenario files through the real handlers and draws the window after
// every click, set and type, as DIR/<file>-<line>.png, with its layout remarks:
// the way to see result texts in their labels.
int DrawSteps(const QDir& out, const std::vector<std::string>& files) {
    NoSink sink;
    int drawn = 0;
    int remarks = 0;
    int failed = 0;
    for (const std::string& file : files) {
        std::ifstream in(file, std::ios::binary);
        if (!in) {
            std::printf("%s: cannot read\n", file.c_str());
            ++failed;
            continue;
        }
        std::stringstream text;
        text << in.rdbuf();
        const std::string stem = QFileInfo(QString::fromStdString(file)).completeBaseName().toStdString();
        std::set<std::string> seen;  // a remark is told once per file
        const auto draw = [&](int line, const bm::FormState& state) {
            FormWindow window(*state.def, sink);
            window.sync(state);
            window.show();
            QApplication::processEvents();
            const std::string name = stem + "-" + std::to_string(line) + ".png";
            window.grab().save(out.filePath(QString::fromStdString(name)));
            ++drawn;
            for (const std::string& p : LayoutProblems(window)) {
                if (!seen.insert(p).second) continue;
                ++remarks;
                std::printf("%s:%d: %s: %s\n", file.c_str(), line, state.name().c_str(), p.c_str());
            }
        };
        const bm::scenario::FileResult result = bm::scenario::RunText(text.str(), file, nullptr, draw);
        for (const std::string& f : result.failures) std::printf("%s\n", f.c_str());
    }
    std::printf("%d steps drawn in %s, %d layout remarks, %d files unreadable\n", drawn,
                out.path().toLocal8Bit().constData(), remarks, failed);
    return failed == 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    const bool steps = argc >= 4 && std::string(argv[2]) == "--steps";
    if (argc != 2 && !steps) {
        std::fprintf(stderr, "usage: bancomisuratore-gallery DIR [--steps FILE.scenario ...]\n");
        return 2;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    bm::ui::ApplyWorkbookStyle(app);
    const QDir out(QString::fromLocal8Bit(argv[1]));
    if (!QDir().mkpath(out.path())) {
        std::fprintf(stderr, "bancomisuratore-gallery: cannot create %s\n", argv[1]);
        return 1;
    }
    if (steps) return DrawSteps(out, std::vector<std::string>(argv + 3, argv + argc));

    bm::Workbook workbook;
    int drawn = 0;
    int withProblems = 0;
    int failures = 0;
    for (const std::string& form : GalleryForms()) {
        if (workbook.find(form) == nullptr) {
            std::printf("%s: not built\n", form.c_str());
            continue;
        }
        // A fresh program for each form: a form that faults on opening leaves the others untouched.
        bm::ui::QtHost host;
        host.setModalLoops(false);
        host.setMessageAnswerer([&form](QMessageBox& box) {
            std::printf("%s: opening shows \"%s\" (%s)\n", form.c_str(), box.text().toStdString().c_str(),
                        box.windowTitle().toStdString().c_str());
            return box.defaultButton() != nullptr ? box.standardButton(box.defaultButton()) : QMessageBox::Ok;
        });
        int status = -1;
        host.setProcessExit([&status](int s) { status = s; });
        bm::Program program(workbook, host, bm::NumberLocale::system());
        host.attach(program);
        try {
            if (form == bm::kMainForm)
                bm::StartProgram(program);
            else
                program.open(form, bm::OpenModeless);
        } catch (const std::exception& e) {
            std::printf("%s: FAILED to open: %s\n", form.c_str(), e.what());
            ++failures;
            continue;
        }
        QApplication::processEvents();
        FormWindow* window = host.window(form);
        if (status >= 0 || window == nullptr) {
            std::printf("%s: FAILED to open (status %d)\n", form.c_str(), status);
            ++failures;
            continue;
        }
        const QString file = out.filePath(QString::fromStdString(form) + QStringLiteral(".png"));
        if (!window->grab().save(file)) {
            std::printf("%s: cannot write %s\n", form.c_str(), file.toLocal8Bit().constData());
            ++failures;
            continue;
        }
        ++drawn;
        const std::vector<std::string> problems = LayoutProblems(*window);
        if (!problems.empty()) ++withProblems;
        for (const std::string& p : problems) std::printf("%s: %s\n", form.c_str(), p.c_str());
    }
    std::printf("%d windows drawn in %s, %d with layout remarks, %d failed\n", drawn, argv[1], withProblems, failures);
    return failures == 0 ? 0 : 1;
}
