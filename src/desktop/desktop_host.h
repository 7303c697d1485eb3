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

// The host with windows. Only screens that have a view can be opened. It lives while the toolkit
// runs, and takes all its windows with it.
class DesktopHost : public HostBase {
 public:
  DesktopHost(SharedState& state, const ScreenCatalogue& screens, ViewCatalogue views);
  ~DesktopHost() override;

  // The present moment; the clock's, unless it is set.
  std::function<DateValue()> clock;

  void Beep() override;
  void SetPointer(Pointer pointer) override;
  void BeginRun() override;
  void Report(const Progress& progress) override;
  void EndRun() override;
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

  // Shows all that has changed and lets the windows paint. No input is taken.
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
  std::vector<Window> windows_;  // from the bottom to the top
  std::chrono::steady_clock::time_point painted_;
  Progress reported_;              // of the run that is on, without its text
  std::size_t faults_before_ = 0;  // those of the runs before it
  std::optional<wxBusyCursor> busy_;
  std::optional<wxBusyCursor> busy_in_run_;
};

}  // namespace golf
