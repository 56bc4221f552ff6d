#include "ui/schematic.hpp"

#include <QPainter>

#include "ui/geometry.hpp"
#include "ui/style.hpp"

namespace bm::ui {

namespace {

bool SameLook(const ControlState& a, const ControlState& b) {
    return a.visible == b.visible && a.rect == b.rect && a.foreground == b.foreground;
}

// Squares and circles take the shorter side and stand in the middle of their box.
QRectF ShapeBox(ShapeKind kind, QRectF box) {
    if (kind != ShapeKind::Square && kind != ShapeKind::Circle) return box;
    const double side = std::min(box.width(), box.height());
    return QRectF(box.center().x() - side / 2, box.center().y() - side / 2, side, side);
}

}  // namespace

SchematicLayer::SchematicLayer(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setObjectName(QStringLiteral("schematic"));
}

void SchematicLayer::add(const ControlDef& def) {
    ControlState initial;
    initial.visible = def.visible;
    initial.rect = def.rect;
    initial.foreground = def.foreground;
    items_.push_back({&def, initial});
}

void SchematicLayer::sync(const FormState& state) {
    bool changed = false;
    for (Item& item : items_) {
        auto it = state.controls.find(item.def->key);
        if (it == state.controls.end() || SameLook(it->second, item.state)) continue;
        item.state = it->second;
        changed = true;
    }
    if (changed) update();
}

void SchematicLayer::paintEvent(QPaintEvent*) {
    QPainter p(this);
    for (const Item& item : items_) {
        if (!item.state.visible) continue;
        const ControlDef& d = *item.def;
        const QColor ink = ToQColor(item.state.foreground.value_or(colors::Black));
        QPen pen(ink, std::max(1, d.lineWidth));
        pen.setCapStyle(Qt::SquareCap);
        const Rect& r = item.state.rect;
        if (d.kind == ControlKind::Line) {
            p.setRenderHint(QPainter::Antialiasing, false);
            p.setPen(pen);
            p.drawLine(Px(r.left), Px(r.top), Px(r.width), Px(r.height));
            continue;
        }
        // A Shape: its outline in the ink colour, its inside filled when the definition says so.
        p.setPen(d.border ? pen : QPen(Qt::NoPen));
        const std::optional<Color> inside = d.fill ? d.fill : d.background;
        p.setBrush(inside ? QBrush(ToQColor(*inside)) : QBrush(Qt::NoBrush));
        const double inset = d.border ? std::max(1, d.lineWidth) / 2.0 : 0.0;
        const QRectF box = ShapeBox(d.shape, QRectF(ToPixels(r)).adjusted(inset, inset, -inset, -inset));
        switch (d.shape) {
            case ShapeKind::Rectangle:
            case ShapeKind::Square:
                p.setRenderHint(QPainter::Antialiasing, false);
                p.drawRect(box);
                break;
            case ShapeKind::Oval:
            case ShapeKind::Circle:
                p.setRenderHint(QPainter::Antialiasing, true);
                p.drawEllipse(box);
                break;
            case ShapeKind::RoundedRectangle: {
                p.setRenderHint(QPainter::Antialiasing, true);
                const double radius = std::min(box.width(), box.height()) / 6;
                p.drawRoundedRect(box, radius, radius);
                break;
            }
        }
    }
}

}  // namespace bm::ui
