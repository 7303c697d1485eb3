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

// Replaces the operating system's formats of dates and times.
struct RegionalOverrides {
  std::optional<std::string> short_date;
  std::optional<std::string> long_time;
};

// Creates and owns the platform, the shared state with its store objects, and the transactions. A
// front end adds a host.
class Application {
 public:
  explicit Application(std::unique_ptr<Platform> platform);

  SharedState& state() { return state_; }
  static ScreenCatalogue Screens();

  // Prepares the shared state. It must be called before the first screen is opened.
  void Start(DateValue now, const RegionalOverrides& overrides);

 private:
  std::unique_ptr<Platform> platform_;
  HeldPlatform held_;
  SharedState state_;
  Transactions transactions_;
};

// True if the operator can open a screen of this name directly. False for the tip box, the sort
// dialog and the screens of one course, which only other screens open.
bool CanOpenScreen(const ScreenHost& host, std::string_view name);

// Opens a screen by its name, and returns when it is closed. `word` controls the behaviour of the
// screen; it is often empty. Raises error 5 if CanOpenScreen is false.
void OpenScreen(SharedState& state, ScreenHost& host, std::string_view name, std::string_view word);

}  // namespace golf
