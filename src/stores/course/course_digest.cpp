#include "stores/course/course_digest.h"

#include <algorithm>
#include <span>

#include "core/little_endian.h"
#include "stores/course/course_layout.h"

namespace golf {
namespace {

constexpr Field kActive = FieldOf<CourseLayout, "activeflag">();
constexpr Field kHoles = FieldOf<CourseLayout, "HoleNumFlag">();
constexpr Field kName = FieldOf<CourseLayout, "Name">();
constexpr Field kLink = FieldOf<CourseLayout, "KVCourseNum">();
constexpr std::int32_t kMostCourses = 32767;  // the highest number that an index can contain
constexpr std::size_t kHeadLength = kLink.offset + kLink.width;
static_assert(kActive.offset < kHeadLength && kHoles.offset < kHeadLength &&
              kName.offset + kName.width < kHeadLength);

CourseDigest DigestOf(const std::array<char, kHeadLength>& head) {
  CourseDigest digest;
  digest.activeflag = LoadLittleEndian<std::int16_t>(head.data() + kActive.offset);
  digest.hole_num_flag = LoadLittleEndian<std::int16_t>(head.data() + kHoles.offset);
  digest.kv_course_num = LoadLittleEndian<std::int16_t>(head.data() + kLink.offset);
  std::copy_n(head.data() + kName.offset, digest.name.size(), digest.name.data());
  return digest;
}

}  // namespace

void CourseDigests::Follow(int file_number) {
  const std::uint64_t generation = files_.Generation(file_number);
  if (file_number != file_number_ || generation != generation_) digests_.clear();
  file_number_ = file_number;
  generation_ = generation;
}

CourseDigest CourseDigests::ReadDigest(std::int32_t record) {
  std::array<char, kHeadLength> head{};
  files_.ReadBytes(file_number_, record, head);
  return DigestOf(head);
}

void CourseDigests::Read(int file_number, std::int32_t length, std::vector<std::int32_t> records) {
  Follow(file_number);
  std::sort(records.begin(), records.end());
  digests_.reserve(records.size());
  for (const std::int32_t record : records) {
    if (record < 1 || record > length || digests_.contains(record)) continue;
    digests_.emplace(record, ReadDigest(record));
  }
}

std::vector<std::int32_t> CourseDigests::ReadActive(int file_number, std::int32_t length) {
  Follow(file_number);
  digests_.reserve(static_cast<std::size_t>(std::min(length, kMostCourses)));
  std::vector<std::int32_t> active;
  for (std::int32_t record = 1; record <= length; ++record) {
    const CourseDigest* held = Find(record);
    const CourseDigest digest = held != nullptr ? *held : ReadDigest(record);
    if (digest.activeflag == 0) continue;
    digests_.emplace(record, digest);
    active.push_back(record);
  }
  return active;
}

const CourseDigest* CourseDigests::Find(std::int32_t record) const {
  const auto digest = digests_.find(record);
  return digest == digests_.end() ? nullptr : &digest->second;
}

}  // namespace golf
