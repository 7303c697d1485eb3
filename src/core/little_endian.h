#pragma once

#include <algorithm>
#include <bit>
#include <cstring>

namespace golf {

// These functions load and store the little-endian numbers of the files. The address need not be
// aligned. The bytes are reversed only on a big-endian machine.

template <class T>
T LoadLittleEndian(const char* at) {
  char bytes[sizeof(T)];
  std::memcpy(bytes, at, sizeof(T));
  if constexpr (std::endian::native == std::endian::big) std::reverse(bytes, bytes + sizeof(T));
  T value;
  std::memcpy(&value, bytes, sizeof(T));
  return value;
}

template <class T>
void StoreLittleEndian(char* at, T value) {
  std::memcpy(at, &value, sizeof(T));
  if constexpr (std::endian::native == std::endian::big) std::reverse(at, at + sizeof(T));
}

}  // namespace golf
