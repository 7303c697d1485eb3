#include "forms/dialogs.h"
#include "forms/grid.h"
#include "forms/screen.h"
#include "forms/type_ahead.h"
#include "screens/menu/transfer_menu.h"
#include "screens/tip_box.h"
#include "support/test_host.h"

namespace golf {
namespace {

using Events = std::vector<std::string>;

std::string Missing(TestInstall& install, const std::string& name) {
  return "message [Notice] Cannot transfer data because the " + name +
         " program is not installed in the '" + install.state().ProgramPath + "' folder -> OK";
}

// Opens the menu, presses a button and closes the menu with Close. Returns all events.
Events PressOnMenu(TestInstall& install, const std::string& button) {
  install.Open("TransferMenu", [&](Screen& screen) {
    if (screen.name() == "TransferMenu") install.host->Press(screen, button);
  });
  return install.events();
}

TEST(TransferMenuTest, ChecksBothFoldersBeforeATransferOpens) {
  const struct {
    const char* button;
    std::vector<const char*> folders;
    std::vector<const char*> missing;
  } kCases[] = {
      {"KVtoZDButton", {"kvdata"}, {"Zandel"}},
      {"KVtoZDButton", {}, {"Kelvane", "Zandel"}},
      {"ZDtoQBButton", {"kvdata"}, {"Zandel", "Quenby"}},
      {"ZDtoKVButton", {"qbdata"}, {"Zandel", "Kelvane"}},
      {"QBtoKVButton", {"kvdata"}, {"Quenby"}},
      {"KVtoQBButton", {"qbdata"}, {"Kelvane"}},
      {"KVCoursestoQBButton", {"KVDATA", "QbData"}, {}},
  };
  for (const auto& c : kCases) {
    TestInstall install(false);
    for (const char* folder : c.folders) install.folder.MakeFolder(folder);
    Events expected = {"open TransferMenu"};
    for (const char* name : c.missing) expected.push_back(Missing(install, name));
    if (c.missing.empty()) {
      expected.insert(expected.end(), {"open KVCoursestoQB", "close KVCoursestoQB"});
    }
    expected.push_back("end");
    EXPECT_EQ(PressOnMenu(install, c.button), expected) << c.button;
  }
}

TEST(TransferMenuTest, CloseStartsTheCaller) {
  const std::pair<const char*, const char*> kCases[] = {
      {"ZD", "start ZD.EXE|"}, {"QB", "start QB.EXE|"}, {"KV", "start KVM.EXE|"},
      {"zd", nullptr},         {"ZD ", nullptr},        {"", nullptr}};
  for (const auto& [word, start] : kCases) {
    TestInstall install;
    install.state().CommandLine = word;
    Events expected = {"open TransferMenu"};
    if (start != nullptr) expected.push_back(start);
    expected.push_back("end");
    EXPECT_EQ(PressOnMenu(install, "ExitButton"), expected) << word;
  }
}

TEST(TransferMenuTest, PriorTransferEndsTheProcessOnlyIfItStarts) {
  TestInstall install;
  install.state().CommandLine = "QB";
  EXPECT_EQ(PressOnMenu(install, "PriorTransfer"),
            Events({"open TransferMenu", "start PRIORXFR.EXE|QB",
                    "message [] Transfer program not available. -> OK", "start QB.EXE|", "end"}));
  install.Restart();
  install.folder.Write("PriorXfr.exe", "");
  EXPECT_EQ(PressOnMenu(install, "PriorTransfer"),
            Events({"open TransferMenu", "start PRIORXFR.EXE|", "end"}));
}

TEST(TransferMenuTest, CloseIgnoresEveryError) {
  TestInstall install;
  install.Open("TransferMenu", [&](Screen& screen) {
    install.platform->Fail({.nth = 1, .stays = true});
    install.host->Press(screen, "ExitButton");
  });
  EXPECT_EQ(install.events(), Events({"open TransferMenu", "end"}));
}

class TipBoxTest : public testing::Test {
 protected:
  void ShowMessage(int type, const std::string& title, const std::string& text) {
    tip.SetMessageType(type);
    tip.SetMessageTitle(title);
    tip.SetMessageText(text);
  }

  TestInstall install;
  TipBox& tip = SharedTipBox(*install.host);
};

TEST_F(TipBoxTest, RemembersByTitle) {
  constexpr bool kTicked = true, kNotTicked = false;
  const std::string long_title = "A title of which thirty charac";
  // Each entry is a message, the action of the operator, and the expected result.
  const struct {
    int type;
    std::string title;
    bool tick;
    std::string answer;
    bool shown;
    std::string result;
  } kMessages[] = {
      {10, "Q", kTicked, "No", true, "NO"},
      {10, "q", kNotTicked, "No", false, "YES"},  // Yes is assumed, also after another answer
      {1, "N", kTicked, "OK", true, "OK"},
      {11, "Other", kNotTicked, "No", true, "NO"},
      {1, "N", kNotTicked, "OK", false, "NO"},  // the last answer is kept
      {2, "N", kNotTicked, "OK", true, "OK"},   // always shown, and the tick is cleared
      {1, "N", kNotTicked, "OK", true, "OK"},
      {11, "Q", kNotTicked, "Yes", true, "YES"},
      {10, "Q", kNotTicked, "No", true, "NO"},
      {1, long_title + "ters count", kTicked, "OK", true, "OK"},
      {1, UpperCase(long_title) + " and no more", kNotTicked, "OK", false, "OK"},
  };
  for (const auto& message : kMessages) {
    install.events().clear();
    install.listener.on_event = [&] { tip.ShowMessage.Choose(message.tick); };
    if (message.shown) install.host->QueueAnswer(message.title, message.answer);
    ShowMessage(message.type, message.title, "text");
    EXPECT_EQ(!install.events().empty(), message.shown) << message.title;
    EXPECT_EQ(tip.ResultReturned(), message.result) << message.title;
    EXPECT_FALSE(install.host->IsShown(tip));
  }
}

TEST_F(TipBoxTest, EnterAnswersAQuestionWithNo) {
  install.listener.on_event = [&] {
    EXPECT_EQ(tip.focus(), &tip.NoButton);
    EXPECT_FALSE(tip.OKButton.visible());
    EXPECT_TRUE(tip.is_question() && tip.Message.read_only());
    EXPECT_TRUE(tip.always_on_top());
  };
  ShowMessage(TipBox::kQuestion, "Cancel Transfer?", "Sure?");
  EXPECT_EQ(install.events(), std::vector<std::string>({"tip 10 [Cancel Transfer?] Sure? -> NO"}));
  EXPECT_EQ(tip.ResultReturned(), "NO");
}

TEST_F(TipBoxTest, ModelessMessagesReturnAtOnce) {
  ShowMessage(TipBox::kModelessNotice, "Busy", "Working");
  EXPECT_TRUE(install.host->IsShown(tip));
  EXPECT_FALSE(tip.always_on_top());
  tip.OKButton.Click();
  EXPECT_FALSE(install.host->IsShown(tip));
  ShowMessage(7, "Tip", "Unseen");  // an unknown type
  EXPECT_FALSE(install.host->IsShown(tip));
  EXPECT_EQ(tip.MessageText(), "Unseen");
  EXPECT_EQ(tip.caption(), "Tip");
}

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

// Each case types a text into a list of three rows whose first row is active, with a pause before
// each "_". The last key decides.
TEST(TypeAheadTest, GoesToTheRowThatBeginsWithTheTypedLetters) {
  Grid grid("grid", 3);
  grid.SetRows(4);
  const char* const kCells[4][3] = {
      {"1", "  Idris, Omar", "1"}, {"2", "Calder", "1"}, {"12", "Camden", "0"}, {"3", "Idle", "0"}};
  for (int row = 1; row <= 4; ++row) {
    for (int column = 1; column <= 3; ++column) {
      grid.SetText(column, row, kCells[row - 1][column - 1]);
    }
  }
  grid.SetCellType(3, CellType::kCheckBox);
  grid.SetHidden(0, true);
  grid.SetActiveRow(1);
  const struct {
    const char* typed;
    int row;
  } kCases[] = {{"c", 2},  {"CAM", 3}, {"i", 4},  {"ii", 4},  {"idr", 1},     {"1", 3},
                {"12", 3}, {"0", 0},   {"cx", 0}, {"c_i", 4}, {"idris, o", 1}};
  for (const auto& c : kCases) {
    TypeAhead type_ahead;
    std::chrono::milliseconds now{0};
    int row = 0;
    for (const char typed : std::string(c.typed)) {
      now += std::chrono::milliseconds(typed == '_' ? 1001 : 1);
      if (typed != '_') row = type_ahead.Type(grid, typed, now);
    }
    EXPECT_EQ(row, c.row) << c.typed;
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
