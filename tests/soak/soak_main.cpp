// soak: every window under random use, first on the model, then in the Qt
// front end, for a given time. Ends with one line per net and a non-zero
// status when anything failed.
//
//   soak [--seconds S] [--seed N] [--net model|qt|both] [--out DIR] [--keep-logs]
//   soak --seed N --episode K [--out DIR]     one model episode again, as a scenario
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "child.hpp"
#include "model_net.hpp"
#ifdef BM_SOAK_QT
#include "qt_net.hpp"
#endif

namespace {

using bm::soak::Clock;

struct Tally {
    long events = 0;
    std::set<std::string> windows;
    int failures = 0;
    int runTimeEnds = 0;
    int runs = 0;
};

void Report(const char* net, const std::string& what) { std::printf("soak %s: FAILURE: %s\n", net, what.c_str()); }

std::string Describe(const bm::soak::ChildOutcome& o) {
    std::string s;
    if (o.hung) s = "no answer for longer than allowed (hang)";
    else if (o.signal != 0) s = "killed by signal " + std::to_string(o.signal) + " (" + strsignal(o.signal) + ")";
    else s = "exit status " + std::to_string(o.status);
    if (!o.sanitizerReport.empty()) s += "\n" + o.sanitizerReport;
    else if (!o.errorTail.empty()) s += "\n--- its error output ends with:\n" + o.errorTail;
    return s;
}

std::vector<std::string> Words(const std::string& line) {
    std::istringstream in(line);
    std::vector<std::string> w;
    for (std::string s; in >> s;) w.push_back(s);
    return w;
}

Tally RunModelNet(std::uint64_t seed, double seconds, const std::string& out) {
    Tally t;
    const Clock::time_point deadline = Clock::now() + std::chrono::milliseconds(static_cast<long>(seconds * 1000));
    long next = 0;
    while (Clock::now() < deadline) {
        long current = -1;
        std::string currentForm;
        bool done = false;
        const std::string errors = out + "/model-worker.err";
        const bm::soak::ChildOutcome o = bm::soak::RunChild(
            [&](int fd) {
                bm::soak::RunModelWorker(seed, next, deadline, out, fd);
                return 0;
            },
            [&](const std::string& line) {
                const std::vector<std::string> w = Words(line);
                if (w.empty()) return;
                if (w[0] == "b" && w.size() >= 3) {
                    current = std::stol(w[1]);
                    currentForm = w[2];
                } else if (w[0] == "f") {
                    ++t.failures;
                    Report("model", "episode " + line.substr(2) + " (window " + currentForm + ")");
                } else if (w[0] == "e" && w.size() >= 4) {
                    t.events += std::stol(w[2]);
                    t.runTimeEnds += std::stoi(w[3]);
                    t.windows.insert(w.begin() + 4, w.end());
                    next = std::stol(w[1]) + 1;
                    current = -1;
                } else if (w[0] == "d") {
                    done = true;
                }
            },
            {60'000, 10'000}, errors);
        ++t.runs;
        const bool clean = done && o.exited && o.status == 0 && o.sanitizerReport.empty() && !o.hung;
        if (clean) break;
        ++t.failures;
        std::string where = "after the last episode";
        if (current >= 0) {
            const std::string kept = out + "/model-" + std::to_string(seed) + "-" + std::to_string(current) + ".scenario";
            for (const auto& entry : std::filesystem::directory_iterator(out))
                if (entry.path().filename().string().starts_with("model-current-"))
                    std::filesystem::rename(entry.path(), kept);
            where = "in episode " + std::to_string(current) + " (window " + currentForm + ") [" + kept + "]";
            next = current + 1;
        }
        Report("model", "the worker ended " + where + ": " + Describe(o));
        if (current < 0 && done) break;
    }
    return t;
}

#ifdef BM_SOAK_QT
Tally RunQtNet(std::uint64_t seed, double seconds, const std::string& out, bool keepLogs) {
    Tally t;
    const Clock::time_point deadline = Clock::now() + std::chrono::milliseconds(static_cast<long>(seconds * 1000));
    for (long run = 0; Clock::now() < deadline; ++run) {
        const long budget = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
        const std::string log = out + "/qt-" + std::to_string(seed) + "-" + std::to_string(run) + ".log";
        const std::string errors = out + "/qt-" + std::to_string(seed) + "-" + std::to_string(run) + ".err";
        std::string lastEvent = "(none)";
        std::string announced;  // the status the program said it would end with
        int runFailures = 0;
        bool done = false;
        const bm::soak::ChildOutcome o = bm::soak::RunChild(
            [&](int fd) { return bm::soak::RunQtChild(seed, run, budget, log, fd); },
            [&](const std::string& line) {
                if (line.empty()) return;
                switch (line[0]) {
                    case 'e': {
                        ++t.events;
                        lastEvent = line.substr(2);
                        const std::vector<std::string> w = Words(line);
                        if (w.size() >= 3 && w[2] != "box") t.windows.insert(w[2]);
                        break;
                    }
                    case 'f':
                        ++t.failures;
                        ++runFailures;
                        Report("qt", "run " + std::to_string(run) + ": " + line.substr(2) + " [" + log + "]");
                        break;
                    case 'x': announced = line.substr(2); break;
                    case 'd': done = true; break;
                    default: break;
                }
            },
            {60'000, 2'000}, errors);
        ++t.runs;
        const std::vector<std::string> said = Words(announced);
        // The program ends itself after a run-time failure (1) or at its exit (0); 70 is an internal error.
        const bool endedItself = said.size() >= 2 && said[1] != "internal-error" && o.exited &&
                                 std::to_string(o.status) == said[0];
        const bool clean = !o.hung && o.sanitizerReport.empty() && (endedItself || (done && o.exited && o.status == 0));
        if (endedItself && o.status != 0) ++t.runTimeEnds;
        if (!clean) {
            ++t.failures;
            ++runFailures;
            Report("qt", "run " + std::to_string(run) + " ended after \"" + lastEvent + "\": " + Describe(o) + " [" +
                             log + "]");
        }
        std::filesystem::remove_all(log + ".pdf");
        if (runFailures == 0 && !keepLogs) {
            std::remove(log.c_str());
            std::remove(errors.c_str());
        }
    }
    return t;
}
#endif

void Line(const char* net, const Tally& t) {
    std::printf("soak %s: %ld events over %zu windows, %d failures\n", net, t.events, t.windows.size(), t.failures);
    std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv) {
    double seconds = 600;
    std::uint64_t seed = std::random_device{}();
    std::string net = "both";
    std::string out = "soak-out";
    long episode = -1;
    [[maybe_unused]] bool keepLogs = false;  // the Qt net's logs of runs that passed
    for (int i = 1; i < argc; ++i) {
        const std::string a = argv[i];
        const char* v = i + 1 < argc ? argv[i + 1] : nullptr;
        if (a == "--seconds" && v) seconds = std::atof(argv[++i]);
        else if (a == "--seed" && v) seed = std::strtoull(argv[++i], nullptr, 10);
        else if (a == "--net" && v) net = argv[++i];
        else if (a == "--out" && v) out = argv[++i];
        else if (a == "--episode" && v) episode = std::atol(argv[++i]);
        else if (a == "--keep-logs") keepLogs = true;
        else {
            std::fprintf(stderr, "usage: soak [--seconds S] [--seed N] [--net model|qt|both] [--out DIR] [--episode K] [--keep-logs]\n");
            return 2;
        }
    }
    std::filesystem::create_directories(out);

    if (episode >= 0) {
        const bm::Workbook book;
        bm::soak::EpisodeOptions options;
        options.seed = seed;
        options.index = episode;
        options.scenarioPath = out + "/model-" + std::to_string(seed) + "-" + std::to_string(episode) + ".scenario";
        const bm::soak::EpisodeResult r = bm::soak::RunEpisode(book, options);
        std::printf("episode %ld: %ld events, %s\n%s\n", episode, r.events,
                    r.failures.empty() ? "no failure" : r.failures.front().c_str(), options.scenarioPath.c_str());
        return r.failures.empty() ? 0 : 1;
    }

    std::printf("soak: seed %llu, %g s (SOAK_SEED=%llu to run it again)\n", static_cast<unsigned long long>(seed),
                seconds, static_cast<unsigned long long>(seed));
    std::fflush(stdout);
    const bool both = net == "both";
    const double share = both ? seconds / 2 : seconds;
    int failures = 0;
    Tally model, qt;
    if (both || net == "model") {
        model = RunModelNet(seed, share, out);
        failures += model.failures;
    }
    if (both || net == "qt") {
#ifdef BM_SOAK_QT
        qt = RunQtNet(seed, share, out, keepLogs);
#else
        Report("qt", "this build has no Qt front end");
        qt.failures = 1;
#endif
        failures += qt.failures;
    }
    if (both || net == "model")
        std::printf("soak: the model net ran %d worker(s); %d program(s) ended by a run-time failure or the exit, "
                    "each followed by a new one\n", model.runs, model.runTimeEnds);
    if (both || net == "qt")
        std::printf("soak: the Qt net started the program %d time(s); %d run(s) ended by a run-time failure\n", qt.runs,
                    qt.runTimeEnds);
    if (both || net == "model") {
        // A window no episode ever showed is a window the net did not test.
        std::string never;
        for (const std::string& f : bm::soak::EpisodeForms(bm::Workbook()))
            if (!model.windows.contains(f)) never += " " + f;
        if (!never.empty()) std::printf("soak: the model net never showed:%s\n", never.c_str());
    }
    if (both || net == "model") Line("model", model);
    if (both || net == "qt") Line("qt", qt);
    return failures == 0 ? 0 : 1;
}
