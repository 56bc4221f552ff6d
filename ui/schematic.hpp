#pragma once
// The drawing of a schematic: the Line and Shape elements of one container,
// painted under every control of that container.
#include <QWidget>
#include <vector>

#include "forms/form_state.hpp"

namespace bm::ui {

class SchematicLayer : public QWidget {
public:
    explicit SchematicLayer(QWidget* parent);

    void add(const ControlDef& def);
    // The elements as the state has them now; repaints when anything moved,
    // changed colour or was shown or hidden.
    void sync(const FormState& state);
    bool empty() const { return items_.empty(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Item {
        const ControlDef* def;
        ControlState state;
    };
    std::vector<Item> items_;
};

}  // namespace bm::ui
