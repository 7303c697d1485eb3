#include "screens/menu/transfer_menu.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "core/resume_next.h"
#include "screens/file_changes.h"

namespace golf {
namespace {

// Describes one of the sibling programs.
struct Sibling {
  std::string_view name;
  std::string SharedState::*folder;
  std::string_view word;  // the command line argument of a start by this sibling
  std::string_view program;
};

constexpr Sibling kKelvane{"Kelvane", &SharedState::KVDataPath, "KV", "KVM.EXE"};
constexpr Sibling kQuenby{"Quenby", &SharedState::QBDataPath, "QB", "QB.EXE"};
constexpr Sibling kZandel{"Zandel", &SharedState::ZDDataPath, "ZD", "ZD.EXE"};

constexpr const Sibling* kSiblings[] = {&kZandel, &kQuenby, &kKelvane};

struct TransferEntry {
  Button TransferMenu::*button;
  std::string_view screen;
  const Sibling* first;
  const Sibling* second;
};

constexpr TransferEntry kTransfers[] = {
    {&TransferMenu::KVCoursestoQBButton, "KVCoursestoQB", &kKelvane, &kQuenby},
    {&TransferMenu::KVtoQBButton, "KVtoQB", &kKelvane, &kQuenby},
    {&TransferMenu::KVtoZDButton, "KVtoZD", &kKelvane, &kZandel},
    {&TransferMenu::ZDtoQBButton, "ZDtoQB", &kZandel, &kQuenby},
    {&TransferMenu::QBtoKVButton, "QBtoKV", &kKelvane, &kQuenby},
    {&TransferMenu::ZDtoKVButton, "ZDtoKV", &kZandel, &kKelvane},
};

bool IsTransfer(std::string_view screen_name) {
  return std::any_of(std::begin(kTransfers), std::end(kTransfers),
                     [&](const TransferEntry& transfer) { return transfer.screen == screen_name; });
}

bool CheckProgram(SharedState& state, ScreenHost& host, const Sibling& sibling) {
  if (state.files.platform().FolderExists(state.*sibling.folder)) return true;
  host.Ask(Box{.title = "Notice",
               .text = "Cannot transfer data because the " + std::string(sibling.name) +
                       " program is not installed in the '" + state.ProgramPath + "' folder",
               .icon = BoxIcon::kInformation});
  return false;
}

void ShowTransfer(ScreenHost& host, std::string_view screen_name, std::string_view tag) {
  if (!host.HasScreen(screen_name)) {
    host.Ask(Box{.title = "Notice",
                 .text = "This transfer is not a part of this version yet.",
                 .icon = BoxIcon::kInformation});
    return;
  }
  Screen& screen = host.Load(screen_name);
  if (!tag.empty()) screen.SetTag(std::string(tag));
  host.ShowModal(screen);
}

}  // namespace

void OpenTransfer(SharedState& state, ScreenHost& host, std::string_view screen_name,
                  std::string_view tag) {
  if (IsTransfer(screen_name) && IsPlaceToBeChosen(state, host)) {
    host.Ask(Box{.title = "Notice",
                 .text = "There are two copies of this data. Choose one of them in the menu first.",
                 .icon = BoxIcon::kInformation});
    return;
  }
  RecoverInterruptedRun(state, host);
  bool installed = true;
  for (const TransferEntry& transfer : kTransfers) {
    if (transfer.screen != screen_name) continue;
    // Both siblings are checked, even if the first is missing.
    for (const Sibling* sibling : {transfer.first, transfer.second}) {
      if (!CheckProgram(state, host, *sibling)) installed = false;
    }
  }
  if (installed) ShowTransfer(host, screen_name, tag);
}

TransferMenu::TransferMenu(const ScreenContext& context, MakeDemonstration make_demonstration)
    : Screen(kName, context),
      folder(context, std::move(make_demonstration)),
      steps(context),
      copy(context) {
  SetCaption("Transfer Menu");
  Add({&SSTab1, &Label1[0], &Label1[1], &Label1[2]});
  for (Label& label : Label1) SSTab1.Hold(label, 0);
  for (const TransferEntry& transfer : kTransfers) {
    Button& button = this->*transfer.button;
    Add({&button});
    SSTab1.Hold(button, 0);
    button.on_click = [this, &transfer] {
      OpenTransfer(state(), host(), transfer.screen);
      if (!folder.HasData()) folder.Refresh();  // the folder may have gone meanwhile
    };
  }
  Add({&PriorTransfer, &ExitButton});
  Add({&folder.NoticeFrame, &folder.NoticeLabel, &folder.ReasonLabel, &folder.ChooseFolderButton,
       &folder.DemonstrationButton, &folder.FolderLabel, &folder.FolderText, &folder.ChangeButton,
       &folder.RecentButton});
  Add({&steps.StepsFrame, &steps.StepsLabel});
  for (Label& step : steps.StepLabel) Add({&step});
  Add({&steps.UndoLabel, &steps.CloseStepsButton});
  Add({&copy.PlacesFrame, &copy.PlacesLabel, &copy.PlacesText, &copy.UseFolderButton,
       &copy.UseCopiesButton, &folder.ShortcutButton});
  ExitButton.SetCancel(true);
  PriorTransfer.on_click = [this] { StartPriorTransfer(); };
  ExitButton.on_click = [this] { Exit(); };
}

void TransferMenu::OnActivate() {
  folder.Refresh();
  steps.ShowUntilClosed();
  copy.Refresh();
}

void TransferMenu::StartPriorTransfer() {
  try {
    host().StartProgram(state().ProgramPath + "PRIORXFR.EXE", state().CommandLine);
  } catch (const NumberedError&) {
    host().Ask(Box{.title = "", .text = "Transfer program not available."});
    return;
  }
  state().InitSharedObjects();
  host().EndProcess();
}

void TransferMenu::Exit() {
  const ResumeNext anyway(nullptr);
  anyway([this] { state().InitSharedObjects(); });
  for (const Sibling* sibling : kSiblings) {
    if (state().CommandLine != sibling->word) continue;
    anyway([&] { host().StartProgram(state().ProgramPath + std::string(sibling->program), ""); });
  }
  anyway([this] { state().InitSharedObjects(); });
  host().EndProcess();
}

}  // namespace golf
