#include "outlets/results/tournament_files.h"

#include "core/numbered_error.h"
#include "outlets/file_kinds.h"
#include "stores/course/course_library.h"
#include "stores/quenby/tournament_control.h"

namespace golf {
namespace {

// Reads the tournament with a new object, since an empty control file leaves the record unchanged.
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

std::string FaultOf(SharedState& state, const TournamentFile& file) {
  const std::int64_t length = state.files.platform().StampOf(state.QBDataPath + file.name).length;
  if (length < 0) return file.is_required ? file.name + " is missing." : "";
  const auto layout = LayoutOfFile(file.name);
  const auto record = static_cast<std::int64_t>(layout ? layout->length : 1);
  if (length % record != 0) return file.name + " is damaged: its last record is incomplete.";
  return file.needs_record && length == 0 ? file.name + " is damaged: it is empty." : "";
}

}  // namespace

std::vector<std::int32_t> TournamentNumbers(SharedState& state) {
  state.StoreDataPath = state.QBDataPath;
  std::vector<std::int32_t> numbers;
  for (const std::string& file : state.files.FilesLike(state.QBDataPath, "X*.Q9C")) {
    const std::int32_t number = TournamentOfFile(file).value_or(0);
    if (number > 0) numbers.push_back(number);
  }
  return numbers;
}

std::vector<TournamentTitle> TournamentTitles(SharedState& state) {
  std::vector<TournamentTitle> titles;
  for (const std::int32_t number : TournamentNumbers(state)) {
    titles.push_back({number, TitleOf(state, number)});
  }
  return titles;
}

std::vector<TournamentFile> FilesOfTournament(std::int32_t tournament) {
  return {{TournamentFileName(tournament, ".Q9C"), true, true},
          {TournamentFileName(tournament, ".Q9G")},
          {TournamentFileName(tournament, ".Q9T"), false},
          {"QBGOLFER.Q9D"},
          {CourseFileName(kQuenbyCourses.program)}};
}

std::string FaultOfTournamentFiles(SharedState& state, std::int32_t tournament) {
  for (const TournamentFile& file : FilesOfTournament(tournament)) {
    std::string fault = FaultOf(state, file);
    if (!fault.empty()) return fault;
  }
  return {};
}

}  // namespace golf
