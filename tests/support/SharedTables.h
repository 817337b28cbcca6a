// Tables and pictures that results are compared with. They lie outside the source tree, and may be absent.
#pragma once

#include "platform/coreimage/CIValue.h"

#include <filesystem>
#include <optional>
#include <string_view>

#include <nlohmann/json.hpp>

/// The folder with the engine's tables; nothing where it is absent.
std::optional<std::filesystem::path> coreImageTables();

/// Throws on a missing or malformed file.
nlohmann::json jsonOfFile(const std::filesystem::path&);

/// A value as the tables write it, for an input of the class `className` ("NSNumber", "CIColor", …).
CIValue valueOfJson(const nlohmann::json&, std::string_view className);
