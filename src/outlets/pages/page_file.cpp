#include "outlets/pages/page_file.h"

#include "core/new_file.h"
#include "core/text.h"
#include "outlets/outside_target.h"

namespace golf {

std::string RefusalOfPage(const NewTarget& target) {
  std::string refusal = RefusalOfPlace(target, true);
  if (!refusal.empty()) return refusal;
  const NewTarget::Kind existing = target.Existing();
  const std::string extension = LowerCase(target.extension());
  const bool is_page = extension == ".html" || extension == ".htm";
  if (existing == NewTarget::Kind::kNothing || (existing == NewTarget::Kind::kFile && is_page)) {
    return {};
  }
  return target.path() +
         " exists and is no file with the extension .html or .htm, so the page does not replace "
         "it.";
}

void WritePageFile(NewTarget& target, const std::string& html) {
  NewFile file(target.Prepare(false));
  file.Append(html);
  file.Close();
  target.Publish();
}

std::string WriteTemporaryPage(const std::string& html) {
  NewTarget target(TemporaryPath("golf-transfer-results-", ".html"));
  WritePageFile(target, html);
  return target.path();
}

}  // namespace golf
