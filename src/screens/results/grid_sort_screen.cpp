#include "screens/results/grid_sort_screen.h"

#include <algorithm>
#include <utility>

#include "core/number_text.h"
#include "core/text.h"

namespace golf {
namespace {

constexpr const char* kNoSort = "No sort";
constexpr const char* kAscending = "A-Z, 1-9";
constexpr const char* kDescending = "Z-A, 9-1";
constexpr std::size_t kBlanks = 60;  // between the heading and the column number of an entry
constexpr std::size_t kDigits = 3;

std::string OnOneLine(std::string heading) {
  for (const char* line_break : {"\r\n", "\r", "\n"}) {
    heading = ReplaceText(heading, line_break, " ", ReplaceMode::kExact);
  }
  return std::string(Trim(heading));
}

// Returns the column number at the end of a list entry, or 0 for "No sort".
int ColumnOf(const std::string& entry) {
  return RoundToInt16(LeadingNumber(LastCharacters(entry, kDigits)));
}

void Fill(List& list, const Grid& grid) {
  list.Clear();
  list.AddItem(kNoSort);
  for (int column = 1; column <= grid.columns(); ++column) {
    const std::string heading = OnOneLine(grid.heading(column));
    if (heading.empty()) continue;
    list.AddItem(heading + std::string(kBlanks, ' ') + FormatNumber(column, "000"));
  }
}

}  // namespace

GridSort::Options GridSort::MakeOptions(const char* name) {
  return {OptionButton(name, kAscending), OptionButton(name, kDescending)};
}

GridSort::GridSort(const ScreenContext& context) : Screen(kName, context), sorter_(context.state) {
  SetCaption("Sort by...");
  for (ComboBox& list : SortList) Add({&list});
  for (Label& label : SortLabel) Add({&label});
  for (Options* pair : options) {
    for (std::size_t i = 0; i < pair->size(); ++i) {
      OptionButton& option = (*pair)[i];
      OptionButton& other = (*pair)[1 - i];
      Add({&option});
      option.on_click = [&option, &other] { other.SetValue(!option.value()); };
    }
    pair->front().SetValue(true);
  }
  Add({&SortOK, &SortCancel, &Help, &WorkingLabel, &WorkingTime, &Frame1});
  SortOK.SetDefault(true);
  SortCancel.SetCancel(true);
  WorkingLabel.SetVisible(false);
  WorkingTime.SetVisible(false);
  SortOK.on_click = [this] {
    RunSort();
    Leave("OK");
  };
  SortCancel.on_click = [this] {
    SetLastRowToSort(0);
    Leave("Cancel");
  };
  Help.on_click = [this] { ShowHelp(); };
}

std::string GridSort::HeadingOf(const std::string& entry) {
  return ColumnOf(entry) == 0 ? entry : entry.substr(0, entry.size() - kBlanks - kDigits);
}

void GridSort::Choose(std::size_t i, const NamedSortKey& key) {
  const std::vector<std::string>& entries = SortList[i].items();
  const std::string name = OnOneLine(key.name);
  const auto entry = std::find_if(entries.begin(), entries.end(), [&](const std::string& known) {
    return EqualIgnoringCase(HeadingOf(known), name);
  });
  SortList[i].Select(entry == entries.end() ? 0 : static_cast<int>(entry - entries.begin()));
  options[i]->at(key.order == SortOrder::kDescending ? 1 : 0).Choose(true);
}

SortOrder GridSort::OrderOf(std::size_t i) const {
  return options[i]->back().value() ? SortOrder::kDescending : SortOrder::kAscending;
}

void GridSort::GridSetSortParameters(const NamedSortKeys& keys) {
  for (ComboBox& list : SortList) Fill(list, GridToSort());
  for (std::size_t i = 0; i < keys.size(); ++i) Choose(i, keys[i]);
}

void GridSort::GridAutoSort(const NamedSortKeys& keys) {
  GridSetSortParameters(keys);
  RunSort();
}

void GridSort::RunSort() {
  SortKeys keys;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    keys[i] = {ColumnOf(SortList[i].text()), OrderOf(i)};
  }
  sorter_.Sort(keys);
}

void GridSort::Leave(std::string action) {
  action_ = std::move(action);
  host().Hide(*this);
}

void GridSort::ShowHelp() {
  host().Ask(Box{.title = caption(),
                 .text = "Choose the column to sort by. Rows that are alike in it are sorted by "
                         "the next column that you choose, and then by the third one.",
                 .icon = BoxIcon::kInformation,
                 .window_help = name()});
}

void GridSort::HowPlayersAreSorted(Grid& grid, int column, int row) const {
  std::string text;
  for (std::size_t i = 0; i < SortList.size(); ++i) {
    const std::string entry = SortList[i].text();
    if (ColumnOf(entry) == 0) continue;
    text += text.empty() ? "Sort" : "\r\nNext sort";
    text += " by " + HeadingOf(entry) + " in order ";
    text += OrderOf(i) == SortOrder::kDescending ? kDescending : kAscending;
  }
  if (text.empty()) text = "How to Sort...";
  if (row == 0) return grid.SetHeading(column, text);
  grid.SetText(column, row, text);
}

std::string GridSort::HowSortedDescription() const {
  std::string text;
  for (const ComboBox& list : SortList) {
    const std::string entry = list.text();
    if (ColumnOf(entry) == 0) continue;
    text += (text.empty() ? "Sorted by " : " then by ") + HeadingOf(entry);
  }
  return text.empty() ? kNoSort : text;
}

GridSort& SharedGridSort(ScreenHost& host) { return Load<GridSort>(host); }

}  // namespace golf
