#pragma once

#include <wx/app.h>

#include "desktop/desktop_profile.h"
#include "desktop/desktop_program.h"
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
  DesktopProfile user_;
  DesktopProgram program_{user_};
};

}  // namespace golf
