#include "screens/about.h"

#include "core/code_page.h"
#include "core/new_target.h"
#include "core/shared_state.h"
#include "history/transactions.h"
#include "outlets/help/help_page.h"

namespace golf {
namespace {

std::string FolderForPages() {
  try {
    return TextFromUtf8(TemporaryFolder());
  } catch (const NumberedError& error) {
    return error.description();
  }
}

}  // namespace

About::About(const ScreenContext& context) : Screen(kName, context) {
  SetCaption("About Golf Transfer");
  Add({&VersionLabel, &CopyrightLabel, &PlacesLabel, &PlacesText, &LibrariesLabel, &LibrariesText,
       &CopyButton, &ExitButton});
  PlacesText.SetReadOnly(true);
  LibrariesText.SetReadOnly(true);
  ExitButton.SetCancel(true);
  CopyButton.on_click = [this] {
    host().CopyText(VersionLabel.caption() + "\r\n" + CopyrightLabel.caption() + "\r\n\r\n" +
                    PlacesText.text() + "\r\n" + LibrariesText.text());
  };
  ExitButton.on_click = [this] { host().Unload(*this); };
}

void About::OnLoad() {
  VersionLabel.SetCaption("Golf Transfer " + std::string(ProgramVersion()));
  CopyrightLabel.SetCaption(std::string(ProgramCopyright()));
  PlacesText.SetText(Places());
  std::string libraries;
  for (const char c : TextFromUtf8(golf::LibrariesText())) {
    if (c == '\n') libraries += '\r';
    libraries += c;
  }
  LibrariesText.SetText(libraries);
}

std::string About::Places() const {
  std::string text;
  const auto add = [&text](const std::string& what, const std::string& place) {
    if (!place.empty()) text += what + ": " + place + "\r\n";
  };
  add("Folder of the data", state().ProgramPath);
  add("Kelvane", state().KVDataPath);
  add("Quenby", state().QBDataPath);
  add("Zandel", state().ZDDataPath);
  add("History of the transfers", state().transactions->history().paths().history);
  if (const UserProfile* user = host().User()) {
    add("Recent folders and sizes of windows", TextFromUtf8(user->SettingsFolder()));
  }
  add("Pages for the printer and the help", FolderForPages());
  add("Log",
      "none. The history contains the report of each transfer. \"Save As...\" saves the messages "
      "of a transfer, and so does the option --log of the command line.");
  return text;
}

}  // namespace golf
