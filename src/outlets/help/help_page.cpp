#include "outlets/help/help_page.h"

#include "core/new_target.h"
#include "core/numbered_error.h"
#include "outlets/pages/page_file.h"

namespace golf {

// cmake/host_tools.cmake makes their sources.
extern const std::string_view golf_help_page;
extern const std::string_view golf_libraries;

namespace {

// The page contains this comment below its title.
constexpr std::string_view kStart = "<!-- start -->";

bool HasHeading(std::string_view id) {
  return !id.empty() &&
         golf_help_page.find("<h2 id=\"" + std::string(id) + "\"") != std::string_view::npos;
}

}  // namespace

std::string_view ProgramVersion() { return GOLF_VERSION; }

std::string_view ProgramCopyright() { return GOLF_COPYRIGHT; }

std::string LibrariesText() { return std::string(golf_libraries); }

std::string HelpPage() { return std::string(golf_help_page); }

// The heading is in the page itself, since Windows removes it from the address of a file.
std::string HelpPageFrom(std::string_view heading) {
  std::string page = HelpPage();
  if (!HasHeading(heading)) return page;
  const std::string id(heading);
  const std::string start =
      "<p class=\"start\"><a href=\"#" + id +
      "\">Go to the section of the window from which you opened this page</a></p>\n"
      "<script>addEventListener(\"load\",()=>{if(!location.hash)location.hash=\"" +
      id + "\"})</script>";
  return page.replace(page.find(kStart), kStart.size(), start);
}

std::string WriteHelpPage(std::string_view heading) {
  const std::string stem = "golf-transfer-help-" + std::string(ProgramVersion()) + "-" +
                           (HasHeading(heading) ? std::string(heading) + "-" : "");
  const std::string page = HelpPageFrom(heading);
  try {
    return ReplaceTemporaryPage(stem + "page.html", page);
  } catch (const NumberedError&) {
    return WriteTemporaryPage(stem, page);
  }
}

}  // namespace golf
