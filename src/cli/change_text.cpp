#include "cli/change_text.h"

#include <algorithm>
#include <iostream>
#include <span>
#include <utility>

#include "cli/field_text.h"
#include "cli/plain_text.h"
#include "core/text.h"

namespace golf {
namespace {

// Holds consecutive elements of one field. From each element to the next, exactly one index
// differs, always the same one, and by 1.
using Range = std::vector<FieldElement>;

// Returns the position of the only index that differs, if it is higher by 1 in `after`. Returns
// nothing for any other two elements.
std::optional<std::size_t> Neighbours(const std::vector<int>& before,
                                      const std::vector<int>& after) {
  std::optional<std::size_t> differs;
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (before[i] == after[i]) continue;
    if (differs || before[i] + 1 != after[i]) return std::nullopt;
    differs = i;
  }
  return differs;
}

std::vector<Range> RangesInOrder(std::span<const FieldElement> elements) {
  std::vector<Range> ranges;
  std::optional<std::size_t> along;  // the index that varies in the last range
  std::vector<int> last;
  for (const FieldElement& element : elements) {
    const std::vector<int> indexes = IndexesOf(element.field, element.nth);
    const auto next = ranges.empty() ? std::nullopt : Neighbours(last, indexes);
    if (next && (ranges.back().size() == 1 || next == along)) {
      ranges.back().push_back(element);
      along = next;
    } else {
      ranges.push_back({element});
    }
    last = indexes;
  }
  return ranges;
}

// Splits the elements of one field into ranges along its last or its first index, whichever gives
// fewer ranges.
std::vector<Range> RangesOf(std::vector<FieldElement> elements) {
  std::vector<Range> by_last = RangesInOrder(elements);
  std::stable_sort(elements.begin(), elements.end(), [](const auto& a, const auto& b) {
    const std::vector<int> first = IndexesOf(a.field, a.nth);
    const std::vector<int> second = IndexesOf(b.field, b.nth);
    return std::lexicographical_compare(first.rbegin(), first.rend(), second.rbegin(),
                                        second.rend());
  });
  std::vector<Range> by_first = RangesInOrder(elements);
  return by_first.size() < by_last.size() ? by_first : by_last;
}

template <class Each>
void ForEachRange(const std::vector<FieldElement>& elements, Each each) {
  for (auto first = elements.begin(); first != elements.end();) {
    const auto last = std::find_if(first, elements.end(), [&](const FieldElement& element) {
      return element.field.offset != first->field.offset;
    });
    for (const Range& range : RangesOf({first, last})) each(range);
    first = last;
  }
}

std::string NameOfRange(const Range& range) {
  const Field& field = range.front().field;
  const std::string name = ElementName(field, range.front().nth);
  if (range.size() == 1) return name;
  return name + " to (" + IndexList(IndexesOf(field, range.back().nth)) + ")";
}

// Returns the values of a range as text, or "-" if there is no record.
std::string ValuesOf(const Range& range, std::string_view record) {
  if (record.empty()) return "-";
  const bool is_text = range.front().field.type == FieldType::kText;
  std::string values;
  for (const FieldElement& element : range) {
    if (&element != &range.front()) values += is_text ? ", " : " ";
    const std::string value = PlainElement(element.field, record, element.nth);
    values += is_text && !element.field.name.empty() ? "\"" + value + "\"" : value;
  }
  return values;
}

std::string Padded(std::string text, std::size_t width) {
  text.resize(std::max(text.size(), width), ' ');
  return text;
}

std::string Heading(const std::string& file, std::int64_t record, const std::string& title) {
  std::string heading = PlainCell(file);
  if (record > 0) heading += ", record " + std::to_string(record);
  if (!title.empty()) heading += ": " + PlainCell(title);
  return heading;
}

// Returns the bytes by which values are compared. A text of NULs, which was never filled, equals a
// text of blanks.
std::string ValueOf(const FieldElement& element, std::string_view record) {
  std::string value(element.In(record));
  if (element.field.type != FieldType::kText || element.field.name.empty()) return value;
  std::erase(value, '\0');
  return std::string(TrimRight(value));
}

}  // namespace

std::vector<FieldElement> ChangedElements(const RecordChange& change) {
  std::vector<FieldElement> changed;
  if (!change.layout || change.record == 0) return changed;
  std::string before = change.old_bytes;
  std::string after = change.new_bytes;
  before.resize(change.layout->length);
  after.resize(change.layout->length);
  for (const Field& field : change.layout->fields) {
    for (std::size_t nth = 0; nth < field.Count(); ++nth) {
      const std::size_t at = field.OffsetOfNth(nth);
      if (before.compare(at, field.width, after, at, field.width) == 0) continue;
      const FieldElement element{field, nth};
      if (ValueOf(element, before) != ValueOf(element, after)) changed.push_back(element);
    }
  }
  return changed;
}

Json ChangeJson(const RecordChange& change) {
  Json event = {{"event", "change"}, {"file", JsonText(change.file)}};
  if (change.record > 0) event["record"] = change.record;
  event["kind"] = NameOf(change.kind);
  event["title"] = JsonText(change.title);
  Json fields = Json::array();
  const auto value = [](const std::string& record, const FieldElement& element) {
    return record.empty() ? Json(nullptr) : ElementJson(element.field, record, element.nth);
  };
  for (const FieldElement& element : ChangedElements(change)) {
    fields.push_back({{"name", ElementName(element.field, element.nth)},
                      {"old", value(change.old_bytes, element)},
                      {"new", value(change.new_bytes, element)}});
  }
  if (!fields.empty()) event["fields"] = std::move(fields);
  return event;
}

void WriteChange(const RecordChange& change) {
  std::cout << Heading(change.file, change.record, change.title) << " (" << NameOf(change.kind)
            << ")\n";
  std::vector<Range> ranges;
  std::size_t width = 0;
  ForEachRange(ChangedElements(change), [&](const Range& range) {
    ranges.push_back(range);
    width = std::max(width, NameOfRange(range).size());
  });
  for (const Range& range : ranges) {
    std::cout << "  " << Padded(NameOfRange(range), width) << "  "
              << ValuesOf(range, change.old_bytes) << " -> " << ValuesOf(range, change.new_bytes)
              << '\n';
  }
}

std::vector<Json> ConflictJson(const UndoConflict& conflict) {
  Json event = {{"event", "conflict"}, {"file", JsonText(conflict.file)}};
  if (conflict.record > 0) event["record"] = conflict.record;
  event["title"] = JsonText(conflict.title);
  std::vector<Json> events;
  for (const FieldElement& element : conflict.elements) {
    events.push_back(event);
    events.back()["name"] = ElementName(element.field, element.nth);
    events.back()["written"] = ElementJson(element.field, conflict.written, element.nth);
    events.back()["found"] = ElementJson(element.field, conflict.found, element.nth);
  }
  if (events.empty()) {
    event["reason"] = JsonText(conflict.reason);
    events.push_back(std::move(event));
  }
  return events;
}

std::string ConflictText(const UndoConflict& conflict) {
  std::string text = Heading(conflict.file, conflict.record, conflict.title) + '\n';
  if (!conflict.reason.empty()) text += "  " + PlainCell(conflict.reason) + '\n';
  ForEachRange(conflict.elements, [&](const Range& range) {
    text += "  " + NameOfRange(range) + ": written " + ValuesOf(range, conflict.written) +
            ", now " + ValuesOf(range, conflict.found) + '\n';
  });
  return text;
}

void ChangeCounts::Add(const RecordChange& change) {
  Counts& counts = files_[change.file];
  switch (change.kind) {
    case ChangeKind::kAdded:
      ++counts.added;
      break;
    case ChangeKind::kChanged:
      ++counts.changed;
      break;
    case ChangeKind::kRemoved:
      ++counts.removed;
      break;
    default:
      counts.whole += (counts.whole.empty() ? "" : ", ") + std::string(NameOf(change.kind));
  }
}

std::int64_t ChangeCounts::Count() const {
  std::int64_t count = 0;
  for (const auto& [file, counts] : files_) {
    const std::int64_t records = counts.added + counts.changed + counts.removed;
    count += records > 0 ? records : 1;
  }
  return count;
}

void ChangeCounts::Write() const {
  std::vector<std::vector<std::string>> rows;
  for (const auto& [file, counts] : files_) {
    rows.push_back({PlainCell(file), std::to_string(counts.added), std::to_string(counts.changed),
                    std::to_string(counts.removed), counts.whole});
  }
  WriteTable({"File", "Added", "Changed", "Removed", "File as a whole"}, rows);
}

}  // namespace golf
