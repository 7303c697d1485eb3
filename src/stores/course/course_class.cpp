#include "stores/course/course_class.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "core/number_text.h"
#include "core/numbered_error.h"
#include "core/text.h"
#include "stores/course/course_library.h"

namespace golf {
namespace {

// These texts begin entry 0 of the lists. In the lists of 9 holes and of 18 holes its course number
// ends one column early, so a reader of the number must stop at the blank after it.
constexpr std::string_view kAway18 = ".(Rating\\Slope)   18 Hole away course";
constexpr std::string_view kAway9 = ".(Rating\\Slope)   9 Hole away course";
constexpr std::string_view kAwayAll = ".(Rating\\Slope)   Away course";
constexpr std::size_t kEntryLength = 80;

std::string AwayEntry(std::string_view name, std::size_t blanks) {
  return FitText(std::string(name) + std::string(blanks, ' ') + "00000", kEntryLength);
}

std::string CourseEntry(std::string_view name, std::int32_t record) {
  constexpr std::size_t kNameColumns = 75;
  return FitText(FitText(name, kNameColumns) + FormatNumber(record, "00000"), kEntryLength);
}

[[noreturn]] void FailEntry(std::int32_t i) {
  throw NumberedError(ErrorNumber::kSubscript, "The list has no entry " + std::to_string(i) + ".");
}

constexpr std::int16_t kNewSlope = 113;

// Contains the name and the number of holes of a course that has no record.
struct SpecialCourse {
  std::int32_t number;
  std::string_view name;
  std::int16_t holes;
};

constexpr SpecialCourse kAwayCourses[] = {{0, "(Away course)", 18}, {-1, "(Away course)", 9}};
constexpr SpecialCourse kInvalidCourse = {0, "**Invalid Course**", 18};

}  // namespace

void CourseClass::OpenCourseFile() {
  state_.files.Close(course_file_);
  course_file_ = state_.files.FreeNumber();
  state_.files.Open(course_file_, state_.CourseDataPath + CourseFileName(active_program_),
                    CourseLayout::kLength);
  UpdateAllCourseLists();
}

void CourseClass::CloseCourseFile() {
  state_.files.Close(std::exchange(course_file_, 0));
  state_.files.Close(std::exchange(index_file_, 0));
}

void CourseClass::OpenCourseIndexFile(std::string_view list_name) {
  state_.files.Close(index_file_);
  index_file_ = state_.files.FreeNumber();
  state_.files.Open(index_file_,
                    state_.CourseDataPath + std::string(list_name) + active_program_ + ".INX",
                    CourseIndexLayout::kLength);
}

std::int32_t CourseClass::CourseFileLength() {
  return state_.files.RecordCount<CourseLayout>(course_file_);
}

void CourseClass::CopyCourseRecord(std::int32_t from_record, std::int32_t from_file,
                                   std::int32_t to_record, std::int32_t to_file) {
  state_.files.Read(from_file, from_record, record_);
  state_.files.Write(to_file, to_record, record_);
}

void CourseClass::BuildBlankRecord() {
  record_ = {};
  const auto bytes = record_.MutableBytes();
  std::fill(bytes.begin() + FieldOf<CourseLayout, "YardsOrMeters">().offset + 1, bytes.end(), ' ');
  for (const auto& set :
       {&CourseClass::SetName, &CourseClass::SetAddress1, &CourseClass::SetAddress2,
        &CourseClass::SetCity, &CourseClass::SetState, &CourseClass::SetZipcode,
        &CourseClass::SetGolfPro, &CourseClass::SetPhone}) {
    (this->*set)("");
  }
  for (int tee = 1; tee <= kTeeSlots; ++tee) {
    SetTeeName(tee, "NoName");
    SetTeeNameAbv(tee, "");
    for (int group = 0; group <= 1; ++group) Setslope(tee, group, kNewSlope);
    for (int hole = 1; hole <= kCourseHoles; ++hole) SetHoleNumber(tee, hole, hole);
  }
}

bool CourseClass::IsCourseRecord(std::int32_t record) {
  const std::int32_t length = CourseFileLength();
  return record >= 1 && record <= length;
}

void CourseClass::GetRecord(std::int32_t record) {
  current_ = record;
  if (TakeKept(record)) return;
  const bool has_record = IsCourseRecord(record);
  if (has_record) {
    state_.files.Read(course_file_, record, record_);
  } else {
    BuildSpecialRecord(record);
  }
  BuildTeeLists();
  if (has_record) Keep(record);
}

// Makes a kept course current. Returns false if the course is not kept. Courses are kept since the
// calculation of scores reads the same few courses many times.
bool CourseClass::TakeKept(std::int32_t record) {
  const std::uint64_t generation = state_.files.Generation(course_file_);
  if (generation != kept_generation_ || course_file_ != kept_file_) kept_.clear();
  kept_generation_ = generation;
  kept_file_ = course_file_;
  const auto kept = std::find_if(kept_.begin(), kept_.end(), [record](const KeptCourse& course) {
    return course.number == record;
  });
  if (kept == kept_.end()) return false;
  record_ = kept->record;
  tees_ = kept->tees;
  return true;
}

void CourseClass::Keep(std::int32_t record) {
  constexpr std::size_t kMostKept = 8;  // a tournament has up to 7 rounds, each with its own course
  const KeptCourse course{record, record_, tees_};
  if (kept_.size() < kMostKept) {
    kept_.push_back(course);
  } else {
    kept_[next_kept_++ % kMostKept] = course;
  }
}

void CourseClass::BuildSpecialRecord(std::int32_t record) {
  const SpecialCourse* course = &kInvalidCourse;
  for (const SpecialCourse& away : kAwayCourses) {
    if (away.number == record) course = &away;
  }
  BuildBlankRecord();
  current_ = 0;
  SetName(course->name);
  SetHoleNumFlag(course->holes);
  SetActiveTees(1, true);
  SetTeeName(1, "R\\S");
  SetTeeNameAbv(1, "\\");
}

void CourseClass::SaveRecord(std::int32_t record) {
  if (record <= 0 || record > std::int64_t{CourseFileLength()} + 1) return;
  state_.files.Write(course_file_, record, record_);
  UpdateAllCourseLists();
}

void CourseClass::UpdateAllCourseLists() {
  BuildCourseList("ALLCRS", AwayEntry(kAwayAll, 45), courses_all_);
  BuildCourseList("18CRS", AwayEntry(kAway18, 38), courses18_);
  BuildCourseList("9CRS", AwayEntry(kAway9, 38), courses9_);
}

std::vector<std::int32_t> CourseClass::ReadIndexEntries() {
  FileTable& files = state_.files;
  files.Read(index_file_, 1, index_);
  // The stored count may exceed the number of entries in the file. The next rebuild corrects it.
  const std::int64_t held = files.CountTruncated(index_file_, CourseIndexLayout::kLength) - 1;
  const std::int64_t count = std::clamp<std::int64_t>(Index(), 0, std::max<std::int64_t>(held, 0));
  std::vector<std::int32_t> entries;
  for (std::int64_t i = 1; i <= count; ++i) {
    files.Read(index_file_, i + 1, index_);
    entries.push_back(Index());
  }
  return entries;
}

void CourseClass::BuildCourseList(std::string_view list_name, std::string_view away_entry,
                                  CourseList& list) {
  OpenCourseIndexFile(list_name);
  const std::vector<std::int32_t> entries = ReadIndexEntries();
  digests_.Read(course_file_, CourseFileLength(), entries);
  list.entries.assign(1, std::string(away_entry));
  for (const std::int32_t record : entries) {
    const CourseDigest* course = digests_.Find(record);
    list.entries.push_back(CourseEntry(course == nullptr ? "" : course->Name(), record));
  }
  // The course of the last entry becomes the current record, even if the list is not used.
  if (entries.empty()) return;
  record_ = {};
  if (IsCourseRecord(entries.back())) state_.files.Read(course_file_, entries.back(), record_);
}

void CourseClass::BuildTeeLists() {
  tees_.count = 0;
  for (TeeList& list : tees_.lists) list.fill(std::string(kEntryLength, ' '));
  const auto entry = [](const std::string& text, const std::string& key) {
    return FitText(text, kEntryLength - 2) + key;
  };
  for (int tee = 1; tee <= kShownTees; ++tee) {
    if (!ActiveTees(tee)) continue;
    const auto at = static_cast<std::size_t>(tees_.count++);
    const std::string key = TeeNameAbv(tee) + std::to_string(tee);
    const std::string name = TeeName(tee);
    for (int group = 0; group <= 1; ++group) {
      const std::string rating = FormatNumber(record_.Get<"Rating">(tee, group), "00.0");
      const std::string slopes = FormatNumber(int{record_.Get<"slope">(tee, group)}, "000");
      const std::string text = FitText(name, 9) + rating + "/" + slopes + std::string(61, ' ');
      tees_.lists[static_cast<std::size_t>(group)][at] = FitText(text + key, kEntryLength);
    }
    tees_.lists[2][at] = entry(name, key);
  }
}

void CourseClass::SaveIndexRecord(std::int32_t position) {
  state_.files.Write(index_file_, position, index_);
}

void CourseClass::SetIndex(double value) { index_.Set<"Index">(RoundToInt16(value)); }

std::vector<std::int32_t> CourseClass::ActiveCoursesByName() {
  const std::int32_t length = CourseFileLength();
  // The digests replace one GetRecord call for each record. The last record becomes current, as it
  // would after these calls.
  std::vector<std::int32_t> records = digests_.ReadActive(course_file_, length);
  if (length > 0) GetRecord(length);
  std::vector<std::pair<std::string, std::int32_t>> named;
  for (const std::int32_t record : records) {
    named.emplace_back(UpperCase(Trim(digests_.Find(record)->Name())), record);
  }
  std::sort(named.begin(), named.end());  // sorts equal names by record number
  records.clear();
  for (const auto& [name, record] : named) records.push_back(record);
  return records;
}

template <class Belongs>
void CourseClass::WriteIndexFile(std::string_view list_name,
                                 const std::vector<std::int32_t>& records, Belongs belongs) {
  OpenCourseIndexFile(list_name);
  std::int32_t count = 0;
  for (const std::int32_t record : records) {
    SetIndex(record);
    if (belongs(record)) SaveIndexRecord(++count + 1);
  }
  SetIndex(count);
  SaveIndexRecord(1);
}

void CourseClass::RebuildCourseIndexes(const std::vector<std::int32_t>& sorted_records) {
  // The digests replace one GetRecord call for each course and list. The last course becomes
  // current, as it would after these calls.
  digests_.Read(course_file_, CourseFileLength(), sorted_records);
  const auto holes = [this](std::int32_t record) {
    const CourseDigest* course = digests_.Find(record);
    return int{course == nullptr ? kInvalidCourse.holes : course->hole_num_flag};
  };
  WriteIndexFile("9CRS", sorted_records,
                 [&](std::int32_t record) { return std::abs(holes(record)) == 9; });
  WriteIndexFile("18CRS", sorted_records, [&](std::int32_t record) { return holes(record) == 18; });
  if (!sorted_records.empty()) GetRecord(sorted_records.back());
  WriteIndexFile("ALLCRS", sorted_records, [](std::int32_t) { return true; });
  UpdateAllCourseLists();
}

std::int32_t CourseClass::CourseList::Count() const {
  return entries.empty() ? 0 : static_cast<std::int32_t>(entries.size()) - 1;
}

const std::string& CourseClass::CourseList::At(std::int32_t i) const {
  if (i < 0 || i >= static_cast<std::int32_t>(entries.size())) FailEntry(i);
  return entries[static_cast<std::size_t>(i)];
}

const std::string& CourseClass::TeeEntry(const TeeList& list, std::int32_t i) {
  if (i < 1 || i > kShownTees) FailEntry(i);
  return list[static_cast<std::size_t>(i) - 1];
}

}  // namespace golf
