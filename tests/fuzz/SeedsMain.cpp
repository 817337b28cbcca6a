// fuzz_seeds FOLDER: writes what the fuzzers start from, a folder for each target.
#include "tests/fuzz/Targets.h"

#include <filesystem>
#include <fstream>
#include <iostream>

int main(int count, char** words)
{
    if (count != 2) {
        std::cerr << "usage: fuzz_seeds FOLDER\n";
        return 2;
    }
    for (const FuzzTarget& target : kFuzzTargets) {
        const auto folder = std::filesystem::path(words[1]) / target.name;
        std::filesystem::create_directories(folder);
        int number = 0;
        for (const std::vector<std::byte>& seed : seedsOf(target.name)) {
            std::ofstream file(folder / ("seed-" + std::to_string(number++)), std::ios::binary);
            file.write(reinterpret_cast<const char*>(seed.data()), std::streamsize(seed.size()));
            if (!file) {
                std::cerr << "fuzz_seeds: nothing can be written in " << folder << '\n';
                return 1;
            }
        }
    }
}
