#include "forms/host_base.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/while_set.h"
#include "history/hold_failed.h"

namespace golf {

HostBase::HostBase(SharedState& state, ScreenCatalogue catalogue)
    : state_(state), catalogue_(std::move(catalogue)) {
  state_.Now = [this] { return Now(); };
}

HostBase::~HostBase() { state_.Now = nullptr; }

void HostBase::Operate(Screen& screen, const std::function<void()>& event) {
  const std::shared_ptr<Screen> alive = screen.shared_from_this();
  Operate(event);
}

void HostBase::Operate(Screen& screen, const Control& control, const std::function<void()>& event) {
  if (!control.IsReachable()) return;
  if (in_run_ && &control == screen.RunCancelButton()) return event();
  Operate(screen, event);
}

void HostBase::Operate(const std::function<void()>& event) {
  if (in_run_) return;
  try {
    event();
    state_.files.Synchronize();
  } catch (const NumberedError& error) {
    state_.files.Synchronize();
    ErrorEndsClick(error);
  } catch (const HoldFailed& error) {
    state_.files.Synchronize();
    ErrorEndsClick(error.cause());
  } catch (const Stopped&) {
    state_.files.Synchronize();
    RunStopped();
  } catch (...) {
    state_.files.Synchronize();
    throw;
  }
}

Screen* HostBase::Top() const {
  const auto top = std::find_if(shown_.rbegin(), shown_.rend(),
                                [](const Screen* screen) { return screen->Tip() == nullptr; });
  return top == shown_.rend() ? nullptr : *top;
}

bool HostBase::IsShown(const Screen& screen) const {
  return std::find(shown_.begin(), shown_.end(), &screen) != shown_.end();
}

bool HostBase::IsShown(std::string_view name) const {
  return std::any_of(shown_.begin(), shown_.end(),
                     [name](const Screen* screen) { return screen->name() == name; });
}

bool HostBase::HasScreen(std::string_view name) const {
  return catalogue_.find(name) != catalogue_.end();
}

Screen& HostBase::Load(std::string_view name) {
  for (const auto& screen : loaded_) {
    if (screen->name() == name) return *screen;
  }
  const auto maker = catalogue_.find(name);
  if (maker == catalogue_.end()) {
    throw NumberedError(ErrorNumber::kBadCall, "There is no screen " + std::string(name) + ".");
  }
  const std::shared_ptr<Screen> screen = maker->second({state_, *this});
  loaded_.push_back(screen);
  try {
    screen->OnLoad();
  } catch (...) {
    std::erase(loaded_, screen);
    throw;
  }
  return *screen;
}

void HostBase::BringUp(Screen& screen) {
  state_.files.Synchronize();
  shown_.push_back(&screen);
  try {
    Open(screen);
    screen.OnActivate();
  } catch (const NumberedError&) {
    Drop(screen);
    throw;
  }
}

void HostBase::ShowModal(Screen& screen) {
  const std::shared_ptr<Screen> alive = screen.shared_from_this();
  if (IsShown(screen)) {
    throw NumberedError(ErrorNumber::kBadCall, "The screen " + screen.name() + " is open already.");
  }
  BringUp(screen);
  if (!IsShown(screen)) return;
  const WhileSet takes_input(in_run_, false);  // a modal screen accepts input in a run
  RunModal(screen);
}

void HostBase::Show(Screen& screen) {
  const std::shared_ptr<Screen> alive = screen.shared_from_this();
  state_.files.Synchronize();
  if (!IsShown(screen)) BringUp(screen);
}

void HostBase::Hide(Screen& screen) {
  if (std::erase(shown_, &screen) > 0) Close(screen);
}

void HostBase::Unload(Screen& screen) {
  const std::shared_ptr<Screen> alive = screen.shared_from_this();
  if (std::find(loaded_.begin(), loaded_.end(), alive) == loaded_.end()) return;
  try {
    screen.OnUnload();
  } catch (const NumberedError&) {
    Drop(screen);  // a failed save does not keep the screen open
    throw;
  }
  Drop(screen);
}

void HostBase::Drop(Screen& screen) {
  const std::shared_ptr<Screen> alive = screen.shared_from_this();
  Hide(screen);
  std::erase(loaded_, alive);
}

BoxButton HostBase::Ask(const Box& box) {
  state_.files.Synchronize();
  return ShowBox(box);
}

std::string HostBase::Ask(const InputBox& box) {
  state_.files.Synchronize();
  return ShowInputBox(box);
}

Font HostBase::AskForFont(std::string_view title, const Font& current) {
  state_.files.Synchronize();
  return ShowFontChoice(title, current);
}

std::string HostBase::AskForPath(const std::string& title, const std::string& current) {
  state_.files.Synchronize();
  return ShowPathChoice(title, current);
}

std::string HostBase::AskForFolder(const std::string& title, const std::string& utf8_current) {
  state_.files.Synchronize();
  return ShowFolderChoice(title, utf8_current);
}

void HostBase::NoteCount(std::string_view name, std::int64_t count) {
  counts_.emplace_back(name, count);
}

void HostBase::NoteUnfinishedRun(const std::string& text) {
  met_unfinished_run_ = true;
  Notify(text);
}

std::uint32_t HostBase::Seed() {
  constexpr double kSecondsOfDay = 86400;
  return static_cast<std::uint32_t>(std::llround(std::fmod(Now(), 10000) * kSecondsOfDay));
}

void HostBase::ForgetScreens() {
  shown_.clear();
  loaded_.clear();
}

}  // namespace golf
