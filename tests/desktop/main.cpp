#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/init.h>

// The tests run inside the toolkit, each with the main loop of its own.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  wxApp::SetInstance(new wxApp);
  const wxInitializer toolkit(argc, argv);
  if (!toolkit.IsOk()) return 1;
  return RUN_ALL_TESTS();
}
