#include <optional>

#include "core/text.h"
#include "outlets/export/exporters.h"
#include "outlets/free_records.h"

namespace golf {
namespace {

class RosterExport {
 public:
  RosterExport(ExportRun& run, const ExportedCourses& courses, const std::string& name)
      : run_(run),
        courses_(courses),
        name_(UpperCase(name)),
        base_(run.files().NameOf(run.state().KVDataPath, name)),
        id_(run.NextId(TableId::kKelvaneRosters)) {}

  void Run() {
    AddHeader();
    histories_ = run_.Open(base_ + ".kvs", KelvaneHistoryLayout::kLength);
    run_.ForEach<KelvaneGolferLayout>(base_ + ".kvg", [&](std::int64_t place, const auto& golfer) {
      const std::string_view scores =
          histories_ ? run_.Next(*histories_, base_ + ".kvs") : std::string_view();
      if (run_.IsWanted(IsFree(golfer), golfer.Bytes())) Add(place, golfer, scores);
    });
  }

 private:
  void AddHeader() {
    const auto header = run_.ReadSingle<KelvaneHeaderLayout>(base_ + ".kv5");
    if (!header) return run_.AddWithoutFields(TableId::kKelvaneRosters, {id_, name_});
    run_.Add(TableId::kKelvaneRosters, {id_, name_}, {}, header->Bytes());
    run_.AddElements(TableId::kKelvaneRosterTables, id_, header->Bytes());
  }

  void Add(std::int64_t place, const Record<KelvaneGolferLayout>& golfer, std::string_view scores) {
    const std::int64_t id = run_.NextId(TableId::kKelvaneGolfers);
    const int half = golfer.Get<"HalfCourse">();
    run_.Add(TableId::kKelvaneGolfers, {id, id_, place, IsFree(golfer)},
             {courses_.CourseId(half), courses_.TeeId(half, golfer.Get<"HalfTee">())},
             golfer.Bytes());
    std::int64_t number = 0;
    for (std::size_t at = 0; at < scores.size(); at += kKelvaneScoreLength) {
      // Entries after the last score are left over from deleted scores.
      const bool is_deleted = ++number > golfer.Get<"ScoreCounter">(1);
      if (is_deleted && !run_.with_deleted()) break;
      const std::string_view score = scores.substr(at, kKelvaneScoreLength);
      if (IsBlankBytes(score)) continue;
      AddScore(id, number, is_deleted, RecordOf<KelvaneScoreLayout>(score));
    }
  }

  void AddScore(std::int64_t golfer, std::int64_t number, bool is_deleted,
                const Record<KelvaneScoreLayout>& score) {
    const int course = score.Get<"CourseNumber">();
    run_.Add(TableId::kKelvaneScores, {golfer, number, is_deleted},
             {courses_.CourseId(course), courses_.TeeId(course, score.Get<"TeeNumber">())},
             score.Bytes());
  }

  ExportRun& run_;
  const ExportedCourses& courses_;
  std::string name_;
  std::string base_;  // of the paths of the roster's files
  std::int64_t id_;
  std::optional<RecordReader> histories_;
};

}  // namespace

void ExportKelvane(ExportRun& run, const ExportedCourses& courses) {
  if (const auto system = run.ReadSingle<KelvaneSystemLayout>("KVSYSTEM.FIL")) {
    run.Add(TableId::kKelvaneSystem, {}, {}, system->Bytes());
  }
  const std::string& folder = run.state().KVDataPath;
  for (const std::string& roster : run.files().BasesLike(folder, "*", {".KV5", ".KVG", ".KVS"})) {
    RosterExport(run, courses, roster).Run();
  }
}

}  // namespace golf
