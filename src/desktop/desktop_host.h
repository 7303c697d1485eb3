#pragma once

#include <wx/utils.h>

#include <chrono>
#include <functional>
#include <optional>
#include <string>
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

  void Beep() override;
  void SetPointer(Pointer pointer) override;
  void BeginRun() override;
  void Report(const Progress& progress) override;
  void EndRun() override;
  void NoteLeftOut(const LeftOut&) override {}  // no window shows it
  void Notify(const std::string& text) override;
  void StartProgram(const std::string& path, const std::string& arguments) override;
  DateValue Now() override { return clock(); }
  void CopyText(const std::string& text) override;
  void EndProcess() override;

 protected:
  void Open(Screen& screen) override;
  void RunModal(Screen& screen) override;
  void Close(Screen& screen) override;
  BoxButton ShowBox(const Box& box) override;
  std::string ShowInputBox(const InputBox& box) override;
  Font ShowFontChoice(std::string_view title, const Font& current) override;
  void ErrorEndsClick(const NumberedError& error) override;
  void RunStopped() override { EndProcess(); }

  // Shows all changes and paints the windows. Accepts no input.
  void PaintNow();

 private:
  struct Window {
    const Screen* screen;
    ScreenPanel* panel;
  };

  wxTopLevelWindow* TopWindow() const;
  std::vector<Window>::iterator Find(const Screen& screen);
  bool PaintIsDue() const;
  void SetInRun(bool in_run);
  void ForgetTypedInput();
  wxWindow* ReadyForBox();
  void ShowFaultsSoon();

  ViewCatalogue views_;
  std::vector<Window> windows_;  // bottom first
  std::chrono::steady_clock::time_point painted_;
  Progress reported_;              // of the current run, without its text
  std::size_t faults_before_ = 0;  // the faults of earlier runs
  std::optional<wxBusyCursor> busy_;
  std::optional<wxBusyCursor> busy_in_run_;
};

}  // namespace golf
