// Tests of the focus, and of the events that wait until it has moved.

#include <gtest/gtest.h>
#include <wx/app.h>

#include <string>

#include "desktop/demo_desktop.h"
#include "desktop/operator.h"
#include "screens/courses/course_tee.h"
#include "screens/rosters/load_roster.h"

namespace golf {
namespace {

template <class Event>
void Send(wxWindow& widget, Event event) {
  event.SetEventObject(&widget);
  widget.HandleWindowEvent(event);
}

// The screen handles a new focus after the toolkit has finished with it, but before the operator's
// next event.
TEST(FocusTest, WhatWaitsGoesBeforeWhatComesLater) {
  Demo<BoxlessHost> demo;
  wxTopLevelWindow& window = demo.Show("CourseTee");
  auto& tee = dynamic_cast<CourseTee&>(demo.host.Load("CourseTee"));
  std::string heard;
  tee.FTeeName.on_leave = [&] { heard += "left,"; };
  tee.FTeeNameAbv.on_change = [&] { heard += "typed,"; };
  tee.OKButton.on_click = [&] { heard += "pressed,"; };
  const auto go_on_to = [&](const char* name) {
    tee.MoveFocus(&tee.FTeeName);
    demo.host.PaintNow();
    heard.clear();
    wxWindow& widget = *wxWindow::FindWindowByName(name, &window);
    Send(widget, wxFocusEvent(wxEVT_SET_FOCUS));
    EXPECT_EQ(heard, "");
    return &widget;
  };
  Send(*go_on_to("OKButton"), wxCommandEvent(wxEVT_BUTTON));
  EXPECT_EQ(heard, "left,pressed,");
  Send(*go_on_to("FTeeNameAbv"), wxCommandEvent(wxEVT_TEXT));
  EXPECT_EQ(heard, "left,typed,");
  go_on_to("FTeeNameAbv");
  Send(window, wxKeyEvent(wxEVT_CHAR_HOOK));
  EXPECT_EQ(heard, "left,");
}

TEST(FocusTest, ALostFocusGoesWhereItDoesNoHarm) {
  Demo<BoxlessHost> demo;
  demo.Show("LoadRoster");
  auto& picker = dynamic_cast<LoadRoster&>(demo.host.Load("LoadRoster"));
  const auto focus_after_hiding = [&](std::initializer_list<Control*> hidden) {
    Control* const focused = *hidden.begin();
    focused->SetVisible(true);
    picker.NewRosterFrame.SetVisible(true);
    picker.MoveFocus(focused);
    for (Control* control : hidden) control->SetVisible(false);
    demo.host.PaintNow();
    wxTheApp->ProcessPendingEvents();
    return picker.focus()->name();
  };
  TextBox& name = picker.NewRosterName;
  EXPECT_EQ(focus_after_hiding({&name}), "grid1");  // not the button that leaves
  EXPECT_EQ(focus_after_hiding({&name, &picker.grid1}), "DeleteButton");
  EXPECT_EQ(focus_after_hiding({&name, &picker.NewRosterFrame, &picker.DeleteButton,
                                &picker.NewButton, &picker.LoadButton}),
            "CancelButton");
}

// Posts the scores of a league, and then presses the keys that have started the run once more.
TEST(FocusTest, KeysAfterATransferPostNothingAgain) {
  Demo<DesktopHost> demo;
  DesktopHost& host = demo.host;
  Operator user;
  host.Show(host.Load("TransferMenu"));
  user.Press("ZDtoKVButton");
  user.Press("SourceButton");
  for (const int key : {WXK_END, WXK_RETURN}) user.Type("LeagueList", key);  // Saturday Eighteen
  user.Press("DestButton");
  user.When(
      "the picker", [&] { return host.IsShown("LoadRoster"); },
      [&] { dynamic_cast<LoadRoster&>(host.Load("LoadRoster")).grid1.SetActiveRow(1); });
  user.Press("LoadButton");
  user.Await("the roster", [&] { return !host.IsShown("LoadRoster"); });
  user.Press("TransferButton");
  user.Answer("Notice", "Transfer Complete...2 scores transfered.");
  const auto scores = [&] {
    const TempFolder& folder = demo.install.folder;
    return folder.Read("kvdata/CLUB18.kvs") + folder.Read("kvdata/CLUB18.kvg");
  };
  std::string posted;
  user.When(
      "the focus in the log", [&] { return host.Load("ZDtoKV").focus()->name() == "Message"; },
      [&] {
        posted = scores();
        for (int i = 0; i < 3; ++i) {
          user.TypeNow(WXK_RETURN);
          user.TypeNow(WXK_SPACE);
        }
      });
  user.Press("ExitButton");
  user.Await("the menu", [&] { return !host.IsShown("ZDtoKV"); });
  user.Press("ExitButton");
  user.RunProgram();
  EXPECT_EQ(posted == scores(), true);
}

}  // namespace
}  // namespace golf
