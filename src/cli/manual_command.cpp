#include <iostream>

#include "cli/commands.h"
#include "cli/json_text.h"
#include "outlets/help/help_page.h"
#include "outlets/pages/page_file.h"

namespace golf {

ExitCode RunManual(const Options& options, const std::string& file) {
  NewTarget target(file);
  const std::string refusal = RefusalOfPage(target);
  if (!refusal.empty()) throw Refusal(refusal);
  WritePageFile(target, HelpPage());
  if (options.json) {
    WriteJsonLine({{"event", "result"}, {"manual", file}});
  } else {
    std::cout << "The help was written to " << file << ".\n";
  }
  return ExitCode::kDone;
}

}  // namespace golf
