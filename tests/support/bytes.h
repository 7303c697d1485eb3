#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

#include "core/little_endian.h"

namespace golf {

// Puts numbers into a record's bytes, one behind the other.
template <class T>
void Put(std::string& bytes, std::size_t offset, std::initializer_list<T> values) {
  for (const T value : values) {
    StoreLittleEndian(bytes.data() + offset, value);
    offset += sizeof(T);
  }
}
inline void Put16(std::string& bytes, std::size_t offset,
                  std::initializer_list<std::int16_t> values) {
  Put(bytes, offset, values);
}

// Puts a text, with blanks up to its width.
inline void PutText(std::string& bytes, std::size_t offset, std::size_t width,
                    const std::string& text = "") {
  bytes.replace(offset, width, width, ' ');
  bytes.replace(offset, text.size(), text);
}

inline std::int16_t Int16At(const std::string& bytes, std::size_t offset) {
  return LoadLittleEndian<std::int16_t>(bytes.data() + offset);
}

// Bytes of which neighbours differ, none of them 0 or a blank.
inline std::string Pattern(std::size_t size) {
  std::string bytes(size, '\0');
  for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<char>(0x81 + i % 97);
  return bytes;
}

}  // namespace golf
