#include "desktop/desktop_app.h"

wxIMPLEMENT_APP(golf::DesktopApp);
