#pragma once

#include <filesystem>
#include <string>

namespace golf {

// These convert paths of the command line, which are UTF-8 on every system.
inline std::filesystem::path PathFromUtf8(const std::string& utf8) {
  return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

inline std::string Utf8FromPath(const std::filesystem::path& path) {
  const std::u8string utf8 = path.u8string();
  return {utf8.begin(), utf8.end()};
}

}  // namespace golf
