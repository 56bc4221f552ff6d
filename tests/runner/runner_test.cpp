// The runner must catch every wrong expectation, with file and line.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "runner/scenario.hpp"
#include "support/test_forms.hpp"

using namespace bm;

namespace {

const bm::testing::TestLibrary kLibrary;

std::vector<std::string> Failures(const std::string& text) {
    return scenario::RunText(text, "t.scenario", &kLibrary).failures;
}

::testing::AssertionResult FailsAt(const std::string& text, int line, const std::string& fragment) {
    const auto f = Failures(text);
    const std::string prefix = "t.scenario:" + std::to_string(line) + ": ";
    for (const auto& s : f)
        if (s.rfind(prefix, 0) == 0 && s.find(fragment) != std::string::npos) return ::testing::AssertionSuccess();
    std::string all;
    for (const auto& s : f) all += "\n  " + s;
    return ::testing::AssertionFailure() << "no failure at line " << line << " with \"" << fragment << "\"" << all;
}

}  // namespace

TEST(Runner, AStoryThatHoldsPasses) {
    const auto f = Failures(R"(
# a user at the window
open frmprova modal
expect modal frmprova
expect chosen Option1(0)
expect unchosen Option1(1)
expect lblmodo "DIVIDI"
expect focus Option1(0)
expect tooltip txta "primo"
expect title frmprova "PROVA"
expect position frmprova 100 200
expect size frmprova 4000 3000
expect items lstvalori 2
expect item lstvalori 1 "due"
expect at Line1 0 0
expect color lblout 0 0 0
type txta "12"
expect lblcambi "2"
set txtb "8"
click cmdcalcola
expect no message
expect frmprova.lblout "1.5"
set txtb ""
click cmdcalcola
expect message "MANCANO DATI" 48 "MESSAGGIO DI ERRORE"
expect focus txta
expect no message
answer 6
click cmdchiedi
expect lblout "SI"
click cmdstampa
expect printed frmprova without cmdstampa
click cmdaltro
expect open frmaltro
expect modeless frmaltro
expect position frmaltro 4100 2800
expect lblcarica "CARICATO"
expect frmprova.txta "12"
click frmprova.cmdesci
expect closed frmprova
expect hidden frmprova.cmdnascosto
)");
    ASSERT_EQ(f.size(), 1u) << (f.empty() ? "" : f[0]);
    // The last line looks at a form that is closed: a failure, not an error.
    EXPECT_NE(f[0].find("t.scenario:41: expected frmprova.cmdnascosto on a loaded form"), std::string::npos) << f[0];
}

TEST(Runner, CatchesWrongTextsAndStates) {
    EXPECT_TRUE(FailsAt("open frmprova\nexpect lblmodo \"MOLTIPLICA\"", 2, "found \"DIVIDI\""));
    EXPECT_TRUE(FailsAt("open frmprova\nexpect chosen Option1(1)", 2, "found unchosen"));
    EXPECT_TRUE(FailsAt("open frmprova\nexpect visible cmdnascosto", 2, "found hidden"));
    EXPECT_TRUE(FailsAt("open frmprova\nexpect modal frmprova", 2, "found modeless"));
    EXPECT_TRUE(FailsAt("open frmprova\nexpect open frmaltro", 2, "found closed"));
    EXPECT_TRUE(FailsAt("open frmprova\nexpect position frmprova 0 0", 2, "found 100 200"));
    EXPECT_TRUE(FailsAt("open frmprova\nexpect tooltip txtb \"primo\"", 2, "found \"secondo\""));
    EXPECT_TRUE(FailsAt("open frmprova\nexpect item lstvalori 5 \"x\"", 2, "only 2 rows"));
    EXPECT_TRUE(FailsAt("open frmprova\nexpect printed frmprova", 2, "no print"));
}

TEST(Runner, CatchesMessagesAndFocus) {
    const std::string gate = "open frmprova\nclick cmdcalcola\n";
    EXPECT_TRUE(FailsAt(gate + "expect no message", 3, "found message \"MANCANO DATI\""));
    EXPECT_TRUE(FailsAt(gate + "expect message \"MANCANO DATI\" 16 \"MESSAGGIO DI ERRORE\"", 3, "found message"));
    EXPECT_TRUE(FailsAt("open frmprova\nexpect message \"MANCANO DATI\" 48 \"MESSAGGIO DI ERRORE\"", 2,
                        "found no message"));
    EXPECT_TRUE(FailsAt(gate + "expect focus txtb", 3, "found focus on frmprova.txta"));
    EXPECT_TRUE(FailsAt("open frmprova\nclick cmdchiedi", 2, "no answer"));
}

TEST(Runner, CatchesFaultsNobodyExpected) {
    const std::string overflow = "open frmprova\nclick Option1(1)\nset txta \"1e200\"\nset txtb \"1e200\"\nclick cmdcalcola\n";
    EXPECT_TRUE(FailsAt(overflow + "expect lblout \"\"", 6, "found it ended with overflow"));
    EXPECT_TRUE(FailsAt(overflow, 5, "found it ended with overflow"));
    EXPECT_TRUE(FailsAt(overflow + "expect fault division-by-zero", 6, "found fault overflow"));
    EXPECT_TRUE(FailsAt("open frmprova\nexpect fault overflow", 2, "found the program running"));
    // Expected, and the scenario goes on in a new process.
    EXPECT_TRUE(Failures(overflow + "expect fault overflow\nexpect no message\nexpect closed frmprova\n"
                                    "open frmprova modeless\nexpect modeless frmprova\nopen frmprova modal\n"
                                    "expect fault form-already-shown")
                    .empty());
    EXPECT_TRUE(Failures("open frmaltro\nclick cmdfine\nexpect ended").empty());
    EXPECT_TRUE(FailsAt("open frmaltro\nclick cmdfine\nexpect fault overflow", 3, "found ended"));
}

TEST(Runner, ScenarioErrors) {
    EXPECT_TRUE(FailsAt("open frmprova\nclick cmdnascosto", 2, "it is hidden"));
    EXPECT_TRUE(FailsAt("open frmprova\nset lblout \"1\"", 2, "no text box"));
    EXPECT_TRUE(FailsAt("open frmprova\nclick cmdmanca", 2, "has no control cmdmanca"));
    EXPECT_TRUE(FailsAt("open frmnessuno", 1, "no form named frmnessuno"));
    EXPECT_TRUE(FailsAt("click txta", 1, "no current form"));
}

TEST(Runner, LinesItCannotRead) {
    EXPECT_TRUE(FailsAt("open frmprova\nfrobnicate\n", 2, "unknown command"));
    EXPECT_TRUE(FailsAt("open frmprova\nset txta \"unterminated\n", 2, "unterminated"));
    EXPECT_TRUE(FailsAt("expect message \"A\" x \"B\"", 1, "expected a number"));
    EXPECT_TRUE(FailsAt("expect fault nan", 1, "unknown fault kind"));
    EXPECT_TRUE(FailsAt("open frmprova sideways", 1, "modal or modeless"));
    EXPECT_TRUE(FailsAt("# only a comment\n\n", 2, "runs no step"));
    // Escapes inside a text.
    EXPECT_TRUE(FailsAt("open frmprova\nexpect lblmodo \"a \\\"b\\\" \\\\c\"", 2, "\"a \"b\" \\c\""));
}

TEST(Runner, FoldersAndTheClosingLine) {
    namespace fs = std::filesystem;
    const fs::path dir = fs::temp_directory_path() / "runner-test-folder";
    fs::remove_all(dir);
    fs::create_directories(dir / "sub");
    std::ofstream(dir / "sub" / "bad.scenario") << "frobnicate\n";
    std::ofstream(dir / "ignored.txt") << "frobnicate\n";
    std::ostringstream out;
    EXPECT_EQ(scenario::RunPaths({dir.string()}, out), 1);
    EXPECT_NE(out.str().find("bad.scenario:1: cannot read the line"), std::string::npos) << out.str();
    EXPECT_NE(out.str().find("0 passed, 1 failed\n"), std::string::npos) << out.str();
    std::ostringstream none;
    EXPECT_EQ(scenario::RunPaths({(dir / "missing").string()}, none), 1);
    fs::remove_all(dir);
}

TEST(Runner, TheObserverSeesEveryUserActionOnAShownForm) {
    std::vector<std::pair<int, std::string>> seen;
    const auto observer = [&seen](int line, const FormState& form) {
        seen.emplace_back(line, form.name() + ":" + form.control(ControlKey::Parse("txta")).text);
    };
    const auto result = scenario::RunText(R"(open frmprova
set txta "3"
type txta "12"
expect txta "12"
click cmdesci
click cmdcalcola
)",
                                          "t.scenario", &kLibrary, observer);
    // The exit closes the window, so there is nothing to draw after it, and the
    // click after that fails: only the two edits are seen.
    ASSERT_EQ(seen.size(), 2u);
    EXPECT_EQ(seen[0], (std::pair<int, std::string>{2, "frmprova:3"}));
    EXPECT_EQ(seen[1], (std::pair<int, std::string>{3, "frmprova:12"}));
    EXPECT_FALSE(result.passed());
}
