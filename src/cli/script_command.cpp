#include <fstream>
#include <iostream>

#include "cli/commands.h"
#include "cli/json_listener.h"
#include "cli/problems.h"
#include "cli/script_runner.h"
#include "cli/utf8_path.h"

namespace golf {

namespace {

// Raises Refusal if the file is a folder or cannot be read. An empty file is a valid script.
void CheckReadable(const std::string& file) {
  std::error_code error;
  if (std::filesystem::is_regular_file(PathFromUtf8(file), error)) {
    if (std::ifstream(PathFromUtf8(file)).good()) return;
  }
  throw Refusal("The script " + file + " cannot be read.");
}

ExitCode CodeAfterScript(const HeadlessHost& host) {
  NoteFaultCount(host.faults().size());
  if (!host.faults().empty()) return ExitCodeOfFaults(host.faults());
  return host.met_unfinished_run() ? ExitCode::kRefused : ExitCode::kDone;
}

}  // namespace

ExitCode RunScript(const Options& options, const std::string& file, bool start_programs) {
  std::ifstream script;
  if (file != "-") {
    script.open(PathFromUtf8(file));
    if (!script || script.peek() == std::ifstream::traits_type::eof()) CheckReadable(file);
  }
  const auto application = StartApplication(options);
  JsonListener listener;
  HeadlessHost host(application->state(), Application::Screens(), listener);
  host.clock = ClockOf(options);
  host.starts_programs = start_programs;
  ScriptRunner runner(application->state(), host, listener, file == "-" ? std::cin : script);
  try {
    runner.Run();
  } catch (const ClickEnded& ended) {
    application->state().InitSharedObjects();
    CodeAfterScript(host);
    return ExitCodeOf(ended.error);
  }
  const auto lost = CloseFiles(application->state().files);
  const ExitCode code = CodeAfterScript(host);
  return lost ? ExitCodeOf(*lost) : code;
}

}  // namespace golf
