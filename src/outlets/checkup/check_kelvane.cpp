#include "outlets/checkup/check_kelvane.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include "core/date_value.h"
#include "core/little_endian.h"
#include "core/text.h"
#include "outlets/checkup/possible_days.h"
#include "stores/kelvane/kelvane_layouts.h"

namespace golf {
namespace {

// A round of 18 holes, which has a rating of at least 45, takes at least 40 strokes.
constexpr float kRatingOf18Holes = 45;
constexpr int kLowestOf18Holes = 40;
constexpr int kLowestScore = 18;
constexpr int kHighestOf9Holes = 100;
constexpr int kHighestScore = 199;
constexpr int kHoles = 18;

// Counts the faults of one kind in a history, which become one finding.
struct Fault {
  FindingCode code;
  int count = 0;
  std::string first{};  // describes the first one

  void Add(const std::string& text) {
    if (++count == 1) first = text;
  }
};

struct HistoryFaults {
  Fault order{FindingCode::kHistoryOrder};
  Fault date{FindingCode::kScoreDate};
  Fault value{FindingCode::kScoreValue};
  Fault course{FindingCode::kScoreCourse};
  Fault deleted_course{FindingCode::kScoreCourseDeleted};
  Fault tee{FindingCode::kScoreTee};

  std::array<const Fault*, 6> All() const {
    return {&order, &date, &value, &course, &deleted_course, &tee};
  }
};

constexpr int kCounters = 4;
constexpr std::size_t kDateInScore = 8;  // offset of the date of a score, in bytes
using Counters = std::array<int, kCounters>;

class RosterCheck {
 public:
  RosterCheck(FileScan& scan, const KnownCourses& courses,
              const std::unordered_set<std::int64_t>& wanted_days, KnownKelvane& known,
              const std::string& name)
      : scan_(scan),
        courses_(courses),
        wanted_days_(wanted_days),
        known_(known),
        name_(name),
        base_(scan.NameOf(scan.state().KVDataPath, name)),
        twins_(scan, base_ + ".kvg"),
        last_day_(std::floor(scan.state().Now()) + 1) {}

  void Run() {
    golfers_.file = base_ + ".kvg";
    ReadHeader();
    // A new roster has neither file. Opening it makes both.
    FileTable& files = scan_.state().files;
    const std::string path = scan_.state().KVDataPath + name_;
    const bool was_opened = files.FileExists(path + ".kvg") || files.FileExists(path + ".kvs");
    const auto places = scan_.ForEach<KelvaneGolferLayout>(
        golfers_.file, was_opened,
        [&](std::int64_t place, const auto& golfer) { AddGolfer(place, golfer); });
    const auto histories = scan_.ForEach<KelvaneHistoryLayout>(
        base_ + ".kvs", was_opened, [&](std::int64_t place, const auto& history) {
          if (places) CheckHistory(place, history);
        });
    const bool are_whole = !scan_.IsDamaged(golfers_.file) && !scan_.IsDamaged(base_ + ".kvs");
    if (places && histories && *places != *histories && are_whole) {
      scan_.Add(FindingCode::kFileSizes, base_ + ".kvs", 0, UpperCase(name_),
                "The file has " + std::to_string(*histories) +
                    " score histories, but the roster has " + std::to_string(*places) +
                    " places for golfers.");
    }
    golfers_.ids_twice = twins_.ids_twice();
    known_.rosters.push_back(std::move(golfers_));
  }

 private:
  void ReadHeader() {
    const auto headers = scan_.ForEach<KelvaneHeaderLayout>(
        base_ + ".kv5", true, [&](std::int64_t, const auto& header) {
          for (int i = 0; i < 3; ++i) {
            counter_dates_[static_cast<std::size_t>(i)] = header.template Get<"CounterDate">(i + 1);
          }
          birthday_ = BirthdayIndex(
              2, [&](int index) { return header.template Get<"MiscDateName">(index); });
        });
    has_header_ = headers.value_or(0) > 0;
    if (headers && *headers == 0 && !scan_.IsDamaged(base_ + ".kv5")) {
      scan_.Add(FindingCode::kFileLength, base_ + ".kv5", 0, UpperCase(name_),
                "The roster has no header.");
    }
  }

  void AddGolfer(std::int64_t place, const Record<KelvaneGolferLayout>& golfer) {
    if (golfer.Get<"Status">() < 1) return;
    KnownGolfer known{.record = place,
                      .id = golfer.Get<"IDNum">(),
                      .first = WithoutPadding(golfer.Get<"NameFirst">()),
                      .last = WithoutPadding(golfer.Get<"NameLast">())};
    twins_.Add(known, {BirthdayOf(golfer, birthday_), FirstDateOf(golfer), CopyOf(golfer)});
    if (known.id < 1) {
      scan_.Add(FindingCode::kGolferWithoutId, golfers_.file, place, known.Title(),
                "The golfer has no ID number.");
    }
    if (golfer.Get<"HalfScore">() > 0) {
      scan_.Add(FindingCode::kHalfWaits, golfers_.file, place, known.Title(),
                "A score of nine holes, " + std::to_string(golfer.Get<"HalfScore">()) +
                    ", waits for another nine.");
      const int course = golfer.Get<"HalfCourse">();
      if (courses_.is_read && course != 0 && courses_.Find(course) == nullptr) {
        scan_.Add(FindingCode::kScoreCourse, golfers_.file, place, known.Title(),
                  "The score of nine holes that waits was played on course " +
                      std::to_string(course) + ", which does not exist.");
      }
    }
    Counters counters{};
    for (int i = 0; i < kCounters; ++i)
      counters[static_cast<std::size_t>(i)] = golfer.Get<"ScoreCounter">(i + 1);
    counters_.push_back(counters);
    golfers_.golfers.push_back(std::move(known));
  }

  // Histories follow each other in the order of their places, and so do the golfers.
  void CheckHistory(std::int64_t place, const Record<KelvaneHistoryLayout>& history) {
    while (next_ < golfers_.golfers.size() && golfers_.golfers[next_].record < place) ++next_;
    if (next_ == golfers_.golfers.size() || golfers_.golfers[next_].record != place) return;
    const KnownGolfer& golfer = golfers_.golfers[next_];
    Counters found{};
    DateValue newer = HUGE_VAL;
    HistoryFaults faults;
    for (int i = 0; i < kKelvaneScores; ++i) {
      const std::string_view bytes = history.Bytes().substr(
          static_cast<std::size_t>(i) * kKelvaneScoreLength, kKelvaneScoreLength);
      if (IsFree(bytes)) continue;
      Count(bytes, found);
      CheckScore(golfer, i + 1, bytes, newer, faults);
    }
    for (const Fault* const fault : faults.All()) {
      if (fault->count == 0) continue;
      std::string text = fault->first;
      if (fault->count > 1) {
        text += " " + std::to_string(fault->count - 1) +
                (fault->count == 2 ? " more score is" : " more scores are") + " like it.";
      }
      scan_.Add(fault->code, base_ + ".kvs", place, golfer.Title(), text);
    }
    // The other counters depend on the header and on the dates.
    const bool are_dates_right = has_header_ && faults.order.count == 0 && faults.date.count == 0;
    CompareCounters(place, golfer, counters_[next_], found, are_dates_right ? kCounters : 1);
  }

  // Counts a score as Kelvane does: all scores, those from a date on, and those after two dates.
  void Count(std::string_view bytes, Counters& found) const {
    const auto date = LoadLittleEndian<double>(bytes.data() + kDateInScore);
    const bool counts[kCounters] = {true, date >= counter_dates_[2], date > counter_dates_[0],
                                    date > counter_dates_[1]};
    for (int i = 0; i < kCounters; ++i) found[static_cast<std::size_t>(i)] += counts[i] ? 1 : 0;
  }

  // Compares the first `compared` counters.
  void CompareCounters(std::int64_t place, const KnownGolfer& golfer, const Counters& counted,
                       const Counters& found, int compared) {
    const auto end = counted.begin() + compared;
    const auto [wrong, right] = std::mismatch(counted.begin(), end, found.begin());
    if (wrong == end) return;
    const auto number = wrong - counted.begin() + 1;
    scan_.Add(FindingCode::kHistoryCount, base_ + ".kvs", place, golfer.Title(),
              (number == 1 ? "The golfer's record counts "
                           : "Counter " + std::to_string(number) + " of the golfer's record is ") +
                  std::to_string(*wrong) + (number == 1 ? " scores" : "") +
                  ", but the history has " + std::to_string(*right) + ".");
  }

  static bool IsFree(std::string_view bytes) {
    constexpr std::string_view kFill("\0 ", 2);
    return bytes.find_first_not_of(kFill) == std::string_view::npos;
  }

  void CheckScore(const KnownGolfer& golfer, int number, std::string_view bytes, DateValue& newer,
                  HistoryFaults& faults) {
    Record<KelvaneScoreLayout> score;
    bytes.copy(score.MutableBytes().data(), kKelvaneScoreLength);
    const DateValue date = score.Get<"Date">();
    const auto what = [&] {
      const std::string day = FormatDay(date, scan_.state().DateFormat);
      return "Score " + std::to_string(number) + (day.empty() ? "" : " of " + day);
    };
    if (!(date >= kFirstPossibleDay &&
          date < last_day_)) {  // also true for a value that is no number
      faults.date.Add(what() + " has an impossible date.");
    } else {
      if (date > newer) faults.order.Add(what() + " is newer than the one before it.");
      newer = date;
      const auto day = static_cast<std::int64_t>(date);
      if (golfer.id > 0 && wanted_days_.contains(day)) {
        known_.scores[golfer.id].emplace(day, score.Get<"Gross">());
      }
    }
    const std::string wrong = WrongValue(score);
    if (!wrong.empty()) faults.value.Add(what() + wrong);
    CheckCourse(score, what, faults);
  }

  // Returns the end of a sentence, or an empty text if the numbers of strokes can be right.
  static std::string WrongValue(const Record<KelvaneScoreLayout>& score) {
    const int adjusted = score.Get<"Adjusted">();
    const int gross = score.Get<"Gross">();
    const float rating = score.Get<"Rating">();
    // Points have no rating and can be few.
    const int lowest = rating >= kRatingOf18Holes ? kLowestOf18Holes
                       : rating > 0               ? kLowestScore
                                                  : 1;
    const int highest = rating > 0 && rating < kRatingOf18Holes ? kHighestOf9Holes : kHighestScore;
    if (adjusted < lowest || adjusted > highest) {
      return " has the adjusted score " + std::to_string(adjusted) + ".";
    }
    if (gross != 0 && (gross < kLowestScore || gross > kHighestScore)) {
      return " has the gross score " + std::to_string(gross) + ".";
    }
    int sum = 0;
    bool is_complete = true;
    for (int hole = 1; hole <= kHoles; ++hole) {
      const int strokes = score.Get<"HoleScore">(hole);
      is_complete = is_complete && strokes > 0;
      sum += strokes;
    }
    if (!is_complete || sum == gross) return {};
    return " has the gross score " + std::to_string(gross) + ", but its holes add up to " +
           std::to_string(sum) + ".";
  }

  template <class What>
  void CheckCourse(const Record<KelvaneScoreLayout>& score, const What& what,
                   HistoryFaults& faults) {
    const int number = score.Get<"CourseNumber">();
    if (!courses_.is_read || number == 0) return;
    const KnownCourse* const course = courses_.Find(number);
    const std::string named = " was played on course " + std::to_string(number);
    if (course == nullptr) {
      faults.course.Add(what() + named + ", which does not exist.");
    } else if (!course->is_active) {
      faults.deleted_course.Add(what() + named + " (" + course->name + "), which was deleted.");
    } else if (const int tee = score.Get<"TeeNumber">(); tee > kTeeSlots) {
      faults.course.Add(what() + " was played from tee " + std::to_string(tee) +
                        ", which does not exist.");
    } else if (tee != 0 && !course->HasTee(tee)) {
      faults.tee.Add(what() + " was played from tee " + std::to_string(tee) + " of " +
                     course->name + ", which is not active.");
    }
  }

  FileScan& scan_;
  const KnownCourses& courses_;
  const std::unordered_set<std::int64_t>& wanted_days_;
  KnownKelvane& known_;
  std::string name_;
  std::string base_;  // of the paths of the roster's files
  TwinCheck twins_;
  DateValue last_day_;  // the day after tomorrow is later
  int birthday_ = 0;    // the index of the date that is a birthday, or 0
  KnownGolfers golfers_;
  bool has_header_ = false;
  std::array<DateValue, 3> counter_dates_{};
  std::vector<Counters> counters_;  // of the golfers
  std::size_t next_ = 0;            // the next golfer with a history
};

}  // namespace

KnownKelvane CheckKelvane(FileScan& scan, const KnownCourses& courses,
                          const std::unordered_set<std::int64_t>& wanted_days) {
  KnownKelvane known;
  const std::string& folder = scan.state().KVDataPath;
  for (const std::string& roster : scan.BasesLike(folder, "*", {".KV5", ".KVG", ".KVS"})) {
    RosterCheck(scan, courses, wanted_days, known, roster).Run();
  }
  return known;
}

}  // namespace golf
