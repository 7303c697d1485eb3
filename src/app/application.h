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

// Replacements for the system's regional forms of dates and times.
struct RegionalOverrides {
  std::optional<std::string> short_date;
  std::optional<std::string> long_time;
};

// The assembled program: the platform, the shared state with its store objects, and the screens by
// their names. A front end adds a host.
class Application {
 public:
  explicit Application(std::unique_ptr<Platform> platform);

  SharedState& state() { return state_; }
  static ScreenCatalogue Screens();

  // Prepares the shared state. Must be called before the first screen.
  void Start(DateValue now, const RegionalOverrides& overrides);

 private:
  std::unique_ptr<Platform> platform_;
  HeldPlatform held_;
  SharedState state_;
  Transactions transactions_;
};

// True if the operator can open a screen of this name directly. Other screens open the message box
// with a memory, the sort dialog and the screens of one course.
bool CanOpenScreen(const ScreenHost& host, std::string_view name);

// Opens a screen by its name as its opener does, and returns when it is closed. `word` controls the
// behaviour of the screen; it is often empty. Error 5 if CanOpenScreen is false.
void OpenScreen(SharedState& state, ScreenHost& host, std::string_view name, std::string_view word);

}  // namespace golf
