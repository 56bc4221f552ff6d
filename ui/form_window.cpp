#include "ui/form_window.hpp"

#include <QAction>
#include <QClipboard>
#include <QCloseEvent>
#include <QGraphicsOpacityEffect>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPropertyAnimation>
#include <QTimer>
#include <algorithm>
#include <vector>

#include "ui/accessibility.hpp"
#include "ui/controls.hpp"
#include "ui/copy_results.hpp"
#include "ui/geometry.hpp"
#include "ui/schematic.hpp"

namespace bm::ui {

namespace {

// Frames inside frames go no deeper than this; a frame said to hold itself stops here.
constexpr int kMaxNesting = 8;
// How long a note stays before it fades, and how long the fading takes.
constexpr int kNoteMs = 5000;
constexpr int kNoteFadeMs = 800;

}  // namespace

FormWindow::FormWindow(const CalculatorForm& def, EventSink& sink) : QWidget(nullptr), def_(def), sink_(sink) {
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    setObjectName(QString::fromStdString(def.name));
    setWindowTitle(QString::fromStdString(def.title));
    client_ = new QWidget(this);
    client_->setObjectName(QStringLiteral("client"));
    layerFor("");

    for (const ControlDef& d : def_.controls) build(d);

    // Stacking: the schematic at the bottom, labels and pictures over it, and
    // the controls that are windows of their own over everything else.
    for (auto& [container, layer] : layers_) layer->lower();
    for (const ControlDef& d : def_.controls) {
        if (!IsWindowedKind(d.kind)) continue;
        if (QWidget* w = control(d.key)) w->raise();
    }
    applyTabOrder();
    for (const ControlDef& d : def_.controls) {
        if (d.kind != ControlKind::TextBox) continue;
        if (std::optional<ControlKey> label = CaptionLabelFor(def_, d.key)) captions_.emplace(d.key, *label);
        if (QWidget* w = control(d.key); w && !d.tooltip.empty())
            w->setAccessibleDescription(QString::fromStdString(d.tooltip));
    }
    applyWindow(def_.window);
    addCopyAction();
}

void FormWindow::addCopyAction() {
    auto* copy = new QAction(QStringLiteral("Copia i risultati"), this);
    copy->setObjectName(QStringLiteral("copyResults"));
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WindowShortcut);
    connect(copy, &QAction::triggered, this, [this] { copyResults(); });
    client_->addAction(copy);
    client_->setContextMenuPolicy(Qt::ActionsContextMenu);
    // A text box keeps Ctrl+C for a selection of its own; with nothing selected it copies the results.
    for (const ControlDef& d : def_.controls)
        if (d.kind == ControlKind::TextBox)
            if (QWidget* w = control(d.key)) w->installEventFilter(this);
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        auto* box = qobject_cast<QLineEdit*>(watched);
        if (box != nullptr && key->matches(QKeySequence::Copy) && !box->hasSelectedText()) {
            copyResults();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void FormWindow::copyResults() {
    if (state_ == nullptr) return;
    QGuiApplication::clipboard()->setText(QString::fromStdString(ResultsText(def_, *state_)));
}

void FormWindow::showNote(const QString& text) {
    if (note_ == nullptr) {
        note_ = new QLabel(this);
        note_->setObjectName(QStringLiteral("note"));
        note_->setWordWrap(true);
        note_->setTextInteractionFlags(Qt::TextSelectableByMouse);
        note_->setStyleSheet(QStringLiteral("QLabel { background: #fff8c4; color: #202020; border: 1px solid #8a7d2a;"
                                            " border-radius: 4px; padding: 4px 8px; }"));
        note_->setGraphicsEffect(new QGraphicsOpacityEffect(note_));
        noteTimer_ = new QTimer(this);
        noteTimer_->setSingleShot(true);
        connect(noteTimer_, &QTimer::timeout, this, [this] {
            auto* fade = new QPropertyAnimation(note_->graphicsEffect(), "opacity", note_);
            fade->setDuration(kNoteFadeMs);
            fade->setStartValue(1.0);
            fade->setEndValue(0.0);
            connect(fade, &QPropertyAnimation::finished, note_, &QWidget::hide);
            fade->start(QAbstractAnimation::DeleteWhenStopped);
        });
    }
    static_cast<QGraphicsOpacityEffect*>(note_->graphicsEffect())->setOpacity(1.0);
    note_->setText(text);
    const int margin = 8;
    const int width = std::max(40, this->width() - 2 * margin);
    note_->setFixedWidth(width);
    note_->adjustSize();
    note_->move(margin, height() - note_->height() - margin);
    note_->raise();
    note_->show();
    noteTimer_->start(kNoteMs);
}

void FormWindow::hideNote() {
    if (note_ == nullptr) return;
    noteTimer_->stop();
    note_->hide();
}

QWidget* FormWindow::containerWidget(const std::string& container) {
    if (container.empty()) return client_;
    const ControlKey key = ControlKey::Parse(container);
    if (QWidget* w = control(key)) return w;
    const ControlDef* frame = def_.find(key);
    if (frame == nullptr || frame->container == container) return client_;
    if (QWidget* w = build(*frame)) return w;
    return client_;
}

SchematicLayer* FormWindow::layerFor(const std::string& container) {
    if (auto it = layers_.find(container); it != layers_.end()) return it->second;
    auto* layer = new SchematicLayer(containerWidget(container));
    layers_.emplace(container, layer);
    return layer;
}

QWidget* FormWindow::build(const ControlDef& d) {
    if (QWidget* w = control(d.key)) return w;
    if (buildDepth_ > kMaxNesting) return nullptr;
    ++buildDepth_;
    QWidget* made = nullptr;
    const ControlKey key = d.key;
    switch (d.kind) {
        case ControlKind::Line:
        case ControlKind::Shape: layerFor(d.container)->add(d); break;
        case ControlKind::Timer: {
            auto* t = new QTimer(this);
            t->setObjectName(QString::fromStdString(key.str()));
            connect(t, &QTimer::timeout, this, [this, key] {
                if (!closedByModel_) sink_.timerElapsed(def_.name, key);
            });
            timers_.emplace(key, t);
            break;
        }
        default: {
            ControlEvents events;
            events.clicked = [this, key] {
                if (!closedByModel_) sink_.controlClicked(def_.name, key);
            };
            events.edited = [this, key](const std::string& text) {
                if (!closedByModel_) sink_.controlEdited(def_.name, key, text);
            };
            QWidget* parent = containerWidget(d.container);
            made = RendererFor(d.kind)(d, parent, events);
            made->setGeometry(ToPixels(d.rect));
            if (!d.visible) made->hide();
            if (!d.enabled) made->setEnabled(false);
            widgets_.emplace(key, made);
            break;
        }
    }
    --buildDepth_;
    return made;
}

void FormWindow::applyTabOrder() {
    std::vector<const ControlDef*> order;
    for (const ControlDef& d : def_.controls)
        if (d.takesFocus() && control(d.key) != nullptr) order.push_back(&d);
    std::stable_sort(order.begin(), order.end(),
                     [](const ControlDef* a, const ControlDef* b) { return a->tabIndex < b->tabIndex; });
    for (std::size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(control(order[i - 1]->key), control(order[i]->key));
}

void FormWindow::setMenuBar(QMenuBar* bar) {
    menuBar_ = bar;
    bar->setParent(this);
    bar->show();
    const std::optional<Rect> applied = appliedWindow_;
    appliedWindow_.reset();
    applyWindow(applied.value_or(def_.window));
}

void FormWindow::applyWindow(const Rect& window) {
    if (appliedWindow_ == window) return;
    const QSize size = ClientSize(window);
    const int menuHeight = menuBar_ != nullptr ? menuBar_->sizeHint().height() : 0;
    setFixedSize(size);
    if (menuBar_ != nullptr) menuBar_->setGeometry(0, 0, size.width(), menuHeight);
    client_->setGeometry(0, menuHeight, size.width(), std::max(1, size.height() - menuHeight));
    move(Px(window.left), Px(window.top));
    appliedWindow_ = window;
}

void FormWindow::sync(const FormState& state) {
    state_ = &state;
    const QString title = QString::fromStdString(state.title);
    if (windowTitle() != title) setWindowTitle(title);
    applyWindow(state.window);
    for (const ControlDef& d : def_.controls) {
        auto st = state.controls.find(d.key);
        if (st == state.controls.end()) continue;
        if (QWidget* w = control(d.key)) SyncControl(*w, d, st->second);
        if (auto t = timers_.find(d.key); t != timers_.end()) {
            const bool run = st->second.enabled && st->second.interval > 0;
            if (!run)
                t->second->stop();
            else if (!t->second->isActive() || t->second->interval() != st->second.interval)
                t->second->start(st->second.interval);
        }
    }
    for (auto& [container, layer] : layers_) {
        const QRect area = layer->parentWidget()->rect();
        if (layer->geometry() != area) layer->setGeometry(area);
        layer->sync(state);
    }
    nameTextBoxes(state);
}

void FormWindow::nameTextBoxes(const FormState& state) {
    for (const auto& [box, label] : captions_) {
        QWidget* w = control(box);
        auto st = state.controls.find(label);
        if (w == nullptr || st == state.controls.end()) continue;
        QString name = SpokenCaption(st->second.text);
        if (name.isEmpty()) name = QString::fromStdString(def_.at(box).tooltip);
        if (name.isEmpty()) name = QString::fromStdString(box.str());
        if (w->accessibleName() != name) w->setAccessibleName(name);
    }
}

void FormWindow::focusControl(const ControlKey& key) {
    if (QWidget* w = control(key)) w->setFocus(Qt::OtherFocusReason);
}

QWidget* FormWindow::control(const ControlKey& key) const {
    auto it = widgets_.find(key);
    return it == widgets_.end() ? nullptr : it->second;
}

QTimer* FormWindow::timer(const ControlKey& key) const {
    auto it = timers_.find(key);
    return it == timers_.end() ? nullptr : it->second;
}

std::optional<ControlKey> FormWindow::captionOf(const ControlKey& textBox) const {
    auto it = captions_.find(textBox);
    if (it == captions_.end()) return std::nullopt;
    return it->second;
}

void FormWindow::closeFromModel() {
    closedByModel_ = true;
    for (auto& [key, t] : timers_) t->stop();
    close();
}

void FormWindow::closeEvent(QCloseEvent* event) {
    if (closedByModel_) {
        event->accept();
        return;
    }
    // The close box asks the model; the window goes only when the form unloads.
    event->ignore();
    sink_.closeBoxPressed(def_.name);
}

}  // namespace bm::ui
