#include "qt_net.hpp"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QPointer>
#include <QTimer>
#include <QtTest/QTest>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <set>

#include "checks.hpp"
#include "qt_checks.hpp"
#include "child.hpp"
#include "inputs.hpp"
#include "model_net.hpp"
#include "shell/form_registry.hpp"
#include "shell/workbook.hpp"
#include "ui/controls.hpp"
#include "ui/form_window.hpp"
#include "ui/geometry.hpp"
#include "ui/qt_host.hpp"
#include "ui/style.hpp"

namespace bm::soak {

namespace {

using ui::FormWindow;

QString Q(const std::string& s) { return QString::fromStdString(s); }

QPoint Middle(const QWidget* w) { return w->rect().center(); }

// The user, with the windows in front of them: one action per turn of the
// event loop, in whichever window is on top, and a look at every window
// against its model before each.
class Driver {
public:
    Driver(const Workbook& book, ui::QtHost& host, Program& program, std::uint64_t seed, long budgetMs, int fd,
           std::FILE* log)
        : book_(book), host_(host), program_(program), random_(seed), fd_(fd), log_(log),
          deadline_(Clock::now() + std::chrono::milliseconds(budgetMs)), forms_(EpisodeForms(book)) {}

    // One turn: the next is asked for first, so that it comes also inside the
    // loop of a box or a modal window this turn opens (a timer does not fire
    // again while its own slot runs).
    void turn() {
        lastTurn_ = Clock::now();
        if (!finished_) QTimer::singleShot(1, [this] { turn(); });
        struct Depth {
            int& d;
            explicit Depth(int& v) : d(v) { ++d; }
            ~Depth() { --d; }
        } depth(depth_);
        check();
        if (!windDown_ && Clock::now() >= deadline_) windDown_ = true;
        if (windDown_) return windDownStep();
        QWidget* modal = QApplication::activeModalWidget();
        // A compound action (a menu being walked, a text being typed) waits for
        // its own steps; only a window it opened on top may be acted in.
        if (busy_ && modal == busyModal_) return;
        if (auto* box = qobject_cast<QMessageBox*>(modal)) return answer(*box);
        if (auto* form = dynamic_cast<FormWindow*>(modal)) return actIn(*form);
        if (modal != nullptr) {
            action(modal->objectName().toStdString(), "escape on an unknown modal window");
            QTest::keyClick(modal, Qt::Key_Escape);
            return;
        }
        choose();
    }

    long events() const { return events_; }

    // The chain of turns has been seen to break now and then in the outer
    // loop, with nothing of the program's running; the user carries on.
    void resumeIfStalled() {
        if (finished_ || depth_ > 0 || Clock::now() - lastTurn_ < std::chrono::milliseconds(250)) return;
        std::fprintf(log_, "(the driver resumed after a pause)\n");
        turn();
    }

private:
    // The log line and the report line of an action, before it runs.
    void action(const std::string& form, const std::string& what) {
        ++events_;
        std::fprintf(log_, "%ld %s %s\n", events_, form.c_str(), what.substr(0, 300).c_str());
        std::fflush(log_);
        std::string brief = what.substr(0, 120);
        for (char& c : brief)
            if (c == '\n' || c == '\r') c = ' ';
        SendLine(fd_, "e " + std::to_string(events_) + " " + form + " " + brief);
    }

    void failure(const std::string& what) {
        if (!reported_.insert(what).second) return;
        std::fprintf(log_, "FAILURE %s\n", what.c_str());
        std::fflush(log_);
        SendLine(fd_, "f after event " + std::to_string(events_) + ": " + what);
    }

    // Every shown form has its window, and the window shows the record:
    // title, place, size, and each control's text, state, place and visibility.
    void check() {
        if (program_.status() != Program::Status::Running) return;
        for (const std::string& name : forms_) {
            const FormState* st = program_.state(name);
            FormWindow* w = host_.window(name);
            if (st == nullptr || !st->shown) {
                if (w != nullptr && w->isVisible() && !w->closedByModel())
                    failure(name + ": its window is up while the model has it closed");
                continue;
            }
            if (w == nullptr || w->closedByModel()) {
                failure(name + ": shown in the model, with no window");
                continue;
            }
            for (const std::string& p : WindowProblems(*w, *st)) failure(p);
        }
    }

    void answer(QMessageBox& box) {
        const bool fault = box.windowTitle() == QStringLiteral("Bancomisuratore") && box.icon() == QMessageBox::Critical;
        const QList<QAbstractButton*> buttons = box.buttons();
        const std::string head = (fault ? "fault box \"" : "box \"") + box.text().left(50).toStdString() + "\"";
        if (buttons.isEmpty() || Chance(random_, 10)) {
            action("box", head + ": Escape");
            QTest::keyClick(&box, Qt::Key_Escape);
            return;
        }
        if (Chance(random_, 10)) {
            action("box", head + ": Enter");
            QTest::keyClick(&box, Qt::Key_Return);
            return;
        }
        QAbstractButton* b = buttons[static_cast<int>(Pick(random_, static_cast<std::size_t>(buttons.size())))];
        action("box", head + ": " + b->text().toStdString());
        QTest::mouseClick(b, Qt::LeftButton, {}, Middle(b));
    }

    std::vector<FormWindow*> shownWindows() const {
        std::vector<FormWindow*> ws;
        for (const std::string& name : forms_) {
            const FormState* st = program_.state(name);
            FormWindow* w = host_.window(name);
            if (st != nullptr && st->shown && w != nullptr && w->isVisible() && !w->closedByModel()) ws.push_back(w);
        }
        return ws;
    }

    void choose() {
        FormWindow* main = host_.window(kMainForm);
        const std::vector<FormWindow*> shown = shownWindows();
        FormState* current = program_.current();
        FormWindow* recent = current != nullptr && current->name() != kMainForm ? host_.window(current->name()) : nullptr;
        if (recent != nullptr && (!recent->isVisible() || recent->closedByModel())) recent = nullptr;
        const int roll = static_cast<int>(Pick(random_, 100));
        if (recent != nullptr && roll < 70) return actIn(*recent);
        if (roll < 85 && shown.size() > 1) {
            FormWindow* w = shown[Pick(random_, shown.size())];
            if (w != main) return actIn(*w);
        }
        if (main != nullptr && main->isVisible()) return mainStep(*main);
        if (!shown.empty()) actIn(*shown.front());
    }

    void mainStep(FormWindow& main) {
        // Mostly the menu; the exit and the close box end the run, so they come seldom.
        const int roll = static_cast<int>(Pick(random_, 100));
        if (roll < 93) return chooseFromMenu(main);
        if (roll < 94) {
            action(std::string(kMainForm), "close box");
            main.close();
            return;
        }
        actIn(main);
    }

    // A menu item, by mouse: the bar, each submenu, the item.
    void chooseFromMenu(FormWindow& main) {
        QMenuBar* bar = main.menuBar();
        if (bar == nullptr) return;
        std::vector<QAction*> leaves;
        for (QAction* a : bar->findChildren<QAction*>())
            if (a->menu() == nullptr && a->isEnabled() && !a->objectName().isEmpty() && !a->isSeparator())
                leaves.push_back(a);
        if (leaves.empty()) return;
        QAction* leaf = leaves[Pick(random_, leaves.size())];
        std::vector<QMenu*> chain;
        for (QObject* p = leaf->parent(); p != nullptr && p != bar; p = p->parent())
            if (auto* m = qobject_cast<QMenu*>(p)) chain.insert(chain.begin(), m);
        action(std::string(kMainForm), "menu " + leaf->objectName().toStdString());
        Busy busy(*this);
        if (leaf->parent() == bar) {
            QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(leaf).center());
            return;
        }
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(chain.front()->menuAction()).center());
        for (std::size_t i = 0; i < chain.size(); ++i) {
            QMenu* m = chain[i];
            if (!QTest::qWaitFor([m] { return m->isVisible(); }, 1000)) {
                failure("menu " + m->objectName().toStdString() + " did not open under the mouse");
                closeMenus();
                return;
            }
            QAction* next = i + 1 < chain.size() ? chain[i + 1]->menuAction() : leaf;
            const QRect r = m->actionGeometry(next);
            QTest::mouseMove(m, r.center());
            if (i + 1 == chain.size()) {
                busy.release();  // the item may open a modal window: its loop is the user's again
                QTest::mouseClick(m, Qt::LeftButton, {}, r.center());
            } else {
                QTest::mouseClick(m, Qt::LeftButton, {}, r.center());
            }
        }
    }

    void closeMenus() {
        for (int i = 0; i < 8; ++i) {
            QWidget* popup = QApplication::activePopupWidget();
            if (popup == nullptr) return;
            QTest::keyClick(popup, Qt::Key_Escape);
        }
    }

    // Widgets of a window the user can reach, found by their names: visible and enabled.
    std::vector<std::pair<const ControlDef*, QWidget*>> reachable(FormWindow& w) {
        std::vector<std::pair<const ControlDef*, QWidget*>> out;
        for (const ControlDef& d : w.definition().controls) {
            if (ui::RendererFor(d.kind) == nullptr) continue;
            QWidget* widget = w.findChild<QWidget*>(Q(d.key.str()));
            if (widget == nullptr || !widget->isVisible() || !widget->isEnabled()) continue;
            switch (d.kind) {
                case ControlKind::TextBox:
                case ControlKind::Button:
                case ControlKind::Option:
                case ControlKind::CheckBox:
                case ControlKind::List: out.emplace_back(&d, widget); break;
                case ControlKind::Image:
                case ControlKind::Label:
                    if (d.clickable || w.definition().handler(EventKind::Click, d.key.name) != nullptr ||
                        Chance(random_, 3))
                        out.emplace_back(&d, widget);
                    break;
                default: break;
            }
        }
        return out;
    }

    void actIn(FormWindow& w) {
        const std::string form = w.formName();
        if (form != kMainForm && Chance(random_, 2)) {
            action(form, "close box");
            w.close();
            return;
        }
        if (Chance(random_, 4)) return keyboard(w);
        std::vector<std::pair<const ControlDef*, QWidget*>> boxes;
        std::vector<std::pair<const ControlDef*, QWidget*>> others;
        for (const auto& t : reachable(w)) (t.first->kind == ControlKind::TextBox ? boxes : others).push_back(t);
        if (boxes.empty() && others.empty()) return;
        const bool typing = !boxes.empty() && (others.empty() || Chance(random_, 50));
        const auto [def, widget] = typing ? boxes[Pick(random_, boxes.size())] : others[Pick(random_, others.size())];
        const std::string name = def->key.str();
        if (typing) return typeInto(form, name, *widget);
        if (def->kind == ControlKind::List) {
            const bool down = Chance(random_, 70);
            action(form, "list " + name + (down ? " Down" : " Up"));
            QTest::keyClick(widget, down ? Qt::Key_Down : Qt::Key_Up);
            return;
        }
        action(form, "click " + name);
        QTest::mouseClick(widget, Qt::LeftButton, {}, Middle(widget));
    }

    // The keyboard user: Tab to another control and Space on it, or Ctrl+C for the results.
    void keyboard(FormWindow& w) {
        const std::string form = w.formName();
        w.activateWindow();
        QWidget* focus = QApplication::focusWidget();
        if (focus == nullptr || focus->window() != &w) focus = w.clientArea();
        if (Chance(random_, 25)) {
            action(form, "Ctrl+C");
            QTest::keyClick(focus, Qt::Key_C, Qt::ControlModifier);
            return;
        }
        const int tabs = static_cast<int>(Pick(random_, 4)) + 1;
        action(form, std::to_string(tabs) + " Tab and Space");
        QPointer<FormWindow> guard(&w);
        for (int i = 0; i < tabs; ++i) {
            QWidget* now = QApplication::focusWidget();
            QTest::keyClick(now != nullptr && now->window() == &w ? now : focus, Qt::Key_Tab);
        }
        QWidget* target = QApplication::focusWidget();
        if (guard.isNull() || target == nullptr || target->window() != &w) return;
        QTest::keyClick(target, Qt::Key_Space);
    }

    void typeInto(const std::string& form, const std::string& name, QWidget& box) {
        const std::string text = InputText(random_, false);
        const int roll = static_cast<int>(Pick(random_, 100));
        Busy busy(*this);
        QPointer<QWidget> guard(&box);
        QTest::mouseClick(&box, Qt::LeftButton, {}, Middle(&box));
        if (guard.isNull() || !box.isVisible()) return;
        if (roll < 35 || text.size() > 30) {
            action(form, "paste into " + name + " \"" + text.substr(0, 40) + "\"" +
                             (text.size() > 40 ? " (" + std::to_string(text.size()) + " chars)" : ""));
            QApplication::clipboard()->setText(Q(text));
            QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
            if (!guard.isNull() && box.isVisible()) QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
            return;
        }
        if (roll < 45) {
            action(form, "backspace in " + name);
            QTest::keyClick(&box, Qt::Key_End);
            for (int i = static_cast<int>(Pick(random_, 4)) + 1; i > 0 && !guard.isNull() && box.isVisible(); --i)
                QTest::keyClick(&box, Qt::Key_Backspace);
            return;
        }
        const bool replace = roll < 85;
        action(form, std::string(replace ? "type over " : "type at the end of ") + name + " \"" + text + "\"");
        if (replace) QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
        else QTest::keyClick(&box, Qt::Key_End);
        // One key at a time: a window that answers each keystroke may show a box or close meanwhile.
        for (const char32_t ch : Q(text).toUcs4()) {
            if (guard.isNull() || !box.isVisible() || !box.hasFocus() || program_.status() != Program::Status::Running)
                return;
            const QString key = QString::fromUcs4(&ch, 1);
            // The test library spells keys for ASCII only; any other letter comes as the text of an unknown key.
            if (ch == '\n' || ch == '\r') QTest::keyClick(&box, Qt::Key_Return);
            else if ((ch >= 0x20 && ch < 0x7f) || ch == '\t') QTest::keyClicks(&box, key);
            else QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, key, Qt::NoModifier);
        }
    }

    void windDownStep() {
        QWidget* modal = QApplication::activeModalWidget();
        if (auto* box = qobject_cast<QMessageBox*>(modal)) {
            action("box", "box \"" + box->text().left(50).toStdString() + "\": " +
                              (box->escapeButton() != nullptr ? "Escape" : "first button"));
            if (box->escapeButton() != nullptr) QTest::keyClick(box, Qt::Key_Escape);
            else if (!box->buttons().isEmpty()) QTest::mouseClick(box->buttons().front(), Qt::LeftButton);
            return;
        }
        if (auto* form = dynamic_cast<FormWindow*>(modal)) {
            action(form->formName(), "close box (time is up)");
            form->close();
            return;
        }
        if (modal != nullptr) {
            QTest::keyClick(modal, Qt::Key_Escape);
            return;
        }
        if (depth_ == 1 && !busy_) {
            finished_ = true;
            QApplication::quit();
        }
    }

    // Marks a compound action; nested turns wait unless a new modal window is on top.
    class Busy {
    public:
        explicit Busy(Driver& d) : d_(d), was_(d.busy_), wasModal_(d.busyModal_) {
            d_.busy_ = true;
            d_.busyModal_ = QApplication::activeModalWidget();
        }
        ~Busy() { release(); }
        void release() {
            if (released_) return;
            released_ = true;
            d_.busy_ = was_;
            d_.busyModal_ = wasModal_;
        }
        Busy(const Busy&) = delete;
        Busy& operator=(const Busy&) = delete;

    private:
        Driver& d_;
        bool was_;
        QWidget* wasModal_;
        bool released_ = false;
    };

    const Workbook& book_;
    ui::QtHost& host_;
    Program& program_;
    Random random_;
    int fd_;
    std::FILE* log_;
    Clock::time_point deadline_;
    std::vector<std::string> forms_;
    long events_ = 0;
    Clock::time_point lastTurn_ = Clock::now();
    int depth_ = 0;
    bool windDown_ = false;
    bool finished_ = false;
    bool busy_ = false;
    QWidget* busyModal_ = nullptr;
    std::set<std::string> reported_;
};

}  // namespace

int RunQtChild(std::uint64_t seed, long run, long budgetMs, const std::string& logPath, int fd) {
    Random choice(Mix(seed + 0x51ULL, static_cast<std::uint64_t>(run)));
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Half the runs with Italian number settings, as most users have them.
    const bool italian = Chance(choice, 50);
    qputenv("LC_ALL", italian ? "it_IT.UTF-8" : "C.UTF-8");
    std::FILE* log = std::fopen(logPath.c_str(), "w");
    if (log == nullptr) return 3;
    std::fprintf(log, "soak qt: seed %llu, run %ld, %s numbers\n", static_cast<unsigned long long>(seed), run,
                 italian ? "Italian" : "English");

    int argc = 1;
    char name[] = "bancomisuratore";
    char* argv[] = {name, nullptr};
    int status = 0;
    {
        QApplication app(argc, argv);
        QApplication::setApplicationName(QStringLiteral("Bancomisuratore"));
        QApplication::setQuitOnLastWindowClosed(false);
        ui::ApplyWorkbookStyle(app);

        Workbook workbook;
        ui::QtHost host;
        Program program(workbook, host, NumberLocale::system());
        host.attach(program);
        const QString pdfs = Q(logPath + ".pdf");
        QDir().mkpath(pdfs);
        host.setPrintSettings({true, pdfs, {}});
        // The program ends itself as it always does; the net is told how first.
        host.setProcessExit([&program, fd, log](int code) {
            std::string why = "closed";
            if (program.status() == Program::Status::Faulted)
                why = "fault " + std::string(FaultSlug(program.fault().value_or(FaultKind::Overflow)));
            else if (program.status() == Program::Status::Ended) why = "ended";
            else if (code != 0) why = "internal-error";
            std::fprintf(log, "END %d %s\n", code, why.c_str());
            std::fflush(nullptr);
            SendLine(fd, "x " + std::to_string(code) + " " + why);
            std::_Exit(code);
        });
        if (StartProgram(program) != Program::Status::Running) return 4;
        SendLine(fd, "r");

        Driver driver(workbook, host, program, choice(), budgetMs, fd, log);
        QTimer::singleShot(0, [&driver] { driver.turn(); });
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, [&driver] { driver.resumeIfStalled(); });
        watch.start(250);
        status = QApplication::exec();
        watch.stop();
        std::fprintf(log, "DONE after %ld events\n", driver.events());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    std::fclose(log);
    SendLine(fd, "d");
    return status;
}

}  // namespace bm::soak
