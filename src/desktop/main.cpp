#include "core/platform.h"
#include "desktop/desktop_app.h"

wxIMPLEMENT_APP_NO_MAIN(golf::DesktopApp);

// The program has its own main function, since the toolkit's one would open the display before
// TakeStandardStreams is called.
#ifdef __WXMSW__
int WINAPI WinMain(HINSTANCE instance, HINSTANCE before, wxCmdLineArgType, int show) {
  golf::TakeStandardStreams();
  return wxEntry(instance, before, nullptr, show);
}
#else
int main(int argc, char** argv) {
  golf::TakeStandardStreams();
  return wxEntry(argc, argv);
}
#endif
