#include "stores/course/tee_rules.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "core/number_text.h"
#include "core/text.h"

namespace golf {
namespace {

constexpr double kHighestRating = 99.9;
constexpr int kLowestSlope = 55;
constexpr int kHighestSlope = 155;

constexpr const char* kWrongValue = "You have entered an incorrect value.";

struct RatingRule {
  double low;
  double high;
  const char* text;
};

constexpr RatingRule kRating18{45, 80, "18 hole Rating must be between 45 and 80"};
constexpr RatingRule kRating9{25, 45, "9 hole Rating must be between 25 and 45"};

constexpr const char* kUnratedGroup[] = {
    "If men do not have a rating for this tee, enter the ladies' rating.",
    "If ladies do not have a rating for this tee, enter the men's rating."};

TeeFault ParFault(int hole) {
  return {.field = TeeField::kPar,
          .hole = hole,
          .title = kWrongValue,
          .text = "Par must be between 1 and 6"};
}

TeeFault HandicapFault(int hole) {
  return {.field = TeeField::kHandicap,
          .hole = hole,
          .title = kWrongValue,
          .text =
              "Handicap Holes must be entered. Handicap hole numbers are between 1 and 18.  "
              "Each hole must have a different number.  Handicap hole #" +
              std::to_string(hole) + " is a repeat number or zero."};
}

// Returns a hole handicap as a whole number. Returns 19, which is not valid for any hole, for a
// value below 0 or above 19.
int WholeHandicap(double value) {
  constexpr double kNone = kCourseHoles + 1;
  return value < 0 ? static_cast<int>(kNone) : RoundToInt32(std::min(value, kNone));
}

// Formats ascending numbers as "1-9, 12".
std::string Ranges(const std::vector<int>& numbers) {
  std::string text;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const bool follows = i > 0 && numbers[i] == numbers[i - 1] + 1;
    const bool continues = i + 1 < numbers.size() && numbers[i + 1] == numbers[i] + 1;
    if (follows && continues) continue;
    text += (i == 0 ? "" : follows ? "-" : ", ") + std::to_string(numbers[i]);
  }
  return text;
}

template <class Read>
HoleValues ValuesByHole(Read read) {
  HoleValues values{};
  for (int hole = 1; hole <= kCourseHoles; ++hole) {
    values[static_cast<std::size_t>(hole) - 1] = read(hole);
  }
  return values;
}

std::vector<TeeFault> FaultsOf(const Record<CourseLayout>& course, int tee, bool require_pars,
                               bool require_handicaps) {
  const HoleRange holes = HolesPlayed(course.Get<"HoleNumFlag">());
  const int rated = HolesRated(course.Get<"HoleNumFlag">());
  std::vector<TeeFault> faults;
  const auto add = [&faults](std::optional<TeeFault> fault) {
    if (fault) faults.push_back(std::move(*fault));
  };
  add(NameFault(Trim(course.Get<"TeeName">(tee)), course.Get<"TeeNameAbv">(tee)));
  for (const int group : {0, 1}) {
    const double stored = LeadingNumber(FormatNumber(course.Get<"Rating">(tee, group), "0.0"));
    add(RatingFault(LeadingNumber(RatingText(stored, "0.0")), rated, group));
  }
  for (const int group : {0, 1}) add(SlopeFault(course.Get<"slope">(tee, group), group));
  const auto of_holes =
      HoleFaults(ValuesByHole([&](int hole) { return course.Get<"HolePar">(tee, hole); }),
                 ValuesByHole([&](int hole) { return course.Get<"HoleHandicap">(tee, hole); }),
                 holes, require_pars, require_handicaps);
  faults.insert(faults.end(), of_holes.begin(), of_holes.end());
  return faults;
}

}  // namespace

HoleRange HolesPlayed(int hole_num_flag) {
  constexpr int kNine = 9;
  if (hole_num_flag == kNine) return {1, kNine};
  if (hole_num_flag == -kNine) return {kNine + 1, kCourseHoles};
  return {};
}

int HolesRated(int hole_num_flag) { return std::abs(hole_num_flag) == 9 ? 9 : kCourseHoles; }

std::string RatingText(double value, std::string_view pattern) {
  const double taken = LeadingNumber(FormatNumber(value, "0.0000"));
  return FormatNumber(std::clamp(taken, 0.0, kHighestRating), pattern);
}

int SlopeShown(double value) {
  constexpr double kLowestStored = -32768;
  return RoundToInt16(std::clamp<double>(value, kLowestStored, kHighestSlope));
}

std::optional<TeeFault> NameFault(std::string_view name, std::string_view abbreviation) {
  if (!Trim(name).empty() && !Trim(abbreviation).empty()) return std::nullopt;
  return TeeFault{.field = TeeField::kName,
                  .title = "Enter a tee name.",
                  .text = "Tee name and abreviation are required."};
}

std::optional<TeeFault> RatingFault(double rating, int holes, int group) {
  const RatingRule& rule = holes == 9 ? kRating9 : kRating18;
  if (rating >= rule.low && rating <= rule.high) return std::nullopt;
  return TeeFault{.field = TeeField::kRating,
                  .group = group,
                  .title = "Need a correct rating",
                  .text = std::string(rule.text) + "\r" + kUnratedGroup[group] +
                          "\r\rIf your course is not rated enter par."};
}

std::optional<TeeFault> SlopeFault(double slope, int group) {
  if (slope >= kLowestSlope && slope <= kHighestSlope) return std::nullopt;
  return TeeFault{.field = TeeField::kSlope,
                  .group = group,
                  .title = "Need a correct slope",
                  .text =
                      "Slope must be between 55 and 155\r"
                      "If your course is not sloped type in 113."};
}

std::vector<TeeFault> HoleFaults(const HoleValues& pars, const HoleValues& handicaps,
                                 HoleRange holes, bool require_pars, bool require_handicaps) {
  std::vector<TeeFault> faults;
  std::array<bool, kCourseHoles + 1> used{};
  for (int hole = holes.first; hole <= holes.last; ++hole) {
    const auto at = static_cast<std::size_t>(hole) - 1;
    if (require_pars && (pars[at] < 1 || pars[at] > 6)) faults.push_back(ParFault(hole));
    if (handicaps[at] == 0 && !require_handicaps) continue;
    const int handicap = WholeHandicap(handicaps[at]);
    const bool wrong = handicap < 1 || handicap > kCourseHoles ||
                       std::exchange(used[static_cast<std::size_t>(handicap)], true);
    if (wrong) faults.push_back(HandicapFault(hole));
  }
  return faults;
}

std::vector<TeeFault> FaultsOfTee(const CourseClass& course, int tee) {
  return FaultsOf(course.Stored(), tee, course.RequirePars, course.RequireHoleHandicaps);
}

std::vector<TeeFault> FaultsOfTee(const Record<CourseLayout>& course, int tee) {
  bool has_par = false;
  bool has_handicap = false;
  for (int hole = 1; hole <= kCourseHoles; ++hole) {
    has_par = has_par || course.Get<"HolePar">(tee, hole) != 0;
    has_handicap = has_handicap || course.Get<"HoleHandicap">(tee, hole) != 0;
  }
  return FaultsOf(course, tee, has_par, has_handicap);
}

std::string DescribeFaults(const std::vector<TeeFault>& faults) {
  constexpr const char* kGroups[] = {"men's ", "ladies' "};
  std::string text;
  std::vector<int> pars;
  std::vector<int> handicaps;
  for (const TeeFault& fault : faults) {
    const std::string rule = fault.text.substr(0, fault.text.find('\r'));
    if (fault.field == TeeField::kPar) {
      pars.push_back(fault.hole);
    } else if (fault.field == TeeField::kHandicap) {
      handicaps.push_back(fault.hole);
    } else if (fault.field == TeeField::kName) {
      text += "; name or abbreviation is missing";
    } else {
      text += std::string("; ") + kGroups[fault.group] + rule;
    }
  }
  if (!pars.empty()) text += "; par must be between 1 and 6 on hole " + Ranges(pars);
  if (!handicaps.empty()) {
    text += "; handicap is missing or repeated on hole " + Ranges(handicaps);
  }
  return text.empty() ? text : "Check:" + text.substr(1);
}

std::vector<int> StrokeSequence(const HoleValues& handicaps, HoleRange holes) {
  std::vector<int> sequence;
  for (int hole = holes.first; hole <= holes.last; ++hole) sequence.push_back(hole);
  std::stable_sort(sequence.begin(), sequence.end(), [&](int a, int b) {
    return WholeHandicap(handicaps[static_cast<std::size_t>(a) - 1]) <
           WholeHandicap(handicaps[static_cast<std::size_t>(b) - 1]);
  });
  return sequence;
}

}  // namespace golf
