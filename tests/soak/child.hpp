#pragma once
// A net's run in a child process of its own: a crash, a sanitizer's report or
// a hang ends that run, not the net. The child reports on a pipe, one line at
// a time; a child silent for too long is taken as hung and stopped.
#include <functional>
#include <string>

namespace bm::soak {

struct ChildOutcome {
    bool exited = false;  // ended by exit(), with `status`
    int status = 0;
    int signal = 0;       // the signal that ended it, else 0
    bool hung = false;    // silent for longer than allowed, then stopped
    std::string sanitizerReport;  // the sanitizers' lines from its error output, if any
    std::string errorTail;        // the last lines of its error output
};

struct ChildLimits {
    int firstLineMs = 60'000;  // before its first line (start-up)
    int silenceMs = 2'000;     // between two lines after that
};

// Runs `body(fd)` in a child whose standard error goes to `errorPath`; its
// return value is the exit status (through exit(), so that the leak check
// runs). `onLine` sees every line as it arrives.
ChildOutcome RunChild(const std::function<int(int fd)>& body, const std::function<void(const std::string&)>& onLine,
                      const ChildLimits& limits, const std::string& errorPath);

// The lines of a sanitizer's report in an error output, or an empty text.
std::string SanitizerReport(const std::string& errorText);

// Writes a whole line on a descriptor.
void SendLine(int fd, const std::string& line);

}  // namespace bm::soak
