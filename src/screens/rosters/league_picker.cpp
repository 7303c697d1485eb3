#include "screens/rosters/league_picker.h"

#include <utility>

#include "core/text.h"
#include "stores/zandel/zandel_files.h"

namespace golf {
namespace {

// Returns the text of a chosen league that a screen stores. If the item begins with "L" and has a
// colon, this is only the part after the colon.
std::string ChosenLeague(std::string_view item) {
  const std::size_t colon = item.starts_with('L') ? item.find(':') : std::string_view::npos;
  return std::string(Trim(colon == std::string_view::npos ? item : item.substr(colon + 1)));
}

}  // namespace

LeaguePicker::LeaguePicker(SharedState& state, Screen& screen, LeaguePickerUse use)
    : Panel(use.panel),
      LoadLeagueLabel("LoadLeagueLabel", use.label),
      state_(state),
      screen_(screen),
      use_(std::move(use)) {
  Panel.SetVisible(false);
  use_.leave.SetCancel(true);
  use_.finder.on_click = [this] { Open(); };
  LeagueList.on_double_click = [this] { Pick(); };
  LeagueList.on_key = [this](std::string_view key) {
    const bool picks = EqualIgnoringCase(key, "Enter");
    if (picks) Pick();
    return picks;
  };
  OKLEague.on_click = [this] { Pick(); };
  CancelLeague.on_click = [this] { Close(true); };
}

void LeaguePicker::Fill() {
  LeagueList.Clear();
  for (const ListedLeague& league : ListLeagues(state_)) LeagueList.AddItem(league.Item());
  LeagueList.Select(LeagueList.items().empty() ? -1 : 0);
}

std::string LeaguePicker::HeadingOf(const std::string& item) {
  const std::string_view text = item;
  return std::string(TrimRight(text.substr(0, text.size() - LeagueBase(text).size())));
}

void LeaguePicker::Open() {
  LeagueList.SetTag(use_.tag);
  use_.main.SetVisible(false);
  Panel.SetVisible(true);
  use_.leave.SetCancel(false);
  CancelLeague.SetCancel(true);
  screen_.MoveFocus(&LeagueList);
}

void LeaguePicker::Close(bool give_escape_back) {
  Panel.SetVisible(false);
  use_.main.SetVisible(true);
  if (give_escape_back) {
    CancelLeague.SetCancel(false);
    use_.leave.SetCancel(true);
  }
  screen_.MoveFocus(&use_.finder);
}

void LeaguePicker::Pick() {
  Close(use_.pick_gives_escape_back);
  use_.take(ChosenLeague(LeagueList.text()));
}

}  // namespace golf
