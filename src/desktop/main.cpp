#include "core/platform.h"
#include "desktop/desktop_app.h"

wxIMPLEMENT_APP_NO_MAIN(golf::DesktopApp);

// The toolkit's own main would open the display before the standard streams are taken.
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
