#include "outlets/record_kinds.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <memory>
#include <utility>

#include "core/text.h"
#include "history/record_changes.h"
#include "history/transactions.h"
#include "outlets/file_kinds.h"
#include "outlets/install_reader.h"
#include "outlets/record_titles.h"
#include "stores/course/course_layout.h"
#include "stores/course/course_library.h"
#include "stores/kelvane/kelvane_layouts.h"
#include "stores/quenby/quenby_layouts.h"
#include "stores/zandel/zandel_layouts.h"

namespace golf {
namespace {

// Maps the number of a record to a text that names something that refers to it. Only the first one
// found is stored.
using References = std::map<std::int64_t, std::string>;

std::string Quoted(std::string_view kind, std::string_view name) {
  return std::string(kind).append(" \"").append(name).append("\"");
}

// Calls `each` with the path, below the install, of each file of a folder that matches the pattern.
void ForEachFile(InstallReader& reader, const std::string& folder, std::string_view pattern,
                 const std::function<void(const std::string&)>& each) {
  const HistoryPaths& paths = reader.state().transactions->history().paths();
  for (const std::string& name : reader.state().files.FilesLike(folder, pattern)) {
    each(paths.Name(folder + name));
  }
}

// Maps the record numbers of Quenby's golfers to a tournament that they play in.
References TournamentsOfGolfers(InstallReader& reader) {
  References references;
  ForEachFile(reader, reader.state().QBDataPath, "*.Q9G", [&](const std::string& file) {
    const std::string tournament = Quoted("Tournament", TournamentTitle(reader, file));
    reader.ForEach<TournamentPlayerLayout>(file, [&](std::int64_t, const auto& entry) {
      references.emplace(entry.template Get<"TourRosterRecordPointer">(), tournament);
    });
  });
  return references;
}

References GolfersOfRosters(InstallReader& reader) {
  References references;
  ForEachFile(reader, reader.state().QBDataPath, "QBGOLFER.Q9D", [&](const std::string& file) {
    reader.ForEach<PlayerLayout>(file, [&](std::int64_t record, const auto& golfer) {
      const std::string name = TitleOfRecord(reader, file, record, golfer.Bytes());
      if (name.empty()) return;
      for (int slot = 1; slot <= 4; ++slot) {
        references.emplace(golfer.template Get<"Rosters">(slot), Quoted("Golfer", name));
      }
    });
  });
  return references;
}

References TournamentsOfCourses(InstallReader& reader) {
  References references;
  ForEachFile(reader, reader.state().QBDataPath, "*.Q9C", [&](const std::string& file) {
    const std::string tournament = Quoted("Tournament", TournamentTitle(reader, file));
    reader.ForEach<TournamentLayout>(file, [&](std::int64_t, const auto& control) {
      for (int round = 1; round <= std::min<int>(control.template Get<"NumRounds">(), kRounds);
           ++round) {
        references.emplace(control.template Get<"CourseNumberPlayed">(round), tournament);
      }
    });
  });
  return references;
}

References LeaguesOfCourses(InstallReader& reader) {
  References references;
  ForEachFile(reader, reader.state().ZDDataPath, "*.ZT8", [&](const std::string& file) {
    const std::string control = file.substr(0, file.rfind('.')) + ".ZL8";
    const auto league = reader.Read<LeagueControlLayout>(control, 1);
    const std::string name =
        league ? TitleOfRecord(reader, control, 1, league->Bytes()) : std::string(FileNameOf(file));
    reader.ForEach<LeagueTeamLayout>(file, [&](std::int64_t, const auto& team) {
      for (int event = 1; event <= kLeagueEvents; ++event) {
        references.emplace(team.template Get<"EventCourse">(event), Quoted("League", name));
      }
    });
  });
  return references;
}

References ScoresOfCourses(InstallReader& reader) {
  References references;
  ForEachFile(reader, reader.state().KVDataPath, "*.kvs", [&](const std::string& file) {
    reader.ForEach<KelvaneHistoryLayout>(file, [&](std::int64_t record, const auto& history) {
      for (int score = 1; score <= kKelvaneScores; ++score) {
        const std::int64_t course = history.template Get<"CourseNumber">(score);
        if (course < 1 || references.contains(course)) continue;
        const std::string name = TitleOfRecord(reader, file, record, history.Bytes());
        if (!name.empty()) references.emplace(course, "A score of " + Quoted("golfer", name));
      }
    });
  });
  return references;
}

struct ReferenceKind {
  std::string_view file;  // in capitals
  References (*read)(InstallReader&);
};

constexpr ReferenceKind kReferences[] = {{"QBGOLFER.Q9D", TournamentsOfGolfers},
                                         {"QBROSTER.Q9D", GolfersOfRosters},
                                         {"QBCRS.DAT", TournamentsOfCourses},
                                         {"ZDCRS.DAT", LeaguesOfCourses},
                                         {"KVCRS.DAT", ScoresOfCourses}};

// Finds what refers to a record. Reads the references to the records of a file on the first query
// for that file.
class ReferenceIndex {
 public:
  std::string Find(InstallReader& reader, std::string_view file, std::int64_t record) {
    const std::string name = UpperCase(FileNameOf(file));
    for (const ReferenceKind& kind : kReferences) {
      if (kind.file != name) continue;
      auto known = known_.find(name);
      if (known == known_.end()) known = known_.emplace(name, kind.read(reader)).first;
      const auto found = known->second.find(record);
      return found == known->second.end() ? std::string() : found->second;
    }
    return {};
  }

 private:
  std::map<std::string, References> known_;
};

// True if both records have the same name and it is not blank. A deleted golfer, course or roster
// keeps its name in its record, so that this recognises a record that was restored.
bool HaveSameName(std::string_view file, std::string_view remains, std::string_view bytes) {
  const auto layout = LayoutOfFile(FileNameOf(file));
  if (!layout) return false;
  bool named = false;
  for (const Field& field : layout->fields) {
    constexpr std::string_view kNames[] = {"NameFirst", "NameLast", "Name", "ClubName"};
    if (std::find(std::begin(kNames), std::end(kNames), field.name) == std::end(kNames)) continue;
    const std::string_view name = remains.substr(field.offset, field.width);
    if (name != bytes.substr(field.offset, field.width)) return false;
    named = named || !IsBlankText(name);
  }
  return named;
}

// Returns the course library of an index, such as "qbdata/qbcrs.dat" for "qbdata/18CRSQB.INX".
// Returns an empty text if the file is not a course index.
std::string LibraryOfIndex(std::string_view file) {
  constexpr std::string_view kIndex = ".INX";
  constexpr std::size_t kProgram = 2;
  const std::string name = UpperCase(FileNameOf(file));
  if (!name.ends_with(kIndex) || name.size() < kIndex.size() + kProgram) return {};
  const std::string program = name.substr(name.size() - kIndex.size() - kProgram, kProgram);
  if (FindCourseLibrary(program) == nullptr) return {};
  return std::string(file.substr(0, file.size() - name.size())) + CourseFileName(program);
}

}  // namespace

RecordKinds MakeRecordKinds(SharedState& state) {
  const auto reader = std::make_shared<InstallReader>(state);
  return {.layout_of = LayoutOfFile,
          .title_of =
              [reader](std::string_view file, std::int64_t record, std::string_view bytes) {
                return TitleOfRecord(*reader, file, record, bytes);
              },
          .derived_from = LibraryOfIndex,
          .is_same = HaveSameName,
          .references =
              [&state] {
                return [reader = std::make_shared<InstallReader>(state),
                        index = std::make_shared<ReferenceIndex>()](std::string_view file,
                                                                    std::int64_t record) {
                  return index->Find(*reader, file, record);
                };
              }};
}

}  // namespace golf
