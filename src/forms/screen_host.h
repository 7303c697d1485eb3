#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/date_value.h"
#include "core/numbered_error.h"
#include "core/progress.h"
#include "forms/dialogs.h"
#include "forms/screen.h"

namespace golf {

enum class Pointer { kNormal, kBusy };

// All that a screen may ask of the world. Errors of the screens that it opens travel through it.
class ScreenHost {
 public:
  virtual ~ScreenHost() = default;

  // Whether a screen of this name can be opened.
  virtual bool HasScreen(std::string_view name) const = 0;
  // The loaded screen of this name; loads it, unseen, if it is not. Error 5 for a name that stands
  // for no screen.
  virtual Screen& Load(std::string_view name) = 0;
  // Shows a loaded screen and returns when it is unloaded or hidden.
  virtual void ShowModal(Screen& screen) = 0;
  // Shows a loaded screen and returns at once.
  virtual void Show(Screen& screen) = 0;
  // Takes a screen away but keeps it loaded.
  virtual void Hide(Screen& screen) = 0;
  // Takes a screen away for good. The caller may be one of its events.
  virtual void Unload(Screen& screen) = 0;

  virtual BoxButton Ask(const Box& box) = 0;
  virtual std::string Ask(const InputBox& box) = 0;
  virtual Font AskForFont(std::string_view title, const Font& current) = 0;

  virtual void Beep() = 0;
  virtual void SetPointer(Pointer pointer) = 0;

  // From BeginRun to EndRun the host takes no input; only painting goes on.
  virtual void BeginRun() = 0;
  // Shows how far the run is, and whatever else has changed on its screen.
  virtual void Report(const Progress& progress) = 0;
  virtual void EndRun() = 0;
  // A count of the run's result, by the name that scripts know.
  virtual void NoteCount(std::string_view name, std::int64_t count) = 0;
  // A fault that a run carries on over.
  virtual void NoteFault(const NumberedError& fault) = 0;

  // The error that ended a run, where the screen itself tells the operator of it.
  virtual void NoteRunEnded(const NumberedError& error) = 0;

  // Tells the operator something that needs no answer and that scripts do not see as a box.
  virtual void Notify(const std::string& text) = 0;

  // Starts a program with its arguments and does not wait. Fails where it cannot be started.
  virtual void StartProgram(const std::string& path, const std::string& arguments) = 0;
  virtual DateValue Now() = 0;
  // Where made-up figures start from: the same at the same moment, so that a run can be repeated.
  virtual std::uint32_t Seed() = 0;
  // Puts a text where other programs can paste it from.
  virtual void CopyText(const std::string& text) = 0;
  // Ends the process when the running event returns.
  virtual void EndProcess() = 0;
};

// The loaded screen of a class, as ScreenHost::Load gives it by its name.
template <class AnyScreen>
AnyScreen& Load(ScreenHost& host) {
  return dynamic_cast<AnyScreen&>(host.Load(AnyScreen::kName));
}

}  // namespace golf
