#include "screens/history/change_preview.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

#include "core/text.h"
#include "screens/table_export.h"

namespace golf {
namespace {

// Describes an entry of the list of kinds.
struct Filter {
  const char* text;
  std::optional<ChangeRowKind> kind;
};

const Filter kFilters[] = {{"everything", std::nullopt},
                           {"only added", ChangeRowKind::kAdded},
                           {"only changed", ChangeRowKind::kChanged},
                           {"only removed", ChangeRowKind::kRemoved},
                           {"only left out", ChangeRowKind::kLeftOut}};

// Contains the texts of a use of the list.
struct UseTexts {
  const char* caption;
  const char* go_on;  // the caption of the button, or null for none
  const char* close;
  const char* before;
  const char* after;
};

constexpr UseTexts kUses[] = {{"What would change", "&Transfer now", "Close", "Before", "After"},
                              {"What changed", nullptr, "Close", "Before", "After"},
                              {"What changed since", "&Undo the rest", "Cancel", "Written", "Now"}};

std::string ChangeRow::*TextOfColumn(int column) {
  constexpr std::string ChangeRow::*kTexts[] = {&ChangeRow::title, &ChangeRow::field,
                                                &ChangeRow::before, &ChangeRow::after};
  return kTexts[column - 1];
}

}  // namespace

ChangePreview::ChangePreview(const ScreenContext& context)
    : Screen(kName, context), ChangeList("ChangeList", kAfterColumn) {
  Add({&CountsLabel, &NoteLabel, &FilterLabel, &FilterBox, &KindLabel, &KindList, &ChangeList,
       &CopyButton, &SaveButton, &TransferNowButton, &CloseButton});
  ChangeList.SetHidden(0, true);
  ChangeList.SetHeading(kFieldColumn, "Field");
  ChangeList.LockAllColumns();
  for (const Filter& filter : kFilters) KindList.AddItem(filter.text);
  KindList.Select(0);
  CloseButton.SetCancel(true);
  FilterBox.on_change = [this] { FillList(); };
  KindList.on_click = [this] { FillList(); };
  ChangeList.on_heading_click = [this](int column) { SortBy(column); };
  CopyButton.on_click = [this] { CopyLines(host(), GridLines(ChangeList)); };
  SaveButton.on_click = [this] {
    SaveText(state(), host(), {"Save as CSV", "Changes.csv", ".csv", "The changes were"},
             CsvText(GridLines(ChangeList)));
  };
  TransferNowButton.on_click = [this] {
    goes_on_ = true;
    host().Unload(*this);
  };
  CloseButton.on_click = [this] { host().Unload(*this); };
}

void ChangePreview::SetUse(ChangeListUse use) {
  const UseTexts& texts = kUses[static_cast<std::size_t>(use)];
  SetCaption(texts.caption);
  CloseButton.SetCaption(texts.close);
  ChangeList.SetHeading(kBeforeColumn, texts.before);
  ChangeList.SetHeading(kAfterColumn, texts.after);
  TransferNowButton.SetVisible(texts.go_on != nullptr);
  if (texts.go_on != nullptr) TransferNowButton.SetCaption(texts.go_on);
}

bool ChangePreview::Show(ChangeListUse use, ChangeTable table, const std::string& note) {
  const auto alive = shared_from_this();
  SetUse(use);
  ChangeList.SetHeading(kTitleColumn, table.title_heading);
  CountsLabel.SetCaption(std::move(table.counts));
  NoteLabel.SetCaption(note);
  NoteLabel.SetVisible(!note.empty());
  lines_.clear();
  for (ChangeRow& row : table.rows) {
    std::string searched =
        UpperCase(row.title + '\n' + row.field + '\n' + row.before + '\n' + row.after);
    lines_.push_back({std::move(row), std::move(searched)});
  }
  FillList();
  host().ShowModal(*this);
  return goes_on_;
}

// `wanted` is in capitals.
bool ChangePreview::IsWanted(const Line& line, const std::string& wanted) const {
  const auto& kind = kFilters[std::max(KindList.index(), 0)].kind;
  if (kind && line.row.kind != *kind) return false;
  return line.searched.find(wanted) != std::string::npos;
}

void ChangePreview::FillList() {
  ChangeList.SetRepainting(false);
  ChangeList.SetRows(static_cast<int>(lines_.size()));
  const std::string wanted = UpperCase(FilterBox.text());
  int count = 0;
  for (const Line& line : lines_) {
    if (!IsWanted(line, wanted)) continue;
    ++count;
    for (int column = kTitleColumn; column <= kAfterColumn; ++column) {
      ChangeList.SetText(column, count, line.row.*TextOfColumn(column));
    }
  }
  ChangeList.SetRows(count);
  ChangeList.SetRepainting(true);
}

// Sorts by a column, or in the other direction if the list is sorted by this column already.
void ChangePreview::SortBy(int column) {
  if (column < kTitleColumn || column > kAfterColumn) return;
  descending_ = sorted_by_ == column && !descending_;
  sorted_by_ = column;
  const auto text = TextOfColumn(column);
  std::stable_sort(lines_.begin(), lines_.end(), [&](const Line& a, const Line& b) {
    const ChangeRow& first = descending_ ? b.row : a.row;
    const ChangeRow& second = descending_ ? a.row : b.row;
    return CompareIgnoringCase(first.*text, second.*text) < 0;
  });
  FillList();
}

}  // namespace golf
