#pragma once
// The definition of a calculator window: its title, geometry and controls, and
// the handlers attached to its events. Pure data that the Qt front end and the
// headless host read alike. All positions and sizes are in twips.
//
// Conventions the renderer relies on:
// - a control inside a frame (`in("Frame1")`) is placed from the frame's
//   top-left corner; every other control from the window's client area;
// - `CalculatorForm::window` is the outer size of the window, border and title
//   bar included (and the menu bar of the main window).
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace bm {

class FormContext;

struct Rect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    friend bool operator==(const Rect&, const Rect&) = default;
};

struct Color {
    int r = 0;
    int g = 0;
    int b = 0;
    friend bool operator==(const Color&, const Color&) = default;
};

namespace colors {
inline constexpr Color Black{0, 0, 0};
inline constexpr Color Red{255, 0, 0};
inline constexpr Color Blue{0, 0, 255};
inline constexpr Color White{255, 255, 255};
inline constexpr Color ButtonFace{212, 208, 200};
}  // namespace colors

enum class ControlKind { TextBox, Label, Button, Option, CheckBox, Frame, List, Image, Line, Shape, Timer };
enum class Align { Left, Center, Right };
enum class ShapeKind { Rectangle, Square, Oval, Circle, RoundedRectangle };

// "Option1(2)" -> {"Option1", 2}; "txtinput" -> {"txtinput", -1}.
struct ControlKey {
    std::string name;
    int index = -1;

    static ControlKey Parse(std::string_view id);
    std::string str() const;
    friend auto operator<=>(const ControlKey&, const ControlKey&) = default;
};

// "Option1", 2 -> "Option1(2)": an element of a control array by its Index.
inline std::string Indexed(std::string_view name, int index) {
    return std::string(name) + "(" + std::to_string(index) + ")";
}

struct ControlDef {
    ControlKey key;
    ControlKind kind = ControlKind::Label;
    std::string text;  // text of a text box, caption of anything else
    std::string tooltip;
    Rect rect;  // for a Line: left,top = (x1,y1), width,height = (x2,y2)
    std::string container;  // the frame holding it
    bool visible = true;
    bool enabled = true;
    bool chosen = false;     // option elements and check boxes
    bool multiLine = false;  // text boxes
    bool wordWrap = true;    // labels
    bool bold = false;
    bool clickable = false;  // images that answer a click
    bool movable = false;    // images the logic moves about
    int fontSize = 8;        // points
    Align align = Align::Left;
    std::optional<Color> foreground;
    std::optional<Color> background;
    bool border = false;  // labels drawn with a sunken border, shapes' outline
    int lineWidth = 1;    // Lines and Shapes, in pixels
    ShapeKind shape = ShapeKind::Rectangle;
    std::optional<Color> fill;  // Shapes
    std::vector<std::string> items;  // list rows
    std::string picture;  // a picture resource: button faces, images
    int tabIndex = -1;    // place in the tab order; -1 for controls that take no focus
    int interval = 0;     // Timer, milliseconds

    // Chained setters, to read like a form file.
    ControlDef& tip(std::string t) { tooltip = std::move(t); return *this; }
    ControlDef& in(std::string frame) { container = std::move(frame); return *this; }
    ControlDef& hidden() { visible = false; return *this; }
    ControlDef& disabled() { enabled = false; return *this; }
    ControlDef& choose() { chosen = true; return *this; }
    ControlDef& color(Color c) { foreground = c; return *this; }
    ControlDef& back(Color c) { background = c; return *this; }
    ControlDef& font(int points, bool isBold = false) { fontSize = points; bold = isBold; return *this; }
    ControlDef& aligned(Align a) { align = a; return *this; }
    ControlDef& framed() { border = true; return *this; }
    ControlDef& width(int w) { lineWidth = w; return *this; }
    ControlDef& filled(Color c) { fill = c; return *this; }
    ControlDef& rows(std::vector<std::string> r) { items = std::move(r); return *this; }
    ControlDef& image(std::string name) { picture = std::move(name); return *this; }
    ControlDef& multi() { multiLine = true; return *this; }
    ControlDef& noWrap() { wordWrap = false; return *this; }
    ControlDef& canClick() { clickable = true; return *this; }
    ControlDef& canMove() { movable = true; return *this; }

    bool takesFocus() const;
};

enum class EventKind { Load, Click, Change, Timer, Unload };

// One event's logic. `index` is the element's Index in a control array, else -1.
using Handler = std::function<void(FormContext&, int index)>;
using PlainHandler = void (*)(FormContext&);
using IndexedHandler = void (*)(FormContext&, int);

struct CalculatorForm {
    std::string name;
    std::string title;
    Rect window;  // position and size of the definition
    std::vector<ControlDef> controls;
    std::map<std::pair<EventKind, std::string>, Handler> handlers;  // keyed by control name ("" for the form)
    std::string icon;

    CalculatorForm(std::string formName, std::string formTitle, Rect rect);

    // Controls, in tab order of definition for those that take focus.
    ControlDef& textBox(std::string_view id, Rect r, std::string text = {});
    ControlDef& label(std::string_view id, Rect r, std::string caption = {});
    ControlDef& button(std::string_view id, Rect r, std::string caption = {});
    ControlDef& option(std::string_view id, Rect r, std::string caption);
    ControlDef& checkBox(std::string_view id, Rect r, std::string caption);
    ControlDef& frame(std::string_view id, Rect r, std::string caption = {});
    ControlDef& list(std::string_view id, Rect r, std::string text = {});
    ControlDef& picture(std::string_view id, Rect r, std::string resource);
    ControlDef& line(std::string_view id, int x1, int y1, int x2, int y2);
    ControlDef& shape(std::string_view id, Rect r, ShapeKind kind = ShapeKind::Rectangle);
    ControlDef& timer(std::string_view id, int intervalMs);

    // Handlers.
    void onLoad(PlainHandler h);
    void onUnload(PlainHandler h);
    void onClick(std::string_view control, PlainHandler h);
    void onClick(std::string_view control, IndexedHandler h);
    void onChange(std::string_view control, PlainHandler h);
    void onChange(std::string_view control, IndexedHandler h);
    void onTimer(std::string_view control, PlainHandler h);
    void on(EventKind kind, std::string_view control, Handler h);

    const ControlDef* find(const ControlKey& key) const;
    // A name the definition lacks is a programming error, raised at once.
    const ControlDef& at(const ControlKey& key) const;
    const Handler* handler(EventKind kind, std::string_view control) const;

private:
    ControlDef& add(std::string_view id, ControlKind kind, Rect r, std::string text);
    int nextTab_ = 0;
};

}  // namespace bm
