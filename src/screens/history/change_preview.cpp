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
  ChangeList.SetHeading(kTitleColumn, "Golfer");
  ChangeList.SetHeading(kFieldColumn, "Field");
  for (int column = 0; column <= kAfterColumn; ++column) ChangeList.LockColumn(column, true);
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
  CountsLabel.SetCaption(std::move(table.counts));
  NoteLabel.SetCaption(note);
  NoteLabel.SetVisible(!note.empty());
  rows_ = std::move(table.rows);
  FillList();
  host().ShowModal(*this);
  return goes_on_;
}

bool ChangePreview::IsWanted(const ChangeRow& row) const {
  const auto& kind = kFilters[std::max(KindList.index(), 0)].kind;
  if (kind && row.kind != *kind) return false;
  const std::string wanted = UpperCase(FilterBox.text());
  if (wanted.empty()) return true;
  for (int column = kTitleColumn; column <= kAfterColumn; ++column) {
    if (UpperCase(row.*TextOfColumn(column)).find(wanted) != std::string::npos) return true;
  }
  return false;
}

void ChangePreview::FillList() {
  ChangeList.SetRepainting(false);
  ChangeList.SetRows(static_cast<int>(rows_.size()));
  int count = 0;
  for (const ChangeRow& row : rows_) {
    if (!IsWanted(row)) continue;
    ++count;
    for (int column = kTitleColumn; column <= kAfterColumn; ++column) {
      ChangeList.SetText(column, count, row.*TextOfColumn(column));
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
  std::stable_sort(rows_.begin(), rows_.end(), [&](const ChangeRow& a, const ChangeRow& b) {
    return CompareIgnoringCase(descending_ ? b.*text : a.*text, descending_ ? a.*text : b.*text) <
           0;
  });
  FillList();
}

}  // namespace golf
