#include "stores/zandel/zandel_files.h"

#include <algorithm>

#include "core/file_name.h"
#include "core/numbered_error.h"
#include "core/text.h"

namespace golf {
namespace {

constexpr std::size_t kBaseLength = 5;
constexpr std::size_t kLeagueLength = 4;  // the length of a base without its division
constexpr std::size_t kBlanksBeforeBase = 60;
constexpr const char* kControlExtension = ".ZL8";

// Describes a file of a league. The table contains the files in the order of opening.
struct LeagueFile {
  int number;
  bool of_league;  // true for a file that the divisions share
  const char* extension;
  std::size_t record_length;
};

constexpr LeagueFile kLeagueFiles[] = {
    {kLeagueControlFile, false, kControlExtension, LeagueControlLayout::kLength},
    {kLeaguePlayerFile, false, ".ZP8", LeaguePlayerLayout::kLength},
    {kLeagueSubstituteFile, true, ".ZS8", LeaguePlayerLayout::kLength},
    {kLeagueTeamFile, false, ".ZT8", LeagueTeamLayout::kLength},
    {kLeagueEventFile, false, ".ZE8", LeagueEventLayout::kLength},
};

void OpenFilesTo(SharedState& state, std::string_view base, int last) {
  const std::string fault = FileNameFault(base);
  if (!fault.empty()) {
    throw NumberedError(ErrorNumber::kPathAccess,
                        "There is no league " + std::string(base) + ": its name " + fault + ".");
  }
  for (const LeagueFile& file : kLeagueFiles) {
    if (file.number > last) break;
    const std::string_view name = file.of_league ? base.substr(0, kLeagueLength) : base;
    state.files.Open(file.number, state.ZDDataPath + std::string(name) + file.extension,
                     file.record_length);
  }
  state.files.Read(kLeagueControlFile, 1, state.Zandel().control);
}

void ReadControlOnce(SharedState& state, const std::string& path) {
  state.files.Open(kLeagueListFile, path, LeagueControlLayout::kLength);
  state.files.Read(kLeagueListFile, 1, state.Zandel().control);
  state.files.Close(kLeagueListFile);
}

}  // namespace

std::string LeagueBase(std::string_view chosen) {
  const std::string_view base = LastCharacters(chosen, kBaseLength);
  return std::string(base.substr(std::min(base.find_first_not_of(' '), base.size())));
}

bool LeagueExists(SharedState& state, std::string_view base) {
  if (base.size() != kBaseLength || !FitsFileName(base)) return false;
  return state.files.FileExists(state.ZDDataPath + std::string(base) + kControlExtension);
}

void OpenLeagueGolfers(SharedState& state, std::string_view base) {
  OpenFilesTo(state, base, kLeagueSubstituteFile);
}

void OpenLeague(SharedState& state, std::string_view base) {
  OpenFilesTo(state, base, kLeagueEventFile);
}

std::string LeagueGolferName(const Record<LeaguePlayerLayout>& player) {
  return GolferTitle(player.Get<"FirstName">(), player.Get<"LastName">(), player.Get<"GolferID">());
}

std::string LeagueGolferNameLF(const Record<LeaguePlayerLayout>& player) {
  return GolferTitleLF(player.Get<"FirstName">(), player.Get<"LastName">(),
                       player.Get<"GolferID">());
}

bool HasLastName(const Record<LeaguePlayerLayout>& player) {
  return CompareIgnoringCase(Trim(player.Get<"LastName">()), " ") > 0;
}

void CloseLeague(SharedState& state) {
  for (int number = kLeagueEventFile; number >= kLeagueControlFile; --number) {
    state.files.Close(number);
  }
}

std::string ListedLeague::Heading() const {
  const std::string kind = whole ? "LEAGUE" : std::string("  DIV") + base.back();
  return kind + " " + control.Get<"LeagueName">();
}

std::string ListedLeague::Item() const {
  return Heading() + std::string(kBlanksBeforeBase, ' ') + base;
}

std::vector<ListedLeague> ListLeagues(SharedState& state) {
  FileTable& files = state.files;
  files.CloseAll();
  std::vector<ListedLeague> leagues;
  for (const std::string& name : files.FilesLike(state.ZDDataPath, "0*.ZL8")) {
    const std::string base = name.substr(0, kBaseLength);
    const std::string file = base + kControlExtension;
    // The base of a name of another length may belong to no file. Opening such a file would create
    // it.
    if (!EqualIgnoringCase(name, file) && !LeagueExists(state, base)) continue;
    ReadControlOnce(state, state.ZDDataPath + file);
    const auto& control = state.Zandel().control;
    if (base.back() == '1') leagues.push_back({base, true, control});
    leagues.push_back({base, false, control});
  }
  return leagues;
}

}  // namespace golf
