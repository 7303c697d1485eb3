#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/shared_state.h"
#include "forms/screen.h"

namespace golf {

// The differences between the screens that pick a league.
struct LeaguePickerUse {
  const char* panel;  // the name of the picker's frame
  const char* tag;    // the tag of the list while it is open: "SOURCE" or "DEST"
  const char* label;
  Frame& main;     // hidden while the picker is open
  Button& finder;  // opens the picker
  Button& leave;   // closes the screen; Escape presses it while the picker is closed
  // Takes the picked league; its last five characters are its base.
  std::function<void(std::string)> take;
  // True: Escape presses `leave` again after a pick. False: only after a cancel.
  bool pick_gives_escape_back = true;
};

// The panel on which the operator picks one of Zandel's leagues. It replaces the main panel. Its
// screen adds the panel and puts the picker's controls into it.
class LeaguePicker {
 public:
  LeaguePicker(SharedState& state, Screen& screen, LeaguePickerUse use);
  LeaguePicker(const LeaguePicker&) = delete;
  LeaguePicker& operator=(const LeaguePicker&) = delete;

  // Closes all files of the process and lists the leagues. Errors as ListLeagues.
  void Fill();
  std::vector<Control*> Controls() {
    return {&LoadLeagueLabel, &LeagueList, &OKLEague, &CancelLeague};
  }
  bool IsOpen() const { return Panel.visible(); }
  // Returns the part of an item that is shown to the operator, without the base.
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
