#include "outlets/changed_fields.h"

#include <algorithm>
#include <functional>
#include <map>
#include <optional>

#include "core/date_value.h"
#include "core/text.h"
#include "outlets/field_values.h"
#include "outlets/record_titles.h"
#include "stores/course/course_layout.h"
#include "stores/course/course_library.h"
#include "stores/kelvane/kelvane_layouts.h"

namespace golf {
namespace {

// Contains elements of one field. One index increases by 1 from each element to the next, and the
// other indexes are equal.
struct Range {
  std::vector<FieldElement> elements;
  std::size_t along = 0;  // the position of the index that increases
};

// Returns the position of the index that is greater by 1 in `after`. Returns nothing if the indexes
// differ in another way.
std::optional<std::size_t> Step(const std::vector<int>& before, const std::vector<int>& after) {
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
  std::vector<int> last;
  for (const FieldElement& element : elements) {
    const std::vector<int> indexes = IndexesOf(element.field, element.nth);
    const auto next = ranges.empty() ? std::nullopt : Step(last, indexes);
    if (next && (ranges.back().elements.size() == 1 || next == ranges.back().along)) {
      ranges.back().elements.push_back(element);
      ranges.back().along = *next;
    } else {
      ranges.push_back({{element}});
    }
    last = indexes;
  }
  return ranges;
}

// Returns the ranges of one field's elements along the last or the first index, whichever are
// fewer.
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

// An index with 18 values counts holes.
bool CountsHoles(const Field& field, std::size_t index) {
  constexpr int kHoles = 18;
  return index < field.rank && field.dimensions[index].count == kHoles;
}

std::string NameOf(const Range& range) {
  const Field& field = range.elements.front().field;
  const std::vector<int> first = IndexesOf(field, range.elements.front().nth);
  const std::vector<int> last = IndexesOf(field, range.elements.back().nth);
  if (range.elements.size() == 1) return ElementName(field, range.elements.front().nth);
  if (!CountsHoles(field, range.along)) {
    return ElementName(field, range.elements.front().nth) + " to (" + IndexList(last) + ")";
  }
  std::vector<int> others = first;
  others.erase(others.begin() + static_cast<std::ptrdiff_t>(range.along));
  std::string name = FieldLabel(field);
  if (!others.empty()) name += "(" + IndexList(others) + ")";
  return name + ", holes " + std::to_string(first[range.along]) + " to " +
         std::to_string(last[range.along]);
}

std::string ValuesOf(const Range& range, std::string_view record, std::string_view date_format) {
  if (record.empty()) return "-";
  const bool is_text = range.elements.front().field.type == FieldType::kText;
  std::string values;
  for (const FieldElement& element : range.elements) {
    if (!values.empty()) values += is_text ? ", " : " ";
    values += ShownElement(element.field, record, element.nth, date_format);
  }
  return values;
}

// Returns what distinguishes values. A text of NULs was never filled and equals a blank text.
std::string ValueOf(const FieldElement& element, std::string_view record) {
  std::string value(element.In(record));
  if (element.field.type != FieldType::kText || element.field.name.empty()) return value;
  std::erase(value, '\0');
  return std::string(TrimRight(value));
}

// Returns what distinguishes values for people, who need not see how unused bytes are filled.
std::string ShownValueOf(const FieldElement& element, std::string_view record) {
  const std::string_view bytes = element.In(record);
  constexpr std::string_view kFill("\0 ", 2);
  const bool is_fill = bytes.find_first_not_of(kFill) == std::string_view::npos;
  return element.field.name.empty() && is_fill ? std::string() : ValueOf(element, record);
}

// Calls `each` for the elements whose bytes differ. Missing bytes count as zeros.
void ForEachDifference(const LayoutInfo& layout, std::string before, std::string after,
                       const std::function<void(const FieldElement&, const std::string& before,
                                                const std::string& after)>& each) {
  before.resize(layout.length);
  after.resize(layout.length);
  for (const Field& field : layout.fields) {
    for (std::size_t nth = 0; nth < field.Count(); ++nth) {
      const std::size_t at = field.OffsetOfNth(nth);
      if (before.compare(at, field.width, after, at, field.width) == 0) continue;
      each({field, nth}, before, after);
    }
  }
}

// Returns the line of a change that only changes how unused bytes are filled.
ChangedField FillChange(ChangeKind kind) {
  if (kind == ChangeKind::kAdded) return {"Empty record", "-", ""};
  if (kind == ChangeKind::kRemoved) return {"Empty record", "", "-"};
  return {"Blank texts", "\"\"", "\"\""};
}

// Returns the scores of a history with their numbers of occurrences. Entries of zeros and blanks
// are free.
std::map<std::string, int> ScoresIn(std::string_view history) {
  std::map<std::string, int> scores;
  for (; !history.empty(); history.remove_prefix(std::min(kKelvaneScoreLength, history.size()))) {
    std::string score(history.substr(0, kKelvaneScoreLength));
    if (RecordOf<KelvaneScoreLayout>(score).Get<"Date">() != 0) ++scores[std::move(score)];
  }
  return scores;
}

}  // namespace

std::vector<FieldElement> ChangedElements(const RecordChange& change) {
  std::vector<FieldElement> changed;
  if (!change.layout || change.record == 0) return changed;
  const bool has_both = !change.old_bytes.empty() && !change.new_bytes.empty();
  ForEachDifference(*change.layout, change.old_bytes, change.new_bytes,
                    [&](const FieldElement& element, const auto& before, const auto& after) {
                      if (has_both || ValueOf(element, before) != ValueOf(element, after)) {
                        changed.push_back(element);
                      }
                    });
  return changed;
}

std::vector<ChangedField> DescribeElements(std::span<const FieldElement> elements,
                                           std::string_view before, std::string_view after,
                                           std::string_view date_format) {
  std::vector<ChangedField> fields;
  for (auto first = elements.begin(); first != elements.end();) {
    const auto last = std::find_if(first, elements.end(), [&](const FieldElement& element) {
      return element.field.offset != first->field.offset;
    });
    for (const Range& range : RangesOf({first, last})) {
      fields.push_back({NameOf(range), ValuesOf(range, before, date_format),
                        ValuesOf(range, after, date_format)});
    }
    first = last;
  }
  return fields;
}

std::vector<ChangedField> ChangeDescriber::FieldsOf(const RecordChange& change) {
  if (!change.layout || change.record == 0) return {};
  if (change.layout->name == KelvaneHistoryLayout::kName) {
    std::vector<ChangedField> scores = ScoresOf(change);
    if (!scores.empty()) return scores;
  }
  // A free record may contain the remains of another golfer, which say nothing about the change.
  const std::string before = change.kind == ChangeKind::kAdded ? "" : change.old_bytes;
  const std::string after = change.kind == ChangeKind::kRemoved ? "" : change.new_bytes;
  std::vector<FieldElement> shown;
  ForEachDifference(*change.layout, before, after,
                    [&](const FieldElement& element, const auto& old_bytes, const auto& new_bytes) {
                      if (ShownValueOf(element, old_bytes) != ShownValueOf(element, new_bytes)) {
                        shown.push_back(element);
                      }
                    });
  if (shown.empty()) return {FillChange(change.kind)};
  return DescribeElements(shown, before, after, reader_.state().DateFormat);
}

std::vector<ChangedField> ChangeDescriber::ScoresOf(const RecordChange& change) {
  const std::map<std::string, int> before = ScoresIn(change.old_bytes);
  const std::map<std::string, int> after = ScoresIn(change.new_bytes);
  std::vector<ChangedField> fields;
  const auto add_missing = [&](const auto& from, const auto& in, const auto& field_of) {
    for (const auto& [score, count] : from) {
      const auto found = in.find(score);
      const int left = count - (found == in.end() ? 0 : found->second);
      for (int i = 0; i < left; ++i) fields.push_back(field_of(ScoreText(change.file, score)));
    }
  };
  add_missing(before, after, [](std::string score) {
    return ChangedField{"Score removed", std::move(score), "-"};
  });
  add_missing(after, before, [](std::string score) {
    return ChangedField{"Score added", "-", std::move(score)};
  });
  return fields;
}

// Returns the date, the course and the gross score. League scores have only an adjusted score.
std::string ChangeDescriber::ScoreText(std::string_view file, const std::string& score) {
  const auto entry = RecordOf<KelvaneScoreLayout>(score);
  const std::int64_t number = entry.Get<"CourseNumber">();
  std::string course = "away course";
  if (number > 0) {
    const std::string library =
        std::string(file.substr(0, file.rfind('/') + 1)) + CourseFileName("KV");
    const auto record = reader_.Read<CourseLayout>(library, number);
    if (record) course = TitleOfRecord(reader_, library, number, record->Bytes());
    if (!record || course.empty()) course = "course " + std::to_string(number);
  }
  return FormatDay(entry.Get<"Date">(), reader_.state().DateFormat) + ", " + course + ", " +
         std::to_string(entry.Get<"Gross">() > 0 ? entry.Get<"Gross">() : entry.Get<"Adjusted">());
}

}  // namespace golf
