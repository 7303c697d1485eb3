#pragma once

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <utility>

#include "core/little_endian.h"

namespace golf {

// Puts numbers into a record's bytes, one after the other.
template <class T>
void Put(std::string& bytes, std::size_t at, std::initializer_list<T> values) {
  for (const T value : values) {
    StoreLittleEndian(bytes.data() + at, value);
    at += sizeof(T);
  }
}
inline void Put16(std::string& bytes, std::size_t at, std::initializer_list<int> values) {
  for (const int value : values) {
    Put(bytes, at, {static_cast<std::int16_t>(value)});
    at += 2;
  }
}

// Puts 16-bit numbers at these offsets.
inline void PutCells(std::string& bytes,
                     std::initializer_list<std::pair<std::size_t, int>> offsets_and_values) {
  for (const auto& [at, value] : offsets_and_values) Put16(bytes, at, {value});
}

// Puts a text, filled with blanks up to its width.
inline void PutText(std::string& bytes, std::size_t at, std::size_t width,
                    const std::string& text = "") {
  bytes.replace(at, width, width, ' ').replace(at, text.size(), text);
}

// Returns a record of a file, from 1. Bytes after the end of the file are zeros.
inline std::string RecordAt(const std::string& file, std::size_t record, std::size_t length) {
  std::string bytes = file.substr(std::min((record - 1) * length, file.size()), length);
  bytes.resize(length, '\0');
  return bytes;
}
// Puts a record into a file. Zeros fill the file up to it.
inline void PutRecord(std::string& file, std::size_t record, const std::string& bytes) {
  file.resize(std::max(file.size(), record * bytes.size()), '\0');
  file.replace((record - 1) * bytes.size(), bytes.size(), bytes);
}

// Returns the bytes of an index file: 16-bit numbers.
inline std::string Index(std::initializer_list<int> numbers) {
  std::string bytes(2 * numbers.size(), '\0');
  Put16(bytes, 0, numbers);
  return bytes;
}

inline int Int16At(const std::string& bytes, std::size_t at) {
  return LoadLittleEndian<std::int16_t>(bytes.data() + at);
}

inline std::int32_t Int32At(const std::string& bytes, std::size_t at) {
  return LoadLittleEndian<std::int32_t>(bytes.data() + at);
}
inline float SingleAt(const std::string& bytes, std::size_t at) {
  return LoadLittleEndian<float>(bytes.data() + at);
}

// Returns the record of a new Quenby golfer.
inline std::string BlankGolfer(double now) {
  std::string bytes(1867, '\0');
  PutText(bytes, 16, 27);
  PutText(bytes, 44, 381);
  bytes[424] = 'A';
  PutText(bytes, 429, 12);
  PutText(bytes, 449, 150);
  Put(bytes, 599, {now, now});
  Put(bytes, 655, {now});
  PutText(bytes, 671, 1196);
  return bytes;
}

// Returns bytes whose neighbours differ. None is 0 or a blank.
inline std::string Pattern(std::size_t size) {
  std::string bytes(size, '\0');
  for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<char>(0x81 + i % 97);
  return bytes;
}

}  // namespace golf
