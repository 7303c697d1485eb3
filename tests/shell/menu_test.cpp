// Tests the parts of the menu that concern the folder of the install and the first steps.

#include <string>
#include <vector>

#include "app/demo/demo_install.h"
#include "core/code_page.h"
#include "screens/menu/recent_folders.h"
#include "screens/menu/transfer_menu.h"
#include "support/test_host.h"
#include "support/test_profile.h"

namespace golf {
namespace {

using Events = std::vector<std::string>;

std::string WithSeparator(std::string folder) {
#ifdef _WIN32
  return folder + "\\";
#else
  return folder + "/";
#endif
}

// Opens the menu, calls `use` with it, and returns the events between the menu's own.
template <class Use>
Events OnMenu(TestInstall& install, const Use& use) {
  install.listener.events.clear();
  install.Open("TransferMenu", [&](Screen& screen) {
    if (auto* menu = dynamic_cast<TransferMenu*>(&screen)) use(*menu);
  });
  Events events = install.events();
  EXPECT_GE(events.size(), 2u);
  return {events.begin() + 1, events.end() - 1};
}

TEST(FolderChoiceTest, OffersAShortcutToAFolderElsewhere) {
  TestInstall install(false);
  TestProfile user("");
  install.host->user = &user;
  install.folder.Write("kvdata/CLUB.kv5", "x");
  const std::string here = install.state().ProgramPath;
  const struct {
    std::string program;
    bool offered;
    const char* name;
    const char* told;
  } kCases[] = {
      {"", false, "", ""},
      {here + "golf-transfer.exe", false, "", ""},
      {"/other/golf-transfer", true, "Golf",
       "message [Shortcut] The desktop has the shortcut \"Golf\" now."},
      {"/other/golf-transfer", true, "", "message [Shortcut] The shortcut cannot be created."},
      {"/Temp1_golf.zip/golf-transfer", true, "Golf",
       "message [Shortcut] This program was started inside a zip file. "},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.program);
    user.program = c.program;
    user.shortcut_name = c.name;
    const bool asks = c.offered && c.program.find(".zip") == std::string::npos;
    if (asks) install.host->QueueAnswer("Shortcut", "Yes");
    OnMenu(install, [&](TransferMenu& menu) {
      EXPECT_EQ(menu.folder.ShortcutButton.visible(), c.offered);
      if (c.offered) install.host->Press(menu, "ShortcutButton");
    });
    EXPECT_TRUE(!c.offered || ToldBeginning(install, c.told)) << install.LastMessage();
  }
  EXPECT_EQ(user.shortcuts, std::vector<std::string>(2, here));
}

TEST(SecondCopyTest, TransfersWaitForTheChoice) {
  TempFolder copies;
  TestInstall install(false);
  TestProfile user(copies.Path());
  install.host->user = &user;
  install.folder.Write("kvdata/CLUB.kv5", "x");
  install.folder.Write("qbdata/QBROSTER.Q9D", "x");
  const std::string title = "message [Notice] There are two copies of this data. ";
  const auto press = [&](const char* button) {
    return OnMenu(install, [&](TransferMenu& menu) {
      if (std::string(button) != "KVtoQBButton") {
        ASSERT_TRUE(menu.copy.PlacesFrame.visible());
        EXPECT_NE(menu.copy.PlacesText.caption().find(" files, the newest of "), std::string::npos);
        EXPECT_NE(menu.copy.PlacesText.caption().find("\r1 file of "), std::string::npos);
      }
      install.host->Press(menu, button);
    });
  };
  const auto waits = [&] {
    press("KVtoQBButton");
    return ToldBeginning(install, title);
  };
  install.platform->redirected_folder = copies.Path();
  EXPECT_FALSE(waits());  // the folder with the copies is empty
  copies.Write("qbdata/QBROSTER.Q9D", "y");
  EXPECT_TRUE(waits());
  EXPECT_EQ(press("UseCopiesButton"), Events{"install " + copies.Path()});
  EXPECT_TRUE(waits());
  press("UseFolderButton");
  EXPECT_FALSE(waits());
}

TEST(FolderChoiceTest, OpensFoldersWithGolfDataOnly) {
  TempFolder there;
  there.Write("club/kvdata/CLUB.kv5", "x");
  there.Write("upper/ZDDATA/00001.ZL1", "x");
  there.Write("nested/qbdata/kvdata/x", "x");
  there.MakeFolder("empty/kvdata");
  there.Write("a file", "x");
  there.Write("golf.Zip", "x");
  TestInstall install;
  const std::string no_data = "There is no golf data in the folder ";
  const struct {
    std::string chosen;
    std::string opened;   // empty if refused
    std::string refusal;  // the beginning of the text after the path
  } kCases[] = {
      {"club", "club", ""},
      {"upper", "upper", ""},
      {WithSeparator("club"), WithSeparator("club"), ""},
      {WithSeparator("club/kvdata"), WithSeparator("club").substr(0, 4) + "/", ""},
      {"nested/qbdata", "nested/qbdata", ""},
      {"empty/kvdata", "", "."},
      {"empty", "", "."},
      {"nobody", "", " does not exist."},
      {"a file", "", " is a file, not a folder."},
      {"golf.Zip", "", " is a file, not a folder.\r\rExtract the zip file first."},
  };
  for (const auto& c : kCases) {
    const std::string chosen = there.Path(c.chosen);
    const Events events = OnMenu(install, [&](TransferMenu& menu) {
      install.host->QueueAnswer("Folder of the golf data", TextFromUtf8(chosen));
      install.host->Press(menu, "ChangeButton");
    });
    ASSERT_EQ(events.size(), 2u) << c.chosen;
    EXPECT_TRUE(events[0].starts_with("input [Folder of the golf data] Path")) << events[0];
    if (!c.opened.empty()) {
      EXPECT_EQ(events[1], "install " + there.Path(c.opened));
    } else {
      EXPECT_NE(events[1].find(TextFromUtf8(chosen) + c.refusal), std::string::npos) << events[1];
      EXPECT_EQ(events[1].find(no_data) != std::string::npos, c.refusal == ".") << events[1];
    }
  }
}

TEST(FolderChoiceTest, TheNoticeDependsOnTheFiles) {
  const struct {
    const char* folder;
    const char* file;  // may be empty
    bool notice;
    const char* reason;
  } kCases[] = {
      {"install", "", true, "Golf Transfer works in the folder that contains kvdata"},
      {"Temp1_golf.zip", "", true, "This program was started inside a zip file."},
      {"install", "other/x", true, "Golf Transfer works"},
      {"install", "QBDATA/x", false, ""},
      {"Temp1_golf.zip", "kvdata/x", false, ""},
  };
  for (const auto& c : kCases) {
    const TempFolder folder(c.folder);
    folder.MakeFolder("zddata");
    if (*c.file != 0) folder.Write(c.file, "x");
    RecordingListener listener;
    Application application(MakePlatform(folder.Path()));
    application.Start(45000, {});
    HeadlessHost host(application.state(), Application::Screens(), listener);
    host.clock = [] { return 45000; };
    host.Show(host.Load("TransferMenu"));
    auto& menu = dynamic_cast<TransferMenu&>(host.Load("TransferMenu"));
    EXPECT_EQ(menu.folder.ChooseFolderButton.IsReachable(), c.notice) << c.file;
    EXPECT_TRUE(!c.notice || menu.folder.ReasonLabel.caption().starts_with(c.reason)) << c.folder;
    EXPECT_EQ(menu.folder.FolderText.caption(), application.state().ProgramPath);
  }
}

// A folder of the user that is in the way is kept. An earlier demonstration is opened again.
TEST(FolderChoiceTest, TheDemonstrationIsMadeOnceAndWhole) {
  const TempFolder user;
  user.Write("Demonstration/notes.txt", "mine");
  user.Write("a file", "x");
  TestInstall install;
  const auto press = [&](UserProfile& profile) {
    install.host->user = &profile;
    return OnMenu(install,
                  [&](TransferMenu& menu) { install.host->Press(menu, "DemonstrationButton"); });
  };
  TestProfile profile(WithSeparator(user.Path()));
  const std::string made = profile.DataFolder() + "Demonstration 2";
  EXPECT_EQ(press(profile), Events({"install " + made}));
  auto files = user.Files();
  EXPECT_EQ(files["Demonstration/notes.txt"], "mine");
  EXPECT_GT(files.count("Demonstration 2/kvdata/CLUB18.kv5"), 0u);
  TestInstall demonstration(false);
  MakeDemoInstall(demonstration.state());
  demonstration.host.reset();
  demonstration.application.reset();  // closes the files
  EXPECT_EQ(user.Files("Demonstration 2"), demonstration.folder.Files());
  user.Write("Demonstration 2/KVSYSTEM.FIL", "changed by the user");
  files = user.Files();
  EXPECT_EQ(press(profile), Events({"install " + made}));
  EXPECT_EQ(user.Files(), files);

  TestProfile blocked(WithSeparator(user.Path("a file")));
  TestProfile none("");
  for (TestProfile* refused : {&blocked, &none}) {
    const Events events = press(*refused);
    ASSERT_EQ(events.size(), 1u);
    EXPECT_TRUE(events[0].starts_with(
        "message [Folder of the golf data] The demonstration cannot be created.\r"))
        << events[0];
  }
  EXPECT_EQ(user.Files(), files);
}

TEST(RecentFoldersTest, KeepsTheLastFiveAndOpensOne) {
  TestInstall install;
  install.folder.Write("kvdata/x", "x");
  UserProfile user;
  install.host->user = &user;
  const auto menu_offers_recent = [&] {
    bool offers = false;
    OnMenu(install, [&](TransferMenu& menu) { offers = menu.folder.RecentButton.enabled(); });
    return offers;
  };
  EXPECT_FALSE(menu_offers_recent());
  const std::string own = install.state().files.platform().Utf8ProgramFolder();
  EXPECT_EQ(ListRecentFolders(user, ""), Events({own}));
  for (const char* folder : {"a", "b", "c", "\xC3\xA9", "d", "b"}) NoteRecentFolder(user, folder);
  EXPECT_EQ(ListRecentFolders(user, ""), Events({"b", "d", "\xC3\xA9", "c", "a"}));
  EXPECT_TRUE(menu_offers_recent());

  TempFolder club;
  club.Write("qbdata/x", "x");
  NoteRecentFolder(user, club.Path());
  NoteRecentFolder(user, "/gone");
  NoteRecentFolder(user, own);
  const auto choose = [&](int index, const char* button) {
    install.listener.events.clear();
    install.Open("TransferMenu", [&](Screen& screen) {
      if (screen.name() == "TransferMenu") return install.host->Press(screen, "RecentButton");
      auto& list = dynamic_cast<RecentFolders&>(screen);
      EXPECT_EQ(list.FolderList.items().front(), "/gone");
      list.FolderList.Select(index);
      install.host->Press(screen, button);
    });
  };
  choose(1, "OpenButton");
  EXPECT_TRUE(Told(install, "install " + club.Path()));
  choose(0, "OpenButton");
  EXPECT_EQ(install.LastMessage(),
            "message [Folder of the golf data] The folder /gone does not exist. -> OK");
  choose(0, "RemoveButton");
  EXPECT_EQ(ListRecentFolders(user, ""), Events({own, club.Path(), "b", "d"}));
}

TEST(FirstStepsTest, AreShownUntilTheyAreClosed) {
  TestInstall install;
  const auto shown = [&](const char* button = nullptr) {
    bool before = false;
    OnMenu(install, [&](TransferMenu& menu) {
      before = menu.steps.CloseStepsButton.IsReachable();
      if (button != nullptr) install.host->Press(menu, button);
      EXPECT_TRUE(button == nullptr || !menu.steps.StepsFrame.visible());
    });
    return before;
  };
  EXPECT_FALSE(shown());
  UserProfile user;
  install.host->user = &user;
  EXPECT_TRUE(shown());
  EXPECT_TRUE(shown("CloseStepsButton"));
  EXPECT_FALSE(shown());
  OnMenu(install, [](TransferMenu& menu) {
    menu.steps.Show();
    EXPECT_TRUE(menu.steps.CloseStepsButton.IsReachable());
  });
  EXPECT_TRUE(shown());
}

}  // namespace
}  // namespace golf
