#include <gtest/gtest.h>

#include "forms/headless_host.hpp"
#include "support/test_forms.hpp"

using namespace bm;
using bm::testing::Counts;

namespace {

class ProgramTest : public ::testing::Test {
protected:
    bm::testing::TestLibrary library;
    HeadlessHost host;
    Program program{library, host, NumberLocale::english()};

    const ControlState& control(std::string_view form, std::string_view id) {
        return program.state(form)->control(ControlKey::Parse(id));
    }
    std::vector<Effect::Kind> kinds() const {
        std::vector<Effect::Kind> k;
        for (const Effect& e : host.effects) k.push_back(e.kind);
        return k;
    }
};

}  // namespace

TEST_F(ProgramTest, OpeningLoadsShowsAndClicksTheFirstOption) {
    ASSERT_EQ(program.open("frmprova", OpenModal), Program::Status::Running);
    EXPECT_TRUE(control("frmprova", "Option1(0)").chosen);
    EXPECT_FALSE(control("frmprova", "Option1(1)").chosen);
    EXPECT_EQ(control("frmprova", "lblmodo").text, "DIVIDI");
    EXPECT_EQ(kinds(), (std::vector{Effect::Kind::Open, Effect::Kind::Focus}));
    EXPECT_EQ(host.effects[0].modality, Modality::Modal);
    EXPECT_EQ(host.effects[1].control, "Option1(0)");
    EXPECT_EQ(program.state("frmprova")->window, (Rect{100, 200, 4000, 3000}));
}

TEST_F(ProgramTest, ChangeFiresOncePerRealChange) {
    program.open("frmprova", OpenModal);
    program.edit("frmprova", ControlKey::Parse("txta"), "1");
    program.edit("frmprova", ControlKey::Parse("txta"), "1");  // same text: no Change
    program.edit("frmprova", ControlKey::Parse("txta"), "12");
    EXPECT_EQ(control("frmprova", "lblcambi").text, "2");
}

TEST_F(ProgramTest, ReopeningResetsControlsButKeepsFormValues) {
    program.open("frmprova", OpenModal);
    program.edit("frmprova", ControlKey::Parse("txta"), "6");
    program.edit("frmprova", ControlKey::Parse("txtb"), "4");
    program.click("frmprova", ControlKey::Parse("cmdcalcola"));
    EXPECT_EQ(control("frmprova", "lblout").text, "1.5");
    program.click("frmprova", ControlKey::Parse("cmdesci"));
    EXPECT_FALSE(program.state("frmprova")->loaded);

    program.open("frmprova", OpenModal);
    EXPECT_EQ(control("frmprova", "txta").text, "");
    EXPECT_EQ(control("frmprova", "lblout").text, "");
    FormState& st = *program.state("frmprova");
    const Counts& v = std::any_cast<Counts&>(st.values);
    EXPECT_EQ(v.loads.int16(), 2);
    EXPECT_EQ(v.lastRatio.dbl(), 1.5);
}

TEST_F(ProgramTest, TheProductGateWarnsAndKeepsEarlierResults) {
    program.open("frmprova", OpenModal);
    program.edit("frmprova", ControlKey::Parse("txta"), "-6");
    program.edit("frmprova", ControlKey::Parse("txtb"), "-4");  // two negatives pass
    program.click("frmprova", ControlKey::Parse("cmdcalcola"));
    EXPECT_EQ(control("frmprova", "lblout").text, "1.5");
    program.edit("frmprova", ControlKey::Parse("txtb"), "abc");
    program.click("frmprova", ControlKey::Parse("cmdcalcola"));
    const Effect* m = host.last(Effect::Kind::Message);
    ASSERT_NE(m, nullptr);
    EXPECT_EQ(m->text, "MANCANO DATI");
    EXPECT_EQ(m->style, 48);
    EXPECT_EQ(m->title, "MESSAGGIO DI ERRORE");
    EXPECT_EQ(host.last(Effect::Kind::Focus)->control, "txta");
    EXPECT_EQ(control("frmprova", "lblout").text, "1.5");
}

TEST_F(ProgramTest, OptionClicksAndProgrammaticChoice) {
    program.open("frmprova", OpenModal);
    program.click("frmprova", ControlKey::Parse("Option1(1)"));
    EXPECT_TRUE(control("frmprova", "Option1(1)").chosen);
    EXPECT_FALSE(control("frmprova", "Option1(0)").chosen);
    EXPECT_EQ(control("frmprova", "lblmodo").text, "MOLTIPLICA");
    program.state("frmprova")->control(ControlKey::Parse("lblmodo")).text = "x";
    program.click("frmprova", ControlKey::Parse("Option1(1)"));  // a click runs the logic again
    EXPECT_EQ(control("frmprova", "lblmodo").text, "MOLTIPLICA");
    program.state("frmprova")->control(ControlKey::Parse("lblmodo")).text = "x";
    program.run([&] { program.setChosen(*program.state("frmprova"), ControlKey::Parse("Option1(1)"), true, false); });
    EXPECT_EQ(control("frmprova", "lblmodo").text, "x");  // already chosen: no Click
}

TEST_F(ProgramTest, ModalOverModelessEndsTheProgram) {
    program.open("frmprova", OpenModeless);
    program.edit("frmprova", ControlKey::Parse("txta"), "5");
    EXPECT_EQ(program.open("frmprova", OpenModeless), Program::Status::Running);
    EXPECT_EQ(host.effects.back().kind, Effect::Kind::BringForward);
    EXPECT_EQ(control("frmprova", "txta").text, "5");  // brought forward unchanged
    EXPECT_EQ(program.open("frmprova", OpenModal), Program::Status::Faulted);
    EXPECT_EQ(program.fault(), FaultKind::FormAlreadyShown);
    EXPECT_EQ(host.effects.back().kind, Effect::Kind::Fault);
}

TEST_F(ProgramTest, PlacingAnUnloadedFormLoadsItHiddenWithoutItsLogic) {
    program.open("frmprova", OpenModeless);
    program.click("frmprova", ControlKey::Parse("cmdaltro"));
    const FormState& other = *program.state("frmaltro");
    EXPECT_TRUE(other.shown);
    EXPECT_EQ(other.window.left, 4100);
    EXPECT_EQ(other.window.top, 2800);
    EXPECT_EQ(other.control(ControlKey::Parse("lblcarica")).text, "CARICATO");  // load ran at opening
    EXPECT_EQ(program.state("frmprova")->window.left, 180);
    EXPECT_EQ(program.current()->name(), "frmaltro");
    // Move, Open, Focus, Move in that order.
    const auto all = kinds();
    const std::vector<Effect::Kind> tail(all.end() - 4, all.end());
    EXPECT_EQ(tail, (std::vector{Effect::Kind::Move, Effect::Kind::Open, Effect::Kind::Focus, Effect::Kind::Move}));
}

TEST_F(ProgramTest, FaultsAndTheNormalEnd) {
    program.open("frmprova", OpenModal);
    program.click("frmprova", ControlKey::Parse("Option1(1)"));
    program.edit("frmprova", ControlKey::Parse("txta"), "1e200");
    program.edit("frmprova", ControlKey::Parse("txtb"), "1e200");
    EXPECT_EQ(program.click("frmprova", ControlKey::Parse("cmdcalcola")), Program::Status::Faulted);
    EXPECT_EQ(program.fault(), FaultKind::Overflow);
    EXPECT_THROW(program.open("frmprova", OpenModal), std::logic_error);  // nothing runs after the end

    HeadlessHost host2;
    Program p2{library, host2, NumberLocale::english()};
    p2.open("frmaltro", OpenModeless);
    EXPECT_EQ(p2.click("frmaltro", ControlKey::Parse("cmdfine")), Program::Status::Ended);
    EXPECT_EQ(host2.effects.back().kind, Effect::Kind::End);
}

TEST_F(ProgramTest, QuestionsAndPrinting) {
    program.open("frmprova", OpenModal);
    host.answers.push_back(6);
    program.click("frmprova", ControlKey::Parse("cmdchiedi"));
    EXPECT_EQ(control("frmprova", "lblout").text, "SI");
    program.click("frmprova", ControlKey::Parse("cmdchiedi"));
    EXPECT_EQ(control("frmprova", "lblout").text, "NO");
    EXPECT_EQ(host.unansweredQuestions, 1);

    program.click("frmprova", ControlKey::Parse("cmdstampa"));
    const Effect* p = host.last(Effect::Kind::Print);
    ASSERT_NE(p, nullptr);
    EXPECT_NE(std::find(p->hidden.begin(), p->hidden.end(), "cmdstampa"), p->hidden.end());
    EXPECT_TRUE(control("frmprova", "cmdstampa").visible);
}

TEST(FormDefinition, NamesAreCheckedOnce) {
    CalculatorForm f("frm", "T", {});
    f.label("lbl(0)", {});
    EXPECT_THROW(f.label("lbl(0)", {}), std::logic_error);
    EXPECT_THROW(f.onClick("cmdmissing", [](FormContext&) {}), std::logic_error);
    EXPECT_THROW(f.at(ControlKey::Parse("lbl(1)")), std::logic_error);
    EXPECT_THROW(ControlKey::Parse("Option1(x)"), std::invalid_argument);
    EXPECT_EQ(ControlKey::Parse("Option1(12)").index, 12);
    EXPECT_EQ(ControlKey::Parse("Option1(12)").str(), "Option1(12)");
}
