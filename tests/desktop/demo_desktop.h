#pragma once

#include <wx/evtloop.h>
#include <wx/stopwatch.h>
#include <wx/toplevel.h>

#include <string>
#include <vector>

#include "app/application.h"
#include "app/demo/demo_install.h"
#include "desktop/desktop_host.h"
#include "screens/menu/recent_folders.h"
#include "screens/tip_box.h"
#include "stores/course/course_class.h"
#include "stores/course/course_library.h"
#include "stores/quenby/program_class.h"
#include "support/test_host.h"

namespace golf {

constexpr long kWindowTime = 100;  // milliseconds until the window system has shown a window

// Handles the events of the toolkit for this number of milliseconds.
inline void RunEvents(long time_allowed) {
  wxEventLoop loop;
  const wxEventLoopActivator active(&loop);
  for (const wxStopWatch time; time.Time() < time_allowed;) {
    while (loop.Pending() && time.Time() < time_allowed) loop.Dispatch();
    loop.ProcessIdle();
  }
}

// Returns the widgets of this name within a window, in the order of their creation.
inline std::vector<wxWindow*> WidgetsNamed(wxWindow& window, const wxString& name) {
  std::vector<wxWindow*> widgets;
  for (wxWindow* child : window.GetChildren()) {
    if (child->GetName() == name) widgets.push_back(child);
    const auto below = WidgetsNamed(*child, name);
    widgets.insert(widgets.end(), below.begin(), below.end());
  }
  return widgets;
}

// Is a host that answers boxes without showing them. Its function PaintNow is public for the tests.
class BoxlessHost : public DesktopHost {
 public:
  using DesktopHost::DesktopHost;
  using DesktopHost::PaintNow;

 protected:
  BoxButton ShowBox(const Box& box) override { return box.buttons.front(); }
  std::string ShowInputBox(const InputBox& box) override { return box.default_answer; }
};

// Prepares the shared state as a caller does before it opens a screen.
inline void Prepare(SharedState& state) {
  state.StoreDataPath = state.QBDataPath;
  state.Program().OpenMasterFile();
  state.Program().GetMasterRecord();
  state.Program().OpenRosterListFile();
  OpenCourseLibrary(state, *FindCourseLibrary("KV"));
  state.Course().GetRecord(1);
}

// Runs the desktop program on the demonstration install.
template <class Host>
struct Demo {
  Demo() {
    MakeDemoInstall(install.state());
    install.host.reset();
    install.state().Now = [this] { return host.Now(); };
    NoteRecentFolder(user, "/home/club/golf");
    host.user = &user;
  }

  // Shows a screen without any other one and returns its window.
  wxTopLevelWindow& Show(const std::string& name) {
    Prepare(install.state());
    Screen& screen = host.Load(name);
    if (auto* tip = dynamic_cast<TipBox*>(&screen)) {
      tip->SetMessageType(TipBox::kModelessNotice);
      tip->SetMessageText("Text");
    }
    host.Show(screen);
    return dynamic_cast<wxTopLevelWindow&>(*wxTopLevelWindows.GetLast()->GetData());
  }

  TestInstall install{false};
  UserProfile user;  // of a newcomer, so the menu shows the first steps
  Host host{install.state(), Application::Screens(), Views()};
};

}  // namespace golf
