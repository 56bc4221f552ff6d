#include "runner/scenario.hpp"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <ostream>
#include <set>
#include <sstream>
#include <stdexcept>

#include "forms/headless_host.hpp"
#include "shell/form_registry.hpp"
#include "shell/workbook.hpp"

namespace bm::scenario {
namespace {

// ---------------------------------------------------------------- lines

struct Token {
    std::string text;
    bool quoted = false;
};

struct ParseError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

std::vector<Token> Tokenize(std::string_view line) {
    std::vector<Token> tokens;
    std::size_t i = 0;
    const auto blank = [](char c) { return c == ' ' || c == '\t' || c == '\r'; };
    while (i < line.size()) {
        if (blank(line[i])) {
            ++i;
            continue;
        }
        Token t;
        if (line[i] == '"') {
            t.quoted = true;
            ++i;
            bool closed = false;
            while (i < line.size()) {
                const char c = line[i++];
                if (c == '\\' && i < line.size() && (line[i] == '"' || line[i] == '\\')) {
                    t.text += line[i++];
                } else if (c == '"') {
                    closed = true;
                    break;
                } else {
                    t.text += c;
                }
            }
            if (!closed) throw ParseError("unterminated text");
            if (i < line.size() && !blank(line[i])) throw ParseError("a text must be followed by a blank");
        } else {
            while (i < line.size() && !blank(line[i])) {
                if (line[i] == '"') throw ParseError("a quote inside a word");
                t.text += line[i++];
            }
        }
        tokens.push_back(std::move(t));
    }
    return tokens;
}

enum class Cmd {
    Locale, Screen, Date, Start, Menu, Open, Close, Click, Set, Type, Answer, Tick,
    ExpectText, ExpectTitle, ExpectVisible, ExpectHidden, ExpectChosen, ExpectUnchosen, ExpectTooltip,
    ExpectColor, ExpectAt, ExpectItems, ExpectItem, ExpectMessage, ExpectNoMessage, ExpectFocus,
    ExpectOpen, ExpectClosed, ExpectModal, ExpectModeless, ExpectPosition, ExpectSize, ExpectPrinted,
    ExpectFault, ExpectEnded,
};

struct Step {
    int line = 0;
    Cmd cmd = Cmd::Tick;
    std::string target;             // control reference or form name
    std::string text;               // quoted argument
    std::string title;              // message title
    std::vector<long long> numbers;  // numeric arguments
    std::vector<std::string> words;  // printed ... without
    std::optional<Modality> modality;
    FaultKind fault = FaultKind::Overflow;
};

bool IsAction(Cmd c) {
    switch (c) {
        case Cmd::Start: case Cmd::Menu: case Cmd::Open: case Cmd::Close: case Cmd::Click:
        case Cmd::Set: case Cmd::Type: case Cmd::Tick: return true;
        default: return false;
    }
}

long long Number(const Token& t) {
    if (t.quoted || t.text.empty()) throw ParseError("expected a number, found \"" + t.text + "\"");
    std::size_t pos = 0;
    long long v = 0;
    try {
        v = std::stoll(t.text, &pos);
    } catch (const std::exception&) {
        throw ParseError("expected a number, found " + t.text);
    }
    if (pos != t.text.size()) throw ParseError("expected a number, found " + t.text);
    return v;
}

std::string Word(const Token& t, const char* what) {
    if (t.quoted) throw ParseError(std::string("expected ") + what + ", found a text");
    return t.text;
}

std::string Text(const Token& t) {
    if (!t.quoted) throw ParseError("expected a text in double quotes, found " + t.text);
    return t.text;
}

std::string ControlRef(const Token& t) {
    std::string ref = Word(t, "a control");
    const std::size_t dot = ref.find('.');
    const std::string control = dot == std::string::npos ? ref : ref.substr(dot + 1);
    if (control.empty() || (dot != std::string::npos && dot == 0)) throw ParseError("bad control name " + ref);
    try {
        ControlKey::Parse(control);
    } catch (const std::invalid_argument&) {
        throw ParseError("bad control name " + ref);
    }
    return ref;
}

void Arity(const std::vector<Token>& t, std::size_t n) {
    if (t.size() != n)
        throw ParseError("'" + t[0].text + (t.size() > 1 && t[0].text == "expect" ? " " + t[1].text : "") +
                         "' takes " + std::to_string(n - 1) + " words, found " + std::to_string(t.size() - 1));
}

Step ParseExpect(const std::vector<Token>& t, Step s) {
    if (t.size() < 2) throw ParseError("'expect' needs more");
    if (t.size() == 3 && !t[1].quoted && t[2].quoted) {
        s.cmd = Cmd::ExpectText;
        s.target = ControlRef(t[1]);
        s.text = t[2].text;
        return s;
    }
    const std::string what = Word(t[1], "what to expect");
    const auto control = [&](Cmd c, std::size_t n) {
        Arity(t, n);
        s.cmd = c;
        s.target = ControlRef(t[2]);
    };
    const auto form = [&](Cmd c, std::size_t n) {
        Arity(t, n);
        s.cmd = c;
        s.target = Word(t[2], "a form");
    };
    if (what == "title") { form(Cmd::ExpectTitle, 4); s.text = Text(t[3]); }
    else if (what == "visible") control(Cmd::ExpectVisible, 3);
    else if (what == "hidden") control(Cmd::ExpectHidden, 3);
    else if (what == "chosen") control(Cmd::ExpectChosen, 3);
    else if (what == "unchosen") control(Cmd::ExpectUnchosen, 3);
    else if (what == "tooltip") { control(Cmd::ExpectTooltip, 4); s.text = Text(t[3]); }
    else if (what == "color") {
        control(Cmd::ExpectColor, 6);
        for (int i = 3; i < 6; ++i) s.numbers.push_back(Number(t[static_cast<std::size_t>(i)]));
    } else if (what == "at") {
        control(Cmd::ExpectAt, 5);
        s.numbers = {Number(t[3]), Number(t[4])};
    } else if (what == "items") {
        control(Cmd::ExpectItems, 4);
        s.numbers = {Number(t[3])};
    } else if (what == "item") {
        control(Cmd::ExpectItem, 5);
        s.numbers = {Number(t[3])};
        s.text = Text(t[4]);
    } else if (what == "message") {
        Arity(t, 5);
        s.cmd = Cmd::ExpectMessage;
        s.text = Text(t[2]);
        s.numbers = {Number(t[3])};
        s.title = Text(t[4]);
    } else if (what == "no") {
        Arity(t, 3);
        if (Word(t[2], "message") != "message") throw ParseError("expected 'expect no message'");
        s.cmd = Cmd::ExpectNoMessage;
    } else if (what == "focus") control(Cmd::ExpectFocus, 3);
    else if (what == "open") form(Cmd::ExpectOpen, 3);
    else if (what == "closed") form(Cmd::ExpectClosed, 3);
    else if (what == "modal") form(Cmd::ExpectModal, 3);
    else if (what == "modeless") form(Cmd::ExpectModeless, 3);
    else if (what == "position") { form(Cmd::ExpectPosition, 5); s.numbers = {Number(t[3]), Number(t[4])}; }
    else if (what == "size") { form(Cmd::ExpectSize, 5); s.numbers = {Number(t[3]), Number(t[4])}; }
    else if (what == "printed") {
        if (t.size() < 3) throw ParseError("'expect printed' needs a form");
        s.cmd = Cmd::ExpectPrinted;
        s.target = Word(t[2], "a form");
        if (t.size() > 3) {
            if (Word(t[3], "without") != "without" || t.size() == 4)
                throw ParseError("expected 'without' and control names");
            for (std::size_t i = 4; i < t.size(); ++i) s.words.push_back(ControlRef(t[i]));
        }
    } else if (what == "fault") {
        Arity(t, 3);
        s.cmd = Cmd::ExpectFault;
        if (!FaultFromSlug(Word(t[2], "a fault kind"), s.fault)) throw ParseError("unknown fault kind " + t[2].text);
    } else if (what == "ended") {
        Arity(t, 2);
        s.cmd = Cmd::ExpectEnded;
    } else {
        throw ParseError("unknown expectation '" + what + "'");
    }
    return s;
}

Step Parse(const std::vector<Token>& t, int line) {
    Step s;
    s.line = line;
    const std::string cmd = Word(t[0], "a command");
    if (cmd == "expect") return ParseExpect(t, s);
    if (cmd == "locale") {
        Arity(t, 2);
        s.cmd = Cmd::Locale;
        s.target = Word(t[1], "en or it");
        if (s.target != "en" && s.target != "it") throw ParseError("locale is en or it, found " + s.target);
    } else if (cmd == "screen") {
        Arity(t, 3);
        s.cmd = Cmd::Screen;
        s.numbers = {Number(t[1]), Number(t[2])};
    } else if (cmd == "date") {
        Arity(t, 2);
        s.cmd = Cmd::Date;
        s.text = Text(t[1]);
    } else if (cmd == "start") {
        Arity(t, 1);
        s.cmd = Cmd::Start;
    } else if (cmd == "tick") {
        Arity(t, 1);
        s.cmd = Cmd::Tick;
    } else if (cmd == "menu") {
        Arity(t, 2);
        s.cmd = Cmd::Menu;
        s.target = Word(t[1], "a menu item");
    } else if (cmd == "open") {
        if (t.size() != 2 && t.size() != 3) Arity(t, 2);
        s.cmd = Cmd::Open;
        s.target = Word(t[1], "a form");
        if (t.size() == 3) {
            const std::string m = Word(t[2], "modal or modeless");
            if (m == "modal") s.modality = Modality::Modal;
            else if (m == "modeless") s.modality = Modality::Modeless;
            else throw ParseError("expected modal or modeless, found " + m);
        }
    } else if (cmd == "close") {
        Arity(t, 2);
        s.cmd = Cmd::Close;
        s.target = Word(t[1], "a form");
    } else if (cmd == "click") {
        Arity(t, 2);
        s.cmd = Cmd::Click;
        s.target = ControlRef(t[1]);
    } else if (cmd == "set" || cmd == "type") {
        Arity(t, 3);
        s.cmd = cmd == "set" ? Cmd::Set : Cmd::Type;
        s.target = ControlRef(t[1]);
        s.text = Text(t[2]);
    } else if (cmd == "answer") {
        Arity(t, 2);
        s.cmd = Cmd::Answer;
        s.numbers = {Number(t[1])};
        if (s.numbers[0] != 1 && s.numbers[0] != 6 && s.numbers[0] != 7)
            throw ParseError("answer is 1, 6 or 7, found " + t[1].text);
    } else {
        throw ParseError("unknown command '" + cmd + "'");
    }
    return s;
}

// UTF-8 characters, one at a time, as typing delivers them.
std::vector<std::string> Characters(const std::string& text) {
    std::vector<std::string> out;
    for (std::size_t i = 0; i < text.size();) {
        const auto c = static_cast<unsigned char>(text[i]);
        std::size_t n = c < 0x80 ? 1 : (c >> 5) == 0x6 ? 2 : (c >> 4) == 0xE ? 3 : (c >> 3) == 0x1E ? 4 : 1;
        n = std::min(n, text.size() - i);
        out.push_back(text.substr(i, n));
        i += n;
    }
    return out;
}

std::string Quote(const std::string& s) { return "\"" + s + "\""; }

// ---------------------------------------------------------------- running

class Run {
public:
    Run(const std::string& file, const FormLibrary& library, const ActionObserver& observer)
        : file_(file), library_(library), observer_(observer) {
        restart();
    }

    void step(const Step& s);
    void finish(int lastLine);
    std::vector<std::string>& failures() { return failures_; }

private:
    struct Ending {
        Program::Status status;
        std::optional<FaultKind> fault;
        bool expected = false;
    };

    void restart() {
        host_ = std::make_unique<HeadlessHost>();
        program_ = std::make_unique<Program>(library_, *host_, NumberLocale::english());
        messagesSeen_ = 0;
        ending_.reset();
        actionStart_ = 0;
    }

    void fail(int line, const std::string& what) {
        failures_.push_back(file_ + ":" + std::to_string(line) + ": " + what);
    }
    void mismatch(int line, const std::string& expected, const std::string& found) {
        fail(line, "expected " + expected + ", found " + found);
    }

    void act(const Step& s);
    void expect(const Step& s);
    void afterAction(const Step& s, Program::Status status);
    void observe(const Step& s, const std::string& form, Program::Status status) {
        const FormState* st = program_->state(form);
        if (observer_ && status == Program::Status::Running && st != nullptr && st->shown) observer_(s.line, *st);
    }

    // Resolves "frm.control" or "control" on the current form.
    struct Ref {
        FormState* form = nullptr;
        ControlKey key;
        std::string formName;
    };
    std::optional<Ref> resolve(const Step& s, const std::string& ref, bool mustBeLoaded);
    std::vector<const Effect*> messages() const;

    std::string file_;
    const FormLibrary& library_;
    const ActionObserver& observer_;
    std::unique_ptr<HeadlessHost> host_;
    std::unique_ptr<Program> program_;
    std::size_t messagesSeen_ = 0;
    std::size_t actionStart_ = 0;
    std::optional<Ending> ending_;
    std::vector<std::string> failures_;
};

std::vector<const Effect*> Run::messages() const {
    std::vector<const Effect*> out;
    for (const Effect& e : host_->effects)
        if (e.kind == Effect::Kind::Message) out.push_back(&e);
    return out;
}

std::optional<Run::Ref> Run::resolve(const Step& s, const std::string& ref, bool mustBeLoaded) {
    Ref r;
    const std::size_t dot = ref.find('.');
    if (dot != std::string::npos) {
        r.formName = ref.substr(0, dot);
        r.key = ControlKey::Parse(ref.substr(dot + 1));
        if (library_.find(r.formName) == nullptr) {
            fail(s.line, "no form named " + r.formName);
            return std::nullopt;
        }
        r.form = program_->state(r.formName);
    } else {
        r.key = ControlKey::Parse(ref);
        r.form = program_->current();
        if (r.form == nullptr) {
            fail(s.line, "no current form for " + ref);
            return std::nullopt;
        }
        r.formName = r.form->name();
    }
    const CalculatorForm* def = library_.find(r.formName);
    if (def->find(r.key) == nullptr) {
        fail(s.line, r.formName + " has no control " + r.key.str());
        return std::nullopt;
    }
    if (mustBeLoaded && (r.form == nullptr || !r.form->loaded)) {
        fail(s.line, "expected " + ref + " on a loaded form, found " + r.formName + " not loaded");
        return std::nullopt;
    }
    return r;
}

void Run::step(const Step& s) {
    if (ending_) {
        const bool endingCheck = s.cmd == Cmd::ExpectFault || s.cmd == Cmd::ExpectEnded;
        const bool messageCheck = s.cmd == Cmd::ExpectMessage || s.cmd == Cmd::ExpectNoMessage;
        if (!ending_->expected && !endingCheck) {
            fail(s.line, "expected the program to go on, found it ended" +
                             (ending_->fault ? " with " + std::string(FaultSlug(*ending_->fault)) : std::string()));
            ending_->expected = true;
        }
        if (endingCheck && !ending_->expected) {
            ending_->expected = true;
            const std::string found = ending_->fault ? "fault " + std::string(FaultSlug(*ending_->fault)) : "ended";
            if (s.cmd == Cmd::ExpectFault &&
                !(ending_->status == Program::Status::Faulted && ending_->fault == s.fault))
                mismatch(s.line, "fault " + std::string(FaultSlug(s.fault)), found);
            if (s.cmd == Cmd::ExpectEnded && ending_->status != Program::Status::Ended)
                mismatch(s.line, "ended", found);
            return;
        }
        if (messageCheck) {
            expect(s);
            return;
        }
        restart();  // the first other command starts a new process
    } else if (s.cmd == Cmd::ExpectFault || s.cmd == Cmd::ExpectEnded) {
        mismatch(s.line, s.cmd == Cmd::ExpectEnded ? "ended" : "fault " + std::string(FaultSlug(s.fault)),
                 "the program running");
        return;
    }
    try {
        if (IsAction(s.cmd)) act(s);
        else expect(s);
    } catch (const std::exception& e) {
        // A handler touched something its form lacks: a fault of the form, reported here.
        fail(s.line, std::string("internal error: ") + e.what());
        restart();
    }
}

void Run::afterAction(const Step& s, Program::Status status) {
    if (host_->unansweredQuestions > 0) {
        fail(s.line, "a question box (style 36) was shown with no answer given");
        host_->unansweredQuestions = 0;
    }
    if (status != Program::Status::Running) ending_ = Ending{status, program_->fault()};
}

void Run::act(const Step& s) {
    actionStart_ = host_->effects.size();
    Program& p = *program_;
    Program::Status status = p.status();
    switch (s.cmd) {
        case Cmd::Start: status = StartProgram(p); break;
        case Cmd::Tick: status = p.tick(); break;
        case Cmd::Menu: {
            const MenuItem* m = FormRegistry::find(s.target);
            if (m == nullptr) return fail(s.line, "no menu item named " + s.target);
            if (m->isSubmenu()) return fail(s.line, s.target + " is a submenu");
            if (!library_.has(m->form)) return fail(s.line, "menu item " + s.target + " is disabled");
            status = ChooseMenuItem(p, s.target);
            break;
        }
        case Cmd::Open: {
            if (!library_.has(s.target)) return fail(s.line, "no form named " + s.target);
            Modality m = Modality::Modeless;
            if (s.modality) m = *s.modality;
            else if (const MenuItem* item = FormRegistry::firstFor(s.target)) m = item->modality;
            status = p.open(s.target, m);
            break;
        }
        case Cmd::Close: {
            if (!library_.has(s.target)) return fail(s.line, "no form named " + s.target);
            status = p.close(s.target);
            break;
        }
        case Cmd::Click:
        case Cmd::Set:
        case Cmd::Type: {
            auto r = resolve(s, s.target, true);
            if (!r) return;
            if (!r->form->shown) return fail(s.line, "cannot act on " + s.target + ": " + r->formName + " is not shown");
            const ControlDef& def = r->form->def->at(r->key);
            const ControlState& c = r->form->control(r->key);
            bool visible = c.visible;
            bool enabled = c.enabled;
            if (!def.container.empty()) {
                const ControlState& frame = r->form->control(ControlKey::Parse(def.container));
                visible = visible && frame.visible;
                enabled = enabled && frame.enabled;
            }
            if (!visible || !enabled)
                return fail(s.line, "cannot act on " + s.target + ": it is " + (visible ? "disabled" : "hidden"));
            if (s.cmd == Cmd::Click) {
                status = p.click(r->formName, r->key);
                observe(s, r->formName, status);
                break;
            }
            if (def.kind != ControlKind::TextBox && def.kind != ControlKind::List)
                return fail(s.line, "cannot type into " + s.target + ": it is no text box");
            if (s.cmd == Cmd::Set) {
                status = p.edit(r->formName, r->key, s.text);
                observe(s, r->formName, status);
                break;
            }
            status = p.edit(r->formName, r->key, "");
            std::string typed;
            for (const std::string& ch : Characters(s.text)) {
                if (status != Program::Status::Running) break;
                typed += ch;
                status = p.edit(r->formName, r->key, typed);
            }
            observe(s, r->formName, status);
            break;
        }
        default: break;
    }
    afterAction(s, status);
}

void Run::expect(const Step& s) {
    switch (s.cmd) {
        case Cmd::Locale:
            program_->setLocale(s.target == "it" ? NumberLocale::italian() : NumberLocale::english());
            return;
        case Cmd::Screen:
            host_->width = static_cast<int>(s.numbers[0]);
            host_->height = static_cast<int>(s.numbers[1]);
            return;
        case Cmd::Date: host_->date = s.text; return;
        case Cmd::Answer: host_->answers.push_back(static_cast<int>(s.numbers[0])); return;
        case Cmd::ExpectMessage: {
            const auto all = messages();
            if (messagesSeen_ >= all.size())
                return mismatch(s.line, "message " + Quote(s.text) + " " + std::to_string(s.numbers[0]) + " " +
                                            Quote(s.title),
                                "no message");
            const Effect& m = *all[messagesSeen_++];
            if (m.text != s.text || m.style != s.numbers[0] || m.title != s.title)
                mismatch(s.line,
                         "message " + Quote(s.text) + " " + std::to_string(s.numbers[0]) + " " + Quote(s.title),
                         "message " + Quote(m.text) + " " + std::to_string(m.style) + " " + Quote(m.title));
            return;
        }
        case Cmd::ExpectNoMessage: {
            const auto all = messages();
            if (messagesSeen_ < all.size())
                mismatch(s.line, "no message", "message " + Quote(all[messagesSeen_]->text));
            return;
        }
        default: break;
    }

    // Expectations about forms.
    const auto formState = [&](const std::string& name, bool mustBeLoaded) -> FormState* {
        if (!library_.has(name)) {
            fail(s.line, "no form named " + name);
            return nullptr;
        }
        FormState* st = program_->state(name);
        if (mustBeLoaded && (st == nullptr || !st->loaded)) {
            fail(s.line, "expected " + name + " loaded, found it not loaded");
            return nullptr;
        }
        return st;
    };
    switch (s.cmd) {
        case Cmd::ExpectTitle: {
            FormState* st = formState(s.target, true);
            if (st != nullptr && st->title != s.text) mismatch(s.line, "title " + Quote(s.text), Quote(st->title));
            return;
        }
        case Cmd::ExpectOpen:
        case Cmd::ExpectClosed: {
            if (!library_.has(s.target)) return fail(s.line, "no form named " + s.target);
            const FormState* st = program_->state(s.target);
            const bool shown = st != nullptr && st->shown;
            if (shown != (s.cmd == Cmd::ExpectOpen))
                mismatch(s.line, s.target + (s.cmd == Cmd::ExpectOpen ? " open" : " closed"),
                         shown ? "open" : "closed");
            return;
        }
        case Cmd::ExpectModal:
        case Cmd::ExpectModeless: {
            FormState* st = formState(s.target, true);
            if (st == nullptr) return;
            const Modality want = s.cmd == Cmd::ExpectModal ? Modality::Modal : Modality::Modeless;
            const auto name = [](Modality m) { return m == Modality::Modal ? "modal" : "modeless"; };
            if (!st->shown) mismatch(s.line, std::string(name(want)), "not shown");
            else if (st->modality != want) mismatch(s.line, name(want), name(st->modality));
            return;
        }
        case Cmd::ExpectPosition:
        case Cmd::ExpectSize: {
            FormState* st = formState(s.target, true);
            if (st == nullptr) return;
            const bool pos = s.cmd == Cmd::ExpectPosition;
            const long long a = pos ? st->window.left : st->window.width;
            const long long b = pos ? st->window.top : st->window.height;
            if (a != s.numbers[0] || b != s.numbers[1])
                mismatch(s.line, std::string(pos ? "position " : "size ") + std::to_string(s.numbers[0]) + " " +
                                     std::to_string(s.numbers[1]),
                         std::to_string(a) + " " + std::to_string(b));
            return;
        }
        case Cmd::ExpectPrinted: {
            const Effect* print = nullptr;
            for (std::size_t i = actionStart_; i < host_->effects.size(); ++i)
                if (host_->effects[i].kind == Effect::Kind::Print) print = &host_->effects[i];
            if (print == nullptr || print->form != s.target)
                return mismatch(s.line, "printed " + s.target, print ? "printed " + print->form : "no print");
            for (const std::string& w : s.words) {
                const std::string control = w.find('.') == std::string::npos ? w : w.substr(w.find('.') + 1);
                const std::string canonical = ControlKey::Parse(control).str();
                if (std::find(print->hidden.begin(), print->hidden.end(), canonical) == print->hidden.end())
                    mismatch(s.line, control + " hidden while printing", "it visible");
            }
            return;
        }
        default: break;
    }

    // Expectations about controls.
    auto r = resolve(s, s.target, true);
    if (!r) return;
    const ControlState& c = r->form->control(r->key);
    const std::string name = r->key.str();
    switch (s.cmd) {
        case Cmd::ExpectText:
            if (c.text != s.text) mismatch(s.line, name + " " + Quote(s.text), Quote(c.text));
            return;
        case Cmd::ExpectVisible:
        case Cmd::ExpectHidden:
            if (c.visible != (s.cmd == Cmd::ExpectVisible))
                mismatch(s.line, name + (s.cmd == Cmd::ExpectVisible ? " visible" : " hidden"),
                         c.visible ? "visible" : "hidden");
            return;
        case Cmd::ExpectChosen:
        case Cmd::ExpectUnchosen:
            if (c.chosen != (s.cmd == Cmd::ExpectChosen))
                mismatch(s.line, name + (s.cmd == Cmd::ExpectChosen ? " chosen" : " unchosen"),
                         c.chosen ? "chosen" : "unchosen");
            return;
        case Cmd::ExpectTooltip:
            if (c.tooltip != s.text) mismatch(s.line, name + " tooltip " + Quote(s.text), Quote(c.tooltip));
            return;
        case Cmd::ExpectColor: {
            const Color col = c.foreground.value_or(colors::Black);
            if (col.r != s.numbers[0] || col.g != s.numbers[1] || col.b != s.numbers[2])
                mismatch(s.line,
                         name + " color " + std::to_string(s.numbers[0]) + " " + std::to_string(s.numbers[1]) + " " +
                             std::to_string(s.numbers[2]),
                         std::to_string(col.r) + " " + std::to_string(col.g) + " " + std::to_string(col.b));
            return;
        }
        case Cmd::ExpectAt:
            if (c.rect.left != s.numbers[0] || c.rect.top != s.numbers[1])
                mismatch(s.line, name + " at " + std::to_string(s.numbers[0]) + " " + std::to_string(s.numbers[1]),
                         std::to_string(c.rect.left) + " " + std::to_string(c.rect.top));
            return;
        case Cmd::ExpectItems:
            if (static_cast<long long>(c.items.size()) != s.numbers[0])
                mismatch(s.line, name + " with " + std::to_string(s.numbers[0]) + " rows",
                         std::to_string(c.items.size()) + " rows");
            return;
        case Cmd::ExpectItem: {
            const long long k = s.numbers[0];
            if (k < 0 || k >= static_cast<long long>(c.items.size()))
                return mismatch(s.line, name + " row " + std::to_string(k) + " " + Quote(s.text),
                                "only " + std::to_string(c.items.size()) + " rows");
            if (c.items[static_cast<std::size_t>(k)] != s.text)
                mismatch(s.line, name + " row " + std::to_string(k) + " " + Quote(s.text),
                         Quote(c.items[static_cast<std::size_t>(k)]));
            return;
        }
        case Cmd::ExpectFocus: {
            const Effect* f = host_->last(Effect::Kind::Focus);
            if (f == nullptr) return mismatch(s.line, "focus on " + r->formName + "." + name, "no focus request");
            if (f->form != r->formName || f->control != name)
                mismatch(s.line, "focus on " + r->formName + "." + name, "focus on " + f->form + "." + f->control);
            return;
        }
        default: return;
    }
}

void Run::finish(int lastLine) {
    if (ending_ && !ending_->expected)
        fail(lastLine, std::string("expected the program to go on, found it ended") +
                           (ending_->fault ? " with " + std::string(FaultSlug(*ending_->fault)) : ""));
}

const FormLibrary& ProgramForms() {
    static const Workbook kWorkbook;
    return kWorkbook;
}

}  // namespace

FileResult RunText(std::string_view text, const std::string& fileName, const FormLibrary* library,
                   const ActionObserver& observer) {
    FileResult result;
    result.file = fileName;
    std::vector<Step> steps;
    std::istringstream in{std::string(text)};
    std::string line;
    int number = 0;
    while (std::getline(in, line)) {
        ++number;
        const std::size_t first = line.find_first_not_of(" \t\r");
        if (first == std::string::npos || line[first] == '#') continue;
        try {
            steps.push_back(Parse(Tokenize(line), number));
        } catch (const ParseError& e) {
            result.failures.push_back(fileName + ":" + std::to_string(number) + ": cannot read the line: " + e.what());
        }
    }
    if (!result.failures.empty()) return result;
    if (steps.empty()) {
        result.failures.push_back(fileName + ":" + std::to_string(number) + ": the file runs no step");
        return result;
    }
    Run run(fileName, library != nullptr ? *library : ProgramForms(), observer);
    for (const Step& s : steps) run.step(s);
    run.finish(steps.back().line);
    result.failures = std::move(run.failures());
    return result;
}

int RunPaths(const std::vector<std::string>& paths, std::ostream& out) {
    namespace fs = std::filesystem;
    std::vector<std::string> files;
    int passed = 0;
    int failed = 0;
    for (const std::string& p : paths) {
        std::error_code ec;
        if (fs::is_directory(p, ec)) {
            std::vector<std::string> found;
            for (const auto& e : fs::recursive_directory_iterator(p, ec))
                if (e.is_regular_file() && e.path().extension() == ".scenario") found.push_back(e.path().string());
            std::sort(found.begin(), found.end());
            files.insert(files.end(), found.begin(), found.end());
        } else if (fs::is_regular_file(p, ec)) {
            files.push_back(p);
        } else {
            out << p << ": no such file or folder\n";
            ++failed;
        }
    }
    for (const std::string& f : files) {
        std::ifstream in(f, std::ios::binary);
        std::stringstream buf;
        buf << in.rdbuf();
        const FileResult r = RunText(buf.str(), f);
        for (const std::string& line : r.failures) out << line << "\n";
        if (r.passed()) {
            ++passed;
        } else {
            ++failed;
            out << f << ": FAILED (" << r.failures.size() << (r.failures.size() == 1 ? " failure" : " failures")
                << ")\n";
        }
    }
    out << passed << " passed, " << failed << " failed\n";
    return failed == 0 ? 0 : 1;
}

}  // namespace bm::scenario
