#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/file_table.h"

namespace golf {

// Contains the fields of a course that lists and indexes need.
struct CourseDigest {
  std::int16_t activeflag = 0;
  std::int16_t hole_num_flag = 0;
  std::int16_t kv_course_num = 0;
  std::array<char, 30> name{};

  std::string_view Name() const { return {name.data(), name.size()}; }
};

// Caches the digests of an open course file. Records are read in file order. Each record is read
// only once until the read-ahead buffer of the file is discarded, so a digest is as recent as a new
// read of its record would be.
class CourseDigests {
 public:
  explicit CourseDigests(FileTable& files) : files_(files) {}

  // Reads the digests of these records that are not in the cache. The file has `length` records.
  // Ignores numbers outside 1 to `length`.
  void Read(int file_number, std::int32_t length, std::vector<std::int32_t> records);

  // Reads the whole file of `length` records. Caches the digests of the active courses, and returns
  // their records in ascending order.
  std::vector<std::int32_t> ReadActive(int file_number, std::int32_t length);

  // Returns the digest of a record, or null if it is not in the cache.
  const CourseDigest* Find(std::int32_t record) const;

 private:
  void Follow(int file_number);
  CourseDigest ReadDigest(std::int32_t record);

  FileTable& files_;
  std::unordered_map<std::int32_t, CourseDigest> digests_;  // by record
  int file_number_ = 0;
  std::uint64_t generation_ = 0;
};

}  // namespace golf
