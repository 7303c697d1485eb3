// Walks over the windows of all screens. tests/CMakeLists.txt runs these tests on several displays:
// a small one, one with large text, and one with a dark theme.

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/button.h>
#include <wx/dataview.h>
#include <wx/display.h>
#include <wx/grid.h>
#include <wx/settings.h>
#include <wx/stattext.h>

#include <algorithm>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "desktop/colours.h"
#include "desktop/demo_desktop.h"
#include "desktop/screen_panel.h"
#include "screens/results/team_layout_builder.h"

namespace golf {
namespace {

constexpr long kKeyTime = 5;
constexpr double kReadable = 4.5;

void ForEachWidget(wxWindow& window, const std::function<void(wxWindow&)>& visit) {
  for (wxWindow* child : window.GetChildren()) {
    if (!child->IsShownOnScreen()) continue;
    visit(*child);
    if (!child->IsKindOf(wxCLASSINFO(wxGrid))) ForEachWidget(*child, visit);
  }
}

// True if the toolkit has laid out all lists. On a slow machine that takes some time.
bool AreListsLaidOut(wxWindow& window) {
  bool laid_out = true;
  ForEachWidget(window, [&laid_out](wxWindow& widget) {
    const auto* list = dynamic_cast<wxDataViewCtrl*>(&widget);
    if (list != nullptr && list->GetColumn(0)->GetWidth() == 0) laid_out = false;
  });
  return laid_out;
}

// Shows each screen in turn.
void ForEachWindow(const std::function<void(wxTopLevelWindow&, Screen&)>& visit) {
  for (const auto& view : Views()) {
    SCOPED_TRACE(view.first);
    Demo<BoxlessHost> demo;
    wxTopLevelWindow& window = demo.Show(view.first);
    Screen& screen = demo.host.Load(view.first);
    if (auto* builder = dynamic_cast<XReportsCustomTeamResults*>(&screen)) {
      builder->Timer1.SetInterval(0);  // it would close the screen, which has no layout
    }
    constexpr int kMostTimes = 100;
    RunEvents(kWindowTime);
    for (int i = 0; i < kMostTimes && !AreListsLaidOut(window); ++i) RunEvents(kWindowTime);
    visit(window, screen);
  }
}

ScreenPanel& PanelOf(const wxTopLevelWindow& window) {
  return dynamic_cast<ScreenPanel&>(*window.GetChildren().front()->GetChildren().front());
}

// Returns the names of the controls that the tab key must reach. It reaches only one option of a
// group.
std::set<std::string> NamesToReach(const Screen& screen) {
  std::set<std::string> names;
  for (const Control* control : screen.controls()) {
    const ControlKind kind = control->kind();
    const bool input = kind != ControlKind::kLabel && kind != ControlKind::kFrame &&
                       kind != ControlKind::kTimer && kind != ControlKind::kOptionButton;
    if (input && control->IsReachable()) names.insert(control->name());
  }
  return names;
}

// Returns the place in the window, as if nothing were scrolled. The foot is below everything.
wxRect PlaceOf(const wxWindow& widget) {
  constexpr int kBelow = 10000;
  wxRect place = widget.GetScreenRect();
  for (wxWindow* at = widget.GetParent(); at != nullptr; at = at->GetParent()) {
    if (const auto* panel = dynamic_cast<ScreenPanel*>(at)) {
      place.SetPosition(panel->scroller().CalcUnscrolledPosition(place.GetPosition()));
      return place;
    }
  }
  place.y += kBelow;
  return place;
}

// Presses the tab key until the first widget has the focus again. Returns all widgets that had the
// focus, in this order.
std::vector<wxWindow*> Tour(bool backward) {
  std::vector<wxWindow*> tour;
  constexpr std::size_t kMost = 100;
  while (tour.size() < kMost) {
    wxWindow* focus = wxWindow::FindFocus();
    if (focus == nullptr) return tour;
    wxKeyEvent tab(wxEVT_CHAR_HOOK);
    tab.m_keyCode = WXK_TAB;
    tab.SetShiftDown(backward);
    focus->HandleWindowEvent(tab);
    RunEvents(kKeyTime);
    focus = wxWindow::FindFocus();
    if (focus == nullptr) return tour;
    if (dynamic_cast<wxGrid*>(focus->GetParent()) != nullptr) focus = focus->GetParent();
    if (!tour.empty() && focus == tour.front()) return tour;
    tour.push_back(focus);
  }
  return tour;
}

TEST(ViewTest, TheTabKeyReachesEveryControlInReadingOrder) {
  ForEachWindow([](wxTopLevelWindow&, Screen& screen) {
    const std::vector<wxWindow*> tour = Tour(false);
    const std::vector<wxWindow*> back = Tour(true);
    EXPECT_EQ(std::set(tour.begin(), tour.end()), std::set(back.begin(), back.end()));
    std::set<std::string> missed = NamesToReach(screen);
    for (const wxWindow* widget : tour) missed.erase(widget->GetName().utf8_string());
    EXPECT_EQ(missed, std::set<std::string>());
    std::string jumps;  // against the reading order; the last widget jumps to the first one
    for (std::size_t i = 0; i < tour.size(); ++i) {
      const wxWindow& next = *tour[(i + 1) % tour.size()];
      const wxRect before = PlaceOf(*tour[i]);
      const wxRect after = PlaceOf(next);
      const bool reads = after.y + after.height / 2 > before.GetBottom() ||
                         after.x + after.width / 2 > before.GetRight() ||
                         before.Contains(after);  // the page of a tab control
      if (!reads) jumps += (tour[i]->GetName() + " to " + next.GetName() + "\n").utf8_string();
    }
    EXPECT_LE(std::count(jumps.begin(), jumps.end(), '\n'), 1) << jumps;
  });
}

TEST(ViewTest, WindowsFitTheDisplayAndCutNoText) {
  ForEachWindow([](wxTopLevelWindow& window, Screen&) {
    const wxRect area = wxDisplay(&window).GetClientArea();
    // A window manager may place a part of its frame outside the display.
    EXPECT_TRUE(area.Contains(wxRect(window.ClientToScreen(wxPoint()), window.GetClientSize())));
    const wxScrolledWindow& scroller = PanelOf(window).scroller();
    EXPECT_LE(scroller.GetVirtualSize().x, scroller.GetClientSize().x) << "scrolls sideways";
    const int line = window.GetCharHeight();
    ForEachWidget(window, [&](wxWindow& widget) {
      SCOPED_TRACE(widget.GetName());
      const wxSize size = widget.GetSize();
      const bool in_foot = widget.GetParent()->GetParent() == &window;
      if (widget.IsKindOf(wxCLASSINFO(wxButton))) {
        EXPECT_GE(size.x, widget.GetBestSize().x);
        if (in_foot) {
          EXPECT_TRUE(window.GetScreenRect().Contains(widget.GetScreenRect()));
        }
      }
      if (widget.IsKindOf(wxCLASSINFO(wxTextCtrl))) {
        EXPECT_GE(size.y, line + line / 2);
        const bool log = widget.HasFlag(wxTE_DONTWRAP);
        if (log) {
          // GTK counts the scroll bar, which long lines need, as a part of the log.
          const int bar = wxSystemSettings::GetMetric(wxSYS_HSCROLL_Y, &widget);
          EXPECT_GE(widget.GetClientSize().y - bar, 4 * widget.GetCharHeight());
          EXPECT_TRUE(widget.GetFont().IsFixedWidth());
        }
      }
      if (const auto* const list = dynamic_cast<const wxDataViewCtrl*>(&widget)) {
        const auto& model = dynamic_cast<const wxDataViewVirtualListModel&>(*list->GetModel());
        for (unsigned row = 0; row < std::min(model.GetCount(), 20u); ++row) {
          for (unsigned i = 0; i < list->GetColumnCount(); ++i) {
            wxVariant value;
            model.GetValueByRow(value, row, list->GetColumn(i)->GetModelColumn());
            if (value.GetType() != "string") continue;
            EXPECT_GE(list->GetColumn(i)->GetWidth(), list->GetTextExtent(value.GetString()).x)
                << value.GetString();
          }
        }
      }
      if (widget.IsKindOf(wxCLASSINFO(wxStaticText)) && widget.GetLabel() == "Handicap") {
        EXPECT_GE(size.x, widget.GetBestSize().x);
      }
    });
  });
}

// A run shows its progress and its log, and a widget that has the focus is scrolled into view.
TEST(ViewTest, TheContentScrollsToWhatIsUsed) {
  int logs = 0;
  ForEachWindow([&logs](wxTopLevelWindow& window, Screen&) {
    ScreenPanel& panel = PanelOf(window);
    const auto expect_visible = [&panel](const wxWindow* widget, const char* when) {
      if (widget == nullptr) return;
      EXPECT_TRUE(panel.scroller().GetScreenRect().Contains(widget->GetScreenRect()))
          << widget->GetName() << when;
    };
    std::vector<wxWindow*> entries;
    const wxWindow* log = nullptr;
    ForEachWidget(panel, [&](wxWindow& widget) {
      if (!widget.IsKindOf(wxCLASSINFO(wxTextCtrl)) || !widget.IsEnabled()) return;
      entries.push_back(&widget);
      if (widget.HasFlag(wxTE_DONTWRAP) && widget.GetName() == "Message") log = &widget;
    });
    if (log != nullptr) {
      ++logs;
      panel.SetInRun(true);
      RunEvents(kWindowTime);
      expect_visible(wxWindow::FindWindowByName("Progress", &panel), " in a run");
      panel.SetInRun(false);
      RunEvents(kWindowTime);
      expect_visible(log, " after a run");
    }
    for (wxWindow* entry : entries) {
      entry->SetFocus();
      RunEvents(kKeyTime);
      expect_visible(entry, " with the focus");
    }
  });
  EXPECT_EQ(logs, 4);
}

TEST(ViewTest, TheProgressOfARunIsShownWhole) {
  const std::string text = "Transferring Featherstone, Alexander";
  int labels = 0;
  ForEachWindow([&](wxTopLevelWindow& window, Screen& screen) {
    for (Control* control : screen.controls()) {
      auto* label = dynamic_cast<Label*>(control);
      if (control->name() != "Working" && control->name() != "TransferLabel") continue;
      ++labels;
      label->SetVisible(true);
      label->SetCaption(text);
      PanelOf(window).binding().Refresh();
      const wxWindow& widget = *wxWindow::FindWindowByName(control->name(), &window);
      EXPECT_EQ(widget.GetLabel(), text);
      EXPECT_GE(widget.GetSize().x, widget.GetTextExtent(text).x);
    }
  });
  EXPECT_EQ(labels, 8);
}

TEST(ViewTest, TextsAreReadable) {
  ForEachWindow([](wxTopLevelWindow& window, Screen&) {
    ForEachWidget(window, [](wxWindow& widget) {
      SCOPED_TRACE(widget.GetName());
      if (!widget.IsEnabled()) return;
      EXPECT_GE(Contrast(widget.GetForegroundColour(), widget.GetBackgroundColour()), kReadable)
          << widget.GetForegroundColour().GetAsString() << " on "
          << widget.GetBackgroundColour().GetAsString();
      const auto* grid = dynamic_cast<wxGrid*>(&widget);
      if (grid == nullptr) return;
      EXPECT_GE(Contrast(grid->GetDefaultCellTextColour(), grid->GetDefaultCellBackgroundColour()),
                kReadable);
      EXPECT_GE(Contrast(grid->GetLabelTextColour(), grid->GetLabelBackgroundColour()), kReadable);
      EXPECT_GE(Contrast(grid->GetSelectionForeground(),
                         grid->HasFocus() ? grid->GetSelectionBackground()
                                          : wxSystemSettings::GetColour(wxSYS_COLOUR_BTNSHADOW)),
                kReadable);
    });
  });
  for (const wxColour& background : {*wxWHITE, *wxBLACK, wxColour(246, 245, 244),
                                     wxColour(53, 53, 53), wxColour(120, 120, 120)}) {
    EXPECT_GE(Contrast(TextColour(background), background), kReadable);
  }
}

}  // namespace
}  // namespace golf
