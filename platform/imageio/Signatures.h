// Recognizes formats that a fixed start of their files doesn't tell.
#pragma once

#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

namespace imageio {

/// Reads up to `size` bytes at `offset`; fewer at the end of the file.
using ReadBytes = std::function<std::vector<std::byte>(std::size_t offset, std::size_t size)>;

/// `head` holds the file's first bytes, at least 12.
bool isAvif(std::string_view head, const ReadBytes&);
bool isBmp(std::string_view head, const ReadBytes&);
bool isCameraRaw(std::string_view head, const ReadBytes&); // in a container that other formats have, too
bool isHeif(std::string_view head, const ReadBytes&);
bool isPnm(std::string_view head, const ReadBytes&);
bool isSgi(std::string_view head, const ReadBytes&);
bool isSvg(std::string_view head, const ReadBytes&);
bool isTga(std::string_view head, const ReadBytes&);
bool isWebP(std::string_view head, const ReadBytes&);

} // namespace imageio
