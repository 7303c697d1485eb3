// Tests the places and the sizes of windows, and which window is active.

#include <gtest/gtest.h>
#include <wx/display.h>
#include <wx/stdpaths.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "desktop/demo_desktop.h"
#include "desktop/layout_helpers.h"
#include "desktop/operator.h"
#include "screens/outlets/check_data.h"
#include "support/temp_folder.h"

namespace golf {
namespace {

// Runs a command and returns what it prints.
std::string OutputOf(const std::string& command) {
  const TempFolder folder;
  if (std::system((command + " >" + folder.Path("output")).c_str()) != 0) return {};
  return folder.Read("output");
}

TEST(WindowTest, AWindowOutsideTheDisplayIsMovedOntoIt) {
  Demo<BoxlessHost> demo;
  wxTopLevelWindow& window = demo.Show("GridSort");
  const wxRect area = wxDisplay(&window).GetClientArea();
  const wxPoint last = area.GetBottomRight() + wxPoint(1, 1) - window.GetSize();
  const wxPoint inside = area.GetTopLeft() + wxPoint(7, 9);
  const struct {
    wxPoint place;
    wxPoint expected;
  } kCases[] = {{inside, inside},
                {{last.x + 1, inside.y}, {last.x, inside.y}},
                {{inside.x, area.GetBottom()}, {inside.x, last.y}},
                {area.GetTopLeft() - wxPoint(20, 30), area.GetTopLeft()}};
  for (const auto& c : kCases) {
    MoveOntoDisplay(window, c.place);
    EXPECT_EQ(window.GetPosition(), c.expected) << c.place.x << ", " << c.place.y;
  }
}

// The mouse and Escape press the button during a run. All other widgets are disabled.
TEST(WindowTest, OnlyTheCancelButtonWorksDuringARun) {
  for (const bool by_key : {false, true}) {
    SCOPED_TRACE(by_key);
    Demo<BoxlessHost> demo;
    wxTopLevelWindow& window = demo.Show("CheckData");
    RunEvents(kWindowTime);
    auto& screen = dynamic_cast<CheckData&>(demo.host.Load("CheckData"));
    const auto widget = [&](const char* name) { return WidgetsNamed(window, name).front(); };
    const auto press = [&](const char* name) {
      wxCommandEvent click(wxEVT_BUTTON, widget(name)->GetId());
      click.SetEventObject(widget(name));
      widget(name)->HandleWindowEvent(click);
    };
    int reports = 0;
    demo.host.Operate([&] {
      EXPECT_FALSE(screen.run.Run([&](const ReportProgress& report) {
        for (; reports < 3; ++reports) {
          report({.done = reports, .total = 3, .doing = "a file"});
          demo.host.PaintNow();
          EXPECT_TRUE(widget("CancelButton")->IsEnabled());
          EXPECT_TRUE(widget("Progress")->IsShown());
          for (const char* name : {"CheckButton", "FindingList", "KindList", "ExitButton"}) {
            EXPECT_FALSE(widget(name)->IsEnabled()) << name;
          }
          press("ExitButton");
          EXPECT_TRUE(demo.host.IsShown("CheckData"));
          if (reports < 1) continue;
          wxKeyEvent key(wxEVT_CHAR_HOOK);
          key.m_keyCode = WXK_ESCAPE;
          by_key ? void(widget("CancelButton")->HandleWindowEvent(key)) : press("CancelButton");
          RunEvents(kWindowTime);
        }
      }));
    });
    EXPECT_EQ(reports, 2);
    demo.host.PaintNow();
    EXPECT_FALSE(widget("CancelButton")->IsEnabled());
    EXPECT_TRUE(widget("CheckButton")->IsEnabled());
    press("CheckButton");
    EXPECT_GT(screen.FindingList.rows(), 0);
    window.Close();
    EXPECT_FALSE(demo.host.IsShown("CheckData"));
  }
}

// Prints the sizes with which the menu and a dialog open, and makes both larger. The next test runs
// this one in separate processes.
TEST(WindowTest, DISABLED_OpensAndGrows) {
  Demo<BoxlessHost> demo;
  wxTopLevelWindow* window = nullptr;
  for (const char* screen : {"TransferMenu", "TransferHistory"}) {
    window = &demo.Show(screen);
    const wxSize size = window->GetClientSize();
    std::printf("\nsize of %s %d %d\n", screen, size.x, size.y);
    window->SetClientSize(size + wxSize(40, 30));
  }
  window->Close();
}

TEST(WindowTest, ASizeIsKeptForTheNextProcess) {
  const auto opened = [] {
    const std::string output =
        OutputOf("\"" + wxStandardPaths::Get().GetExecutablePath().utf8_string() +
                 "\" --gtest_also_run_disabled_tests --gtest_filter=*.DISABLED_OpensAndGrows");
    std::vector<wxSize> sizes;
    for (const std::string start : {"size of TransferMenu ", "size of TransferHistory "}) {
      wxSize& size = sizes.emplace_back();
      const char* at = output.c_str() + std::min(output.find(start), output.size());
      std::sscanf(at, (start + "%d %d").c_str(), &size.x, &size.y);
      EXPECT_GT(size.x, 0) << start;
      size += wxSize(40, 30);
    }
    return sizes;
  };
  std::vector<wxSize> expected = opened();
  for (wxSize& size : expected) size += wxSize(40, 30);
  EXPECT_EQ(opened(), expected);
}

// Needs a window manager. tests/long/window_managers runs it under several ones.
TEST(WindowTest, DISABLED_TheDialogIsActiveAfterABox) {
  Demo<DesktopHost> demo;
  Operator user;
  demo.host.Show(demo.host.Load("TransferMenu"));
  const auto await_active = [&](const std::string& screen) {
    user.Await(screen + " as the active window", [&, screen] {
      return OutputOf("xdotool getactivewindow getwindowname") ==
             demo.host.Load(screen).caption() + "\n";
    });
  };
  await_active("TransferMenu");
  user.Press("ZDtoQBButton");
  await_active("ZDtoQB");
  user.Press("TransferButton");
  user.Answer("Message", "First select the source league");
  await_active("ZDtoQB");
  user.Press("CancelButton");
  await_active("TransferMenu");
  user.Press("KVtoQBButton");
  user.Press("DestButton");
  await_active("LoadRosters");
  user.Press("NewButton");
  user.Answer("New Roster", "Start a new roster?", 'N', wxMOD_ALT);
  await_active("LoadRosters");
  user.Press("CancelButton");
  await_active("KVtoQB");
  user.Press("ExitButton");
  user.RunToExit();
}

}  // namespace
}  // namespace golf
