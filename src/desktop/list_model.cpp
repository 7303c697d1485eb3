#include "desktop/list_model.h"

#include "core/number_text.h"
#include "desktop/wx_text.h"

namespace golf {

ListModel::ListModel(Binding& binding, Grid& control) : binding_(binding), control_(control) {}

bool ListModel::CatchUp() {
  ticks_.clear();
  for (int column = 0; column <= control_.columns(); ++column) {
    ticks_.push_back(control_.cell_type(column) == CellType::kCheckBox);
  }
  const auto rows = static_cast<std::size_t>(control_.rows());
  const bool is_resized = rows != shown_.size();
  shown_.resize(rows, Row(static_cast<std::size_t>(control_.columns()) + 1));
  for (std::size_t row = 0; row < rows; ++row) {
    if (CopyRow(row) && !is_resized) RowChanged(static_cast<unsigned>(row));
  }
  if (is_resized) Reset(static_cast<unsigned>(rows));
  return is_resized;
}

// Copies the texts of a row, from 0, that differ. Returns true if there were any.
bool ListModel::CopyRow(std::size_t row) {
  bool differs = false;
  for (std::size_t column = 0; column < shown_[row].size(); ++column) {
    const std::string& text = control_.text(static_cast<int>(column), static_cast<int>(row) + 1);
    if (shown_[row][column] == text) continue;
    shown_[row][column] = text;
    differs = true;
  }
  return differs;
}

bool ListModel::ToggleTick(int column, int row) {
  if (binding_.IsReleased() || row > control_.rows() || control_.IsLocked(column, row))
    return false;
  const bool ticked = LeadingNumber(control_.text(column, row)) != 0;
  binding_.Operate(control_, [&] { control_.Enter(column, row, ticked ? "0" : "1"); });
  return true;
}

void ListModel::GetValueByRow(wxVariant& value, unsigned row, unsigned column) const {
  const std::string& text = shown_.at(row).at(column);
  if (ticks_.at(column)) {
    value = LeadingNumber(text) != 0;
  } else {
    value = WxText(text);
  }
}

bool ListModel::SetValueByRow(const wxVariant&, unsigned row, unsigned column) {
  return ticks_.at(column) && ToggleTick(static_cast<int>(column), static_cast<int>(row) + 1);
}

bool ListModel::IsEnabledByRow(unsigned row, unsigned column) const {
  return binding_.IsReleased() || !ticks_.at(column) ||
         !control_.IsLocked(static_cast<int>(column), static_cast<int>(row) + 1);
}

}  // namespace golf
