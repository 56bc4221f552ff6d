#include "inputs.hpp"

#include <array>
#include <cstdio>

namespace bm::soak {

namespace {

const char* const kNearNumbers[] = {
    "",       ".",      "-",         "+",       "-.",      "0",        "-0",      "0.0",     "00012",
    "1e308",  "-1e308", "1e309",     "1e-320",  "1e-308",  "9e999",    "1,5",     "1.5.5",   "1..5",
    " 12 ",   "12abc",  "1e",        "1e+",     "2d3",     "&H10",     "0x1A",    "1 000",   "1.000,5",
    "3,3k",   "4k7",    "1/2",       "50%",     "--5",     "+-5",      "5-",      "E5",      ".e1",
    "1e-5",   "1E5",    "65535",     "32768",   "-32769",  "2147483648", "4294967296", "1e15", "1e16",
    "1e38",   "3.4e38", "3.5e38",    "1.5e-45", "1e-46",   "0.000001", "123456789", "0.1",  "999999999999",
};

const char* const kJunk[] = {
    "abc",           "CIAO",        "àèìòù",         "µF",       "Ω",          "°C",       "€ 12",
    "שלום",          "مرحبا",       "12 مرحبا",      "\xE2\x80\xAE" "12",      "\xEF\xBB\xBF" "5", "🙂",  "\t",
    "\x01\x02",      "\x1b[0m",     "\x7f",          "5\t5",     "NaN",        "inf",      "-Infinity",
    "nan(0x1)",      "null",        "\\",            "\"",       "%s%n%d",     "<b>1</b>", "&amp;",
    "' OR 1=1",      "1;2",         "  ",            "Z9QQX",    "..........", "e",        "#",
};

std::string Digits(Random& random, int n) {
    std::string s;
    for (int i = 0; i < n; ++i) s += static_cast<char>('0' + Pick(random, 10));
    return s;
}

}  // namespace

std::string TypedNumber(Random& random) {
    char buf[64];
    const std::size_t shape = Pick(random, 10);
    const long whole = static_cast<long>(Pick(random, 1000)) + (Chance(random, 70) ? 1 : 0);
    const bool negative = Chance(random, 8);
    std::string s;
    switch (shape) {
        case 0:
        case 1:
        case 2: std::snprintf(buf, sizeof buf, "%ld", whole); s = buf; break;
        case 3:
        case 4:
            std::snprintf(buf, sizeof buf, "%ld.%s", whole % 100, Digits(random, 1 + static_cast<int>(Pick(random, 3))).c_str());
            s = buf;
            break;
        case 5: s = "0." + Digits(random, 1 + static_cast<int>(Pick(random, 4))); break;
        case 6: std::snprintf(buf, sizeof buf, "%ld000", whole); s = buf; break;
        case 7: std::snprintf(buf, sizeof buf, "%lde%d", whole % 10 + 1, static_cast<int>(Pick(random, 13)) - 6); s = buf; break;
        case 8: s = "." + Digits(random, 1 + static_cast<int>(Pick(random, 2))); break;
        default: std::snprintf(buf, sizeof buf, "%ld", whole % 60 + 1); s = buf; break;
    }
    return negative ? "-" + s : s;
}

std::string NearNumber(Random& random) {
    switch (Pick(random, 8)) {
        case 0: return Digits(random, 30);
        case 1: return "0." + Digits(random, 25);
        case 2: return TypedNumber(random) + TypedNumber(random);
        case 3: {  // a comma where the point belongs
            std::string s = TypedNumber(random);
            for (char& c : s)
                if (c == '.') c = ',';
            return s;
        }
        default: return kNearNumbers[Pick(random, std::size(kNearNumbers))];
    }
}

std::string Junk(Random& random) {
    switch (Pick(random, 10)) {
        case 0: return std::string(10000, static_cast<char>('0' + Pick(random, 10)));
        case 1: {  // ten thousand characters of anything printable
            std::string s;
            s.reserve(10000);
            for (int i = 0; i < 10000; ++i) s += static_cast<char>(' ' + Pick(random, 95));
            return s;
        }
        case 2: return TypedNumber(random) + kJunk[Pick(random, std::size(kJunk))];
        default: return kJunk[Pick(random, std::size(kJunk))];
    }
}

std::string InputText(Random& random, bool lineSafe) {
    const int roll = static_cast<int>(Pick(random, 100));
    if (roll < 60) return TypedNumber(random);
    if (roll < 85) return NearNumber(random);
    if (!lineSafe && Chance(random, 15)) return Chance(random, 50) ? "12\n34" : "1\r\n";
    return Junk(random);
}

std::vector<std::string> Characters(const std::string& text) {
    std::vector<std::string> out;
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i]);
        std::size_t n = lead < 0x80 ? 1 : (lead >> 5) == 0x6 ? 2 : (lead >> 4) == 0xE ? 3 : (lead >> 3) == 0x1E ? 4 : 1;
        if (i + n > text.size()) n = 1;
        for (std::size_t k = 1; k < n; ++k)
            if ((static_cast<unsigned char>(text[i + k]) & 0xC0) != 0x80) n = 1;
        out.push_back(text.substr(i, n));
        i += n;
    }
    return out;
}

}  // namespace bm::soak
