#include "desktop/list_model.h"

#include <utility>

#include "core/number_text.h"
#include "desktop/wx_text.h"

namespace golf {

ListModel::ListModel(Binding& binding, Grid& control) : binding_(binding), control_(control) {}

bool ListModel::CatchUp() {
  std::vector<Row> now;
  for (int row = 1; row <= control_.rows(); ++row) now.push_back(RowOf(row));
  const std::vector<Row> before = std::exchange(shown_, std::move(now));
  if (before.size() != shown_.size()) {
    Reset(static_cast<unsigned>(shown_.size()));
    return true;
  }
  for (std::size_t i = 0; i < shown_.size(); ++i) {
    if (shown_[i] != before[i]) RowChanged(static_cast<unsigned>(i));
  }
  return false;
}

bool ListModel::ToggleTick(int column, int row) {
  if (control_.IsLocked(column, row)) return false;
  const bool ticked = LeadingNumber(control_.text(column, row)) != 0;
  binding_.Operate(control_, [&] { control_.Enter(column, row, ticked ? "0" : "1"); });
  return true;
}

void ListModel::GetValueByRow(wxVariant& value, unsigned row, unsigned column) const {
  const std::string& text = shown_.at(row).at(column);
  if (IsTick(column)) {
    value = LeadingNumber(text) != 0;
  } else {
    value = WxText(text);
  }
}

bool ListModel::SetValueByRow(const wxVariant&, unsigned row, unsigned column) {
  return IsTick(column) && ToggleTick(static_cast<int>(column), static_cast<int>(row) + 1);
}

bool ListModel::IsEnabledByRow(unsigned row, unsigned column) const {
  return !IsTick(column) || !control_.IsLocked(static_cast<int>(column), static_cast<int>(row) + 1);
}

ListModel::Row ListModel::RowOf(int row) const {
  Row cells;
  for (int column = 0; column <= control_.columns(); ++column) {
    cells.push_back(control_.text(column, row));
  }
  return cells;
}

bool ListModel::IsTick(unsigned column) const {
  return control_.cell_type(static_cast<int>(column)) == CellType::kCheckBox;
}

}  // namespace golf
