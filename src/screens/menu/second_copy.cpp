#include "screens/menu/second_copy.h"

#include "core/code_page.h"
#include "core/data_folders.h"
#include "core/local_time.h"
#include "screens/history/run_undo.h"

namespace golf {
namespace {

// The setting contains the folder whose own files the operator has chosen.
constexpr const char* kSetting = "OwnFilesOf";

constexpr std::int64_t kNanoseconds = 1'000'000'000;

std::string PlaceText(SharedState& state, const std::string& utf8_folder, const DataSummary& data) {
  const std::string count =
      data.files == 1 ? "1 file" : std::to_string(data.files) + " files, the newest";
  return "\r\r" + TextFromUtf8(utf8_folder) + "\r" + count + " of " +
         WhenText(state, LocalMoment(data.changed / kNanoseconds));
}

}  // namespace

std::string SecondCopyText(SharedState& state) {
  Platform& platform = state.files.platform();
  const std::string copies = platform.RedirectedFolder();
  if (copies.empty()) return {};
  const DataSummary own = SummaryOfData(platform);
  const DataSummary copied = SummaryOfData(*MakePlatform(copies));
  if (own.files == 0 || copied.files == 0) return {};
  return "Windows does not let older programs write into this folder. It keeps copies of the "
         "files that they have changed in a folder of your own, and shows them these copies." +
         PlaceText(state, platform.Utf8ProgramFolder(), own) + PlaceText(state, copies, copied) +
         "\r\rKelvane, Quenby and Zandel usually work with your copies. No transfer starts before "
         "you choose.";
}

bool IsPlaceToBeChosen(SharedState& state, ScreenHost& host) {
  const UserProfile* const user = host.User();
  const std::string folder = state.files.platform().Utf8ProgramFolder();
  return user != nullptr && user->Setting(kSetting) != folder && !SecondCopyText(state).empty();
}

SecondCopy::SecondCopy(const ScreenContext& context) : context_(context) {
  for (Control* control : std::initializer_list<Control*>{&PlacesLabel, &PlacesText,
                                                          &UseFolderButton, &UseCopiesButton}) {
    control->SetParent(PlacesFrame);
  }
  UseFolderButton.on_click = [this] { UseFolder(); };
  UseCopiesButton.on_click = [this] {
    context_.host.OpenInstall(context_.state.files.platform().RedirectedFolder());
  };
}

void SecondCopy::Refresh() {
  const bool is_shown = IsPlaceToBeChosen(context_.state, context_.host);
  PlacesFrame.SetVisible(is_shown);
  if (is_shown) PlacesText.SetCaption(SecondCopyText(context_.state));
}

void SecondCopy::UseFolder() {
  context_.host.User()->KeepSetting(kSetting, context_.state.files.platform().Utf8ProgramFolder());
  Refresh();
}

}  // namespace golf
