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

// The world around a screen. Errors of a screen that it opens pass through to the caller.
class ScreenHost {
 public:
  virtual ~ScreenHost() = default;

  // True if a screen of this name exists.
  virtual bool HasScreen(std::string_view name) const = 0;
  // Returns the loaded screen of this name, and loads it without showing it if need be. Error 5 if
  // there is no such screen.
  virtual Screen& Load(std::string_view name) = 0;
  // Shows a loaded screen and returns when it is hidden or unloaded.
  virtual void ShowModal(Screen& screen) = 0;
  // Shows a loaded screen and returns at once.
  virtual void Show(Screen& screen) = 0;
  // Closes the window of a screen but keeps the screen loaded.
  virtual void Hide(Screen& screen) = 0;
  // Closes and unloads a screen. The call may come from one of its own events.
  virtual void Unload(Screen& screen) = 0;

  virtual BoxButton Ask(const Box& box) = 0;
  virtual std::string Ask(const InputBox& box) = 0;
  virtual Font AskForFont(std::string_view title, const Font& current) = 0;

  virtual void Beep() = 0;
  virtual void SetPointer(Pointer pointer) = 0;

  // From BeginRun to EndRun the host paints but takes no input.
  virtual void BeginRun() = 0;
  // Reports the progress of a run and shows other changes of its screen.
  virtual void Report(const Progress& progress) = 0;
  virtual void EndRun() = 0;
  // Notes a count of a run's result under the name that scripts know.
  virtual void NoteCount(std::string_view name, std::int64_t count) = 0;
  // Notes a fault that does not end the run.
  virtual void NoteFault(const NumberedError& fault) = 0;

  // Notes the error that ended a run, if the screen itself shows it to the operator.
  virtual void NoteRunEnded(const NumberedError& error) = 0;

  // Shows the operator that an interrupted run stands in the way of a change, which was refused.
  virtual void NoteUnfinishedRun(const std::string& text) = 0;
  // Shows the operator a text that needs no answer. Scripts do not see it as a box.
  virtual void Notify(const std::string& text) = 0;

  // Starts a program with its arguments and does not wait for it. Raises an error if it cannot be
  // started.
  virtual void StartProgram(const std::string& path, const std::string& arguments) = 0;
  virtual DateValue Now() = 0;
  // Returns the seed of random figures. It depends only on Now, so that a run can be repeated.
  virtual std::uint32_t Seed() = 0;
  // Copies a text to the clipboard.
  virtual void CopyText(const std::string& text) = 0;
  // Ends the process when the running event returns.
  virtual void EndProcess() = 0;
};

// Returns the loaded screen of a class.
template <class AnyScreen>
AnyScreen& Load(ScreenHost& host) {
  return dynamic_cast<AnyScreen&>(host.Load(AnyScreen::kName));
}

}  // namespace golf
