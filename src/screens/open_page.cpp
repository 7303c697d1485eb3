#include "screens/open_page.h"

#include "core/code_page.h"
#include "outlets/help/help_page.h"

namespace golf {
namespace {

constexpr const char* kTitle = "Notice";

}  // namespace

void OpenPage(ScreenHost& host, const std::function<std::string()>& write) {
  std::string path;
  try {
    path = write();
    host.OpenInBrowser(path);
  } catch (const NumberedError& error) {
    host.Ask(path.empty() ? Box{.title = kTitle, .text = error.Report(), .icon = BoxIcon::kStop}
                          : UnopenedPage(error.description(), path));
  }
}

Box UnopenedPage(const std::string& problem, const std::string& utf8_path) {
  return {.title = kTitle,
          .text = problem + "\r\rThe page is in this file. Open it yourself:\r" +
                  TextFromUtf8(utf8_path),
          .icon = BoxIcon::kStop};
}

void ShowHelp(ScreenHost& host, std::string_view heading) {
  OpenPage(host, [heading] { return WriteHelpPage(heading); });
}

}  // namespace golf
