#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/date_value.h"
#include "core/record.h"
#include "outlets/checkup/file_scan.h"

namespace golf {

// Contains what other checks need to know about a golfer.
struct KnownGolfer {
  std::int64_t record = 0;
  std::int64_t id = 0;  // below 1: none
  std::string first;    // names without padding
  std::string last;
  int sex = 0;  // 0 men, 1 ladies
  std::string Title() const;
};

// Contains the golfers of a file. Free records are left out.
struct KnownGolfers {
  std::string file;
  std::vector<KnownGolfer> golfers;
  std::set<std::int64_t> ids_twice = {};  // ID numbers that several golfers of the file have
  bool is_read = true;                    // false if the file is missing, unreadable or cut
};

// Returns a name as people compare it: in capitals, and without blanks, accents and punctuation.
std::string FoldedName(std::string_view name);

// Contains what two records of one golfer have in common besides the name.
struct TwinMark {
  std::string bytes;           // empty if it is not known
  std::string_view what = {};  // describes it together with the name
};

// `birthday` is the index of the date that is the birthday, or 0 if no caption says so.
template <class Layout>
TwinMark BirthdayOf(const Record<Layout>& golfer, int birthday) {
  const DateValue date = birthday == 0 ? 0 : golfer.template Get<"MiscDate">(birthday);
  return {date == 0 ? "" : std::to_string(date), "name and birthday"};
}

template <class Layout>
TwinMark FirstDateOf(const Record<Layout>& golfer) {
  const DateValue date = golfer.template Get<"MiscDate">(1);
  return {date == 0 ? "" : std::to_string(date), "name and first date"};
}

// In Quenby the first date can be the day of a transfer, so the address must be the same, too.
template <class Layout>
TwinMark DateAndAddressOf(const Record<Layout>& golfer) {
  TwinMark mark = FirstDateOf(golfer);
  if (mark.bytes.empty()) return mark;
  mark.bytes +=
      '/' + golfer.template Get<"AddressHomeLine">(1) + golfer.template Get<"PhoneHome">();
  mark.what = "name, date and address";
  return mark;
}

// Returns all bytes but the ID number.
template <class Layout>
TwinMark CopyOf(const Record<Layout>& golfer) {
  std::string bytes(golfer.Bytes());
  constexpr Field kId = FieldOf<Layout, "IDNum">();
  return {bytes.replace(kId.offset, kId.width, kId.width, '\0'), "name and data"};
}

// Finds ID numbers and names that occur twice in a file.
class TwinCheck {
 public:
  TwinCheck(FileScan& scan, std::string file) : scan_(scan), file_(std::move(file)) {}

  // Reports at most one golfer with one of the marks. The first one is the best.
  void Add(const KnownGolfer& golfer, std::initializer_list<TwinMark> marks);

  const std::set<std::int64_t>& ids_twice() const { return ids_twice_; }

 private:
  FileScan& scan_;
  std::string file_;
  std::map<std::int64_t, std::int64_t> records_;  // by ID number
  std::set<std::int64_t> ids_twice_;
  std::map<std::string, std::int64_t> named_;  // by name and mark
};

// Returns the index, from 1, of the first caption that means a birthday in English, French, German,
// Spanish or Italian, or 0 if there is none.
// `caption` returns the caption with an index from 1 to `count`.
int BirthdayIndex(int count, const std::function<std::string(int)>& caption);

}  // namespace golf
