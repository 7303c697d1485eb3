#include "screens/menu/folder_choice.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "core/code_page.h"
#include "core/data_folders.h"
#include "core/new_target.h"
#include "core/text.h"
#include "screens/menu/recent_folders.h"

namespace golf {
namespace {

constexpr const char* kTitle = "Folder of the golf data";
constexpr const char* kSeparators = "/\\";
constexpr const char* kExtractFirst =
    "This program was started inside a zip file. Extract the zip file first. Put the program into "
    "the folder of Kelvane, Quenby and Zandel, and start it there.";

std::string_view WithoutEnd(std::string_view folder) {
  while (folder.size() > 1 && folder.find_last_of(kSeparators) == folder.size() - 1) {
    folder.remove_suffix(1);
  }
  return folder;
}

std::string_view NameOfPath(std::string_view path) {
  return path.substr(path.find_last_of(kSeparators) + 1);
}

bool IsDataFolderName(std::string_view name) {
  return std::any_of(std::begin(kDataFolders), std::end(kDataFolders),
                     [name](const char* folder) { return EqualIgnoringCase(name, folder); });
}

bool IsZip(std::string_view path) { return UpperCase(path).ends_with(".ZIP"); }

// True if Windows has extracted the program from an opened zip file into a temporary folder. The
// name of that folder contains the name of the zip file.
bool IsInsideZip(std::string_view folder) {
  return UpperCase(folder).find(".ZIP") != std::string::npos;
}

// Says what a folder contains.
struct FolderContent {
  enum Kind { kGolfData, kNoGolfData, kUnreadable, kFile, kNothing } kind;
  std::string error = {};  // the description of the error if it is unreadable
};

FolderContent ContentOf(Platform& platform) {
  try {
    platform.FileNames(platform.ProgramFolder());  // raises an error if access is refused
    return {HasGolfData(platform) ? FolderContent::kGolfData : FolderContent::kNoGolfData};
  } catch (const NumberedError& error) {
    return {FolderContent::kUnreadable, error.description()};
  }
}

FolderContent ContentOf(const std::string& utf8_folder) {
  try {
    return ContentOf(*MakePlatform(utf8_folder));
  } catch (const NumberedError&) {
    const bool is_file = NewTarget(utf8_folder).Existing() == NewTarget::Kind::kFile;
    return {is_file ? FolderContent::kFile : FolderContent::kNothing};
  }
}

// Returns why a folder cannot be opened.
std::string RefusalText(const FolderContent& content, const std::string& folder) {
  switch (content.kind) {
    case FolderContent::kGolfData:
      return {};
    case FolderContent::kNoGolfData:
      return "There is no golf data in the folder " + folder +
             ".\r\rChoose the folder that contains kvdata, qbdata or zddata. It is usually the "
             "folder of the programs Kelvane, Quenby and Zandel.";
    case FolderContent::kUnreadable:
      return "The folder " + folder + " cannot be read.\r" + content.error;
    case FolderContent::kFile:
      return folder + " is a file, not a folder." +
             (IsZip(folder) ? "\r\rExtract the zip file first. Then choose the folder into which "
                              "you have extracted it."
                            : "");
    case FolderContent::kNothing:
      return "The folder " + folder + " does not exist.";
  }
  return {};
}

// Returns why the notice is shown. The texts are those of a newcomer's first start.
std::string ReasonText(const FolderContent& content, const std::string& folder) {
  if (content.kind == FolderContent::kUnreadable) return RefusalText(content, folder);
  if (IsInsideZip(folder)) return kExtractFirst;
  return "Golf Transfer works in the folder that contains kvdata, qbdata and zddata, the data of "
         "Kelvane, Quenby and Zandel. Choose that folder, or try the program with made-up data.";
}

// Returns the folder above, if the path names one of the data folders of an install.
std::string InstallOf(const std::string& utf8_folder) {
  const std::string_view folder = WithoutEnd(utf8_folder);
  const std::string_view name = NameOfPath(folder);
  if (!IsDataFolderName(name)) return utf8_folder;
  const std::string above(folder.substr(0, folder.size() - name.size()));
  const bool is_above = ContentOf(utf8_folder).kind == FolderContent::kNoGolfData &&
                        ContentOf(above).kind == FolderContent::kGolfData;
  return is_above ? above : utf8_folder;
}

}  // namespace

FolderChoice::FolderChoice(const ScreenContext& context, MakeDemonstration make_demonstration)
    : context_(context), make_demonstration_(std::move(make_demonstration)) {
  for (Control* control : std::initializer_list<Control*>{
           &NoticeLabel, &ReasonLabel, &ChooseFolderButton, &DemonstrationButton}) {
    control->SetParent(NoticeFrame);
  }
  ChooseFolderButton.on_click = [this] { AskForFolder(); };
  ChangeButton.on_click = [this] { AskForFolder(); };
  RecentButton.on_click = [this] { ShowRecent(); };
  DemonstrationButton.on_click = [this] { OpenDemonstration(); };
  ShortcutButton.on_click = [this] { AskForShortcut(); };
}

void FolderChoice::Refresh() {
  Platform& platform = context_.state.files.platform();
  const FolderContent content = ContentOf(platform);
  UserProfile* const user = context_.host.User();
  NoticeFrame.SetVisible(content.kind != FolderContent::kGolfData);
  ReasonLabel.SetCaption(ReasonText(content, platform.ProgramFolder()));
  FolderText.SetCaption(platform.ProgramFolder());
  DemonstrationButton.SetEnabled(user != nullptr);
  const std::string folder = platform.Utf8ProgramFolder();
  RecentButton.SetEnabled(user != nullptr && !ListRecentFolders(*user, folder).empty());
  if (user != nullptr && content.kind == FolderContent::kGolfData) NoteRecentFolder(*user, folder);
  ShortcutButton.SetVisible(content.kind == FolderContent::kGolfData && OffersShortcut(folder));
}

// A program that stands in the folder itself needs no shortcut.
bool FolderChoice::OffersShortcut(const std::string& utf8_folder) {
  UserProfile* const user = context_.host.User();
  const std::string program = user != nullptr ? user->ProgramFile() : std::string();
  const std::size_t name = program.find_last_of(kSeparators);
  return name != std::string::npos &&
         !EqualIgnoringCase(WithoutEnd(program.substr(0, name)), WithoutEnd(utf8_folder));
}

void FolderChoice::AskForShortcut() {
  const auto tell = [this](std::string text, BoxIcon icon) {
    context_.host.Ask(Box{.title = "Shortcut", .text = std::move(text), .icon = icon});
  };
  UserProfile& user = *context_.host.User();
  if (IsInsideZip(user.ProgramFile())) return tell(kExtractFirst, BoxIcon::kStop);
  Platform& platform = context_.state.files.platform();
  const BoxButton answer = context_.host.Ask(
      Box{.title = "Shortcut",
          .text = "Put a shortcut on the desktop? It starts Golf Transfer with the data in\r" +
                  platform.ProgramFolder(),
          .icon = BoxIcon::kQuestion,
          .buttons = {BoxButton::kYes, BoxButton::kNo}});
  if (answer != BoxButton::kYes) return;
  const std::string name = user.MakeShortcut(platform.Utf8ProgramFolder());
  if (name.empty()) return tell("The shortcut cannot be created.", BoxIcon::kStop);
  tell("The desktop has the shortcut \"" + TextFromUtf8(name) + "\" now.", BoxIcon::kInformation);
}

bool FolderChoice::HasData() {
  return ContentOf(context_.state.files.platform()).kind == FolderContent::kGolfData;
}

void FolderChoice::Open(const std::string& utf8_folder) {
  const std::string folder = InstallOf(utf8_folder);
  const std::string refusal = RefusalText(ContentOf(folder), TextFromUtf8(folder));
  if (refusal.empty()) return context_.host.OpenInstall(folder);
  context_.host.Ask(Box{.title = kTitle, .text = refusal, .icon = BoxIcon::kStop});
}

void FolderChoice::AskForFolder() {
  const std::string folder =
      context_.host.AskForFolder(kTitle, context_.state.files.platform().Utf8ProgramFolder());
  if (!folder.empty()) Open(folder);
}

void FolderChoice::ShowRecent() {
  const auto screen = Load<RecentFolders>(context_.host).shared_from_this();
  context_.host.ShowModal(*screen);
  const std::string& folder = dynamic_cast<RecentFolders&>(*screen).chosen();
  if (!folder.empty()) Open(folder);
}

// Opens the demonstration of an earlier start, or creates it. Never replaces a folder.
void FolderChoice::OpenDemonstration() {
  const std::string data = context_.host.User()->DataFolder();
  if (data.empty())
    return RefuseDemonstration("Your folder for the data of programs cannot be written.");
  const std::string first = data + "Demonstration";
  std::string folder = first;
  for (int number = 2; NewTarget(folder).Existing() != NewTarget::Kind::kNothing; ++number) {
    if (ContentOf(folder).kind == FolderContent::kGolfData) return Open(folder);
    folder = first + " " + std::to_string(number);
  }
  try {
    make_demonstration_(folder);
  } catch (const NumberedError& error) {
    return RefuseDemonstration(error.description());
  }
  Open(folder);
}

void FolderChoice::RefuseDemonstration(const std::string& why) {
  context_.host.Ask(Box{.title = kTitle,
                        .text = "The demonstration cannot be created.\r" + why,
                        .icon = BoxIcon::kStop});
}

}  // namespace golf
