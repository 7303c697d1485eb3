#include "screens/transfer_menu.h"

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

}  // namespace
}  // namespace golf
