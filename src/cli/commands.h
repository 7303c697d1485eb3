#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "cli/exit_code.h"
#include "cli/options.h"
#include "scoring/ranking.h"

namespace golf {

// Each of these functions runs one command. It raises NumberedError, ScriptError or Refusal if the
// command fails.

// Is raised for a name, a number or a file that does not exist. Nothing has been changed then.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;  // the text is UTF-8
};

ExitCode RunDemo(const Options& options, const std::string& folder);

struct ListRequest {
  std::string what;            // one of ListNames
  std::string library = "kv";  // the library of the courses: "kv", "qb" or "zd"
  std::string league;          // the league of the events: its base, UTF-8
};
std::vector<std::string> ListNames();
ExitCode RunList(const Options& options, const ListRequest& request);

struct DumpRequest {
  std::string file;
  std::optional<std::int64_t> record;  // from 1; all records if left out
  bool csv = false;
  bool bom = false;  // begins the CSV with a byte order mark
};
ExitCode RunDump(const Options& options, const DumpRequest& request);

struct CheckRequest {
  std::vector<std::string> only;  // codes of findings; all if empty
  std::string severity = "note";  // the lowest severity to show
  bool repair = false;
};
ExitCode RunCheck(const Options& options, const CheckRequest& request);

struct ExportArguments {
  std::string to;      // the new file or folder, UTF-8
  std::string format;  // one of ExportFormats; by the ending of `to` if empty
  bool replace = false;
  bool with_deleted = false;
  bool bom = false;
};
std::vector<std::string> ExportFormats();
ExitCode RunExport(const Options& options, const ExportArguments& request);

// Writes the descriptions of all file formats into the folder.
ExitCode RunFormats(const Options& options, const std::string& folder);

// Writes the help, a web page, to the file. Replaces a page that exists.
ExitCode RunManual(const Options& options, const std::string& file);

struct ResultsRequest {
  std::string what;  // one of ResultsNames
  std::int32_t tournament = 0;
  std::optional<int> round;  // the active round if left out
  std::string layout;        // the name of a custom report's layout, UTF-8
  bool csv = false;
  bool bom = false;  // begins the CSV with a byte order mark
  Tiebreak tiebreak = Tiebreak::kNone;
  std::string html;    // the file of the page, UTF-8; empty for no page
  bool watch = false;  // writes the page again after each change
};
std::vector<std::string> ResultsNames();
ExitCode RunResults(const Options& options, const ResultsRequest& request);

struct CourseRequest {
  std::string library = "kv";  // "kv", "qb" or "zd"
  std::int32_t number = 0;     // the course, for RunCourseShow
};
ExitCode RunCourseShow(const Options& options, const CourseRequest& request);
ExitCode RunCourseCheck(const Options& options, const CourseRequest& request);

ExitCode RunCoursesKvToQb(const Options& options);

struct GolfersKvToQbArguments {
  std::string roster;  // Kelvane's roster, by name
  int to = 0;          // Quenby's roster, by number; 0 for all rosters
  bool marked_only = false;
  bool to_9_hole = false;
  bool to_18_hole = false;
  std::vector<std::string> items;  // the optional items, by name or by row
  bool update_tournament = false;
};
ExitCode RunGolfersKvToQb(const Options& options, const GolfersKvToQbArguments& request);

struct GolfersKvToZdArguments {
  std::string roster;  // Kelvane's roster, by name
  std::string league;  // Zandel's league, by base
  std::optional<int> percent;
  int holes = 18;  // the holes that the league's handicaps are for: 9 or 18
  bool even_if_scored = false;
};
ExitCode RunGolfersKvToZd(const Options& options, const GolfersKvToZdArguments& request);

struct GolfersZdToQbArguments {
  std::string league;  // Zandel's league, by base
  int to = 0;          // Quenby's roster, by number; 0 for all rosters
  bool doubled = false;
  bool substitutes = false;
};
ExitCode RunGolfersZdToQb(const Options& options, const GolfersZdToQbArguments& request);

struct ScoresQbToKvArguments {
  std::int32_t tournament = 0;
  int round = 1;
  std::string roster;                  // Kelvane's roster, by name
  std::optional<std::int32_t> course;  // Kelvane's course; the best match if left out
  bool as_tournament = false;
  bool points = false;
  std::string again = "no";  // "yes" or "no": post scores that were transferred before
  bool nine_into_eighteen = false;
};
ExitCode RunScoresQbToKv(const Options& options, const ScoresQbToKvArguments& request);

struct ScoresZdToKvArguments {
  std::string league;  // Zandel's league, by base
  int batch = 0;       // the code of the batch
  std::string roster;  // Kelvane's roster, by name
  std::string again;   // "yes" or "no"; empty: the default answer of each box
};
ExitCode RunScoresZdToKv(const Options& options, const ScoresZdToKvArguments& request);

ExitCode RunHistory(const Options& options);
ExitCode RunHistoryShow(const Options& options, std::int32_t number);
// `which` is a number or "all".
ExitCode RunHistoryForget(const Options& options, const std::string& which);

struct UndoRequest {
  std::optional<std::int32_t> number;  // the newest run that can be undone if left out
  bool dry_run = false;
  bool skip_changed = false;
};
ExitCode RunUndo(const Options& options, const UndoRequest& request);
// `choice` is "finish", "put-back" or "leave".
ExitCode RunRecover(const Options& options, const std::string& choice);

ExitCode RunScript(const Options& options, const std::string& file, bool start_programs);

}  // namespace golf
