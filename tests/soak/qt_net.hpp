#pragma once
// The Qt net: the real main window on the offscreen platform, driven through
// real widget events. One run is one process, as the program is: it starts,
// is used at random until a run-time failure or the exit ends it (the fault
// box, then the process's own exit) or its time is up, and the net starts the
// next run. Each run reports on `fd`: "r" when the main window is up, "e N
// FORM ACTION" before each action, "f TEXT" for a window that disagrees with
// its model, "x STATUS WHY" as the program ends itself, "d" when its time is up.
#include <cstdint>
#include <string>

namespace bm::soak {

int RunQtChild(std::uint64_t seed, long run, long budgetMs, const std::string& logPath, int fd);

}  // namespace bm::soak
