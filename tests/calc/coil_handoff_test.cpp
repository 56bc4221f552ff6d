// The coil hand-off: which windows move, where, and in which order against the
// showing of frmbobine. A second press, the modal rows and the menu item over a
// hand-off are told in the calling windows' scenarios.
#include <gtest/gtest.h>

#include "calc/coil_handoff.hpp"
#include "forms/headless_host.hpp"
#include "shell/workbook.hpp"

namespace bm {
namespace {

// Callers of every kind, beside the real coil window.
class HandOffLibrary : public FormLibrary {
public:
    HandOffLibrary() {
        add("frmposa", [](FormContext& f) { OpenCoilWindow(f, CoilHandOff::PlaceFirst(180, 180, 3000)); });
        add("frmmostra", [](FormContext& f) { OpenCoilWindow(f, CoilHandOff::ShowFirst(400, 300)); });
        add("frmdopo", [](FormContext& f) {
            CoilHandOff h = CoilHandOff::ShowFirst();
            h.callerAfter = true;
            OpenCoilWindow(f, h);
        });
        add("frmaltrui", [](FormContext& f) {
            CoilHandOff h = CoilHandOff::ShowFirst(400, 300);
            h.mover = "frmmostra";
            OpenCoilWindow(f, h);
        });
    }
    const CalculatorForm* find(std::string_view name) const override {
        for (const auto& f : callers_)
            if (f->name == name) return f.get();
        return book_.find(name);
    }

private:
    void add(const char* name, PlainHandler press) {
        auto f = std::make_unique<CalculatorForm>(name, name, Rect{2000, 2000, 4000, 3000});
        f->label("lblcarica", {100, 100, 1000, 300});
        f->button("cmdchiamabobine", {100, 500, 2000, 480}, "Costruzione bobine");
        f->onLoad([](FormContext& c) { c.setCaption("lblcarica", "CARICATO"); });
        f->onClick("cmdchiamabobine", press);
        callers_.push_back(std::move(f));
    }
    std::vector<std::unique_ptr<CalculatorForm>> callers_;
    Workbook book_;
};

struct Step {
    Effect::Kind kind;
    std::string form;
    int left = 0;
    int top = 0;
    friend bool operator==(const Step&, const Step&) = default;
    friend std::ostream& operator<<(std::ostream& o, const Step& s) {
        return o << static_cast<int>(s.kind) << " " << s.form << " " << s.left << "," << s.top;
    }
};

class CoilHandOffTest : public ::testing::Test {
protected:
    // The windows moved and shown by one press, in order.
    std::vector<Step> Press(const std::string& caller) {
        const std::size_t from = host.effects.size();
        EXPECT_EQ(program.click(caller, ControlKey::Parse("cmdchiamabobine")), Program::Status::Running);
        std::vector<Step> steps;
        for (std::size_t i = from; i < host.effects.size(); ++i) {
            const Effect& e = host.effects[i];
            if (e.kind == Effect::Kind::Move || e.kind == Effect::Kind::Open || e.kind == Effect::Kind::BringForward)
                steps.push_back({e.kind, e.form, e.rect.left, e.rect.top});
        }
        return steps;
    }

    HandOffLibrary library;
    HeadlessHost host;
    Program program{library, host, NumberLocale::english()};
};

using K = Effect::Kind;

TEST_F(CoilHandOffTest, PlaceFirstMovesTheCallerThenPlacesTheCoilWindowBeforeShowingIt) {
    program.open("frmposa", OpenModeless);
    const std::vector<Step> expected{
        {K::Move, "frmposa", 180, 180}, {K::Move, "frmbobine", 4100, 3000}, {K::Open, "frmbobine", 4100, 3000}};
    EXPECT_EQ(Press("frmposa"), expected);
    const FormState& coil = *program.state("frmbobine");
    EXPECT_EQ(coil.modality, OpenModeless);
    // Opened by a hand-off or by the menu, the coil window comes up the same way.
    EXPECT_EQ(coil.control(ControlKey::Parse("lblinput")).text, "induttanza in uH :");
}

TEST_F(CoilHandOffTest, ShowFirstShowsTheCoilWindowWhereItWasThenMovesIt) {
    program.open("frmmostra", OpenModeless);
    const std::vector<Step> steps = Press("frmmostra");
    ASSERT_EQ(steps.size(), 3u);
    EXPECT_EQ(steps[0], (Step{K::Move, "frmmostra", 400, 300}));
    EXPECT_EQ(steps[1].kind, K::Open);
    EXPECT_EQ(steps[1].form, "frmbobine");
    EXPECT_EQ(steps[2], (Step{K::Move, "frmbobine", 4100, 2800}));
}

TEST_F(CoilHandOffTest, ACallerThatMovesAfterTheCoilWindow) {
    program.open("frmdopo", OpenModeless);
    const std::vector<Step> steps = Press("frmdopo");
    ASSERT_EQ(steps.size(), 3u);
    EXPECT_EQ(steps[0].kind, K::Open);
    EXPECT_EQ(steps[1], (Step{K::Move, "frmbobine", 4100, 2800}));
    EXPECT_EQ(steps[2], (Step{K::Move, "frmdopo", 180, 180}));
}

TEST_F(CoilHandOffTest, MovingAnotherWindowThatIsNotOpenLoadsItHiddenWithoutItsLoadLogic) {
    program.open("frmaltrui", OpenModeless);
    Press("frmaltrui");
    const FormState& other = *program.state("frmmostra");
    EXPECT_TRUE(other.loaded);
    EXPECT_FALSE(other.shown);
    EXPECT_EQ(other.window.left, 400);
    EXPECT_EQ(other.window.top, 300);
    EXPECT_EQ(other.control(ControlKey::Parse("lblcarica")).text, "");
    // Opened later by the user, it runs its load logic then, where it was put.
    program.open("frmmostra", OpenModeless);
    EXPECT_EQ(program.state("frmmostra")->control(ControlKey::Parse("lblcarica")).text, "CARICATO");
    EXPECT_EQ(program.state("frmmostra")->window.left, 400);
}

}  // namespace
}  // namespace bm
