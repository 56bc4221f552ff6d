#include "ui/qt_host.hpp"

#include <QApplication>
#include <QEventLoop>
#include <QLocale>
#include <QMenuBar>
#include <QScreen>
#include <QWindow>
#include <cstdio>
#include <cstdlib>

#include "shell/form_registry.hpp"
#include "shell/workbook.hpp"
#include "ui/geometry.hpp"
#include "ui/main_menu.hpp"
#include "ui/message_box.hpp"

namespace bm::ui {

namespace {

// An error of the program itself (a control its definition lacks, say): the
// process cannot go on, and says why on its way out.
constexpr int kInternalErrorStatus = 70;

void LeaveNow(int status) {
    std::fflush(nullptr);
    std::_Exit(status);
}

}  // namespace

QtHost::QtHost() : exit_(&LeaveNow) {}

QtHost::~QtHost() {
    for (auto& [name, loop] : loops_) loop->quit();
    for (auto& [name, w] : windows_) {
        if (w.isNull()) continue;
        w->closeFromModel();
        delete w.data();
    }
}

FormWindow* QtHost::window(std::string_view form) const {
    auto it = windows_.find(form);
    return it == windows_.end() ? nullptr : it->second.data();
}

bool QtHost::acceptsEvents(const std::string& form) const {
    if (program_ == nullptr || program_->status() != Program::Status::Running) return false;
    const FormState* st = program_->state(form);
    return st != nullptr && st->loaded && st->shown;
}

void QtHost::dispatch(const std::function<void()>& event) {
    if (program_ == nullptr || program_->status() != Program::Status::Running) return;
    // Program::run ends every run-time failure of the logic; what arrives here
    // is a fault of the program, and no exception may cross Qt's event loop.
    try {
        event();
    } catch (const std::exception& e) {
        std::fprintf(stderr, "bancomisuratore: internal error: %s\n", e.what());
        leave(kInternalErrorStatus);
        return;
    } catch (...) {
        std::fprintf(stderr, "bancomisuratore: internal error\n");
        leave(kInternalErrorStatus);
        return;
    }
    syncAll();
}

void QtHost::syncAll() {
    if (program_ == nullptr) return;
    for (auto& [name, w] : windows_) {
        if (w.isNull() || w->closedByModel()) continue;
        const FormState* st = program_->state(name);
        if (st != nullptr && st->loaded && st->shown) w->sync(*st);
    }
}

void QtHost::leave(int status) { exit_(status); }

void QtHost::chooseMenuItem(const std::string& item) {
    dispatch([&] { ChooseMenuItem(*program_, item); });
}

void QtHost::controlClicked(const std::string& form, const ControlKey& control) {
    if (!acceptsEvents(form)) return;
    dispatch([&] { program_->click(form, control); });
}

void QtHost::controlEdited(const std::string& form, const ControlKey& control, const std::string& text) {
    if (!acceptsEvents(form)) return;
    dispatch([&] { program_->edit(form, control, text); });
}

// Program::tick runs every enabled timer of the program; the workbook has one.
void QtHost::timerElapsed(const std::string& form, const ControlKey&) {
    if (!acceptsEvents(form)) return;
    dispatch([&] { program_->tick(); });
}

void QtHost::closeBoxPressed(const std::string& form) {
    if (!acceptsEvents(form)) return;
    dispatch([&] { program_->close(form); });
    // The main window's close box ends the program, whatever else is open, and asks nothing.
    if (form == kMainForm && program_->status() == Program::Status::Running) leave(0);
}

QWidget* QtHost::messageParent() const {
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    if (program_ != nullptr) {
        if (FormState* st = program_->current(); st != nullptr && st->shown) {
            if (FormWindow* w = window(st->name()); w != nullptr && w->isVisible()) return w;
        }
    }
    return QApplication::activeWindow();
}

int QtHost::showMessage(const std::string& text, int style, const std::string& title) {
    const std::unique_ptr<QMessageBox> box = BuildMessageBox(text, style, title, messageParent());
    QMessageBox::StandardButton pressed = QMessageBox::NoButton;
    if (answerer_) {
        pressed = answerer_(*box);
    } else {
        box->exec();
        pressed = box->standardButton(box->clickedButton());
    }
    return AnswerCode(pressed, DecodeBoxStyle(style));
}

void QtHost::formShown(FormState& form) {
    auto& slot = windows_[form.name()];
    if (!slot.isNull()) {
        slot->closeFromModel();
        slot->deleteLater();
    }
    auto* w = new FormWindow(*form.def, *this);
    if (form.name() == kMainForm) {
        auto* bar = new QMenuBar(w);
        BuildMainMenu(
            *bar, FormRegistry::items(), [this](std::string_view f) { return program_->isBuilt(f); },
            [this](const std::string& item) { chooseMenuItem(item); });
        w->setMenuBar(bar);
    }
    if (form.modality == Modality::Modal) {
        w->setWindowModality(Qt::ApplicationModal);
        // Over the window that opened it, wherever the window manager puts things.
        QWidget* owner = QApplication::activeWindow();
        if (owner == nullptr) owner = window(kMainForm);
        if (owner != nullptr && owner != w) {
            w->winId();
            if (owner->windowHandle() != nullptr) w->windowHandle()->setTransientParent(owner->windowHandle());
        }
    }
    w->sync(form);
    slot = w;
    w->show();
}

void QtHost::runModal(FormState& form) {
    if (!modalLoops_) return;
    FormWindow* w = window(form.name());
    if (w == nullptr || w->closedByModel()) return;
    QEventLoop loop;
    loops_[form.name()] = &loop;
    loop.exec(QEventLoop::DialogExec);
    loops_.erase(form.name());
}

void QtHost::formBroughtForward(FormState& form) {
    if (FormWindow* w = window(form.name())) {
        w->show();
        w->raise();
        w->activateWindow();
    }
}

void QtHost::formClosed(FormState& form) {
    if (auto it = windows_.find(form.name()); it != windows_.end()) {
        if (!it->second.isNull()) {
            it->second->closeFromModel();
            it->second->deleteLater();
        }
        windows_.erase(it);
    }
    if (auto loop = loops_.find(form.name()); loop != loops_.end()) loop->second->quit();
}

void QtHost::formMoved(FormState& form) {
    if (FormWindow* w = window(form.name()); w != nullptr && form.shown) w->sync(form);
}

void QtHost::formChanged(FormState& form) {
    if (FormWindow* w = window(form.name()); w != nullptr && !w->closedByModel()) w->sync(form);
}

void QtHost::focusRequested(FormState& form, const ControlKey& control) {
    if (FormWindow* w = window(form.name())) w->focusControl(control);
}

void QtHost::printWindow(FormState& form) {
    FormWindow* w = window(form.name());
    if (w == nullptr) return;
    // The window as it stands: what the logic hid just before is not on paper,
    // nor a note left by an earlier print.
    w->sync(form);
    w->hideNote();
    lastPrinted_ = w->grab().toImage();
    lastOutcome_ = PrintImage(lastPrinted_, QString::fromStdString(form.name()), printSettings_);
    // The user is told where the page went, in the window, without a box of the logic's.
    if (lastOutcome_.where == PrintOutcome::Where::Pdf) {
        std::fprintf(stderr, "bancomisuratore: no printer, the window went to %s\n",
                     lastOutcome_.target.toLocal8Bit().constData());
        w->showNote(QStringLiteral("Nessuna stampante: la finestra è stata salvata in %1").arg(lastOutcome_.target));
    } else if (lastOutcome_.where == PrintOutcome::Where::Failed) {
        std::fprintf(stderr, "bancomisuratore: the window could not be printed\n");
        w->showNote(QStringLiteral("Stampa non riuscita: la finestra non è stata stampata."));
    }
}

void QtHost::faulted(FaultKind kind) {
    const std::unique_ptr<QMessageBox> box = BuildMessageBox(FaultBoxText(kind), 16, "Bancomisuratore", messageParent());
    if (answerer_)
        answerer_(*box);
    else
        box->exec();
    leave(1);
}

void QtHost::ended() { leave(0); }

std::string QtHost::today() {
    // The system's short date, with the year in full.
    QString format = QLocale::system().dateFormat(QLocale::ShortFormat);
    if (!format.contains(QStringLiteral("yyyy"))) format.replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
    return QLocale::system().toString(QDate::currentDate(), format).toStdString();
}

int QtHost::screenWidth() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return Twips(screen != nullptr ? screen->geometry().width() : 1024);
}

int QtHost::screenHeight() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return Twips(screen != nullptr ? screen->geometry().height() : 768);
}

}  // namespace bm::ui
