#include "outlets/results/tournament_files.h"

#include "core/numbered_error.h"
#include "outlets/file_kinds.h"
#include "stores/course/course_library.h"
#include "stores/quenby/tournament_control.h"

namespace golf {
namespace {

// A new object for each tournament is required, since an empty control file leaves the record
// unchanged.
std::string TitleOf(SharedState& state, std::int32_t number) {
  const std::string numbered = " (" + std::to_string(number) + ")";
  TournamentControl tournament(state);
  try {
    tournament.OpenTournamentControlFile(number);
    tournament.GetRecord();
    tournament.CloseTournamentControlFile();
  } catch (const NumberedError&) {
    tournament.CloseTournamentControlFile();
    return TournamentFileName(number, ".Q9C") + " cannot be read" + numbered;
  }
  const std::string date = tournament.DateofRound(1);
  return tournament.Name() + (date.empty() ? "" : ", " + date) + numbered;
}

// Describes a file in Quenby's folder. A tournament without teams may have no team file.
struct NeededFile {
  std::string name;
  bool is_required = true;
  bool needs_record = false;
};

std::string FaultOf(SharedState& state, const NeededFile& file) {
  const std::int64_t length = state.files.platform().StampOf(state.QBDataPath + file.name).length;
  if (length < 0) return file.is_required ? file.name + " is missing." : "";
  const auto layout = LayoutOfFile(file.name);
  const auto record = static_cast<std::int64_t>(layout ? layout->length : 1);
  if (length % record != 0) return file.name + " is damaged: its last record is incomplete.";
  return file.needs_record && length == 0 ? file.name + " is damaged: it is empty." : "";
}

}  // namespace

std::vector<TournamentTitle> TournamentTitles(SharedState& state) {
  state.StoreDataPath = state.QBDataPath;
  std::vector<TournamentTitle> titles;
  for (const std::string& file : state.files.FilesLike(state.QBDataPath, "X*.Q9C")) {
    const std::int32_t number = TournamentOfFile(file).value_or(0);
    if (number > 0) titles.push_back({number, TitleOf(state, number)});
  }
  return titles;
}

std::string FaultOfTournamentFiles(SharedState& state, std::int32_t tournament) {
  const NeededFile files[] = {{TournamentFileName(tournament, ".Q9C"), true, true},
                              {TournamentFileName(tournament, ".Q9G")},
                              {TournamentFileName(tournament, ".Q9T"), false},
                              {"QBGOLFER.Q9D"},
                              {CourseFileName(kQuenbyCourses.program)}};
  for (const NeededFile& file : files) {
    std::string fault = FaultOf(state, file);
    if (!fault.empty()) return fault;
  }
  return {};
}

}  // namespace golf
