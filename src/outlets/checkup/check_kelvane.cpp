#include "outlets/checkup/check_kelvane.h"

#include <cmath>
#include <optional>
#include <utility>

#include "core/date_value.h"
#include "core/text.h"
#include "stores/kelvane/kelvane_layouts.h"

namespace golf {
namespace {

constexpr DateValue kFirstDay = 7306;  // 1 January 1920
constexpr int kHighestAdjusted = 250;
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
    const auto places = scan_.ForEach<KelvaneGolferLayout>(
        golfers_.file, true,
        [&](std::int64_t place, const auto& golfer) { AddGolfer(place, golfer); });
    const auto histories = scan_.ForEach<KelvaneHistoryLayout>(
        base_ + ".kvs", true, [&](std::int64_t place, const auto& history) {
          if (places) CheckHistory(place, history);
        });
    if (places && histories && *places != *histories) {
      scan_.Add(FindingCode::kFileSizes, base_ + ".kvs", 0, UpperCase(name_),
                "The file has " + std::to_string(*histories) +
                    " score histories, but the roster has " + std::to_string(*places) +
                    " places for golfers.");
    }
    known_.rosters.push_back(std::move(golfers_));
  }

 private:
  void ReadHeader() {
    const auto headers = scan_.ForEach<KelvaneHeaderLayout>(
        base_ + ".kv5", true, [&](std::int64_t, const auto& header) {
          birthday_ = BirthdayIndex(
              2, [&](int index) { return header.template Get<"MiscDateName">(index); });
        });
    if (headers && *headers == 0) {
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
    twins_.Add(known, MarkOf(golfer, birthday_));
    if (known.id < 1) {
      scan_.Add(FindingCode::kGolferWithoutId, golfers_.file, place, known.Title(),
                "The golfer has no ID number.");
    }
    if (golfer.Get<"HalfScore">() > 0) {
      scan_.Add(FindingCode::kHalfWaits, golfers_.file, place, known.Title(),
                "A score of nine holes, " + std::to_string(golfer.Get<"HalfScore">()) +
                    ", waits for another nine.");
    }
    counters_.emplace_back(golfers_.golfers.size(), golfer.Get<"ScoreCounter">(1));
    golfers_.golfers.push_back(std::move(known));
  }

  // Histories follow each other in the order of their places, and so do the golfers.
  void CheckHistory(std::int64_t place, const Record<KelvaneHistoryLayout>& history) {
    while (next_ < golfers_.golfers.size() && golfers_.golfers[next_].record < place) ++next_;
    if (next_ == golfers_.golfers.size() || golfers_.golfers[next_].record != place) return;
    const KnownGolfer& golfer = golfers_.golfers[next_];
    const int counted = counters_[next_].second;
    int entries = 0;
    DateValue newer = HUGE_VAL;
    Fault faults[] = {{FindingCode::kHistoryOrder},       {FindingCode::kScoreDate},
                      {FindingCode::kScoreValue},         {FindingCode::kScoreCourse},
                      {FindingCode::kScoreCourseDeleted}, {FindingCode::kScoreTee}};
    for (int i = 0; i < kKelvaneScores; ++i) {
      const std::string_view bytes = history.Bytes().substr(
          static_cast<std::size_t>(i) * kKelvaneScoreLength, kKelvaneScoreLength);
      if (IsFree(bytes)) continue;
      ++entries;
      CheckScore(golfer, i + 1, bytes, newer, faults);
    }
    for (const Fault& fault : faults) {
      if (fault.count == 0) continue;
      std::string text = fault.first;
      if (fault.count > 1) {
        text += " " + std::to_string(fault.count - 1) +
                (fault.count == 2 ? " more score is" : " more scores are") + " like it.";
      }
      scan_.Add(fault.code, base_ + ".kvs", place, golfer.Title(), text);
    }
    if (entries != counted) {
      scan_.Add(FindingCode::kHistoryCount, base_ + ".kvs", place, golfer.Title(),
                "The golfer's record counts " + std::to_string(counted) +
                    " scores, but the history has " + std::to_string(entries) + ".");
    }
  }

  static bool IsFree(std::string_view bytes) {
    constexpr std::string_view kFill("\0 ", 2);
    return bytes.find_first_not_of(kFill) == std::string_view::npos;
  }

  void CheckScore(const KnownGolfer& golfer, int number, std::string_view bytes, DateValue& newer,
                  Fault (&faults)[6]) {
    Record<KelvaneScoreLayout> score;
    bytes.copy(score.MutableBytes().data(), kKelvaneScoreLength);
    const DateValue date = score.Get<"Date">();
    const auto what = [&] {
      const std::string day = FormatDay(date, scan_.state().DateFormat);
      return "Score " + std::to_string(number) + (day.empty() ? "" : " of " + day);
    };
    if (!(date >= kFirstDay && date < last_day_)) {  // also true for a value that is no number
      faults[1].Add(what() + " has an impossible date.");
    } else {
      if (date > newer) faults[0].Add(what() + " is newer than the one before it.");
      newer = date;
      const auto day = static_cast<std::int64_t>(date);
      if (golfer.id > 0 && wanted_days_.contains(day)) {
        known_.scores[golfer.id].emplace(day, score.Get<"Gross">());
      }
    }
    const std::string wrong = WrongValue(score);
    if (!wrong.empty()) faults[2].Add(what() + wrong);
    CheckCourse(score, what, faults);
  }

  // Returns the end of a sentence, or an empty text if the numbers of strokes can be right.
  static std::string WrongValue(const Record<KelvaneScoreLayout>& score) {
    const int adjusted = score.Get<"Adjusted">();
    if (adjusted == 0 || adjusted > kHighestAdjusted) {
      return " has the adjusted score " + std::to_string(adjusted) + ".";
    }
    int sum = 0;
    bool is_complete = true;
    for (int hole = 1; hole <= kHoles; ++hole) {
      const int strokes = score.Get<"HoleScore">(hole);
      is_complete = is_complete && strokes > 0;
      sum += strokes;
    }
    if (!is_complete || sum == score.Get<"Gross">()) return {};
    return " has the gross score " + std::to_string(score.Get<"Gross">()) +
           ", but its holes add up to " + std::to_string(sum) + ".";
  }

  template <class What>
  void CheckCourse(const Record<KelvaneScoreLayout>& score, const What& what, Fault (&faults)[6]) {
    const int number = score.Get<"CourseNumber">();
    if (!courses_.is_read || number == 0) return;
    const KnownCourse* const course = courses_.Find(number);
    const std::string named = " was played on course " + std::to_string(number);
    if (course == nullptr) {
      faults[3].Add(what() + named + ", which does not exist.");
    } else if (!course->is_active) {
      faults[4].Add(what() + named + " (" + course->name + "), which was deleted.");
    } else if (const int tee = score.Get<"TeeNumber">(); tee != 0 && !course->HasTee(tee)) {
      faults[5].Add(what() + " was played from tee " + std::to_string(tee) + " of " + course->name +
                    ", which is not active.");
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
  std::vector<std::pair<std::size_t, int>> counters_;  // of the golfers
  std::size_t next_ = 0;                               // the next golfer with a history
};

}  // namespace

KnownKelvane CheckKelvane(FileScan& scan, const KnownCourses& courses,
                          const std::unordered_set<std::int64_t>& wanted_days) {
  KnownKelvane known;
  for (const std::string& file : scan.FilesLike(scan.state().KVDataPath, "*.KV5")) {
    RosterCheck(scan, courses, wanted_days, known, file.substr(0, file.rfind('.'))).Run();
  }
  return known;
}

}  // namespace golf
