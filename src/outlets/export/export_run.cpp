#include "outlets/export/export_run.h"

#include <algorithm>
#include <utility>

#include "core/code_page.h"
#include "outlets/export/export_tables.h"

namespace golf {
void OwnValue::AddTo(ExportRow& row) const {
  if (kind_ == CellKind::kText) return row.AddText(Utf8FromText(text_));
  kind_ == CellKind::kBoolean ? row.AddBoolean(number_ != 0) : row.AddInteger(number_);
}

ExportRun::ExportRun(ExportChannels channels)
    : channels_(std::move(channels)), files_(channels_.state), rows_(ExportTables().size()) {
  progress_.total = files_.LengthOfAll();
}

std::string ExportRun::ReadStart(const std::string& file, std::size_t length) {
  const auto open = files_.Open(file);
  if (open == nullptr) return {};
  std::string bytes(length, '\0');
  bytes.resize(open->ReadAt(0, bytes));
  if (!bytes.empty() && bytes.size() < length) {
    Note(file + " is shorter than its record. The missing fields are exported as 0.");
  }
  Advance(file, bytes.size());
  return bytes;
}

std::optional<RecordReader> ExportRun::Open(const std::string& file, std::size_t length) {
  auto open = files_.Open(file);
  if (open == nullptr) return std::nullopt;
  RecordReader reader(std::move(open), length);
  if (reader.rest() != 0) {
    Note(file + " ends with an incomplete record of " + std::to_string(reader.rest()) +
         (reader.rest() == 1 ? " byte" : " bytes") + ". It is left out.");
  }
  return reader;
}

std::string_view ExportRun::Next(RecordReader& reader, const std::string& file) {
  const std::string_view bytes = reader.Next();
  Advance(file, bytes.size());
  return bytes;
}

void ExportRun::Advance(const std::string& file, std::size_t bytes) {
  progress_.done += static_cast<std::int64_t>(bytes);
  if (doing_ != file) doing_ = file;
  progress_.doing = doing_;
  Report();
}

bool ExportRun::IsWanted(bool is_deleted, std::string_view record) const {
  return !is_deleted || (with_deleted() && !IsBlankBytes(record));
}

void ExportRun::Add(TableId table, std::initializer_list<OwnValue> own,
                    std::initializer_list<std::int64_t> links, std::string_view record) {
  row_.Clear();
  for (const OwnValue& value : own) value.AddTo(row_);
  for (const std::int64_t link : links) row_.AddIntegerOrNull(link);
  TableOf(table).fields.AddTo(row_, record, {});
  AddRow(static_cast<std::size_t>(table), row_);
}

void ExportRun::AddWithoutFields(TableId table, std::initializer_list<OwnValue> own) {
  row_.Clear();
  for (const OwnValue& value : own) value.AddTo(row_);
  const RecordTable& described = TableOf(table);
  const std::size_t nulls = described.links.size() + described.fields.columns().size();
  for (std::size_t i = 0; i < nulls; ++i) row_.AddNull();
  AddRow(static_cast<std::size_t>(table), row_);
}

void ExportRun::AddElements(TableId table, std::int64_t owner, std::string_view record,
                            const LinksOf& links_of, const IsKept& is_kept) {
  const auto own_of = [owner](std::span<const int>) { return std::vector<OwnValue>{owner}; };
  AddElements(table, own_of, record, links_of, is_kept);
}

void ExportRun::AddElements(TableId table, const OwnOf& own_of, std::string_view record,
                            const LinksOf& links_of, const IsKept& is_kept) {
  const RecordColumns& fields = TableOf(table).fields;
  const std::vector<IndexColumn>& by = fields.by();
  std::vector<int> indexes;
  for (const IndexColumn& index : by) indexes.push_back(index.dimension.base);
  while (true) {
    if (!fields.IsBlank(record, indexes) || (is_kept && is_kept(indexes))) {
      row_.Clear();
      for (const OwnValue& value : own_of(indexes)) value.AddTo(row_);
      for (const int index : indexes) row_.AddInteger(index);
      if (links_of) {
        for (const std::int64_t link : links_of(indexes)) row_.AddIntegerOrNull(link);
      }
      fields.AddTo(row_, record, indexes);
      AddRow(static_cast<std::size_t>(table), row_);
    }
    std::size_t i = by.size();
    while (i > 0 && ++indexes[i - 1] == by[i - 1].dimension.base + by[i - 1].dimension.count) {
      --i;
      indexes[i] = by[i].dimension.base;
    }
    if (i == 0) return;
  }
}

void ExportRun::AddRow(std::size_t table, const ExportRow& row) {
  channels_.sink.Add(table, row);
  ++rows_[table];
}

void ExportedCourses::Add(std::int64_t number, std::int64_t course_id) {
  const auto at = static_cast<std::size_t>(number);
  if (courses_.size() <= at) courses_.resize(at + 1);
  courses_[at].id = course_id;
}

void ExportedCourses::AddTee(std::int64_t number, int tee, std::int64_t tee_id) {
  courses_[static_cast<std::size_t>(number)].tees[static_cast<std::size_t>(tee)] = tee_id;
}

std::int64_t ExportedCourses::CourseId(std::int64_t number) const {
  const bool is_there = number >= 1 && number < std::ssize(courses_);
  return is_there ? courses_[static_cast<std::size_t>(number)].id : 0;
}

std::int64_t ExportedCourses::TeeId(std::int64_t number, std::int64_t tee) const {
  if (CourseId(number) == 0 || tee < 1 || tee > kTeeSlots) return 0;
  return courses_[static_cast<std::size_t>(number)].tees[static_cast<std::size_t>(tee)];
}

void ExportedIds::Add(std::int64_t number, std::int64_t id) {
  const auto at = static_cast<std::size_t>(number);
  if (ids_.size() <= at) ids_.resize(at + 1);
  ids_[at] = id;
}

}  // namespace golf
