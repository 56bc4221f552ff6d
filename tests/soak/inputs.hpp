#pragma once
// What users put into the boxes: numbers as they type them, numbers a little
// wrong, and plain junk, drawn at random with the weight on the numbers.
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace bm::soak {

using Random = std::mt19937_64;

// A seed for one run of many from the seed of them all (splitmix64).
inline std::uint64_t Mix(std::uint64_t a, std::uint64_t b) {
    std::uint64_t z = a + 0x9E3779B97F4A7C15ULL * (b + 1);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}

// A whole number in [0, n).
inline std::size_t Pick(Random& random, std::size_t n) { return n == 0 ? 0 : static_cast<std::size_t>(random() % n); }
// True with probability percent / 100.
inline bool Chance(Random& random, int percent) { return static_cast<int>(random() % 100) < percent; }

// A number as a user types it: "47", "0.22", "1500", "-3.3", "2.5e3".
std::string TypedNumber(Random& random);
// Texts that are almost numbers or are not numbers at all: "", ".", "-",
// "1e308", "1,5", thirty digits, ten thousand characters, control characters,
// accented and right-to-left letters.
std::string NearNumber(Random& random);
std::string Junk(Random& random);
// One text for a box: mostly numbers, then near-numbers, then junk. When
// `lineSafe`, no line break is in it (the text must fit one scenario line).
std::string InputText(Random& random, bool lineSafe = true);

// The UTF-8 characters of a text, one string each (a broken sequence byte by byte).
std::vector<std::string> Characters(const std::string& text);

}  // namespace bm::soak
