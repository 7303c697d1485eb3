#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/platform.h"
#include "core/shared_state.h"
#include "forms/host_base.h"
#include "history/transactions.h"

namespace golf {

// What may stand in place of the system's own regional forms.
struct RegionalOverrides {
  std::optional<std::string> short_date;
  std::optional<std::string> long_time;
};

// The program put together: the platform, the shared state with its store objects, and the screens
// by their names. A front end adds a host.
class Application {
 public:
  explicit Application(std::unique_ptr<Platform> platform);

  SharedState& state() { return state_; }
  static ScreenCatalogue Screens();

  // All that comes before the first screen.
  void Start(DateValue now, const RegionalOverrides& overrides);

 private:
  std::unique_ptr<Platform> platform_;
  HeldPlatform held_;
  SharedState state_;
  Transactions transactions_;
};

// Whether a name stands for a screen that somebody opens. The message box, the sort dialog
// and the screens of one course are opened by other screens, with something in hand.
bool CanOpenScreen(const ScreenHost& host, std::string_view name);

// Opens a screen by its name as its opener does, and returns when it is gone. `word` is what the
// opener tells the screen, often nothing. Error 5 for a name that stands for no screen.
void OpenScreen(SharedState& state, ScreenHost& host, std::string_view name, std::string_view word);

}  // namespace golf
