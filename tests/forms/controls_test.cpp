#include "forms/dialogs.h"
#include "forms/grid.h"
#include "forms/screen.h"
#include "support/test_host.h"

namespace golf {
namespace {

// Is a screen with one control of each of several kinds.
class Sampler : public Screen {
 public:
  explicit Sampler(const ScreenContext& context) : Screen("Sampler", context) {
    Add({&Pages, &Panel, &Tee[0], &Tee[1], &Name, &Find, &Ok});
    Pages.Hold(Panel, 1);
    Name.SetParent(Panel);
    Ok.SetDefault(true);
    Find.on_click = [this] { pressed += "find "; };
    Ok.on_click = [this] { pressed += "ok "; };
    Name.on_leave = [this] { pressed += "left "; };
  }
  Button* LeaveButton() override { return &Ok; }

  Tab Pages{"Pages", {"One", "Two"}};
  Frame Panel{"Panel"};
  std::array<Label, 2> Tee{Label("Tee"), Label("Tee")};
  TextBox Name{"Name"};
  Button Find{"Find", "Search && &Find"};
  Button Ok{"Ok", "OK"};
  std::string pressed;
};

TEST(ControlsTest, VisibilityFollowsFramesAndPages) {
  TestInstall install;
  Sampler screen({install.state(), *install.host});
  EXPECT_FALSE(screen.Name.IsShown());
  EXPECT_TRUE(screen.Pages.Choose(1));
  EXPECT_TRUE(screen.Name.IsShown());
  screen.Panel.SetEnabled(false);
  EXPECT_FALSE(screen.Name.IsUsable());
  screen.Panel.SetVisible(false);
  EXPECT_FALSE(screen.Name.IsShown());
  EXPECT_FALSE(screen.Pages.Choose(2));
}

TEST(ControlsTest, NamesKeysAndFocus) {
  TestInstall install;
  Sampler screen({install.state(), *install.host});
  EXPECT_EQ(screen.FindControl("tee"), &screen.Tee[0]);
  EXPECT_EQ(screen.FindControl("Tee(1)"), &screen.Tee[1]);
  EXPECT_EQ(screen.FindControl("Tee(2)"), nullptr);
  EXPECT_TRUE(screen.OnKey("Alt+f"));
  EXPECT_TRUE(screen.OnKey("Enter"));
  EXPECT_FALSE(screen.OnKey("Escape"));
  screen.Pages.Choose(1);
  screen.MoveFocus(&screen.Name);
  screen.MoveFocus(&screen.Find);
  EXPECT_EQ(screen.pressed, "find ok left ");
}

// A hidden or disabled control, or one in a hidden or disabled frame, gets no events. If it has the
// focus, it keeps it.
TEST(ControlsTest, WhatCannotBeReachedHasNoEvents) {
  TestInstall install;
  const auto screen = std::make_shared<Sampler>(ScreenContext{install.state(), *install.host});
  screen->Pages.Choose(1);
  const auto reached = [&](TextBox& box) {
    screen->MoveFocus(&screen->Find);
    screen->MoveFocus(&box);
    bool ran = false;
    install.host->Operate(*screen, box, [&] { ran = true; });
    EXPECT_EQ(screen->focus() == &box, ran);
    return ran;
  };
  EXPECT_TRUE(reached(screen->Name));
  for (Control* control : std::initializer_list<Control*>{&screen->Name, &screen->Panel}) {
    control->SetVisible(false);
    EXPECT_FALSE(reached(screen->Name));
    control->SetVisible(true);
    control->SetEnabled(false);
    EXPECT_FALSE(reached(screen->Name));
    control->SetEnabled(true);
  }
  screen->MoveFocus(&screen->Name);
  screen->Panel.SetVisible(false);
  EXPECT_EQ(screen->focus(), &screen->Name);
}

TEST(ControlsTest, GridCellsLocksAndEvents) {
  Grid grid("grid1", 2);
  int entered = 0;
  grid.on_change = [&](int, int) { ++entered; };
  grid.SetRows(3);
  grid.SetText(2, 3, "x");
  grid.Enter(1, 1, "y");
  EXPECT_EQ(entered, 1);
  grid.LockRow(1, true);
  grid.LockColumn(2, true);
  EXPECT_TRUE(grid.IsLocked(0, 1) && grid.IsLocked(2, 2) && !grid.IsLocked(1, 2));
  grid.SetActiveRow(3);
  grid.SetRows(2);
  EXPECT_EQ(grid.active_row(), 0);
  for (const auto& [column, row] : {std::pair(3, 1), {-1, 1}, {0, 0}, {0, 3}}) {
    EXPECT_EQ(ErrorOf([&, c = column, r = row] { grid.SetText(c, r, ""); }), 9);
  }
}

TEST(DialogsTest, FontsGoThereAndBack) {
  for (const char* description : {"Arial, 12", "Courier New, 9, bold", "Arial, 12, bold italic"}) {
    EXPECT_EQ(DescribeFont(ParseFont(description).value()), description);
  }
  for (const char* none : {"", "Arial", "Arial, x", ", 12"}) EXPECT_FALSE(ParseFont(none)) << none;
}

TEST(HeadlessHostTest, QueuedAnswersFitTheirBox) {
  TestInstall install;
  HeadlessHost& host = *install.host;
  const Box box{"T", "", BoxIcon::kQuestion, {BoxButton::kYes, BoxButton::kNo}, 1};
  host.QueueAnswer("T", "Yes", true);
  host.QueueAnswer("T", "no");
  EXPECT_EQ(host.Ask(box), BoxButton::kNo);  // an answer without `always` is used first
  EXPECT_EQ(host.Ask(box), BoxButton::kYes);
  EXPECT_EQ(host.Ask(box), BoxButton::kYes);
  EXPECT_EQ(host.bad_answer(), "");
  host.QueueAnswer("T", "Retry");
  EXPECT_EQ(host.Ask(box), BoxButton::kNo);  // the default, so that a run continues
  EXPECT_NE(host.bad_answer(), "");
  EXPECT_EQ(host.Ask(InputBox{"Kind?", "", "18"}), "18");
}

}  // namespace
}  // namespace golf
