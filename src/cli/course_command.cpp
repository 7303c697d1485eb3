#include "cli/course_command.h"

#include <iostream>
#include <utility>

#include "cli/commands.h"
#include "cli/history_command.h"
#include "cli/plain_text.h"
#include "cli/problems.h"
#include "core/number_text.h"
#include "stores/course/course_library.h"
#include "stores/course/tee_rules.h"

namespace golf {
namespace {

// Describes a group: its name, its possessive form, and the prefix of its JSON keys.
struct Group {
  const char* name;
  const char* owner;
  const char* prefix;
};

constexpr Group kGroups[] = {{"men", "men's", "mens"}, {"ladies", "ladies'", "ladies"}};

// Describes a text of a course with its names in JSON and in plain output.
struct CourseDetail {
  const char* key;
  const char* heading;
  std::string (CourseClass::*get)() const;
};

constexpr CourseDetail kDetails[] = {{"address1", "Address", &CourseClass::Address1},
                                     {"address2", "", &CourseClass::Address2},
                                     {"city", "City", &CourseClass::City},
                                     {"state", "State", &CourseClass::State},
                                     {"zipcode", "Zip code", &CourseClass::Zipcode},
                                     {"phone", "Phone", &CourseClass::Phone},
                                     {"golfPro", "Golf pro", &CourseClass::GolfPro},
                                     {"unit", "Lengths in", &CourseClass::YardsOrMeters}};

// Describes a value of a tee by hole, with its totals of the first nine, the second nine and all
// holes.
struct HoleRow {
  const char* key;
  const char* heading;
  std::string (*get)(CourseClass&, int tee, int hole);
  std::int16_t (CourseClass::*totals[3])(int) const;
};

const HoleRow kRows[] = {
    {"holeNumber",
     "Hole",
     [](CourseClass& course, int tee, int hole) { return course.HoleNumber(tee, hole); },
     {}},
    {"yards",
     "Length",
     [](CourseClass& course, int tee, int hole) { return course.HoleYard(tee, hole); },
     {&CourseClass::YardOut, &CourseClass::YardIn, &CourseClass::YardTotal}},
    {"par",
     "Par",
     [](CourseClass& course, int tee, int hole) { return course.HolePar(tee, hole); },
     {&CourseClass::ParOut, &CourseClass::ParIn, &CourseClass::ParTotal}},
    {"handicap",
     "Handicap",
     [](CourseClass& course, int tee, int hole) { return course.HoleHandicap(tee, hole); },
     {}},
    {"sequence",
     "Sequence",
     // This shows the stored value, which is 0 if there is none.
     [](CourseClass& course, int tee, int n) {
       return std::to_string(course.Stored().Get<"StrkSqnc">(tee, n));
     },
     {}}};

constexpr const char* kTotalKeys[] = {"Out", "In", "Total"};

Json TeeObject(CourseClass& course, const TeeKey& tee) {
  Json object = TeeKeys(tee);
  for (const int group : {0, 1}) {
    const std::string prefix = kGroups[group].prefix;
    object[prefix + "Rating"] = LeadingNumber(course.Rating(tee.number, group));
    object[prefix + "Slope"] = course.Stored().Get<"slope">(tee.number, group);
  }
  for (const HoleRow& row : kRows) {
    Json values = Json::array();
    for (int hole = 1; hole <= kCourseHoles; ++hole) {
      values.push_back(RoundToInt32(LeadingNumber(row.get(course, tee.number, hole))));
    }
    object[row.key] = std::move(values);
    for (std::size_t i = 0; row.totals[0] != nullptr && i < std::size(kTotalKeys); ++i) {
      object[std::string(row.key) + kTotalKeys[i]] = (course.*row.totals[i])(tee.number);
    }
  }
  return object;
}

void ShowAsJson(CourseClass& course, std::int32_t number) {
  Json object = CourseKeys(course, number);
  for (const CourseDetail& detail : kDetails) {
    object[detail.key] = JsonText((course.*detail.get)());
  }
  object["tees"] = Json::array();
  for (const TeeKey& tee : ActiveTeesOf(course)) object["tees"].push_back(TeeObject(course, tee));
  WriteJsonLine(object);
}

// Writes the scorecard of a tee.
void ShowTee(CourseClass& course, const TeeKey& tee) {
  std::cout << "\nTee " << tee.number << ", " << PlainCell(tee.name) << " ("
            << PlainCell(tee.abbreviation) << ")";
  for (const int group : {0, 1}) {
    std::cout << ", " << kGroups[group].owner << " rating/slope "
              << course.Rating(tee.number, group) << '/' << course.slope(tee.number, group);
  }
  std::cout << '\n';
  const HoleRange range = HolesPlayed(course.HoleNumFlag());
  std::vector<std::string> headings;
  std::vector<std::vector<std::string>> rows;
  for (const HoleRow& row : kRows) {
    std::vector<std::string> cells = {row.heading};
    const bool by_stroke = &row == std::end(kRows) - 1;
    const int first = by_stroke ? 1 : range.first;
    for (int i = 0; i <= range.last - range.first; ++i) {
      cells.push_back(row.get(course, tee.number, first + i));
    }
    cells.push_back(row.totals[2] == nullptr ? ""
                                             : std::to_string((course.*row.totals[2])(tee.number)));
    if (headings.empty()) {
      cells.back() = "Total";
      headings = std::move(cells);
    } else {
      rows.push_back(std::move(cells));
    }
  }
  WriteTable(headings, rows);
}

std::string HolesForPeople(int flag) {
  const std::string holes = HolesText(flag);
  return holes == "9F" ? "front 9 holes" : holes == "9B" ? "back 9 holes" : holes + " holes";
}

void ShowForPeople(CourseClass& course, std::int32_t number) {
  std::cout << "Course " << number << ", " << PlainCell(course.Name()) << ", "
            << HolesForPeople(course.HoleNumFlag());
  if (course.KVCourseNum() > 0) std::cout << ", from Kelvane course " << course.KVCourseNum();
  std::cout << '\n';
  for (const CourseDetail& detail : kDetails) {
    const std::string text = PlainCell((course.*detail.get)());
    if (text.empty()) continue;
    const std::string heading = detail.heading;
    std::cout << "  " << heading << std::string(12 - heading.size(), ' ') << text << '\n';
  }
  for (const TeeKey& tee : ActiveTeesOf(course)) ShowTee(course, tee);
}

std::string FieldName(const TeeFault& fault) {
  switch (fault.field) {
    case TeeField::kRating:
      return "rating";
    case TeeField::kSlope:
      return "slope";
    case TeeField::kPar:
      return "par";
    case TeeField::kHandicap:
      return "handicap";
    default:
      return "name";
  }
}

bool IsByGroup(const TeeFault& fault) {
  return fault.field == TeeField::kRating || fault.field == TeeField::kSlope;
}

void ShowFinding(const CourseClass& course, std::int32_t number, const TeeKey& tee,
                 const TeeFault& fault, bool json) {
  if (json) {
    Json object = {{"number", number},
                   {"name", JsonText(course.Name())},
                   {"tee", tee.number},
                   {"teeName", JsonText(tee.name)},
                   {"field", FieldName(fault)}};
    if (IsByGroup(fault)) object["group"] = kGroups[fault.group].name;
    if (fault.hole > 0) object["hole"] = fault.hole;
    object["text"] = JsonText(fault.text);
    return WriteJsonLine(object);
  }
  std::cout << number << ' ' << PlainCell(course.Name()) << ", tee " << tee.number << ' '
            << PlainCell(tee.name) << ": ";
  if (IsByGroup(fault)) std::cout << kGroups[fault.group].owner << ' ' << FieldName(fault) << ": ";
  // Only the first line is shown. The others explain what to do on the screen.
  std::cout << PlainCell(fault.text.substr(0, fault.text.find('\r'))) << '\n';
}

CourseClass& OpenForReading(SharedState& state, const CourseRequest& request) {
  state.files.gate().RefuseChanges();
  NoteUnfinished(state);
  CourseClass& course = OpenNamedLibrary(state, request.library);
  const std::int64_t rest =
      state.files.Length(course.CourseFileNumber()) % std::int64_t{kCourseRecordLength};
  if (rest != 0) {
    NoteProblem("The library ends with " + std::to_string(rest) +
                " bytes that are no whole course.");
  }
  return course;
}

}  // namespace

ExitCode RunCourseShow(const Options& options, const CourseRequest& request) {
  const auto application = StartApplication(options);
  CourseClass& course = OpenForReading(application->state(), request);
  const std::int32_t length = course.CourseFileLength();
  const std::string number = std::to_string(request.number);
  if (request.number < 1 || request.number > length) {
    throw Refusal("There is no course " + number + "; the library holds " + std::to_string(length) +
                  ".");
  }
  course.GetRecord(request.number);
  if (course.activeflag() == 0) throw Refusal("Course " + number + " was deleted.");
  (options.json ? ShowAsJson : ShowForPeople)(course, request.number);
  return ExitCode::kDone;
}

ExitCode RunCourseCheck(const Options& options, const CourseRequest& request) {
  const auto application = StartApplication(options);
  CourseClass& course = OpenForReading(application->state(), request);
  const std::int32_t length = course.CourseFileLength();
  for (std::int32_t number = 1; number <= length; ++number) {
    course.GetRecord(number);
    if (course.activeflag() == 0) continue;
    for (const TeeKey& tee : ActiveTeesOf(course)) {
      for (const TeeFault& fault : FaultsOfTee(course, tee.number)) {
        ShowFinding(course, number, tee, fault, options.json);
      }
    }
  }
  return ExitCode::kDone;
}

}  // namespace golf
