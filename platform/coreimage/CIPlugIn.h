// Filters from outside the program.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

class CIPlugIn {
public:
    /// Loads every shared object of the user's plug-in folder ($XDG_DATA_HOME/lumivex/plug-ins), once.
    /// A file that can't be loaded, or lacks the entry point, is skipped and named in the answer with the reason.
    static std::vector<std::string> loadAllPlugIns();
    /// The same for one folder.
    static std::vector<std::string> loadPlugIns(const std::filesystem::path& folder);
};
