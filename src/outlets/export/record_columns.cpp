#include "outlets/export/record_columns.h"

#include <algorithm>
#include <iterator>

#include "outlets/export/shown_value.h"
#include "outlets/field_values.h"

namespace golf {
namespace {

struct KnownForm {
  std::string_view layout;
  std::string_view field;
  FieldForm form;
};

constexpr KnownForm kForms[] = {
    {"kelvane golfer", "MarkedToPrint", FieldForm::kBoolean},
    {"quenby master", "RosterColumnSortedHow", FieldForm::kBoolean},
    {"quenby roster", "IsRosterActive", FieldForm::kBoolean},
    {"quenby golfer", "PrintPlayer", FieldForm::kBitZero},
    {"quenby golfer", "Cart", FieldForm::kBitZero},
    {"tournament", "IndextoHandicap", FieldForm::kBoolean},
    {"tournament", "HandicapDecimalPlaces", FieldForm::kBoolean},
    {"tournament", "ScoreEntryTotal", FieldForm::kBoolean},
    {"tournament", "RCGAESC", FieldForm::kBoolean},
    {"tournament", "ShowTeamsonSheet", FieldForm::kBoolean},
    {"tournament", "SheetColumnSortedHow", FieldForm::kBoolean},
    {"tournament", "TeamSheetColumnSortedHow", FieldForm::kBoolean},
    {"tournament player", "TourCart", FieldForm::kBoolean},
    {"tournament player", "TourFlags", FieldForm::kTourFlags},
    {"team", "TeeTimeValue", FieldForm::kTime},
    {"course", "activeflag", FieldForm::kBoolean},
    {"course", "ActiveTees", FieldForm::kBoolean},
    {"league event", "EventDate", FieldForm::kDay},
};

FieldForm FormOf(const LayoutInfo& layout, const Field& field) {
  const auto known = std::ranges::find_if(kForms, [&](const KnownForm& form) {
    return form.layout == layout.name && form.field == field.name;
  });
  return known == std::end(kForms) ? FieldForm::kStored : known->form;
}

bool IsSame(const Dimension& a, const Dimension& b) {
  return a.base == b.base && a.count == b.count;
}

// Returns what a column name contains after the name of the field, for one index.
std::string Suffix(const Dimension& dimension, int index) {
  constexpr Dimension kBySex{0, 2};
  if (IsSame(dimension, kBySex)) return index == 0 ? "_men" : "_ladies";
  return "_" + std::to_string(index);
}

bool HasHex(const Field& field, FieldForm form) {
  return field.type == FieldType::kSingle || field.type == FieldType::kDouble ||
         field.type == FieldType::kDate || form == FieldForm::kDay || form == FieldForm::kTime;
}

ColumnType TypeOf(const Field& field, FieldForm form) {
  if (form == FieldForm::kBoolean || form == FieldForm::kBitZero) return ColumnType::kBoolean;
  if (form == FieldForm::kDay || form == FieldForm::kTime) return ColumnType::kText;
  switch (field.type) {
    case FieldType::kSingle:
    case FieldType::kDouble:
      return ColumnType::kReal;
    case FieldType::kDate:
    case FieldType::kCurrency:
    case FieldType::kText:
      return ColumnType::kText;
    default:
      return ColumnType::kInteger;
  }
}

// Returns the position of each index of `by` among the indexes of a field. Returns fewer positions
// if the field lacks an index.
std::vector<std::size_t> PositionsOf(std::span<const IndexColumn> by, const Field& field) {
  std::vector<std::size_t> positions;
  for (const IndexColumn& index : by) {
    for (std::size_t i = 0; i < field.rank; ++i) {
      if (IsSame(field.dimensions[i], index.dimension)) positions.push_back(i);
    }
  }
  return positions;
}

}  // namespace

RecordColumns::RecordColumns(const LayoutInfo& layout, std::span<const IndexColumn> by,
                             std::span<const RecordColumns> others, std::string_view only)
    : by_(by.begin(), by.end()) {
  for (const Field& field : layout.fields) {
    const bool is_elsewhere =
        std::ranges::any_of(others, [&](const RecordColumns& other) { return other.Has(field); });
    const bool is_wanted = only.empty() ? !field.name.empty() : field.name == only;
    if (is_wanted && !is_elsewhere) AddField(layout, field);
  }
}

void RecordColumns::AddField(const LayoutInfo& layout, const Field& field) {
  const std::vector<std::size_t> positions = PositionsOf(by_, field);
  if (positions.size() < by_.size()) return;
  Element element{&field, FormOf(layout, field), field.offset, {}};
  Field rest = field;  // has the other indexes only
  rest.rank = 0;
  for (std::size_t i = 0; i < field.rank; ++i) {
    const auto position = std::ranges::find(positions, i);
    if (position != positions.end()) {
      element.strides[static_cast<std::size_t>(position - positions.begin())] = field.strides[i];
    } else {
      rest.dimensions[rest.rank] = field.dimensions[i];
      rest.strides[rest.rank++] = field.strides[i];
    }
  }
  for (std::size_t nth = 0; nth < rest.Count(); ++nth) {
    const std::vector<int> indexes = IndexesOf(rest, nth);
    std::string name(field.name);
    for (std::size_t i = 0; i < rest.rank; ++i) name += Suffix(rest.dimensions[i], indexes[i]);
    element.offset = rest.OffsetOfNth(nth);
    AddElement(element, name);
  }
}

void RecordColumns::AddElement(const Element& element, const std::string& name) {
  elements_.push_back(element);
  if (element.form == FieldForm::kTourFlags) {
    columns_.push_back({name + "_locked", ColumnType::kBoolean});
    columns_.push_back({name + "_sent", ColumnType::kBoolean});
    return;
  }
  columns_.push_back({name, TypeOf(*element.field, element.form)});
  if (HasHex(*element.field, element.form)) columns_.push_back({name + "_hex", ColumnType::kText});
}

bool RecordColumns::Has(const Field& field) const {
  return std::ranges::any_of(elements_,
                             [&](const Element& element) { return element.field == &field; });
}

std::size_t RecordColumns::OffsetOf(const Element& element, std::span<const int> indexes) const {
  std::size_t offset = element.offset;
  for (std::size_t i = 0; i < by_.size(); ++i) {
    offset += static_cast<std::size_t>(indexes[i] - by_[i].dimension.base) * element.strides[i];
  }
  return offset;
}

bool RecordColumns::IsBlank(std::string_view record, std::span<const int> indexes) const {
  return std::ranges::all_of(elements_, [&](const Element& element) {
    const std::string_view bytes = record.substr(OffsetOf(element, indexes), element.field->width);
    return element.field->type == FieldType::kText
               ? IsBlankBytes(bytes)
               : std::ranges::all_of(bytes, [](char byte) { return byte == 0; });
  });
}

void RecordColumns::AddTo(ExportRow& row, std::string_view record,
                          std::span<const int> indexes) const {
  for (const Element& element : elements_) {
    const std::string_view bytes = record.substr(OffsetOf(element, indexes), element.field->width);
    AddShownValue(row, element.field->type, element.form, bytes);
  }
}

}  // namespace golf
