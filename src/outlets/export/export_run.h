#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/progress.h"
#include "core/record.h"
#include "outlets/export/export_sink.h"
#include "outlets/export/install_tables.h"
#include "outlets/install_reader.h"
#include "outlets/record_files.h"
#include "stores/course/course_layout.h"

namespace golf {

// Is a value of one of the first columns of a table.
class OwnValue {
 public:
  OwnValue(std::int64_t number) : number_(number) {}  // NOLINT: converts implicitly, as the next
  OwnValue(bool flag) : kind_(CellKind::kBoolean), number_(flag ? 1 : 0) {}   // NOLINT
  OwnValue(const std::string& text) : kind_(CellKind::kText), text_(text) {}  // NOLINT

  void AddTo(ExportRow& row) const;

 private:
  CellKind kind_ = CellKind::kInteger;
  std::int64_t number_ = 0;
  std::string_view text_;
};

// Contains what an export reads and writes, and whom it informs.
struct ExportChannels {
  SharedState& state;
  ExportSink& sink;
  bool with_deleted = false;
  ReportProgress report;
  // Is called with a sentence, in code page 1252, about data that is left out.
  std::function<void(const std::string&)> note;
};

// Reads records and adds rows for one export. Raises the errors of the files and of the sink.
class ExportRun {
 public:
  explicit ExportRun(ExportChannels channels);

  SharedState& state() const { return channels_.state; }
  const RecordFiles& files() const { return files_; }
  bool with_deleted() const { return channels_.with_deleted; }
  void Note(const std::string& text) const { channels_.note(text); }

  // Calls `each` with the number and the content of each whole record of a file. Does nothing if
  // the file does not exist.
  template <class Layout, class Each>
  void ForEach(const std::string& file, Each each) {
    auto reader = Open(file, Layout::kLength);
    if (!reader) return;
    for (std::string_view bytes = Next(*reader, file); !bytes.empty();
         bytes = Next(*reader, file)) {
      each(reader->number(), RecordOf<Layout>(bytes));
    }
  }
  // Returns the only record of a file, or nothing if the file is empty or does not exist. The
  // missing bytes of a shorter file are zeros, as for the programs.
  template <class Layout>
  std::optional<Record<Layout>> ReadSingle(const std::string& file) {
    const std::string bytes = ReadStart(file, Layout::kLength);
    if (bytes.empty()) return std::nullopt;
    return RecordOf<Layout>(bytes);
  }

  // Returns nothing if the file does not exist.
  std::optional<RecordReader> Open(const std::string& file, std::size_t length);
  std::string_view Next(RecordReader& reader, const std::string& file);

  // Returns true if a record is exported. A deleted record is exported only on request, and only if
  // it contains anything.
  bool IsWanted(bool is_deleted, std::string_view record) const;

  // Returns the next id of a table.
  std::int64_t NextId(TableId table) { return ++last_ids_[static_cast<std::size_t>(table)]; }

  // Adds a row to a table whose fields have no indexes. `links` are ids of other tables, of which 0
  // becomes null.
  void Add(TableId table, std::initializer_list<OwnValue> own,
           std::initializer_list<std::int64_t> links, std::string_view record);
  // Adds a row with nulls in place of the fields.
  void AddWithoutFields(TableId table, std::initializer_list<OwnValue> own);

  // Returns the ids of other tables for the row with these indexes.
  using LinksOf = std::function<std::vector<std::int64_t>(std::span<const int> indexes)>;
  // Adds a row for each combination of the indexes of a table. Leaves out a row without content,
  // unless `is_kept` returns true for its indexes.
  using IsKept = std::function<bool(std::span<const int> indexes)>;
  using OwnOf = std::function<std::vector<OwnValue>(std::span<const int> indexes)>;
  void AddElements(TableId table, const OwnOf& own_of, std::string_view record,
                   const LinksOf& links_of = {}, const IsKept& is_kept = {});
  // Does the same for a table whose only own column is a link to the row `owner`.
  void AddElements(TableId table, std::int64_t owner, std::string_view record,
                   const LinksOf& links_of = {}, const IsKept& is_kept = {});

  // Reports the progress again.
  void Report() const { channels_.report(progress_); }

  // Adds a row to a table. `table` is its index in ExportTables.
  void AddRow(std::size_t table, const ExportRow& row);

  // Returns the number of rows that were added to each table.
  const std::vector<std::int64_t>& rows() const { return rows_; }

 private:
  // Returns up to `length` bytes.
  std::string ReadStart(const std::string& file, std::size_t length);
  // Reports that bytes of a file have been read.
  void Advance(const std::string& file, std::size_t bytes);

  ExportChannels channels_;
  RecordFiles files_;
  ExportRow row_;
  std::array<std::int64_t, kInstallTables> last_ids_{};
  std::vector<std::int64_t> rows_;
  Progress progress_;  // in bytes
  std::string doing_;  // the text of progress_, which is reported again later
};

// Contains the ids of the courses and tees of a library.
class ExportedCourses {
 public:
  void Add(std::int64_t number, std::int64_t course_id);
  void AddTee(std::int64_t number, int tee, std::int64_t tee_id);

  // These return 0 if the course or the tee is not exported.
  std::int64_t CourseId(std::int64_t number) const;
  std::int64_t TeeId(std::int64_t number, std::int64_t tee) const;

 private:
  struct Course {
    std::int64_t id = 0;
    std::array<std::int64_t, kTeeSlots + 1> tees{};  // by number
  };
  std::vector<Course> courses_;  // by number
};

// Contains the ids of the rows of a table by their numbers in a file.
class ExportedIds {
 public:
  void Add(std::int64_t number, std::int64_t id);
  std::int64_t Find(std::int64_t number) const {  // returns 0 if there is none
    return number >= 1 && number < std::ssize(ids_) ? ids_[static_cast<std::size_t>(number)] : 0;
  }

 private:
  std::vector<std::int64_t> ids_;
};

}  // namespace golf
