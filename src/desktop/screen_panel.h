#pragma once

#include <wx/gauge.h>
#include <wx/panel.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/timer.h>
#include <wx/toplevel.h>

#include <memory>
#include <vector>

#include "core/left_out.h"
#include "desktop/binding.h"

namespace golf {

// Contains the widgets of a screen's window. The view of the screen adds them. The host calls
// SetInRun when a run begins and ends.
class ScreenPanel : public wxPanel {
 public:
  ScreenPanel(wxTopLevelWindow& window, HostBase& host, Screen& screen);
  ~ScreenPanel() override;

  wxTopLevelWindow& window() const { return window_; }
  Binding& binding() { return binding_; }

  // Creates a gauge that is visible during a run. The caller must reserve its space.
  wxGauge* MakeGauge(wxWindow* parent);

  // Creates the part that lists what a run has left out. It is hidden while the list is empty.
  wxWindow* MakeLeftOut(wxWindow* parent);
  // Returns false if the window has no such part.
  bool ShowLeftOut(const LeftOut& left_out);

  void SetInRun(bool in_run);
  // Shows the screen's caption in the title bar, after "Preview" if `preview` is true.
  void ShowTitle(bool preview);
  void ShowProgress(const Progress& progress);

  // Disconnects the window from its screen.
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
  wxPanel* left_out_ = nullptr;
  wxStaticText* left_out_heading_ = nullptr;
  wxTextCtrl* left_out_list_ = nullptr;
  bool menu_is_open_ = false;
  std::vector<std::unique_ptr<wxTimer>> timers_;
};

}  // namespace golf
