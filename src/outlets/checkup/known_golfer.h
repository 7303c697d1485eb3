#pragma once

#include <cstdint>
#include <functional>
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
};

// Returns a name as people compare it: in capitals, and without blanks, accents and punctuation.
std::string FoldedName(std::string_view name);

// Contains what two records of one golfer have in common besides the name.
struct TwinMark {
  std::string bytes;           // empty if it is not known
  std::string_view what = {};  // describes it
};

// `birthday` is the index of the date that is the birthday, or 0 if no caption says so. The mark is
// then the dates with the first line of the home address and the phone number.
template <class Layout>
TwinMark MarkOf(const Record<Layout>& golfer, int birthday) {
  const auto text = [](DateValue date) { return std::to_string(date) + '/'; };
  if (birthday > 0) {
    const DateValue date = golfer.template Get<"MiscDate">(birthday);
    return {date == 0 ? "" : text(date), "name and birthday"};
  }
  const DateValue first = golfer.template Get<"MiscDate">(1);
  if (first == 0) return {};
  return {text(first) + text(golfer.template Get<"MiscDate">(2)) +
              golfer.template Get<"AddressHomeLine">(1) + golfer.template Get<"PhoneHome">(),
          "name, dates and address"};
}

// Finds ID numbers and names that occur twice in a file.
class TwinCheck {
 public:
  TwinCheck(FileScan& scan, std::string file) : scan_(scan), file_(std::move(file)) {}

  void Add(const KnownGolfer& golfer, const TwinMark& mark);

 private:
  FileScan& scan_;
  std::string file_;
  std::map<std::int64_t, std::int64_t> records_;  // by ID number
  std::map<std::string, std::int64_t> named_;     // by name and mark
};

// Returns the index, from 1, of the first caption that contains "birth", or 0 if there is none.
// `caption` returns the caption with an index from 1 to `count`.
int BirthdayIndex(int count, const std::function<std::string(int)>& caption);

}  // namespace golf
