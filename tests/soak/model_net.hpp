#pragma once
// The model net: random use of every window on the headless host, one
// episode after another. An episode starts a fresh program, opens its window
// from the menu and acts as a user would, in that window and in those it
// opens; each episode is written as a scenario file as it goes, so that any
// failure can be replayed with the scenario runner.
#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

#include "shell/workbook.hpp"

namespace bm::soak {

using Clock = std::chrono::steady_clock;

// Every window an episode can be about: the main window, the shell's windows
// and every form of the catalogue, in a fixed order.
std::vector<std::string> EpisodeForms(const FormLibrary& book);

struct EpisodeResult {
    long events = 0;
    std::vector<std::string> windows;  // every form shown during the episode
    std::vector<std::string> failures;  // at most one: the episode stops at its first failure
    int runTimeEnds = 0;               // faults and exits, each followed by a restart
    long failedEvent = -1;             // the event the failure came at
    bool slow = false;                 // the failure is a step over the time limit
};

struct EpisodeOptions {
    std::uint64_t seed = 0;
    long index = 0;
    long stepCpuLimitUs = 50'000;
    std::string scenarioPath;  // the episode as a scenario, written as it goes; empty for none
    long timeOnly = -1;        // time only this event and stop after it (a slow step timed again)
    std::string window;        // the episode's window; empty: the one the seed and index choose
};

EpisodeResult RunEpisode(const FormLibrary& book, const EpisodeOptions& options);

// A step over the time limit counts when it is slow again in two fresh runs
// of the same episode up to it: the sanitizers' own housekeeping can stall
// any one step now and then.
//
// A worker: episodes from `first` on until the deadline, each reported on
// `fd` as lines ("b INDEX FORM", "f INDEX FORM TEXT", "e INDEX EVENTS ENDS
// WINDOWS..."), then "d". Failing episodes are kept as scenario files in
// `outDir`; the one being run is `outDir`/model-current-PID.scenario.
void RunModelWorker(std::uint64_t seed, long first, Clock::time_point deadline, const std::string& outDir, int fd);

}  // namespace bm::soak
