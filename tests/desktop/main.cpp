#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/init.h>
#include <wx/utils.h>

#include "support/temp_folder.h"

// Runs the tests inside the toolkit, each with a main loop of its own. Desktops differ in selecting
// a text when it gets the focus, so that is turned off here: the program itself must select it.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const golf::TempFolder settings;
  settings.Write("gtk-3.0/settings.ini", "[Settings]\ngtk-entry-select-on-focus=0\n");
  wxSetEnv("XDG_CONFIG_HOME", settings.Path());
  wxApp::SetInstance(new wxApp);
  const wxInitializer toolkit(argc, argv);
  if (!toolkit.IsOk()) return 1;
  return RUN_ALL_TESTS();
}
