#include "model_net.hpp"

#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>
#include <set>

#include "calc/catalogue.hpp"
#include "checks.hpp"
#include "child.hpp"
#include "forms/headless_host.hpp"
#include "inputs.hpp"
#include "shell/form_registry.hpp"

namespace bm::soak {

namespace {

long ThreadCpuMicros() {
    timespec ts{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
    return static_cast<long>(ts.tv_sec) * 1'000'000L + ts.tv_nsec / 1000;
}

std::string Quote(const std::string& s) {
    std::string q = "\"";
    for (char c : s) {
        if (c == '"' || c == '\\') q += '\\';
        q += c;
    }
    return q + "\"";
}

// The buttons a box of a style offers, as the numbers the logic sees.
std::vector<int> Buttons(int style) {
    switch (style & 0x7) {
        case 1: return {1, 2};
        case 2: return {3, 4, 5};
        case 3: return {6, 7, 2};
        case 4: return {6, 7};
        case 5: return {4, 2};
        default: return {1};
    }
}

// The headless host with a user in front of it: every box is answered with one
// of its buttons at random, and the modal windows stack up as they open.
class UserHost : public HeadlessHost {
public:
    explicit UserHost(Random& random) : random_(random) {}

    int showMessage(const std::string& text, int style, const std::string& title) override {
        HeadlessHost::showMessage(text, style, title);
        const std::vector<int> buttons = Buttons(style);
        const int answer = buttons[Pick(random_, buttons.size())];
        answers.push_back(answer);
        ++messages;
        return answer;
    }
    void formShown(FormState& form) override {
        HeadlessHost::formShown(form);
        if (form.modality == Modality::Modal) modal.push_back(form.name());
    }
    void formClosed(FormState& form) override {
        HeadlessHost::formClosed(form);
        std::erase(modal, form.name());
    }

    std::vector<int> answers;  // the buttons pressed during the current action
    int messages = 0;
    std::vector<std::string> modal;  // the modal windows open, oldest first

private:
    Random& random_;
};

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
        case ControlKind::List: return !c.items.empty();
        case ControlKind::Image: return d.clickable || st.def->handler(EventKind::Click, d.key.name) != nullptr;
        case ControlKind::Label: return st.def->handler(EventKind::Click, d.key.name) != nullptr;
        default: return false;
    }
}

class Episode {
public:
    Episode(const FormLibrary& book, const EpisodeOptions& options, const std::vector<std::string>& forms)
        : book_(book), all_(forms), options_(options),
          random_(Mix(options.seed, static_cast<std::uint64_t>(options.index))) {
        const std::size_t n = forms.size();
        const auto round = static_cast<std::uint64_t>(options.index) / n;
        std::vector<std::string> order = forms;
        Random shuffle(Mix(options.seed ^ 0x5EEDULL, round));
        std::shuffle(order.begin(), order.end(), shuffle);
        target_ = options.window.empty() ? order[static_cast<std::size_t>(options.index) % n] : options.window;
        italian_ = Chance(random_, 70);
        if (!options.scenarioPath.empty()) file_ = std::fopen(options.scenarioPath.c_str(), "w");
    }
    ~Episode() {
        if (file_ != nullptr) std::fclose(file_);
    }
    Episode(const Episode&) = delete;
    Episode& operator=(const Episode&) = delete;

    EpisodeResult run() {
        write("# soak model: seed " + std::to_string(options_.seed) + ", episode " + std::to_string(options_.index) +
              ", window " + target_);
        restart();
        const long steps = 100 + static_cast<long>(Pick(random_, 200));
        for (long i = 0; i < steps && !over(); ++i) step();
        result_.windows.assign(windows_.begin(), windows_.end());
        return std::move(result_);
    }

    const std::string& target() const { return target_; }

private:
    void write(const std::string& line) {
        if (file_ == nullptr) return;
        std::fputs(line.c_str(), file_);
        std::fputc('\n', file_);
        std::fflush(file_);
    }

    // The action about to run, as a comment: what a crash leaves at the end of
    // the file. The lines of the finished action replace it.
    void writePending(const std::string& line) {
        if (file_ == nullptr) return;
        pending_ = std::ftell(file_);
        write("# crashed here? " + line.substr(0, 200));
    }
    void dropPending() {
        if (file_ == nullptr || pending_ < 0) return;
        std::fseek(file_, pending_, SEEK_SET);
        if (::ftruncate(::fileno(file_), pending_) != 0) write("# (could not drop the pending line)");
        pending_ = -1;
    }

    void fail(const std::string& what) {
        write("# FAILURE: " + what);
        result_.failures.push_back(what);
        result_.failedEvent = result_.events;
    }

    bool over() const { return !result_.failures.empty() || stop_; }

    void restart() {
        program_.reset();
        host_ = std::make_unique<UserHost>(random_);
        program_ = std::make_unique<Program>(book_, *host_,
                                             italian_ ? NumberLocale::italian() : NumberLocale::english());
        if (italian_) write("locale it");
        perform("start", [&] { return StartProgram(*program_); });
    }

    // One user action at the program's boundary: timed, checked, logged.
    // `calculation`: a button of `actedForm` clicked.
    template <typename Action>
    void perform(const std::string& line, Action&& action, const std::string& actedForm = {}, bool calculation = false) {
        writePending(line);
        std::map<std::string, Texts> before;
        for (const std::string& f : forms())
            if (const FormState* st = program_->state(f); st != nullptr && st->loaded) before.emplace(f, TextsOf(*st));
        host_->answers.clear();
        const int messagesBefore = host_->messages;
        Program::Status status = Program::Status::Running;
        const long start = ThreadCpuMicros();
        try {
            status = action();
        } catch (const std::exception& e) {
            dropPending();
            for (int a : host_->answers) write("answer " + std::to_string(a));
            write(line);
            fail("exception out of the window model: " + std::string(e.what()));
            return;
        }
        const long cpu = ThreadCpuMicros() - start;
        dropPending();
        for (int a : host_->answers) write("answer " + std::to_string(a));
        write(line);
        ++result_.events;
        if (options_.timeOnly >= 0 && result_.events >= options_.timeOnly) stop_ = true;
        if (cpu > options_.stepCpuLimitUs && (options_.timeOnly < 0 || result_.events == options_.timeOnly)) {
            result_.slow = true;
            return fail("the step took " + std::to_string(cpu / 1000) + " ms: " + line.substr(0, 120));
        }

        if (status == Program::Status::Faulted) {
            write("expect fault " + std::string(FaultSlug(program_->fault().value_or(FaultKind::Overflow))));
            ++result_.runTimeEnds;
            return restart();
        }
        if (status == Program::Status::Ended) {
            write("expect ended");
            ++result_.runTimeEnds;
            return restart();
        }
        const bool messageShown = host_->messages != messagesBefore;
        for (const std::string& f : forms()) {
            const FormState* st = program_->state(f);
            if (st == nullptr) continue;
            if (st->shown) windows_.insert(f);
            for (const std::string& p : RecordProblems(*st)) return fail(p);
            if (auto b = before.find(f); b != before.end())
                for (const std::string& p : PrintProblems(b->second, *st, calculation && !messageShown && f == actedForm))
                    return fail(p);
        }
        for (const Effect& e : host_->effects) {
            if (e.kind != Effect::Kind::Focus) continue;
            const FormState* st = program_->state(e.form);
            if (st == nullptr || st->def->find(ControlKey::Parse(e.control)) == nullptr)
                return fail("focus sent to " + e.form + "." + e.control + ", which its definition lacks");
        }
        host_->effects.clear();
    }

    // The forms with a record in this program.
    std::vector<std::string> forms() const {
        std::vector<std::string> names;
        for (const std::string& f : all_)
            if (program_->state(f) != nullptr) names.push_back(f);
        return names;
    }

    bool shown(std::string_view form) const {
        const FormState* st = program_->state(form);
        return st != nullptr && st->shown;
    }

    // The modal window on top, if one is up: the user can act only there.
    std::string topModal() const {
        for (auto it = host_->modal.rbegin(); it != host_->modal.rend(); ++it)
            if (shown(*it)) return *it;
        return {};
    }

    void openFromMenu(const std::string& form) {
        std::vector<const MenuItem*> items;
        for (const MenuItem& m : FormRegistry::items())
            if (m.form == form) items.push_back(&m);
        if (items.empty()) {
            perform("open " + form, [&] { return program_->open(form, OpenModeless); });
            return;
        }
        const MenuItem* m = items[Pick(random_, items.size())];
        perform("menu " + m->name, [&] { return ChooseMenuItem(*program_, m->name); }, form);
    }

    void step() {
        const std::string modal = topModal();
        if (modal.empty() && !shown(target_) && target_ != kMainForm && Chance(random_, 70))
            return openFromMenu(target_);
        if (Chance(random_, 2)) return perform("tick", [&] { return program_->tick(); });
        std::string window = modal;
        if (window.empty()) {
            std::vector<std::string> others;
            for (const std::string& f : forms())
                if (f != target_ && f != kMainForm && shown(f)) others.push_back(f);
            const int roll = static_cast<int>(Pick(random_, 100));
            if (roll < 60 && shown(target_)) window = target_;
            else if (roll < 85 && !others.empty()) window = others[Pick(random_, others.size())];
            else window = std::string(kMainForm);
        }
        if (!shown(window)) return;
        if (window == kMainForm) return mainWindowStep();
        if (Chance(random_, 3)) return perform("close " + window, [&] { return program_->close(window); });
        actIn(window);
    }

    void mainWindowStep() {
        const int roll = static_cast<int>(Pick(random_, 100));
        if (roll < 75) {
            std::vector<const MenuItem*> items;
            for (const MenuItem& m : FormRegistry::items())
                if (!m.isSubmenu() && book_.has(m.form)) items.push_back(&m);
            const MenuItem* m = items[Pick(random_, items.size())];
            return perform("menu " + m->name, [&] { return ChooseMenuItem(*program_, m->name); }, m->form);
        }
        actIn(std::string(kMainForm));
    }

    void actIn(const std::string& window) {
        const FormState& st = *program_->state(window);
        std::vector<const ControlDef*> boxes;
        std::vector<const ControlDef*> others;
        for (const ControlDef& d : st.def->controls) {
            if (!Actionable(st, d)) continue;
            (d.kind == ControlKind::TextBox ? boxes : others).push_back(&d);
        }
        if (boxes.empty() && others.empty()) return;
        const bool typing = !boxes.empty() && (others.empty() || Chance(random_, 55));
        const ControlDef& d = typing ? *boxes[Pick(random_, boxes.size())] : *others[Pick(random_, others.size())];
        const std::string name = window + "." + d.key.str();
        const ControlKey key = d.key;
        if (d.kind == ControlKind::List) {
            const std::vector<std::string> rows = st.control(key).items;
            const std::string row = rows[Pick(random_, rows.size())];
            return perform("set " + name + " " + Quote(row), [&] { return program_->edit(window, key, row); }, window);
        }
        if (!typing)
            return perform("click " + name, [&] { return program_->click(window, key); }, window,
                           d.kind == ControlKind::Button);
        const std::string text = InputText(random_);
        if (text.size() > 40 || Chance(random_, 45))
            return perform("set " + name + " " + Quote(text), [&] { return program_->edit(window, key, text); }, window);
        // Typing: the box is emptied, then one Change per character, each a step of its own.
        write("# type " + name + " " + Quote(text));
        perform("set " + name + " \"\"", [&] { return program_->edit(window, key, ""); }, window);
        std::string typed;
        for (const std::string& ch : Characters(text)) {
            if (over() || !shown(window)) return;
            typed += ch;
            perform("set " + name + " " + Quote(typed), [&] { return program_->edit(window, key, typed); }, window);
        }
    }

    const FormLibrary& book_;
    const std::vector<std::string>& all_;
    EpisodeOptions options_;
    Random random_;
    std::string target_;
    bool italian_ = false;
    std::FILE* file_ = nullptr;
    long pending_ = -1;
    bool stop_ = false;
    std::unique_ptr<UserHost> host_;
    std::unique_ptr<Program> program_;
    std::set<std::string> windows_;
    EpisodeResult result_;
};

std::string OneLine(std::string s) {
    for (char& c : s)
        if (c == '\n' || c == '\r') c = ' ';
    return s.substr(0, 400);
}

}  // namespace

std::vector<std::string> EpisodeForms(const FormLibrary& book) {
    std::vector<std::string> forms{std::string(kMainForm), "frmavvertenza", "frmabaut", "frmhelpcondensatore"};
    for (const CatalogueEntry& e : CalculatorCatalogue()) forms.emplace_back(e.name);
    std::erase_if(forms, [&](const std::string& f) { return !book.has(f); });
    return forms;
}

EpisodeResult RunEpisode(const FormLibrary& book, const EpisodeOptions& options) {
    const std::vector<std::string> forms = EpisodeForms(book);
    Episode episode(book, options, forms);
    return episode.run();
}

void RunModelWorker(std::uint64_t seed, long first, Clock::time_point deadline, const std::string& outDir, int fd) {
    const Workbook book;
    const std::vector<std::string> forms = EpisodeForms(book);
    const std::string current = outDir + "/model-current-" + std::to_string(::getpid()) + ".scenario";
    for (long index = first; Clock::now() < deadline; ++index) {
        EpisodeOptions options;
        options.seed = seed;
        options.index = index;
        options.scenarioPath = current;
        EpisodeResult r;
        {
            Episode episode(book, options, forms);
            SendLine(fd, "b " + std::to_string(index) + " " + episode.target());
            r = episode.run();
        }
        if (r.slow) {
            // Timed again twice, from a fresh start: one quick run clears it.
            for (int again = 0; again < 2 && r.slow; ++again) {
                EpisodeOptions retry = options;
                retry.scenarioPath.clear();
                retry.timeOnly = r.failedEvent;
                Episode episode(book, retry, forms);
                if (!episode.run().slow) {
                    r.failures.clear();
                    r.slow = false;
                }
            }
        }
        if (!r.failures.empty()) {
            const std::string kept = outDir + "/model-" + std::to_string(seed) + "-" + std::to_string(index) + ".scenario";
            std::rename(current.c_str(), kept.c_str());
            SendLine(fd, "f " + std::to_string(index) + " " + OneLine(r.failures.front()) + " [" + kept + "]");
        }
        std::string line = "e " + std::to_string(index) + " " + std::to_string(r.events) + " " +
                           std::to_string(r.runTimeEnds);
        for (const std::string& w : r.windows) line += " " + w;
        SendLine(fd, line);
    }
    std::remove(current.c_str());
    SendLine(fd, "d");
}

}  // namespace bm::soak
