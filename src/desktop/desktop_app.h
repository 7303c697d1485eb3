#pragma once

#include <wx/app.h>

#include <memory>

#include "app/application.h"
#include "desktop/desktop_host.h"
#include "desktop/invocation.h"

namespace golf {

// Runs the desktop program.
class DesktopApp : public wxApp {
 public:
  // Shows the help or the version, if requested, before the display is opened.
  bool Initialize(int& count, wxChar** arguments) override;
  bool OnInit() override;
  int OnRun() override;
  int OnExit() override;

 private:
  void OnQueryEndSession(wxCloseEvent& event);

  Invocation invocation_;
  std::unique_ptr<Application> application_;
  std::unique_ptr<DesktopHost> host_;
};

}  // namespace golf
