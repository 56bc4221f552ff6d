// The soak's own parts: the checks find what they are meant to find and
// nothing a window legitimately does, and an episode is a scenario that
// replays to the same end.
#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>

#include "checks.hpp"
#include "child.hpp"
#include "forms/form_context.hpp"
#include "forms/headless_host.hpp"
#include "inputs.hpp"
#include "model_net.hpp"
#include "runner/scenario.hpp"

namespace bm::soak {
namespace {

CalculatorForm TwoResults() {
    CalculatorForm f("frmprova", "PROVA", {0, 0, 3000, 3000});
    f.option("Option1(0)", {0, 0, 900, 300}, "A");
    f.option("Option1(1)", {0, 300, 900, 300}, "B");
    f.textBox("txtin", {0, 600, 900, 300});
    f.label("lbluno", {0, 900, 900, 300});
    f.label("lbldue", {0, 1200, 900, 300});
    f.label("lblunita", {900, 1200, 900, 300}, "pF");
    return f;
}

FormState Loaded(const CalculatorForm& def) {
    FormState st;
    st.def = &def;
    st.reset();
    st.loaded = true;
    st.shown = true;
    return st;
}

TEST(SoakChecks, AResultLeftEmptyBesideFreshNumbers) {
    const CalculatorForm def = TwoResults();
    FormState st = Loaded(def);
    auto set = [&](const char* id, const char* text) { st.control(ControlKey::Parse(id)).text = text; };
    set("lbluno", "12");
    set("lbldue", "5");
    const Texts before = TextsOf(st);

    set("lbluno", "13");
    set("lbldue", "");
    ASSERT_EQ(PrintProblems(before, st, true).size(), 1u);
    EXPECT_TRUE(PrintProblems(before, st, false).empty()) << "typing, an option or a message may clear what it likes";

    set("lbluno", "");
    EXPECT_TRUE(PrintProblems(before, st, true).empty()) << "every result cleared at once is a reset";

    set("lbluno", "13");
    st.control(ControlKey::Parse("lbldue")).visible = false;
    EXPECT_TRUE(PrintProblems(before, st, true).empty()) << "a hidden result may be empty";
}

TEST(SoakChecks, NotANumberOnlyWhereTheUserDidNotTypeIt) {
    const CalculatorForm def = TwoResults();
    FormState st = Loaded(def);
    const Texts before = TextsOf(st);
    st.control(ControlKey::Parse("lbluno")).text = "-nan";
    EXPECT_EQ(PrintProblems(before, st, false).size(), 1u) << "whatever the step was";
    st.control(ControlKey::Parse("txtin")).text = "NaN";
    EXPECT_TRUE(PrintProblems(before, st, false).empty()) << "a word the user typed, echoed back";
}

TEST(SoakInputs, CharactersKeepUtf8SequencesWhole) {
    EXPECT_EQ(Characters("aà€🙂"), (std::vector<std::string>{"a", "à", "€", "🙂"}));
    EXPECT_EQ(Characters("\xC3"), (std::vector<std::string>{"\xC3"})) << "a cut sequence goes byte by byte";
    EXPECT_EQ(Characters("\xE2\x82x"), (std::vector<std::string>{"\xE2", "\x82", "x"}));
}

std::string ReadAll(const std::filesystem::path& p) {
    std::ifstream in(p);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

// An episode's file is a scenario: the runner replays it to the same run-time
// ends, and the same seed and index write the same file.
TEST(SoakEpisodes, AnEpisodeIsAScenarioThatReplays) {
    const Workbook book;
    const std::filesystem::path dir = std::filesystem::temp_directory_path() / ("soak-test-" + std::to_string(::getpid()));
    std::filesystem::create_directories(dir);
    int ends = 0;
    for (long index = 0; index < 6; ++index) {
        EpisodeOptions options;
        options.seed = 17;
        options.index = index;
        options.stepCpuLimitUs = 10'000'000;  // timing is the net's business, not this test's
        options.scenarioPath = (dir / "a.scenario").string();
        const EpisodeResult first = RunEpisode(book, options);
        EXPECT_TRUE(first.failures.empty()) << index << ": " << first.failures.front();
        ends += first.runTimeEnds;
        const std::string text = ReadAll(options.scenarioPath);
        options.scenarioPath = (dir / "b.scenario").string();
        RunEpisode(book, options);
        EXPECT_EQ(text, ReadAll(options.scenarioPath)) << "episode " << index << " is not deterministic";
        const scenario::FileResult replay = scenario::RunText(text, "episode-" + std::to_string(index));
        EXPECT_TRUE(replay.passed()) << (replay.failures.empty() ? "" : replay.failures.front());
    }
    EXPECT_GT(ends, 0) << "no episode met a run-time failure: the junk is too tame";
    std::filesystem::remove_all(dir);
}

// A run in a child: its lines as they come, its end as it was.
TEST(SoakChild, LinesStatusSignalsAndSilence) {
    const std::string errors = (std::filesystem::temp_directory_path() / ("soak-child-" + std::to_string(::getpid()))).string();
    std::vector<std::string> lines;
    const auto keep = [&](const std::string& l) { lines.push_back(l); };

    ChildOutcome o = RunChild([](int fd) { SendLine(fd, "uno"); SendLine(fd, "due"); return 3; }, keep, {}, errors);
    EXPECT_EQ(lines, (std::vector<std::string>{"uno", "due"}));
    EXPECT_TRUE(o.exited);
    EXPECT_EQ(o.status, 3);

    o = RunChild([](int) { ::raise(SIGKILL); return 0; }, keep, {}, errors);
    EXPECT_FALSE(o.exited);
    EXPECT_EQ(o.signal, SIGKILL);

    // Quiet for longer than allowed after a first line: stopped as hung.
    o = RunChild([](int fd) { SendLine(fd, "su"); ::sleep(5); return 0; }, keep, {2000, 300}, errors);
    EXPECT_TRUE(o.hung);
    std::remove(errors.c_str());
}

TEST(SoakChild, SanitizerReportsAreFoundInTheErrorOutput) {
    const std::string text = "Qt says hello\n==1==ERROR: AddressSanitizer: heap-use-after-free on address 0x1\n    #0 in f\n";
    EXPECT_EQ(SanitizerReport(text), "==1==ERROR: AddressSanitizer: heap-use-after-free on address 0x1\n    #0 in f\n");
    EXPECT_NE(SanitizerReport("a.cpp:3:5: runtime error: signed integer overflow\n"), "");
    EXPECT_EQ(SanitizerReport("This plugin does not support raise()\n"), "");
}

// The workbook with one window broken on purpose.
class Broken : public FormLibrary {
public:
    Broken(void (*breakIt)(CalculatorForm&), std::string form) : name_(std::move(form)) {
        form_ = std::make_unique<CalculatorForm>(*book_.find(name_));
        breakIt(*form_);
    }
    const CalculatorForm* find(std::string_view name) const override {
        return name == name_ ? form_.get() : book_.find(name);
    }
    bool has(std::string_view name) const override { return book_.has(name); }

private:
    Workbook book_;
    std::string name_;
    std::unique_ptr<CalculatorForm> form_;
};

std::string FirstFailure(const FormLibrary& library, const std::string& window) {
    for (long index = 0; index < 5; ++index) {
        EpisodeOptions options;
        options.seed = 3;
        options.index = index;
        options.window = window;
        options.stepCpuLimitUs = 10'000'000;
        const EpisodeResult r = RunEpisode(library, options);
        if (!r.failures.empty()) return r.failures.front();
    }
    return {};
}

TEST(SoakEpisodes, FindAWindowThatPrintsNotANumber) {
    const Broken library(
        [](CalculatorForm& f) {
            const Handler calculate = *f.handler(EventKind::Click, "cmdcalcola");
            f.on(EventKind::Click, "cmdcalcola", [calculate](FormContext& c, int index) {
                calculate(c, index);
                c.setCaption("lblout2", "VOLT picco picco : -nan");
            });
        },
        "frmvolt");
    EXPECT_NE(FirstFailure(library, "frmvolt").find("lblout2 shows \"VOLT picco picco : -nan\""), std::string::npos);
}

TEST(SoakEpisodes, FindAWindowThatTouchesAControlItLacks) {
    const Broken library(
        [](CalculatorForm& f) {
            f.on(EventKind::Click, "cmdcalcola", [](FormContext& c, int) { c.setCaption("lblnessuna", "1"); });
        },
        "frmvolt");
    EXPECT_NE(FirstFailure(library, "frmvolt").find("exception out of the window model"), std::string::npos);
}

}  // namespace
}  // namespace bm::soak
