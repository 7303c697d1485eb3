#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/file_table.h"

namespace golf {

// The fields of a course that lists and indexes need.
struct CourseDigest {
  std::int16_t activeflag = 0;
  std::int16_t hole_num_flag = 0;
  std::int16_t kv_course_num = 0;
  std::array<char, 30> name{};

  std::string_view Name() const { return {name.data(), name.size()}; }
};

// The digests of an open course file. Records are read in file order, each only once until the
// file's read-ahead window is forgotten. So a digest is as fresh as a read of its record would be.
class CourseDigests {
 public:
  explicit CourseDigests(FileTable& files) : files_(files) {}

  // Reads the digests of these records, as far as they are not held. The file has `length` records.
  // Numbers outside 1 to `length` are ignored.
  void Read(int file_number, std::int32_t length, std::vector<std::int32_t> records);

  // Reads the whole file of `length` records. Returns the records of active courses, ascending, and
  // holds their digests.
  std::vector<std::int32_t> ReadActive(int file_number, std::int32_t length);

  // Returns the digest of a record, or null if it is not held.
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
