#include <fstream>
#include <iostream>

#include "cli/commands.h"
#include "cli/json_listener.h"
#include "cli/problems.h"
#include "cli/script_runner.h"
#include "cli/utf8_path.h"

namespace golf {

ExitCode RunScript(const Options& options, const std::string& file, bool start_programs) {
  std::ifstream script;
  if (file != "-") {
    script.open(PathFromUtf8(file));
    if (!script) throw Refusal("The script " + file + " cannot be read.");
  }
  const auto application = StartApplication(options);
  JsonListener listener;
  HeadlessHost host(application->state(), Application::Screens(), listener);
  host.clock = [&options] { return Moment(options); };
  host.starts_programs = start_programs;
  ScriptRunner runner(application->state(), host, listener, file == "-" ? std::cin : script);
  try {
    runner.Run();
  } catch (const ClickEnded& ended) {
    application->state().InitSharedObjects();
    return ExitCodeOf(ended.error);
  }
  if (host.faults().empty()) return ExitCode::kDone;
  TellFaultCount(host.faults().size());
  return ExitCodeOfFaults(host.faults());
}

}  // namespace golf
