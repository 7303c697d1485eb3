#pragma once

#include <algorithm>
#include <string>

#include "core/text.h"
#include "support/bytes.h"
#include "support/test_host.h"

namespace golf {

inline constexpr std::size_t kLeaguePlayerBytes = 8012;

// Return Zandel's records by their offsets, with a pattern in the bytes without a name.
inline std::string LeagueControl(const std::string& name, int last_substitute, int players,
                                 int event) {
  std::string bytes = Pattern(405);
  PutText(bytes, 2, 40, name);
  Put16(bytes, 82, {last_substitute});
  Put16(bytes, 88, {players, 1, 12, event});
  return bytes;
}

inline std::string LeaguePlayer(int id, const std::string& first, const std::string& last,
                                float handicap = 7.251f, int event = 2) {
  std::string bytes = Pattern(kLeaguePlayerBytes);
  Put(bytes, 4, {id});
  PutText(bytes, 8, 15, first);
  PutText(bytes, 23, 15, last);
  Put16(bytes, 382, {id % 3});
  std::fill_n(bytes.begin() + 870, 100, '\0');  // no scores
  Put(bytes, 1270 + 4 * (static_cast<std::size_t>(event) - 1), {handicap});
  return bytes;
}

// Opens a screen with a button of the menu, and presses `start` there. Returns the log of the
// screen after its run, also if an error ends the run.
template <class AnyScreen>
std::string TransferFromMenu(TestInstall& install, const char* button,
                             const char* start = "TransferButton") {
  std::string log;
  ClickErrorOf([&] {
    install.Open("TransferMenu", [&](Screen& screen) {
      if (screen.name() == "TransferMenu") return install.host->Press(screen, button);
      auto* const transfer = dynamic_cast<AnyScreen*>(&screen);
      if (transfer == nullptr) return;
      install.host->Press(screen, start);
      log = transfer->Message.text();
    });
  });
  return log;
}

// Files that a run refuses, and the event that says so.
struct BadInput {
  const char* file;
  std::string bytes;
  const char* event;
};
inline BadInput BadControl(const std::string& bytes) {
  return {"zddata/00011.ZL8", bytes, "error 9"};
}

}  // namespace golf
