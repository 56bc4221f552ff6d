#include <iostream>
#include <string>
#include <vector>

#include "runner/scenario.hpp"

int main(int argc, char** argv) {
    std::vector<std::string> paths(argv + 1, argv + argc);
    if (paths.empty()) {
        std::cerr << "usage: scenario-runner FILE-OR-FOLDER...\n";
        return 2;
    }
    return bm::scenario::RunPaths(paths, std::cout);
}
