#include "cli/transfer_log.h"

#include "cli/history_command.h"
#include "cli/utf8_path.h"

namespace golf {

TransferLog::TransferLog(const Options& options, const std::string& command) {
  if (options.log.empty()) return;
  file_.open(PathFromUtf8(options.log), std::ios::app);
  if (!file_) throw Refusal("The log " + options.log + " cannot be written.");
  Add(MomentText(ClockOf(options)()) + "  " + command);
}

void TransferLog::Add(const std::string& text) {
  if (file_.is_open() && !text.empty()) file_ << text << '\n' << std::flush;
}

void TransferLog::End(ExitCode code, std::int32_t history) {
  std::string text =
      history == 0 ? "Nothing was changed." : "Run " + std::to_string(history) + " of the history.";
  if (code != ExitCode::kDone) text += " Exit code " + std::to_string(static_cast<int>(code)) + ".";
  Add(text + "\n");
}

}  // namespace golf
