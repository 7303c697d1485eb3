#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/init.h>
#include <wx/utils.h>

#include "support/temp_folder.h"

// The tests run inside the toolkit, each with the main loop of its own. What is to be selected when
// the focus comes, the program selects itself: not every desktop does it as this one would.
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
