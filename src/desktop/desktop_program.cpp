#include "desktop/desktop_program.h"

#include <wx/app.h>

#include <utility>

#include "core/box.h"
#include "screens/history/interrupted_run.h"

namespace golf {

void DesktopProgram::Close() {
  host_.reset();
  application_.reset();
}

// The menu of the new install is shown before the old windows are closed, since the toolkit ends
// the program with its last window.
void DesktopProgram::Open(const std::string& utf8_folder, const std::string& word) {
  auto application = std::make_unique<Application>(MakePlatform(utf8_folder));
  auto host = std::make_unique<DesktopHost>(application->state(), Application::Screens(), Views());
  host->user = &user_;
  if (host_ != nullptr) host->menu_position = host_->TopWindow()->GetPosition();
  host->on_open_install = [this](const std::string& folder) {
    try {
      Open(folder, "");
    } catch (const NumberedError& error) {
      host_->Ask(
          Box{.title = "Golf Transfer", .text = error.description(), .icon = BoxIcon::kStop});
    }
  };
  application->Start(host->Now(), {});
  application->state().CommandLine = word;
  host->Show(host->Load("TransferMenu"));
  std::swap(host_, host);
  std::swap(application_, application);
  host.reset();  // before its application
  wxTheApp->CallAfter(
      [this] { host_->Operate([this] { ResolveInterruptedRun(application_->state(), *host_); }); });
}

}  // namespace golf
