#include "desktop/desktop_app.h"

#include <wx/msgdlg.h>
#include <wx/utils.h>
#ifdef __WXMSW__
#include <wx/msw/wrapwin.h>
#endif

#include <cstdlib>
#include <iostream>

#include "core/code_page.h"
#include "desktop/wx_text.h"

namespace golf {

bool DesktopApp::Initialize(int& count, wxChar** arguments) {
  wxCmdLineParser parser(count, arguments);
  invocation_ = ParseInvocation(parser);
  if (invocation_.answer.empty() && invocation_.complaint.empty()) {
#ifdef __WXGTK__  // GTK would hide a scroll bar until the pointer moves
    wxSetEnv("GTK_OVERLAY_SCROLLING", "0");
#endif
    return wxApp::Initialize(count, arguments);
  }
#ifdef __WXMSW__  // a Windows program with windows has no standard streams
  const wxString text = wxString::FromUTF8(invocation_.answer + invocation_.complaint);
  MessageBoxW(nullptr, text.wc_str(), L"Golf Transfer",
              invocation_.complaint.empty() ? MB_ICONINFORMATION : MB_ICONSTOP);
#else
  std::cout << invocation_.answer << std::flush;
  std::cerr << invocation_.complaint << std::flush;
#endif
  // The process ends here, since the toolkit would report a failure if this returned false.
  std::exit(invocation_.complaint.empty() ? EXIT_SUCCESS : EXIT_FAILURE);
}

bool DesktopApp::OnInit() {
  SetAppDisplayName("Golf Transfer");
  Bind(wxEVT_QUERY_END_SESSION, &DesktopApp::OnQueryEndSession, this);
  Bind(wxEVT_END_SESSION, [](wxCloseEvent&) {});  // the system ends the process
  try {
    program_.Open(invocation_.install, invocation_.word);
  } catch (const NumberedError& error) {
    std::cerr << Utf8FromText(error.description()) << std::endl;
    wxMessageBox(WxText(error.description(), invocation_.install), GetAppDisplayName(),
                 wxICON_STOP);
  }
  return true;  // OnRun returns the exit code of a failure
}

// Refuses to end the operator's session during a run. It does not press Close, since Close starts
// the sibling that started this program.
void DesktopApp::OnQueryEndSession(wxCloseEvent& event) {
  if (program_.IsOpen() && program_.host().in_run()) event.Veto();
}

int DesktopApp::OnRun() { return program_.IsOpen() ? wxApp::OnRun() : EXIT_FAILURE; }

int DesktopApp::OnExit() {
  program_.Close();
  return wxApp::OnExit();
}

}  // namespace golf
