#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/shared_state.h"
#include "forms/screen.h"

namespace golf {

// Describes how a screen uses the picker.
struct LeaguePickerUse {
  const char* panel;  // the name of the picker's frame
  const char* tag;    // the tag of the list while it is open: "SOURCE" or "DEST"
  const char* label;
  Frame& main;     // hidden while the picker is open
  Button& finder;  // opens the picker
  Button& leave;   // closes the screen; Escape presses it while the picker is closed
  // Is called with the text of the picked league. Its last five characters are the base of the
  // league's file names.
  std::function<void(std::string)> take;
  // If true, Escape presses `leave` again after the operator picks a league or cancels. If false,
  // only after a cancel.
  bool pick_gives_escape_back = true;
};

// Is a panel on which the operator picks one of Zandel's leagues. It is shown in place of the main
// panel. Its screen must add the panel and the controls of the picker.
class LeaguePicker {
 public:
  LeaguePicker(SharedState& state, Screen& screen, LeaguePickerUse use);
  LeaguePicker(const LeaguePicker&) = delete;
  LeaguePicker& operator=(const LeaguePicker&) = delete;

  // Closes all files of the process and lists the leagues. Raises the errors of ListLeagues.
  void Fill();
  std::vector<Control*> Controls() {
    return {&LoadLeagueLabel, &LeagueList, &OKLEague, &CancelLeague};
  }
  bool IsOpen() const { return Panel.visible(); }
  // Returns an item without the base at its end, as the operator sees it.
  static std::string HeadingOf(const std::string& item);

  Frame Panel;
  Label LoadLeagueLabel;
  ListBox LeagueList{"LeagueList"};
  Button OKLEague{"OKLEague", "&OK"};
  Button CancelLeague{"CancelLeague", "&Cancel"};

 private:
  void Open();
  void Close(bool give_escape_back);
  void Pick();

  SharedState& state_;
  Screen& screen_;
  LeaguePickerUse use_;
};

}  // namespace golf
