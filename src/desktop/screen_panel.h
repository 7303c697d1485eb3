#pragma once

#include <wx/gauge.h>
#include <wx/panel.h>
#include <wx/scrolwin.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/timer.h>
#include <wx/toplevel.h>

#include <memory>
#include <vector>

#include "core/left_out.h"
#include "desktop/binding.h"

namespace golf {

// Contains the widgets of a screen's window. The view of the screen adds them. The panel is in a
// scrolled window, which scrolls if the window is too small for the panel. The host calls SetInRun
// when a run begins and ends.
class ScreenPanel : public wxPanel {
 public:
  ScreenPanel(wxTopLevelWindow& window, HostBase& host, Screen& screen);
  ~ScreenPanel() override;

  // Describes a widget that is smaller on a small display.
  struct Flexible {
    wxWindow* widget;
    wxSize preferred;
    wxSize least;
  };

  wxTopLevelWindow& window() const { return window_; }
  Binding& binding() { return binding_; }
  wxScrolledWindow& scroller() const { return dynamic_cast<wxScrolledWindow&>(*GetParent()); }
  // Returns the part of the window below the panel. It does not scroll. It is the parent of the
  // buttons that must always be visible.
  wxPanel* foot() const { return foot_; }

  std::vector<Flexible>& flexible() { return flexible_; }
  // Returns the rows that become columns if they are wider than the display.
  std::vector<wxBoxSizer*>& folding_rows() { return folding_rows_; }
  // True if the display is too small for the usual gaps of the window.
  bool is_tight() const { return is_tight_; }
  void SetTight() { is_tight_ = true; }

  // Notes the client size of the window, to which the program has set it. Another size later is the
  // choice of the operator.
  void NoteSize() { noted_size_ = window_.GetClientSize(); }
  const wxSize& noted_size() const { return noted_size_; }

  // Creates a gauge that is visible during a run. The caller must reserve its space.
  wxGauge* MakeGauge(wxWindow* parent);

  // Sets the log that is scrolled into view when a run begins and ends.
  void SetLog(wxTextCtrl& log) { log_ = &log; }

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
  void ScrollTo(const wxWindow& widget);
  void OnClose(wxCloseEvent& event);
  void OnCharHook(wxKeyEvent& event);
  void ShowHelpSoon();
  void MoveFocusByTab(bool backward);

  wxTopLevelWindow& window_;
  HostBase& host_;
  Screen* screen_;
  Binding binding_;
  wxPanel* foot_;
  std::vector<Flexible> flexible_;
  std::vector<wxBoxSizer*> folding_rows_;
  bool is_tight_ = false;
  wxSize noted_size_;
  wxGauge* gauge_ = nullptr;
  wxTextCtrl* log_ = nullptr;
  wxPanel* left_out_ = nullptr;
  wxStaticText* left_out_heading_ = nullptr;
  wxTextCtrl* left_out_list_ = nullptr;
  bool menu_is_open_ = false;
  std::vector<std::unique_ptr<wxTimer>> timers_;
};

}  // namespace golf
