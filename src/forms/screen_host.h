#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/date_value.h"
#include "core/left_out.h"
#include "core/numbered_error.h"
#include "core/progress.h"
#include "forms/dialogs.h"
#include "forms/screen.h"
#include "forms/user_profile.h"

namespace golf {

enum class Pointer { kNormal, kBusy };

// Is the interface through which a screen opens other screens and boxes and reports its runs. An
// error of a screen that is opened passes to the caller.
class ScreenHost {
 public:
  virtual ~ScreenHost() = default;

  // True if a screen of this name exists.
  virtual bool HasScreen(std::string_view name) const = 0;
  // Returns the screen of this name. Loads it without showing it if it is not loaded. Raises error
  // 5 if there is no such screen.
  virtual Screen& Load(std::string_view name) = 0;
  // Shows a loaded screen and returns when it is hidden or unloaded.
  virtual void ShowModal(Screen& screen) = 0;
  // Shows a loaded screen and returns at once.
  virtual void Show(Screen& screen) = 0;
  // Closes the window of a screen and keeps the screen loaded.
  virtual void Hide(Screen& screen) = 0;
  // Closes and unloads a screen. An event of the same screen may call it.
  virtual void Unload(Screen& screen) = 0;

  virtual BoxButton Ask(const Box& box) = 0;
  virtual std::string Ask(const InputBox& box) = 0;
  virtual Font AskForFont(std::string_view title, const Font& current) = 0;

  // Lets the operator choose the path of a new file or folder. Returns an empty text if he presses
  // Cancel.
  virtual std::string AskForPath(const std::string& title, const std::string& current) = 0;
  // Lets the operator choose an existing folder. Returns an empty text if he presses Cancel. Both
  // paths are in UTF-8.
  virtual std::string AskForFolder(const std::string& title, const std::string& utf8_current) = 0;

  virtual void Beep() = 0;
  virtual void SetPointer(Pointer pointer) = 0;

  // Between BeginRun and EndRun the host draws changes but accepts no input.
  virtual void BeginRun() = 0;
  // Shows the progress of a run and other changes of its screen.
  virtual void Report(const Progress& progress) = 0;
  virtual void EndRun() = 0;
  // Records a count of a run's result. `name` is the name that scripts use for it.
  virtual void NoteCount(std::string_view name, std::int64_t count) = 0;
  // Records what a run has left out. Is called after the run's commit.
  virtual void NoteLeftOut(const LeftOut& left_out) = 0;
  // Records a fault that does not end the run.
  virtual void NoteFault(const NumberedError& fault) = 0;

  // Records the error that ended a run, if the screen itself shows it to the operator.
  virtual void NoteRunEnded(const NumberedError& error) = 0;

  // Shows the operator that a change was refused because of an interrupted run.
  virtual void NoteUnfinishedRun(const std::string& text) = 0;
  // Shows the operator a text that needs no answer. Scripts do not receive it as a box.
  virtual void Notify(const std::string& text) = 0;

  // The following four are hints for a window. Other hosts ignore them.
  // Suggests the row of a list that the operator probably wants. A window makes it the active row
  // and moves the focus to the list.
  virtual void SuggestRow(Screen& screen, Grid& list, int row) = 0;
  // Returns the text of an entry after the operator has cancelled the picker that fills it. A
  // window keeps the text `before`. Other hosts enter the text `usual`.
  virtual std::string AfterCancel(const std::string& before, const std::string& usual) = 0;
  // Returns true if a screen must open although an error leaves it incomplete. A window shows the
  // text to the operator and returns true. Other hosts return false.
  virtual bool OpensDespite(const std::string& text) = 0;

  // Returns the folder of the user's documents, which ends in a separator, or an empty text.
  virtual std::string DocumentsFolder() = 0;

  // Starts a program with its arguments and does not wait for its end. Raises an error if the
  // program cannot be started.
  virtual void StartProgram(const std::string& path, const std::string& arguments) = 0;
  // Opens a web page, a file outside the install, in the browser and does not wait for its end.
  // Raises error 5 if no browser can be started.
  virtual void OpenInBrowser(const std::string& utf8_path) = 0;
  virtual DateValue Now() = 0;
  // Returns the start value of the random number generator that fills in made-up sample teams. It
  // is derived from Now(), so that the same Now() gives the same teams.
  virtual std::uint32_t Seed() = 0;
  // Copies a text to the clipboard.
  virtual void CopyText(const std::string& text) = 0;
  // Opens the install in another folder after the current event has returned, and closes this one.
  virtual void OpenInstall(const std::string& utf8_folder) = 0;
  // Returns what the program remembers of its user, or null if the host remembers nothing.
  virtual UserProfile* User() = 0;
  // Ends the process after the current event has returned.
  virtual void EndProcess() = 0;
};

// Returns the screen of this class. Loads it if it is not loaded.
template <class AnyScreen>
AnyScreen& Load(ScreenHost& host) {
  return dynamic_cast<AnyScreen&>(host.Load(AnyScreen::kName));
}

}  // namespace golf
