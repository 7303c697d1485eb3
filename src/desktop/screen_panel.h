#pragma once

#include <wx/gauge.h>
#include <wx/panel.h>
#include <wx/timer.h>
#include <wx/toplevel.h>

#include <memory>
#include <vector>

#include "desktop/binding.h"

namespace golf {

// All that the window of a screen holds. Its view fills it; the host tells it of runs.
class ScreenPanel : public wxPanel {
 public:
  ScreenPanel(wxTopLevelWindow& window, HostBase& host, Screen& screen);
  ~ScreenPanel() override;

  wxTopLevelWindow& window() const { return window_; }
  Binding& binding() { return binding_; }

  // A gauge that is seen while a run is on. Whoever lays it out keeps its place.
  wxGauge* MakeGauge(wxWindow* parent);

  void SetInRun(bool in_run);
  void ShowProgress(const Progress& progress);

  // The screen is no longer behind this window.
  void Detach();

 private:
  void FollowTimers();
  void OnClose(wxCloseEvent& event);
  void OnCharHook(wxKeyEvent& event);

  wxTopLevelWindow& window_;
  HostBase& host_;
  Screen* screen_;
  Binding binding_;
  wxGauge* gauge_ = nullptr;
  bool menu_is_open_ = false;
  std::vector<std::unique_ptr<wxTimer>> timers_;
};

}  // namespace golf
