#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/shared_state.h"
#include "forms/screen.h"

namespace golf {

// What differs between the screens that pick a league.
struct LeaguePickerUse {
  const char* panel;  // the name of the picker's frame
  const char* tag;    // of the list while it is open: "SOURCE" or "DEST"
  const char* label;
  Frame& main;     // gives way to the picker
  Button& finder;  // opens the picker
  Button& leave;   // closes the screen; is what Escape presses while the panel is closed
  // Puts the league where the screen shows it; its last five characters are its base.
  std::function<void(std::string)> take;
  // Whether Escape leaves the screen again once a league was picked; else only after a cancel.
  bool pick_gives_escape_back = true;
};

// The panel on which the operator picks one of Zandel's leagues. It replaces the main panel.
// The screen that owns it adds the panel and, into it, the picker's controls.
class LeaguePicker {
 public:
  LeaguePicker(SharedState& state, Screen& screen, LeaguePickerUse use);
  LeaguePicker(const LeaguePicker&) = delete;
  LeaguePicker& operator=(const LeaguePicker&) = delete;

  // Closes all files of the process and lists the leagues anew. Errors as ListLeagues.
  void Fill();
  std::vector<Control*> Controls() {
    return {&LoadLeagueLabel, &LeagueList, &OKLEague, &CancelLeague};
  }
  bool IsOpen() const { return Panel.visible(); }
  // What of an item is meant to be read.
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
