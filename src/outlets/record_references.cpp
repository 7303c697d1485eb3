#include "outlets/record_references.h"

#include <algorithm>
#include <map>

#include "core/text.h"
#include "history/record_changes.h"
#include "history/transactions.h"
#include "outlets/file_kinds.h"
#include "outlets/record_titles.h"
#include "stores/course/course_layout.h"
#include "stores/kelvane/kelvane_layouts.h"
#include "stores/quenby/quenby_layouts.h"
#include "stores/zandel/zandel_layouts.h"

namespace golf {
namespace {

std::string Quoted(std::string_view kind, std::string_view name) {
  return std::string(kind).append(" \"").append(name).append("\"");
}

std::string TournamentOf(InstallReader& reader, const RecordId& from) {
  return Quoted("Tournament", TournamentTitle(reader, from.file));
}

std::string LeagueOf(InstallReader& reader, const RecordId& from) {
  return Quoted("League", LeagueTitle(reader, from.file));
}

template <class Layout>
std::string TitleNow(InstallReader& reader, const RecordId& from) {
  const auto now = reader.Read<Layout>(from.file, from.record);
  return now ? TitleOfRecord(reader, from.file, from.record, now->Bytes()) : std::string();
}

std::string GolferOf(InstallReader& reader, const RecordId& from) {
  const std::string name = TitleNow<PlayerLayout>(reader, from);
  return name.empty() ? name : Quoted("Golfer", name);
}

std::string ScoreOf(InstallReader& reader, const RecordId& from) {
  const std::string name = TitleNow<KelvaneHistoryLayout>(reader, from);
  return name.empty() ? name : "A score of " + Quoted("golfer", name);
}

void ReadEntries(InstallReader& reader, const std::string& file, const EachReference& each) {
  reader.ForEach<TournamentPlayerLayout>(file, [&](std::int64_t record, const auto& entry) {
    each(file, record, entry.template Get<"TourRosterRecordPointer">());
  });
}

void ReadGolfers(InstallReader& reader, const std::string& file, const EachReference& each) {
  reader.ForEach<PlayerLayout>(file, [&](std::int64_t record, const auto& golfer) {
    for (int slot = 1; slot <= 4; ++slot) {
      each(file, record, golfer.template Get<"Rosters">(slot));
    }
  });
}

void ReadTournaments(InstallReader& reader, const std::string& file, const EachReference& each) {
  reader.ForEach<TournamentLayout>(file, [&](std::int64_t record, const auto& control) {
    const int rounds = std::min<int>(control.template Get<"NumRounds">(), kRounds);
    for (int round = 1; round <= rounds; ++round) {
      each(file, record, control.template Get<"CourseNumberPlayed">(round));
    }
  });
}

void ReadLeagueTeams(InstallReader& reader, const std::string& file, const EachReference& each) {
  reader.ForEach<LeagueTeamLayout>(file, [&](std::int64_t record, const auto& team) {
    for (int event = 1; event <= kLeagueEvents; ++event) {
      each(file, record, team.template Get<"EventCourse">(event));
    }
  });
}

void ReadHistories(InstallReader& reader, const std::string& file, const EachReference& each) {
  reader.ForEach<KelvaneHistoryLayout>(file, [&](std::int64_t record, const auto& history) {
    for (int score = 1; score <= kKelvaneScores; ++score) {
      each(file, record, history.template Get<"CourseNumber">(score));
    }
  });
}

// Describes the files whose records refer to the records of another file.
struct ReferenceKind {
  std::string_view to;    // the name of the other file, in capitals
  std::string_view from;  // the name of the referring files, in capitals, or "*" and their ending
  std::string SharedState::*folder;
  void (*read)(InstallReader& reader, const std::string& file, const EachReference& each);
  std::string (*name)(InstallReader& reader, const RecordId& from);
};

constexpr ReferenceKind kReferences[] = {
    {"QBGOLFER.Q9D", "*.Q9G", &SharedState::QBDataPath, ReadEntries, TournamentOf},
    {"QBROSTER.Q9D", "QBGOLFER.Q9D", &SharedState::QBDataPath, ReadGolfers, GolferOf},
    {"QBCRS.DAT", "*.Q9C", &SharedState::QBDataPath, ReadTournaments, TournamentOf},
    {"ZDCRS.DAT", "*.ZT8", &SharedState::ZDDataPath, ReadLeagueTeams, LeagueOf},
    {"KVCRS.DAT", "*.KVS", &SharedState::KVDataPath, ReadHistories, ScoreOf}};

bool Matches(std::string_view name, std::string_view pattern) {
  return pattern.starts_with('*') ? name.ends_with(pattern.substr(1)) : name == pattern;
}

}  // namespace

void ForEachReference(InstallReader& reader, std::string_view file, const EachReference& each) {
  const std::string name = UpperCase(FileNameOf(file));
  SharedState& state = reader.state();
  for (const ReferenceKind& kind : kReferences) {
    if (kind.to != name) continue;
    const std::string& folder = state.*kind.folder;
    for (const std::string& from : state.files.FilesLike(folder, kind.from)) {
      kind.read(reader, state.transactions->history().paths().Name(folder + from), each);
    }
  }
}

std::string NameOfReferrer(InstallReader& reader, const RecordId& from) {
  const std::string name = UpperCase(FileNameOf(from.file));
  for (const ReferenceKind& kind : kReferences) {
    if (Matches(name, kind.from)) return kind.name(reader, from);
  }
  return {};
}

std::vector<RecordReference> ReferencesToFreeRecords(SharedState& state, std::string_view file,
                                                     const std::vector<std::int64_t>& records) {
  std::vector<RecordReference> references;
  const auto layout = LayoutOfFile(FileNameOf(file));
  if (!layout) return references;
  InstallReader now(state);
  InstallReader on_disk(state, state.transactions->held().real());
  std::map<std::int64_t, bool> free;
  const auto is_free = [&](std::int64_t record) {
    const auto known = free.find(record);
    if (known != free.end()) return known->second;
    std::string bytes(layout->length, '\0');
    const bool is_there = on_disk.ReadBytes(file, record, bytes);
    return free[record] = !is_there || TitleOfRecord(on_disk, file, record, bytes).empty();
  };
  ForEachReference(now, file, [&](std::string_view from_file, std::int64_t from, std::int64_t to) {
    if (!std::binary_search(records.begin(), records.end(), to) || !is_free(to)) return;
    references.push_back({{std::string(from_file), from}, {std::string(file), to}});
  });
  return references;
}

}  // namespace golf
