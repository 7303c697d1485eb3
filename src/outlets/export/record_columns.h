#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/field.h"
#include "outlets/export/export_row.h"
#include "outlets/export/export_table.h"
#include "outlets/export/shown_value.h"

namespace golf {

// Describes an index of a table of fields that becomes a column, such as the round.
struct IndexColumn {
  std::string_view name;
  Dimension dimension;
};

// Converts the fields of a record to columns. A field is a column of its own name. An element of a
// table of fields is a column whose name ends in its indexes, for example "MiscDate_2". In such a
// name "_men" and "_ladies" are the indexes 0 and 1 of a table by sex. Bytes without a name are
// left out.
//
// A column whose name ends in "_hex" follows each real number, date and time. It contains the
// stored bytes if these are no number or no date, or if a date or a time is not shown exactly.
// Otherwise it is null.
class RecordColumns {
 public:
  // Includes the named fields that have all indexes of `by` and are not in one of `others`. If
  // `only` is not empty, includes only the field of that name.
  RecordColumns() = default;
  RecordColumns(const LayoutInfo& layout, std::span<const IndexColumn> by,
                std::span<const RecordColumns> others, std::string_view only = {});

  const std::vector<ExportColumn>& columns() const { return columns_; }
  const std::vector<IndexColumn>& by() const { return by_; }

  // Adds the values of the elements with these indexes, one for each index of `by`.
  void AddTo(ExportRow& row, std::string_view record, std::span<const int> indexes) const;
  // Returns true if all elements with these indexes are empty. A number is empty if it is 0, and a
  // text if it contains only zeros and blanks.
  bool IsBlank(std::string_view record, std::span<const int> indexes) const;

 private:
  struct Element {
    const Field* field;
    FieldForm form;
    std::size_t offset;                                // of the first value
    std::array<std::size_t, Field::kMaxRank> strides;  // for each index of `by`
  };

  void AddField(const LayoutInfo& layout, const Field& field);
  void AddElement(const Element& element, const std::string& name);
  bool Has(const Field& field) const;
  std::size_t OffsetOf(const Element& element, std::span<const int> indexes) const;

  std::vector<IndexColumn> by_;
  std::vector<Element> elements_;
  std::vector<ExportColumn> columns_;
};

}  // namespace golf
