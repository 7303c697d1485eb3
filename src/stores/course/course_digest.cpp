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

void CourseDigests::Read(int file_number, std::int32_t length, std::vector<std::int32_t> records) {
  const std::uint64_t generation = files_.Generation(file_number);
  if (file_number != file_number_ || generation != generation_) digests_.clear();
  file_number_ = file_number;
  generation_ = generation;
  digests_.resize(static_cast<std::size_t>(length) + 1);
  std::sort(records.begin(), records.end());
  for (const std::int32_t record : records) {
    if (record < 1 || record > length) continue;
    auto& digest = digests_[static_cast<std::size_t>(record)];
    if (digest) continue;
    std::array<char, kHeadLength> head{};
    files_.ReadBytes(file_number, record, head);
    digest = DigestOf(head);
  }
}

const CourseDigest* CourseDigests::Find(std::int32_t record) const {
  const bool held = record >= 1 && record < static_cast<std::int64_t>(digests_.size());
  const auto at = static_cast<std::size_t>(held ? record : 0);
  return held && digests_[at] ? &*digests_[at] : nullptr;
}

}  // namespace golf
