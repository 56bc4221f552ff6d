#include "checks.hpp"

#include <cctype>
#include <cstring>
#include <map>

namespace bm::soak {

namespace {

bool Letter(char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; }
bool Digit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

bool VisibleIn(const FormState& form, const ControlDef& d) {
    const ControlState& c = form.controls.at(d.key);
    if (!c.visible) return false;
    if (d.container.empty()) return true;
    auto frame = form.controls.find(ControlKey::Parse(d.container));
    return frame == form.controls.end() || frame->second.visible;
}

}  // namespace

bool ShowsNotANumber(const std::string& text) {
    // A run of letters that is "nan" or "inf" in any case; "1.#INF", "-1.#IND" and the like.
    for (std::size_t i = 0; i < text.size();) {
        if (!Letter(text[i])) {
            ++i;
            continue;
        }
        std::size_t end = i;
        while (end < text.size() && Letter(text[end])) ++end;
        if (end - i == 3) {
            std::string word = text.substr(i, 3);
            for (char& c : word) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
            if (word == "nan" || word == "inf" || word == "ind") {
                if (word != "ind" || (i > 0 && text[i - 1] == '#')) return true;
            }
        }
        if (end - i == 4 && i > 0 && text[i - 1] == '#' && (text.compare(i, 4, "QNAN") == 0 || text.compare(i, 4, "SNAN") == 0))
            return true;
        i = end;
    }
    return false;
}

bool HoldsNumber(const std::string& text) {
    // Blanks, a sign, then a digit, or a separator and a digit.
    std::size_t i = 0;
    while (i < text.size() && (text[i] == ' ' || text[i] == '\t')) ++i;
    if (i < text.size() && (text[i] == '-' || text[i] == '+')) ++i;
    if (i < text.size() && Digit(text[i])) return true;
    return i + 1 < text.size() && (text[i] == '.' || text[i] == ',') && Digit(text[i + 1]);
}

std::vector<std::string> RecordProblems(const FormState& form) {
    std::vector<std::string> problems;
    const std::string& name = form.name();
    if (form.shown && !form.loaded) problems.push_back(name + " is shown but not loaded");
    if (!form.loaded) {
        if (!form.controls.empty()) problems.push_back(name + " keeps controls while unloaded");
        return problems;
    }
    // The keys of a definition are unique: all of them there and no more is the same count.
    std::size_t found = 0;
    for (const ControlDef& d : form.def->controls) {
        if (form.controls.contains(d.key)) ++found;
        else problems.push_back(name + ": control " + d.key.str() + " is missing");
    }
    if (form.controls.size() > found) {
        for (const auto& [key, c] : form.controls)
            if (form.def->find(key) == nullptr)
                problems.push_back(name + ": control " + key.str() + " is not in the definition");
    }
    std::map<std::pair<std::string, std::string>, int> chosen;  // group and container
    for (const ControlDef& d : form.def->controls) {
        if (d.kind != ControlKind::Option) continue;
        auto c = form.controls.find(d.key);
        if (c != form.controls.end() && c->second.chosen) ++chosen[{d.key.name, d.container}];
    }
    for (const auto& [group, n] : chosen)
        if (n > 1) problems.push_back(name + ": " + std::to_string(n) + " elements of " + group.first + " chosen");
    return problems;
}

Texts TextsOf(const FormState& form) {
    Texts texts;
    for (const ControlDef& d : form.def->controls) {
        if (d.kind != ControlKind::Label && d.kind != ControlKind::TextBox) continue;
        if (auto c = form.controls.find(d.key); c != form.controls.end()) texts.emplace(d.key, c->second.text);
    }
    return texts;
}

std::vector<std::string> PrintProblems(const Texts& before, const FormState& after, bool calculation) {
    std::vector<std::string> problems;
    if (!after.loaded) return problems;
    // Whether the user has such a word in one of the boxes now.
    bool typedNotANumber = false;
    for (const ControlDef& d : after.def->controls)
        if (d.kind == ControlKind::TextBox || d.kind == ControlKind::List)
            typedNotANumber = typedNotANumber || ShowsNotANumber(after.controls.at(d.key).text);

    std::vector<const ControlDef*> printed;
    std::vector<const ControlDef*> emptied;
    for (const ControlDef& d : after.def->controls) {
        if (d.kind != ControlKind::Label && d.kind != ControlKind::TextBox) continue;
        const std::string& now = after.controls.at(d.key).text;
        auto was = before.find(d.key);
        if (was == before.end() || was->second == now) continue;
        if (ShowsNotANumber(now) && !typedNotANumber)
            problems.push_back(after.name() + "." + d.key.str() + " shows \"" + now.substr(0, 80) + "\"");
        if (d.kind != ControlKind::Label) continue;  // results are labels
        if (HoldsNumber(now)) printed.push_back(&d);
        else if (now.empty() && HoldsNumber(was->second) && VisibleIn(after, d)) emptied.push_back(&d);
    }
    if (calculation && !printed.empty()) {
        for (const ControlDef* d : emptied)
            problems.push_back(after.name() + "." + d->key.str() + " held a number and was left empty while " +
                               printed.front()->key.str() + " was printed");
    }
    return problems;
}

}  // namespace bm::soak
