#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/file_table.h"

namespace golf {

// What lists and indexes need to know of a course.
struct CourseDigest {
  std::int16_t activeflag = 0;
  std::int16_t hole_num_flag = 0;
  std::int16_t kv_course_num = 0;
  std::array<char, 30> name{};

  std::string_view Name() const { return {name.data(), name.size()}; }
};

// The digests of an open course file. A record is read once, in file order with its neighbours, and
// again only when the file's read-ahead window was forgotten: so a digest is just as fresh as a
// read of its record would be.
class CourseDigests {
 public:
  explicit CourseDigests(FileTable& files) : files_(files) {}

  // Makes sure that the digests of these records are there. A number that is no record of the
  // file, which holds `length` of them, is passed over.
  void Read(int file_number, std::int32_t length, std::vector<std::int32_t> records);

  // Goes over the whole file and gives the records in use, ascending; their digests are there then.
  std::vector<std::int32_t> ReadActive(int file_number, std::int32_t length);

  // The digest of a record that was read; null for any other number.
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
