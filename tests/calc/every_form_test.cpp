// A net over every calculator: each one opens, and a long run of random typing
// and clicking never escapes the window model with anything but a run-time
// failure, and never leaves "nan" or "inf" on a control.
#include <gtest/gtest.h>

#include <random>
#include <regex>

#include "calc/catalogue.hpp"
#include "forms/headless_host.hpp"
#include "shell/form_registry.hpp"
#include "shell/workbook.hpp"

namespace bm {
namespace {

const char* const kTexts[] = {"",     "0",    "1",     "-1",   "7",     "50",  "0.2",  "1000",  "-3.5",
                              "1e30", "1e-30", "abc",  "12,5", "99999", "2e300", "3.7", "100000", "0.05"};

Modality MenuModality(std::string_view form) {
    const MenuItem* item = FormRegistry::firstFor(form);
    return item != nullptr ? item->modality : OpenModeless;
}

bool Actionable(const FormState& st, const ControlDef& d) {
    const ControlState& c = st.control(d.key);
    if (!c.visible || !c.enabled) return false;
    if (!d.container.empty()) {
        const ControlState& frame = st.control(ControlKey::Parse(d.container));
        if (!frame.visible || !frame.enabled) return false;
    }
    switch (d.kind) {
        case ControlKind::TextBox:
        case ControlKind::Button:
        case ControlKind::Option:
        case ControlKind::CheckBox: return true;
        case ControlKind::Image: return d.clickable;
        default: return false;
    }
}

// A number that could not be printed shows as a word of its own.
const std::regex kNotANumber(R"((^|[^A-Za-z])(nan|NaN|inf|Inf|INF|NAN)([^A-Za-z]|$))");

TEST(EveryForm, OpensAndSurvivesRandomUse) {
    const Workbook book;
    for (const CatalogueEntry& entry : CalculatorCatalogue()) {
        const std::string form(entry.name);
        SCOPED_TRACE(form);
        std::mt19937 random(static_cast<unsigned>(std::hash<std::string>{}(form)));
        auto host = std::make_unique<HeadlessHost>();
        auto program = std::make_unique<Program>(book, *host, NumberLocale::english());
        const auto restart = [&] {
            host = std::make_unique<HeadlessHost>();
            program = std::make_unique<Program>(book, *host, NumberLocale::english());
        };
        int faults = 0;
        for (int step = 0; step < 300; ++step) {
            try {
                const FormState* st = program->state(form);
                if (st == nullptr || !st->shown) {
                    if (program->open(form, MenuModality(form)) != Program::Status::Running) {
                        ADD_FAILURE() << "opening ended the program";
                        break;
                    }
                    st = program->state(form);
                }
                std::vector<const ControlDef*> targets;
                for (const ControlDef& d : st->def->controls)
                    if (Actionable(*st, d)) targets.push_back(&d);
                if (targets.empty()) break;
                const ControlDef& d = *targets[random() % targets.size()];
                host->answers.push_back(random() % 2 == 0 ? 6 : 7);
                const Program::Status status =
                    d.kind == ControlKind::TextBox
                        ? program->edit(form, d.key, kTexts[random() % std::size(kTexts)])
                        : program->click(form, d.key);
                if (status == Program::Status::Faulted) {
                    ++faults;
                    restart();
                    continue;
                }
                ASSERT_EQ(status, Program::Status::Running) << "ended by " << d.key.str();
                for (const auto& [key, c] : program->state(form)->controls)
                    ASSERT_FALSE(std::regex_search(c.text, kNotANumber))
                        << key.str() << " shows \"" << c.text << "\" after " << d.key.str();
            } catch (const std::exception& e) {
                FAIL() << "step " << step << ": " << e.what();
            }
        }
        RecordProperty(form + "_faults", faults);
    }
}

}  // namespace
}  // namespace bm
