#pragma once
// The window of one form: its definition drawn as a fixed-size window, and
// brought back to the form's state after every event. The model decides
// everything; the window only shows it and reports what the user does.
#include <QPointer>
#include <QWidget>
#include <map>
#include <optional>
#include <string>

#include "forms/form_state.hpp"

class QLabel;
class QMenuBar;
class QTimer;

namespace bm::ui {

class SchematicLayer;

// Where a window sends what the user does.
class EventSink {
public:
    virtual ~EventSink() = default;
    virtual void controlClicked(const std::string& form, const ControlKey& control) = 0;
    virtual void controlEdited(const std::string& form, const ControlKey& control, const std::string& text) = 0;
    virtual void timerElapsed(const std::string& form, const ControlKey& timer) = 0;
    virtual void closeBoxPressed(const std::string& form) = 0;
};

class FormWindow : public QWidget {
public:
    FormWindow(const CalculatorForm& def, EventSink& sink);

    const CalculatorForm& definition() const { return def_; }
    const std::string& formName() const { return def_.name; }

    // The main window's menu, over the client area.
    void setMenuBar(QMenuBar* bar);
    QMenuBar* menuBar() const { return menuBar_; }

    // Controls, title, window place and size, and timers, as the state has them.
    void sync(const FormState& state);
    void focusControl(const ControlKey& key);

    QWidget* control(const ControlKey& key) const;
    QWidget* control(std::string_view id) const { return control(ControlKey::Parse(id)); }
    QTimer* timer(const ControlKey& key) const;
    QWidget* clientArea() const { return client_; }
    // The label that captions a text box, if any.
    std::optional<ControlKey> captionOf(const ControlKey& textBox) const;

    // "Copia i risultati" (Ctrl+C, or the window's context menu): the title,
    // the inputs with their captions and the results, as plain text.
    void copyResults();
    // A short note over the bottom of the window that fades after a few seconds.
    void showNote(const QString& text);
    QLabel* note() const { return note_; }
    void hideNote();

    // The model unloaded the form: the window goes, and nothing it still
    // reports reaches the model.
    void closeFromModel();
    bool closedByModel() const { return closedByModel_; }

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* containerWidget(const std::string& container);
    SchematicLayer* layerFor(const std::string& container);
    QWidget* build(const ControlDef& def);
    void applyWindow(const Rect& window);
    void applyTabOrder();
    void nameTextBoxes(const FormState& state);
    void addCopyAction();

    const CalculatorForm& def_;
    EventSink& sink_;
    QWidget* client_ = nullptr;
    QMenuBar* menuBar_ = nullptr;
    std::map<ControlKey, QWidget*> widgets_;
    std::map<ControlKey, QTimer*> timers_;
    std::map<std::string, SchematicLayer*> layers_;  // by container, "" for the client area
    std::map<ControlKey, ControlKey> captions_;      // text box -> its label
    std::optional<Rect> appliedWindow_;
    const FormState* state_ = nullptr;  // the record last shown
    QLabel* note_ = nullptr;
    QTimer* noteTimer_ = nullptr;
    bool closedByModel_ = false;
    int buildDepth_ = 0;
};

}  // namespace bm::ui
