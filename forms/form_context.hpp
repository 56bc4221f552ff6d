#pragma once
// What a handler may do: the window operations, on its own form and, for
// opening and placing windows, on others. A handler sees nothing else.
#include <any>
#include <string>
#include <string_view>
#include <vector>

#include "core/number_text.hpp"
#include "forms/program.hpp"

namespace bm {

class FormContext {
public:
    FormContext(Program& program, FormState& form);

    const std::string& formName() const { return form_.name(); }

    // Texts and captions. Setting the text of a text box fires its Change at once,
    // only when the text changes.
    std::string text(std::string_view control) const;
    void setText(std::string_view control, std::string text);
    void setCaption(std::string_view control, std::string caption) { setText(control, std::move(caption)); }
    // The value placed straight on a control: its NumberText.
    void setNumber(std::string_view control, const FormValue& value);
    // ReadNumber of a control's text.
    double read(std::string_view control) const;

    std::string tooltip(std::string_view control) const;
    void setTooltip(std::string_view control, std::string tip);

    bool visible(std::string_view control) const;
    void setVisible(std::string_view control, bool visible);
    void show(std::string_view control) { setVisible(control, true); }
    void hide(std::string_view control) { setVisible(control, false); }
    bool enabled(std::string_view control) const;
    void setEnabled(std::string_view control, bool enabled);

    // Option elements. Choosing one clears the others of its group; the group's
    // Click runs when the element was not chosen already.
    bool chosen(std::string_view control) const;
    void choose(std::string_view control);
    void setChosen(std::string_view control, bool chosen);
    // The Index of the chosen element of a group (name without index), or -1.
    int chosenIndex(std::string_view group) const;

    Color color(std::string_view control) const;
    void setColor(std::string_view control, Color color);
    Rect rect(std::string_view control) const;
    void move(std::string_view control, int left, int top);
    void move(std::string_view control, Rect rect);

    std::vector<std::string> items(std::string_view control) const;
    void setItems(std::string_view control, std::vector<std::string> rows);

    bool timerEnabled(std::string_view control) const;
    void setTimerEnabled(std::string_view control, bool enabled);
    void setTimerInterval(std::string_view control, int ms);

    void setFocus(std::string_view control);
    int ShowMessage(const std::string& text, int style, const std::string& title);

    // Windows: this one or another by name.
    void OpenForm(std::string_view form, Modality modality);
    void close() { program_.closeForm(form_.name()); }
    void closeForm(std::string_view form) { program_.closeForm(form); }
    Rect window() const { return form_.window; }
    Rect window(std::string_view form);  // loads it hidden when needed
    void moveWindow(Rect rect) { program_.moveForm(form_.name(), rect); }
    void moveWindow(int left, int top);
    void moveWindow(std::string_view form, int left, int top);
    void setTitle(std::string title);
    void PrintWindow();

    std::string today() const;
    int screenWidth() const;
    int screenHeight() const;

    // Number texts under the user's settings.
    const NumberLocale& locale() const { return program_.locale(); }
    std::string numberText(const FormValue& v) const { return NumberText(v, locale()); }
    std::string picture(const FormValue& v, std::string_view pic) const { return PictureFormat(v, pic, locale()); }
    std::string fixed(const FormValue& v, int n) const { return FixedDecimals(v, n, locale()); }
    double textValue(std::string_view t) const { return TextValue(t, locale()); }

    // The form-level values: one record per form, created empty on first use,
    // kept across closing and reopening.
    template <typename T>
    T& values() {
        if (!form_.values.has_value()) form_.values.emplace<T>();
        return std::any_cast<T&>(form_.values);
    }

    [[noreturn]] void endProgram();
    [[noreturn]] void fail(FaultKind kind);

private:
    ControlState& at(std::string_view control);
    const ControlState& at(std::string_view control) const;
    void changed();

    Program& program_;
    FormState& form_;
};

}  // namespace bm
