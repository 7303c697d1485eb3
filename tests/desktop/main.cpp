#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/init.h>
#include <wx/log.h>
#include <wx/utils.h>

#include "support/temp_folder.h"

// Runs the tests within the toolkit. Each test runs its own main loop. Some desktops select a text
// when it gets the focus. This is switched off here, so that the tests show whether the program
// selects the text.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const golf::TempFolder settings;
  const char* const kSettings = "GOLF_TEST_SETTINGS";  // shared with the child processes of a test
  wxString folder = settings.Path();
  if (!wxGetEnv(kSettings, &folder)) wxSetEnv(kSettings, folder);
  settings.Write("gtk-3.0/settings.ini", "[Settings]\ngtk-entry-select-on-focus=0\n");
  wxSetEnv("XDG_CONFIG_HOME", folder);
  wxSetEnv("GTK_OVERLAY_SCROLLING", "0");  // as in the program
  if (!wxGetEnv("GOLF_PICTURES", nullptr)) {
    for (const char* const temporary : {"TMPDIR", "TMP"}) wxSetEnv(temporary, folder);
  }
  wxApp::SetInstance(new wxApp);
  const wxInitializer toolkit(argc, argv);
  if (!toolkit.IsOk()) return 1;
  wxLog::SetActiveTarget(new wxLogStderr);  // no box
  return RUN_ALL_TESTS();
}
