#include "cli/picker_presses.h"

#include <algorithm>

#include "cli/commands.h"
#include "core/code_page.h"
#include "core/text.h"
#include "screens/rosters/load_roster.h"
#include "screens/rosters/load_rosters.h"
#include "stores/zandel/zandel_files.h"

namespace golf {
namespace {

// Makes the row with this text in a column active. Returns false if there is no such row.
bool ChooseRow(HeadlessHost& host, Screen& screen, Grid& grid, int column,
               const std::string& text) {
  for (int row = 1; row <= grid.rows(); ++row) {
    if (!EqualIgnoringCase(grid.text(column, row), text)) continue;
    host.Operate(screen, [&] { grid.SetActiveRow(row); });
    return true;
  }
  return false;
}

}  // namespace

void PickKelvaneRoster(HeadlessHost& host, Screen& picker, const std::string& name) {
  auto& rosters = dynamic_cast<LoadRoster&>(picker);
  if (!ChooseRow(host, picker, rosters.grid1, 2, name)) {
    throw Refusal("Kelvane has no roster " + Utf8FromText(name) + ".");
  }
  host.Press(picker, "LoadButton");
}

void PickQuenbyRoster(HeadlessHost& host, Screen& picker, int number) {
  auto& rosters = dynamic_cast<LoadRosters&>(picker);
  constexpr int kMostRoster = 999;  // the transfer screens store three digits of the number
  if (number > kMostRoster) throw Refusal("A roster above 999 cannot be transferred to.");
  if (number < 0) throw Refusal("Quenby has no roster " + std::to_string(number) + ".");
  const std::string key = std::to_string(number == 0 ? -1 : number);
  if (!ChooseRow(host, picker, rosters.grid1, 0, key)) {
    throw Refusal("Quenby has no roster " + std::to_string(number) + ".");
  }
  host.Press(picker, "LoadButton");
}

void PickLeague(HeadlessHost& host, Screen& screen, std::string_view finder, LeaguePicker& picker,
                const std::string& base) {
  const auto& items = picker.LeagueList.items();
  const auto item = std::find_if(items.begin(), items.end(), [&](const std::string& listed) {
    return EqualIgnoringCase(LeagueBase(listed), base);
  });
  if (item == items.end()) throw Refusal("There is no league " + Utf8FromText(base) + ".");
  host.Press(screen, finder);
  host.Operate(screen, [&] { picker.LeagueList.Select(static_cast<int>(item - items.begin())); });
  host.Press(screen, "OKLEague");
}

void Tick(HeadlessHost& host, Screen& screen, CheckBox& box, const std::string& why) {
  if (!box.IsShown()) throw Refusal(why);
  host.Operate(screen, [&] { box.Choose(true); });
}

}  // namespace golf
