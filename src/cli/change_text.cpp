#include "cli/change_text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iostream>
#include <unordered_map>
#include <utility>

#include "cli/field_text.h"
#include "cli/plain_text.h"
#include "history/spill_store.h"

namespace golf {
namespace {

std::string Padded(std::string text, std::size_t width) {
  text.resize(std::max(text.size(), width), ' ');
  return text;
}

// Stores texts and writes them by group. The texts are in memory or in a scratch file.
class GroupedTexts {
 public:
  explicit GroupedTexts(Platform& platform) : texts_(platform) {}

  // A text without a group is a group of its own.
  void Add(const std::string& group, const std::string& text) {
    std::size_t number = groups_.size();
    if (!group.empty()) number = numbers_.emplace(group, number).first->second;
    if (number == groups_.size()) groups_.emplace_back();
    groups_[number].push_back({texts_.Append(text), text.size()});
  }

  void Write(std::ostream& out) {
    std::string text;
    for (const std::vector<Place>& group : groups_) {
      out << '\n';
      for (const Place& place : group) {
        text.resize(place.size);
        texts_.Read(place.at, text);
        out << text;
      }
    }
  }

 private:
  struct Place {
    std::int64_t at = 0;
    std::size_t size = 0;
  };

  SpillStore texts_;
  std::vector<std::vector<Place>> groups_;
  std::unordered_map<std::string, std::size_t> numbers_;  // indexes in `groups_`
};

// Returns the file and the number of a record.
std::string PlaceText(const std::string& file, std::int64_t record) {
  return PlainCell(file) + (record > 0 ? ", record " + std::to_string(record) : "");
}

// Returns what happened, such as "changed in qbdata/QBGOLFER.Q9D, record 17".
std::string KindText(const RecordChange& change) {
  const std::string place = PlaceText(change.file, change.record);
  switch (change.kind) {
    case ChangeKind::kAdded:
      return "added to " + place;
    case ChangeKind::kRemoved:
      return "removed from " + place;
    case ChangeKind::kChanged:
      return "changed in " + place;
    default:
      return place + ": " + std::string(NameOf(change.kind));
  }
}

}  // namespace

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

std::string ChangeText(ChangeDescriber& describer, const RecordChange& change) {
  std::string text = PlainCell(change.title);
  if (!text.empty()) text += ": ";
  text += KindText(change) + '\n';
  std::size_t width = 0;
  const std::vector<ChangedField> fields = describer.FieldsOf(change);
  for (const ChangedField& field : fields) width = std::max(width, field.name.size());
  for (const ChangedField& field : fields) {
    text += "  " + Padded(field.name, width) + "  " + PlainCell(field.before) + " -> " +
            PlainCell(field.after) + '\n';
  }
  return text;
}

void WriteChanges(SharedState& state, const RecordKinds& kinds, const EachChange& for_each) {
  ChangeDescriber describer(state);
  GroupedTexts texts(state.files.platform());
  for_each([&](const RecordChange& change) {
    if (!kinds.derived_from(change.file).empty()) return;
    texts.Add(change.group, ChangeText(describer, change));
  });
  texts.Write(std::cout);
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

std::string ConflictText(const UndoConflict& conflict, std::string_view date_format) {
  std::string text = PlainCell(conflict.title);
  if (!text.empty()) text += ": ";
  text += PlaceText(conflict.file, conflict.record) + '\n';
  if (!conflict.reason.empty()) text += "  " + PlainCell(conflict.reason) + '\n';
  for (const ChangedField& field :
       DescribeElements(conflict.elements, conflict.written, conflict.found, date_format)) {
    text += "  " + field.name + ": written " + PlainCell(field.before) + ", now " +
            PlainCell(field.after) + '\n';
  }
  return text;
}

}  // namespace golf
