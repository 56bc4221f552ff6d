// The main window, the notice and help windows and the about window, driven
// as the user drives them.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "core/number_locale.hpp"
#include "forms/headless_host.hpp"
#include "shell/form_registry.hpp"
#include "shell/workbook.hpp"

namespace bm {
namespace {

struct Session {
    Workbook book;
    HeadlessHost host;
    Program program{book, host, NumberLocale::english()};

    FormState& main() { return *program.state(kMainForm); }
    Color title() { return main().control(ControlKey::Parse("lbltitolo")).foreground.value_or(colors::Black); }
    bool timerRunning() { return main().control(ControlKey::Parse("Timer1")).enabled; }
};

TEST(MainWindow, StartsCentredWithItsTimerRunning) {
    Session s;
    ASSERT_EQ(StartProgram(s.program), Program::Status::Running);
    const Effect* open = s.host.last(Effect::Kind::Open);
    ASSERT_NE(open, nullptr);
    EXPECT_EQ(open->form, kMainForm);
    EXPECT_EQ(open->modality, OpenModeless);
    // 8595 is odd: the half twip of (15360 - 8595) / 2 is dropped.
    EXPECT_EQ(open->rect, (Rect{3382, 2480, 8595, 6560}));
    EXPECT_EQ(s.main().title, "BANCOMISURATORE    -   IL QUADERNO TECNICO");
    EXPECT_TRUE(s.timerRunning());
    EXPECT_EQ(s.main().control(ControlKey::Parse("Timer1")).interval, 1000);
}

TEST(MainWindow, TitleBlinksRedAndBlue) {
    Session s;
    StartProgram(s.program);
    Color before = s.title();
    for (int i = 0; i < 4; ++i) {
        s.program.tick();
        const Color now = s.title();
        EXPECT_NE(now, before) << "tick " << i;
        EXPECT_TRUE(now == colors::Red || now == colors::Blue) << "tick " << i;
        before = now;
    }

    // Any colour but red turns red.
    s.main().control(ControlKey::Parse("lbltitolo")).foreground = Color{0, 128, 0};
    s.program.tick();
    EXPECT_EQ(s.title(), colors::Red);
}

TEST(MainWindow, ClickOnTheTitleStopsTheBlinkingWhereItIs) {
    for (int ticksBefore : {0, 1, 2, 3}) {
        SCOPED_TRACE(ticksBefore);
        Session s;
        StartProgram(s.program);
        for (int i = 0; i < ticksBefore; ++i) s.program.tick();
        const Color held = s.title();
        ASSERT_EQ(s.program.click(kMainForm, ControlKey::Parse("lbltitolo")), Program::Status::Running);
        EXPECT_FALSE(s.timerRunning());
        EXPECT_EQ(s.title(), held);
        s.program.tick();
        s.program.tick();
        EXPECT_EQ(s.title(), held);
    }
}

TEST(MainWindow, ExitAsksAndEndsOnlyOnYes) {
    Session s;
    StartProgram(s.program);
    s.host.answers.push_back(7);
    ASSERT_EQ(s.program.click(kMainForm, ControlKey::Parse("cdmexit")), Program::Status::Running);
    const Effect* box = s.host.last(Effect::Kind::Message);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->text, "SEI SICURO ?");
    EXPECT_EQ(box->style, 36);
    EXPECT_EQ(box->title, "AVVISO");
    EXPECT_TRUE(s.main().shown);
    EXPECT_EQ(s.host.last(Effect::Kind::End), nullptr);

    // Yes ends the program at once, with another window still open beside it.
    ASSERT_EQ(s.program.open("frmavvertenza", OpenModeless), Program::Status::Running);
    s.host.answers.push_back(6);
    EXPECT_EQ(s.program.click(kMainForm, ControlKey::Parse("cdmexit")), Program::Status::Ended);
    EXPECT_EQ(s.program.status(), Program::Status::Ended);
    EXPECT_NE(s.host.last(Effect::Kind::End), nullptr);
    EXPECT_EQ(s.host.unansweredQuestions, 0);
}

TEST(AboutWindow, TakesItsWidthAndCentresAcrossOnly) {
    for (int screen : {15360, 12000, 19200}) {
        SCOPED_TRACE(screen);
        Session s;
        s.host.width = screen;
        const int definedTop = s.book.find("frmabaut")->window.top;
        ASSERT_EQ(ChooseMenuItem(s.program, "mnuinfo"), Program::Status::Running);
        const Effect* open = s.host.last(Effect::Kind::Open);
        ASSERT_NE(open, nullptr);
        EXPECT_EQ(open->form, "frmabaut");
        EXPECT_EQ(open->modality, OpenModal);
        EXPECT_EQ(open->rect.left, (screen - 7320) / 2);
        EXPECT_EQ(open->rect.width, 7320);
        EXPECT_EQ(open->rect.top, definedTop);
    }
}

// Starting knows the calculators by name only; each definition is built when
// its form first opens, and kept.
TEST(Workbook, BuildsADefinitionOnFirstOpeningOnly) {
    Session s;
    ASSERT_EQ(StartProgram(s.program), Program::Status::Running);
    std::size_t known = 0;
    for (const MenuItem& m : FormRegistry::items()) known += !m.isSubmenu() && s.program.isBuilt(m.form);
    EXPECT_GT(known, 1U);
    EXPECT_EQ(s.book.definitionsBuilt(), 1U);

    for (int round = 0; round < 2; ++round) {
        ASSERT_EQ(ChooseMenuItem(s.program, "mnuohm"), Program::Status::Running);
        ASSERT_EQ(s.program.close("frmleggediohm"), Program::Status::Running);
    }
    EXPECT_EQ(s.book.definitionsBuilt(), 2U);
    EXPECT_TRUE(s.book.isDefinitionBuilt("frmleggediohm"));
}

// The layout holds: every control lies inside the client area, and every text
// fits its control at about 100 twips a character at 8 points (more when
// bold), 195 twips a line, with a tenth of each line lost to word wrap.
int Characters(const std::string& utf8) {
    int n = 0;
    for (unsigned char ch : utf8) n += (ch & 0xC0) != 0x80;
    return n;
}

TEST(ShellLayout, ControlsAndTextsFitTheirWindows) {
    const Workbook book;
    for (const char* name : {"FRMBANCOMISURATORE", "frmavvertenza", "frmhelpcondensatore", "frmabaut"}) {
        const CalculatorForm* form = book.find(name);
        ASSERT_NE(form, nullptr) << name;
        const bool menuBar = form->name == kMainForm;
        const int clientWidth = form->window.width - 120;
        const int clientHeight = form->window.height - 510 - (menuBar ? 300 : 0);
        for (const ControlDef& d : form->controls) {
            SCOPED_TRACE(std::string(name) + "." + d.key.str());
            if (d.kind == ControlKind::Timer) continue;
            EXPECT_GE(d.rect.left, 0);
            EXPECT_GE(d.rect.top, 0);
            EXPECT_LE(d.rect.left + d.rect.width, clientWidth);
            EXPECT_LE(d.rect.top + d.rect.height, clientHeight);
            if (d.text.empty()) continue;
            const double charWidth = 100.0 * d.fontSize / 8 * (d.bold ? 1.15 : 1.0);
            const double lineHeight = 195.0 * d.fontSize / 8;
            const double textWidth = Characters(d.text) * charWidth;
            if (d.kind == ControlKind::Button || !d.wordWrap) {
                EXPECT_LE(textWidth, d.rect.width);
                EXPECT_LE(lineHeight, d.rect.height);
            } else {
                const double lines = std::ceil(textWidth / (0.9 * d.rect.width));
                EXPECT_LE(lines * lineHeight, d.rect.height);
            }
        }
    }
}

}  // namespace
}  // namespace bm
