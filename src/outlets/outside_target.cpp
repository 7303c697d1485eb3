#include "outlets/outside_target.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "core/code_page.h"
#include "core/text.h"
#include "outlets/file_kinds.h"

namespace golf {
namespace {

// The three programs search for their folders without regard to case.
bool IsGolfFolder(const std::string& name) {
  constexpr std::string_view kFolders[] = {"kvdata", "qbdata", "zddata", "transfer-history"};
  // Windows removes blanks and dots at the end of a name, so "qbdata." is also the folder qbdata.
  const std::string lower = LowerCase(name.substr(0, name.find_last_not_of(" .") + 1));
  return std::ranges::find(kFolders, lower) != std::end(kFolders);
}

}  // namespace

std::string RefusalOfPlace(const NewTarget& target, bool is_file) {
  const std::string& path = target.path();
  if (path.empty()) return "Choose where to write first.";
  if (target.name().empty()) return "\"" + path + "\" is no name of a new file or folder.";
  if (!target.HasFolder()) return "There is no folder " + target.folder() + ".";
  for (const std::string& folder : target.Folders()) {
    if (!IsGolfFolder(folder)) continue;
    return path + " is in the folder " + folder +
           ", which contains golf data. Choose another folder.";
  }
  if (IsGolfFolder(target.name()) || (is_file && LayoutOfFile(TextFromUtf8(target.name())))) {
    return path + " has the name of golf data. Choose another name.";
  }
  return {};
}

}  // namespace golf
