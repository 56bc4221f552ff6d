#include "child.hpp"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <vector>

namespace bm::soak {

namespace {

using Clock = std::chrono::steady_clock;

long long Ms(Clock::duration d) { return std::chrono::duration_cast<std::chrono::milliseconds>(d).count(); }

std::string ReadFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

std::string Tail(const std::string& text, std::size_t lines) {
    std::vector<std::string> kept;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        kept.push_back(line);
        if (kept.size() > lines) kept.erase(kept.begin());
    }
    std::string tail;
    for (const std::string& line : kept) tail += line + "\n";
    return tail;
}

}  // namespace

void SendLine(int fd, const std::string& line) {
    const std::string s = line + "\n";
    const char* p = s.data();
    std::size_t left = s.size();
    while (left > 0) {
        const ssize_t n = ::write(fd, p, left);
        if (n <= 0) return;
        p += n;
        left -= static_cast<std::size_t>(n);
    }
}

std::string SanitizerReport(const std::string& errorText) {
    static const char* const kMarks[] = {"ERROR: AddressSanitizer", "ERROR: LeakSanitizer", "runtime error:",
                                         "AddressSanitizer:DEADLYSIGNAL", "ERROR: UndefinedBehaviorSanitizer"};
    std::size_t first = std::string::npos;
    for (const char* mark : kMarks) first = std::min(first, errorText.find(mark));
    if (first == std::string::npos) return {};
    const std::size_t lineStart = errorText.rfind('\n', first);
    std::string report = errorText.substr(lineStart == std::string::npos ? 0 : lineStart + 1);
    // The head of the report: what it is and where; the rest stays in the file.
    std::istringstream in(report);
    std::string line, head;
    for (int n = 0; n < 40 && std::getline(in, line); ++n) head += line + "\n";
    return head;
}

ChildOutcome RunChild(const std::function<int(int fd)>& body, const std::function<void(const std::string&)>& onLine,
                      const ChildLimits& limits, const std::string& errorPath) {
    ChildOutcome outcome;
    int fds[2];
    if (::pipe(fds) != 0) {
        std::perror("soak: pipe");
        std::exit(2);
    }
    std::fflush(nullptr);
    const pid_t pid = ::fork();
    if (pid < 0) {
        std::perror("soak: fork");
        std::exit(2);
    }
    if (pid == 0) {
        ::close(fds[0]);
        const int err = ::open(errorPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        if (err >= 0) {
            ::dup2(err, 2);
            ::close(err);
        }
        const int status = body(fds[1]);
        ::close(fds[1]);
        std::exit(status);
    }
    ::close(fds[1]);

    std::string buffer;
    bool sawLine = false;
    Clock::time_point last = Clock::now();
    for (;;) {
        pollfd p{fds[0], POLLIN, 0};
        const int limit = sawLine ? limits.silenceMs : limits.firstLineMs;
        const long long waited = Ms(Clock::now() - last);
        const int r = ::poll(&p, 1, static_cast<int>(std::max<long long>(0, limit - waited)));
        if (r == 0) {
            outcome.hung = true;
            // ABRT first: the sanitizer prints where it stood.
            ::kill(pid, SIGABRT);
            for (int i = 0; i < 40; ++i) {
                if (::waitpid(pid, nullptr, WNOHANG) == pid) goto reaped;
                ::usleep(50'000);
            }
            ::kill(pid, SIGKILL);
            ::waitpid(pid, nullptr, 0);
        reaped:
            ::close(fds[0]);
            const std::string err = ReadFile(errorPath);
            outcome.errorTail = Tail(err, 30);
            return outcome;
        }
        if (r < 0) continue;
        char chunk[65536];
        const ssize_t n = ::read(fds[0], chunk, sizeof chunk);
        if (n <= 0) break;
        last = Clock::now();
        buffer.append(chunk, static_cast<std::size_t>(n));
        for (std::size_t nl; (nl = buffer.find('\n')) != std::string::npos;) {
            sawLine = true;
            onLine(buffer.substr(0, nl));
            buffer.erase(0, nl + 1);
        }
    }
    ::close(fds[0]);
    int status = 0;
    ::waitpid(pid, &status, 0);
    if (WIFEXITED(status)) {
        outcome.exited = true;
        outcome.status = WEXITSTATUS(status);
    } else if (WIFSIGNALED(status)) {
        outcome.signal = WTERMSIG(status);
    }
    const std::string err = ReadFile(errorPath);
    outcome.sanitizerReport = SanitizerReport(err);
    outcome.errorTail = Tail(err, 30);
    return outcome;
}

}  // namespace bm::soak
