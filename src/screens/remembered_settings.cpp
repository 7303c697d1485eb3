#include "screens/remembered_settings.h"

#include <string>

#include "core/resume_next.h"
#include "forms/grid.h"
#include "screens/settings_file.h"

namespace golf {
namespace {

constexpr int kGridColumn = 2;
constexpr int kFirstGridRow = 2;  // the operator cannot choose row 1

std::string PathOf(const SharedState& state, const Screen& screen) {
  return state.StoreDataPath + screen.name() + ".DAT";
}

void Write(const Control& control, SettingsWriter& to) {
  if (const auto* toggle = dynamic_cast<const Toggle*>(&control)) to.Number(toggle->value());
  if (const auto* list = dynamic_cast<const List*>(&control)) to.Number(list->index());
  if (const auto* box = dynamic_cast<const TextBox*>(&control)) to.Text(box->text());
  if (const auto* grid = dynamic_cast<const Grid*>(&control)) {
    for (int row = kFirstGridRow; row <= grid->rows(); ++row) to.Text(grid->text(kGridColumn, row));
  }
}

bool CellTakes(const Grid& grid, const std::string& text) {
  return grid.cell_type(kGridColumn) != CellType::kCheckBox || text == "0" || text == "1";
}

void Read(Control& control, SettingsReader& from) {
  if (auto* toggle = dynamic_cast<Toggle*>(&control)) {
    const auto value = from.Number();
    if (value == 0 || value == 1) toggle->SetValue(*value == 1);
  }
  if (auto* list = dynamic_cast<List*>(&control)) {
    if (const auto index = from.Number()) list->Select(*index);
  }
  if (auto* box = dynamic_cast<TextBox*>(&control)) {
    if (auto text = from.Text()) box->SetText(std::move(*text));
  }
  if (auto* grid = dynamic_cast<Grid*>(&control)) {
    for (int row = kFirstGridRow; row <= grid->rows(); ++row) {
      const auto text = from.Text();
      if (text && CellTakes(*grid, *text)) grid->SetText(kGridColumn, row, *text);
    }
  }
}

}  // namespace

void WriteSettings(SharedState& state, const Screen& screen, std::span<Control* const> controls) {
  SettingsWriter writer;
  for (const Control* control : controls) Write(*control, writer);
  WriteSettingsFile(state, PathOf(state, screen), writer);
}

void ReadSettings(SharedState& state, const Screen& screen, std::span<Control* const> controls) {
  if (!state.remembers_settings) return;
  SettingsReader reader = ReadSettingsFile(state, PathOf(state, screen));
  const ResumeNext silently(nullptr);
  for (Control* control : controls) {
    silently([&] { Read(*control, reader); });
  }
}

}  // namespace golf
