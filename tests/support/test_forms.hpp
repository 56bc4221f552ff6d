#pragma once
// Two small forms that exercise every window rule, for the model's and the
// runner's own tests.
#include <map>
#include <memory>
#include <string>

#include "forms/calculation.hpp"

namespace bm::testing {

struct Counts {
    FormValue loads;     // form-level: survives closing
    FormValue changes;
    FormValue lastRatio;
};

inline CalculatorForm TestForm() {
    CalculatorForm f("frmprova", "PROVA", {100, 200, 4000, 3000});
    f.frame("Frame1", {100, 100, 1800, 900}, "scelta");
    f.option("Option1(0)", {100, 200, 1500, 250}, "DIVIDI").in("Frame1");
    f.option("Option1(1)", {100, 500, 1500, 250}, "MOLTIPLICA").in("Frame1");
    f.textBox("txta", {2000, 100, 1000, 300}).tip("primo");
    f.textBox("txtb", {2000, 500, 1000, 300}).tip("secondo");
    f.button("cmdcalcola", {2000, 1000, 1000, 400}, "CALCOLA");
    f.button("cmdchiedi", {2000, 1500, 1000, 400}, "CHIEDI");
    f.button("cmdnascosto", {2000, 2000, 1000, 400}, "X").hidden();
    f.button("cmdaltro", {100, 2000, 1000, 400}, "ALTRO");
    f.button("cmdstampa", {100, 2500, 1000, 400}, "STAMPA");
    f.button("cmdesci", {1200, 2500, 1000, 400}, "E S C I");
    f.label("lblout", {100, 1200, 1800, 300});
    f.label("lblmodo", {100, 1600, 1800, 300});
    f.label("lblcambi", {100, 1900, 1800, 300});
    f.list("lstvalori", {3100, 100, 800, 800}).rows({"uno", "due"});
    f.line("Line1", 0, 0, 100, 100);

    f.onLoad([](FormContext& c) { c.values<Counts>().loads = c.values<Counts>().loads + 1; });
    f.onClick("Option1", [](FormContext& c, int index) {
        c.setCaption("lblmodo", index == 0 ? "DIVIDI" : "MOLTIPLICA");
        c.setCaption("lblout", "");
    });
    f.onChange("txta", [](FormContext& c) {
        Counts& v = c.values<Counts>();
        v.changes = v.changes + 1;
        c.setNumber("lblcambi", v.changes);
    });
    f.onClick("cmdcalcola", [](FormContext& c) {
        const FormValue a = c.read("txta");
        const FormValue b = c.read("txtb");
        if (MissingData(c, a * b, "txta")) return;
        const FormValue r = c.chosenIndex("Option1") == 0 ? a / b : a * b;
        c.values<Counts>().lastRatio = r;
        c.setCaption("lblout", c.picture(r, "#,##0.##"));
    });
    f.onClick("cmdchiedi", [](FormContext& c) {
        if (c.ShowMessage("SEI SICURO ?", 36, "AVVISO") == 6) c.setCaption("lblout", "SI");
        else c.setCaption("lblout", "NO");
    });
    f.onClick("cmdaltro", [](FormContext& c) {
        c.moveWindow("frmaltro", 4100, 2800);
        c.OpenForm("frmaltro", OpenModeless);
        c.moveWindow(180, 180);
    });
    f.onClick("cmdstampa", [](FormContext& c) {
        c.hide("cmdstampa");
        c.PrintWindow();
        c.show("cmdstampa");
    });
    f.onClick("cmdesci", [](FormContext& c) { c.close(); });
    return f;
}

inline CalculatorForm OtherForm() {
    CalculatorForm f("frmaltro", "ALTRO", {0, 0, 3000, 2000});
    f.textBox("txtx", {100, 100, 1000, 300});
    f.label("lblcarica", {100, 500, 1000, 300});
    f.button("cmdfine", {100, 900, 1000, 300}, "FINE");
    f.onLoad([](FormContext& c) { c.setCaption("lblcarica", "CARICATO"); });
    f.onClick("cmdfine", [](FormContext& c) { c.endProgram(); });
    return f;
}

class TestLibrary : public FormLibrary {
public:
    TestLibrary() {
        forms_.emplace("frmprova", std::make_unique<CalculatorForm>(TestForm()));
        forms_.emplace("frmaltro", std::make_unique<CalculatorForm>(OtherForm()));
    }
    const CalculatorForm* find(std::string_view name) const override {
        auto it = forms_.find(std::string(name));
        return it == forms_.end() ? nullptr : it->second.get();
    }

private:
    std::map<std::string, std::unique_ptr<CalculatorForm>> forms_;
};

}  // namespace bm::testing
