#include "outlets/pages/page_file.h"

#include "core/code_page.h"
#include "core/new_file.h"
#include "core/numbered_error.h"
#include "core/text.h"
#include "outlets/outside_target.h"

namespace golf {

std::string RefusalOfPage(const NewTarget& target) {
  std::string refusal = RefusalOfPlace(target, true);
  if (!refusal.empty()) return refusal;
  const std::string extension = LowerCase(target.extension());
  if (extension != ".html" && extension != ".htm") {
    return target.path() + " has no extension .html or .htm. Choose such a name for the page.";
  }
  const NewTarget::Kind existing = target.Existing();
  if (existing == NewTarget::Kind::kNothing || existing == NewTarget::Kind::kFile) return {};
  return target.path() + " is a folder, a link or a device, so the page does not replace it.";
}

void WritePageFile(NewTarget& target, const std::string& html) {
  NewFile file(target.Prepare(false));
  file.Append(html);
  file.Close();
  target.Publish();
}

std::string WriteTemporaryPage(const std::string& stem, const std::string& html) {
  NewTarget target(TemporaryPath(stem, ".html"));
  WritePageFile(target, html);
  return target.path();
}

std::string ReplaceTemporaryPage(const std::string& name, const std::string& html) {
  NewTarget target(TemporaryFolder() + name);
  const std::string refusal = RefusalOfPage(target);
  if (!refusal.empty()) throw NumberedError(ErrorNumber::kPathAccess, TextFromUtf8(refusal));
  WritePageFile(target, html);
  return target.path();
}

}  // namespace golf
