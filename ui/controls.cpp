#include "ui/controls.hpp"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include "ui/accessibility.hpp"
#include "ui/geometry.hpp"
#include "ui/pictures.hpp"
#include "ui/style.hpp"

namespace bm::ui {

namespace {

QString Q(const std::string& s) { return QString::fromStdString(s); }

Qt::Alignment Horizontal(Align a) {
    switch (a) {
        case Align::Center: return Qt::AlignHCenter;
        case Align::Right: return Qt::AlignRight;
        case Align::Left: break;
    }
    return Qt::AlignLeft;
}

// The palette role that colours a kind's text, and the one behind it.
QPalette::ColorRole TextRole(ControlKind kind) {
    switch (kind) {
        case ControlKind::TextBox:
        case ControlKind::List: return QPalette::Text;
        case ControlKind::Button: return QPalette::ButtonText;
        default: return QPalette::WindowText;
    }
}

QPalette::ColorRole BackRole(ControlKind kind) {
    switch (kind) {
        case ControlKind::TextBox:
        case ControlKind::List: return QPalette::Base;
        case ControlKind::Button: return QPalette::Button;
        default: return QPalette::Window;
    }
}

// Font, tooltip, background and focus policy: what every widget takes from its
// definition once.
void Common(QWidget& w, const ControlDef& def) {
    w.setObjectName(Q(def.key.str()));
    w.setFont(ControlFont(def.fontSize, def.bold));
    if (!def.tooltip.empty()) w.setToolTip(Q(def.tooltip));
    if (def.background) {
        QPalette p = w.palette();
        p.setColor(BackRole(def.kind), ToQColor(*def.background));
        w.setPalette(p);
        if (BackRole(def.kind) == QPalette::Window) w.setAutoFillBackground(true);
    }
    if (!def.takesFocus()) w.setFocusPolicy(Qt::NoFocus);
}

void SyncForeground(QWidget& w, const ControlDef& def, const ControlState& state) {
    const QColor wanted = state.foreground ? ToQColor(*state.foreground) : QColor();
    const QVariant applied = w.property("bmForeground");
    if (applied.isValid() && applied.value<QColor>() == wanted) return;
    if (!applied.isValid() && !wanted.isValid()) return;
    QPalette p = w.palette();
    const QPalette::ColorRole role = TextRole(def.kind);
    p.setColor(role, wanted.isValid() ? wanted : QApplication::palette(&w).color(role));
    w.setPalette(p);
    w.setProperty("bmForeground", wanted);
}

void SyncButtonFace(QPushButton& b, const ControlDef& def) {
    if (def.picture.empty()) return;
    // The picture fills the face; a caption, when there is one, leaves it a little room.
    const int margin = def.text.empty() ? 6 : 10;
    const QSize face(std::max(1, b.width() - margin), std::max(1, b.height() - margin));
    if (b.iconSize() == face && !b.icon().isNull()) return;
    b.setIcon(QIcon(RenderPicture(def.picture, face)));
    b.setIconSize(face);
}

// Option elements and check boxes answer a click anywhere in their box, not
// only on the mark and the caption.
class WholeBoxRadio : public QRadioButton {
public:
    using QRadioButton::QRadioButton;

protected:
    bool hitButton(const QPoint& pos) const override { return rect().contains(pos); }
};

class WholeBoxCheck : public QCheckBox {
public:
    using QCheckBox::QCheckBox;

protected:
    bool hitButton(const QPoint& pos) const override { return rect().contains(pos); }
};

}  // namespace

void ClickLabel::mouseReleaseEvent(QMouseEvent* event) {
    QLabel::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()) && onClick) onClick();
}

PictureView::PictureView(std::string picture, QWidget* parent) : QWidget(parent), picture_(std::move(picture)) {}

void PictureView::paintEvent(QPaintEvent*) {
    if (cache_.size() != size()) cache_ = RenderPicture(picture_, size());
    QPainter p(this);
    p.drawPixmap(0, 0, cache_);
}

void PictureView::mouseReleaseEvent(QMouseEvent* event) {
    QWidget::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()) && onClick) onClick();
}

QWidget* RenderTextBox(const ControlDef& def, QWidget* parent, const ControlEvents& events) {
    if (def.multiLine) {
        auto* box = new QPlainTextEdit(parent);
        Common(*box, def);
        box->setPlainText(Q(def.text));
        QObject::connect(box, &QPlainTextEdit::textChanged, box,
                         [box, edited = events.edited] { edited(box->toPlainText().toStdString()); });
        return box;
    }
    auto* box = new QLineEdit(parent);
    Common(*box, def);
    box->setAlignment(Horizontal(def.align) | Qt::AlignVCenter);
    box->setText(Q(def.text));
    // textEdited: only what the user does; the logic's own texts come back through SyncControl.
    QObject::connect(box, &QLineEdit::textEdited, box,
                     [edited = events.edited](const QString& t) { edited(t.toStdString()); });
    return box;
}

QWidget* RenderLabel(const ControlDef& def, QWidget* parent, const ControlEvents& events) {
    auto* label = new ClickLabel(parent);
    Common(*label, def);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Horizontal(def.align) | Qt::AlignTop);
    label->setWordWrap(def.wordWrap);
    if (def.border) {
        label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        label->setLineWidth(1);
    }
    // A label empty in the definition is a result: readers may select and copy it.
    if (def.text.empty()) label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setFocusPolicy(Qt::NoFocus);  // selectable or not, a label never takes the focus
    label->setText(Q(def.text));
    label->onClick = events.clicked;
    return label;
}

QWidget* RenderButton(const ControlDef& def, QWidget* parent, const ControlEvents& events) {
    auto* button = new QPushButton(parent);
    Common(*button, def);
    button->setText(Q(def.text));
    button->setAutoDefault(false);
    if (!def.picture.empty() && def.text.empty()) {
        const QString spoken = def.tooltip.empty() ? PictureDescription(def.picture) : Q(def.tooltip);
        button->setAccessibleName(spoken.isEmpty() ? Q(def.key.name) : spoken);
    }
    QObject::connect(button, &QPushButton::clicked, button, [clicked = events.clicked] { clicked(); });
    return button;
}

QWidget* RenderOption(const ControlDef& def, QWidget* parent, const ControlEvents& events) {
    auto* option = new WholeBoxRadio(parent);
    Common(*option, def);
    // The group is the model's business: elements of one name in one container,
    // which need not be the widgets that share a parent here.
    option->setAutoExclusive(false);
    option->setText(Q(def.text));
    option->setChecked(def.chosen);
    QObject::connect(option, &QRadioButton::clicked, option, [clicked = events.clicked] { clicked(); });
    return option;
}

QWidget* RenderCheckBox(const ControlDef& def, QWidget* parent, const ControlEvents& events) {
    auto* check = new WholeBoxCheck(parent);
    Common(*check, def);
    check->setText(Q(def.text));
    check->setChecked(def.chosen);
    QObject::connect(check, &QCheckBox::clicked, check, [clicked = events.clicked] { clicked(); });
    return check;
}

QWidget* RenderFrame(const ControlDef& def, QWidget* parent, const ControlEvents&) {
    auto* frame = new QGroupBox(parent);
    Common(*frame, def);
    frame->setTitle(Q(def.text));
    return frame;
}

QWidget* RenderList(const ControlDef& def, QWidget* parent, const ControlEvents& events) {
    auto* list = new QComboBox(parent);
    Common(*list, def);
    // A drop-down whose box shows a text of its own (not always one of its rows)
    // and cannot be typed into.
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->lineEdit()->setReadOnly(true);
    list->setMaxVisibleItems(16);
    QObject::connect(list, &QComboBox::activated, list,
                     [list, edited = events.edited](int row) { edited(list->itemText(row).toStdString()); });
    return list;
}

QWidget* RenderImage(const ControlDef& def, QWidget* parent, const ControlEvents& events) {
    auto* image = new PictureView(def.picture, parent);
    Common(*image, def);
    const QString spoken = def.tooltip.empty() ? PictureDescription(def.picture) : Q(def.tooltip);
    if (!spoken.isEmpty()) image->setAccessibleName(spoken);
    if (def.clickable) image->setCursor(Qt::PointingHandCursor);
    image->onClick = events.clicked;
    return image;
}

Renderer RendererFor(ControlKind kind) {
    switch (kind) {
        case ControlKind::TextBox: return &RenderTextBox;
        case ControlKind::Label: return &RenderLabel;
        case ControlKind::Button: return &RenderButton;
        case ControlKind::Option: return &RenderOption;
        case ControlKind::CheckBox: return &RenderCheckBox;
        case ControlKind::Frame: return &RenderFrame;
        case ControlKind::List: return &RenderList;
        case ControlKind::Image: return &RenderImage;
        case ControlKind::Line:
        case ControlKind::Shape:
        case ControlKind::Timer: break;
    }
    return nullptr;
}

bool IsWindowedKind(ControlKind kind) {
    switch (kind) {
        case ControlKind::TextBox:
        case ControlKind::Button:
        case ControlKind::Option:
        case ControlKind::CheckBox:
        case ControlKind::Frame:
        case ControlKind::List: return true;
        default: return false;
    }
}

void SyncControl(QWidget& w, const ControlDef& def, const ControlState& state) {
    const QSignalBlocker blocker(&w);
    const QString text = Q(state.text);
    if (const QString tip = Q(state.tooltip); w.toolTip() != tip) w.setToolTip(tip);
    switch (def.kind) {
        case ControlKind::TextBox:
            if (auto* box = qobject_cast<QLineEdit*>(&w)) {
                if (box->text() != text) box->setText(text);
            } else if (auto* multi = qobject_cast<QPlainTextEdit*>(&w)) {
                if (multi->toPlainText() != text) multi->setPlainText(text);
            }
            break;
        case ControlKind::Label:
            if (auto* label = qobject_cast<QLabel*>(&w); label && label->text() != text) label->setText(text);
            break;
        case ControlKind::Button:
            if (auto* button = qobject_cast<QPushButton*>(&w)) {
                if (button->text() != text) button->setText(text);
            }
            break;
        case ControlKind::Option:
        case ControlKind::CheckBox:
            if (auto* b = qobject_cast<QAbstractButton*>(&w)) {
                if (b->text() != text) b->setText(text);
                if (b->isChecked() != state.chosen) b->setChecked(state.chosen);
            }
            break;
        case ControlKind::Frame:
            if (auto* frame = qobject_cast<QGroupBox*>(&w); frame && frame->title() != text) frame->setTitle(text);
            break;
        case ControlKind::List:
            if (auto* list = qobject_cast<QComboBox*>(&w)) {
                const QSignalBlocker inner(list->lineEdit());
                QStringList rows;
                for (const std::string& r : state.items) rows << Q(r);
                QStringList shown;
                for (int i = 0; i < list->count(); ++i) shown << list->itemText(i);
                if (shown != rows) {
                    list->clear();
                    list->addItems(rows);
                }
                if (list->lineEdit()->text() != text) list->lineEdit()->setText(text);
            }
            break;
        default: break;
    }

    const QRect geometry = ToPixels(state.rect);
    if (w.geometry() != geometry) w.setGeometry(geometry);
    if (def.kind == ControlKind::Button) {
        if (auto* button = qobject_cast<QPushButton*>(&w)) SyncButtonFace(*button, def);
    }
    if (w.testAttribute(Qt::WA_ForceDisabled) == state.enabled) w.setEnabled(state.enabled);
    if (w.isHidden() == state.visible) w.setVisible(state.visible);
    SyncForeground(w, def, state);
}

}  // namespace bm::ui
