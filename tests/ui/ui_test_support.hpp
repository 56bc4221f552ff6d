#pragma once
// What the Qt front-end tests share: a program over the real workbook plus a
// few forms of their own that hold every kind of control, a host whose
// message boxes are answered from a queue (an unexpected box fails the test),
// and the widgets of a form by control name.
#include <gtest/gtest.h>

#include <QMessageBox>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "forms/program.hpp"
#include "shell/workbook.hpp"
#include "ui/form_window.hpp"
#include "ui/qt_host.hpp"

namespace bm::ui::test {

// The test forms first, then the workbook.
class TestLibrary : public FormLibrary {
public:
    TestLibrary();
    const CalculatorForm* find(std::string_view name) const override;
    bool has(std::string_view name) const override { return forms_.contains(name) || workbook_.has(name); }
    const Workbook& workbook() const { return workbook_; }

private:
    std::map<std::string, CalculatorForm, std::less<>> forms_;
    Workbook workbook_;
};

// Form-level values of the test forms, for the tests to read.
struct ProvaValues {
    int changes = 0;  // Change events of txtvalore and txtmaiuscolo
    int ticks = 0;
};

struct ShownBox {
    std::string text;
    std::string title;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons;
};

class UiTest : public ::testing::Test {
protected:
    UiTest();
    ~UiTest() override;

    // The next message box is answered with this button.
    void answerNextBox(QMessageBox::StandardButton button) { answers_.push_back(button); }

    FormWindow* window(std::string_view form) const { return host.window(form); }
    QWidget* widget(std::string_view form, std::string_view control) const;
    template <typename T>
    T* widgetAs(std::string_view form, std::string_view control) const {
        return qobject_cast<T*>(widget(form, control));
    }
    const ControlState& state(std::string_view form, std::string_view control);

    // Runs `body` inside the loop of the modal form that `open` shows; fails
    // the test when no modal loop runs it.
    void whileModal(const std::function<void()>& open, const std::function<void()>& body);

    ProvaValues& prova();

    TestLibrary library;
    QtHost host;
    Program program{library, host, NumberLocale::english()};
    std::vector<ShownBox> boxes;  // every box, in order
    std::vector<int> exits;       // every status the program ended with

private:
    std::deque<QMessageBox::StandardButton> answers_;
};

// Deletes the windows the host let go of, so that a closed window is gone.
void FlushDeletions();

}  // namespace bm::ui::test
