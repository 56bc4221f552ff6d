#pragma once
// One renderer per control kind: each builds the widget of a control from its
// definition, and SyncControl brings it to the control's state. Lines and
// Shapes are no widgets (the schematic layer paints them) and Timers run in
// their window.
#include <QLabel>
#include <QWidget>
#include <functional>
#include <string>

#include "forms/form_state.hpp"

namespace bm::ui {

// What a control reports to its window: a click, or the user's new text.
struct ControlEvents {
    std::function<void()> clicked;
    std::function<void(const std::string&)> edited;
};

using Renderer = QWidget* (*)(const ControlDef&, QWidget* parent, const ControlEvents&);

QWidget* RenderTextBox(const ControlDef& def, QWidget* parent, const ControlEvents& events);
QWidget* RenderLabel(const ControlDef& def, QWidget* parent, const ControlEvents& events);
QWidget* RenderButton(const ControlDef& def, QWidget* parent, const ControlEvents& events);
QWidget* RenderOption(const ControlDef& def, QWidget* parent, const ControlEvents& events);
QWidget* RenderCheckBox(const ControlDef& def, QWidget* parent, const ControlEvents& events);
QWidget* RenderFrame(const ControlDef& def, QWidget* parent, const ControlEvents& events);
QWidget* RenderList(const ControlDef& def, QWidget* parent, const ControlEvents& events);
QWidget* RenderImage(const ControlDef& def, QWidget* parent, const ControlEvents& events);

// The renderer of a kind, or nullptr for Line, Shape and Timer.
Renderer RendererFor(ControlKind kind);

// The widget shows the state: text or caption, chosen flag, rows, position,
// visibility, enabled flag and colour. Its signals are blocked meanwhile, so a
// text put there by the logic is never reported back as the user's.
void SyncControl(QWidget& widget, const ControlDef& def, const ControlState& state);

// Whether a kind is a window of its own in the toolkit (it stands over the
// labels, pictures and schematic of its container).
bool IsWindowedKind(ControlKind kind);

// A label that answers a click: the label and the picture kinds.
class ClickLabel : public QLabel {
public:
    explicit ClickLabel(QWidget* parent) : QLabel(parent) {}
    std::function<void()> onClick;

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
};

// A picture control: the named picture drawn at the control's size.
class PictureView : public QWidget {
public:
    PictureView(std::string picture, QWidget* parent);
    const std::string& picture() const { return picture_; }
    std::function<void()> onClick;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    std::string picture_;
    QPixmap cache_;
};

}  // namespace bm::ui
