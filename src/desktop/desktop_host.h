#pragma once

#include <wx/utils.h>

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "desktop/views.h"
#include "forms/host_base.h"

namespace golf {

// Implements the host that shows windows. It opens only screens that have a view. It must be
// destroyed before the toolkit is shut down; its destructor destroys its windows.
class DesktopHost : public HostBase {
 public:
  DesktopHost(SharedState& state, const ScreenCatalogue& screens, ViewCatalogue views);
  ~DesktopHost() override;

  // Returns the current date and time. The default is the system clock.
  std::function<DateValue()> clock;
  // Opens the install in a folder, in UTF-8. May destroy this host.
  std::function<void(const std::string& utf8_folder)> on_open_install;
  // The place where the menu opens, if it is set.
  std::optional<wxPoint> menu_position;

  // Returns the window in front, or null if there is none.
  wxTopLevelWindow* TopWindow() const;

  void Beep() override;
  void SetPointer(Pointer pointer) override;
  void ShowModal(Screen& screen) override;
  void BeginRun() override;
  void Report(const Progress& progress) override;
  void EndRun() override;
  void NoteLeftOut(const LeftOut& left_out) override;
  void Notify(const std::string& text) override;
  void NoteUnfinishedRun(const std::string& text) override;
  void StartProgram(const std::string& path, const std::string& arguments) override;
  void OpenInBrowser(const std::string& utf8_path) override;
  DateValue Now() override { return clock(); }
  void CopyText(const std::string& text) override;
  void SuggestRow(Screen& screen, Grid& list, int row) override;
  std::string AfterCancel(const std::string& before, const std::string&) override { return before; }
  bool OpensDespite(const std::string& text) override;
  std::string DocumentsFolder() override;
  void OpenInstall(const std::string& utf8_folder) override;
  void EndProcess() override;

 protected:
  void Open(Screen& screen) override;
  void RunModal(Screen& screen) override;
  void Close(Screen& screen) override;
  BoxButton ShowBox(const Box& box) override;
  std::string ShowInputBox(const InputBox& box) override;
  std::string ShowPathChoice(const std::string& title, const std::string& current) override;
  std::string ShowFolderChoice(const std::string& title, const std::string& utf8_current) override;
  Font ShowFontChoice(std::string_view title, const Font& current) override;
  void ErrorEndsClick(const NumberedError& error) override;
  void RunStopped() override;

  // Shows all changes and paints the windows. Accepts no input.
  void PaintNow();

 private:
  struct Window {
    const Screen* screen;
    ScreenPanel* panel;
  };

  // Contains what happened to the boxes of one kind in the current run.
  struct Repeats {
    int boxes = 0;
    std::optional<BoxButton> answer;  // for the rest of the run
  };
  using BoxKind = std::pair<std::string, std::vector<BoxButton>>;  // the title and the buttons

  wxString ShownText(const Box& box) const;
  bool IsRepeated(const Box& box);
  BoxButton AskRepeated(const Box& box);
  void KeepSizeOf(const Window& window);
  std::vector<Window>::iterator Find(const Screen& screen);
  bool PaintIsDue() const;
  void SetInRun(bool in_run);
  void ShowTitles();
  void ForgetTypedInput();
  // Shows a box of any kind. Calls `show` with the parent window of the box and returns its result.
  template <class Function>
  auto OverTopWindow(Function show);
  wxWindow* ReadyForBox();
  void ShowFaultsSoon();
  void ShowLeftOut(const Screen& screen);
  void ShowSoon(Box box);

  ViewCatalogue views_;
  std::vector<Window> windows_;  // bottom first
  std::chrono::steady_clock::time_point painted_;
  std::map<BoxKind, Repeats> repeats_;
  Screen* run_by_ = nullptr;       // the screen of the current run
  Progress reported_;              // of the current run, without its text
  LeftOut left_out_;               // by the current run
  std::size_t faults_before_ = 0;  // the faults of earlier runs
  std::optional<wxBusyCursor> busy_;
  std::optional<wxBusyCursor> busy_in_run_;
  const std::shared_ptr<const bool> alive_ = std::make_shared<const bool>(true);
};

}  // namespace golf
