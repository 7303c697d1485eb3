#include <filesystem>
#include <iostream>
#include <system_error>

#include "app/demo/demo_install.h"
#include "cli/commands.h"
#include "cli/json_text.h"
#include "cli/utf8_path.h"

namespace golf {
namespace {

namespace fs = std::filesystem;

void PrepareFolder(const std::string& folder) {
  if (folder.empty()) throw Refusal("DIR names no folder.");
  std::error_code error;
  const fs::path path = PathFromUtf8(folder);
  if (fs::exists(path, error) && !fs::is_directory(path, error)) {
    throw Refusal(folder + " is a file; the demonstration needs a folder.");
  }
  if (fs::is_directory(path, error) && !fs::is_empty(path, error)) {
    throw Refusal(folder + " is not empty; the demonstration needs an empty or a new folder.");
  }
  fs::create_directories(path, error);
  if (error) throw Refusal(folder + " cannot be made: " + error.message() + ".");
}

}  // namespace

ExitCode RunDemo(const Options& options, const std::string& folder) {
  PrepareFolder(folder);
  Options in_folder = options;
  in_folder.install = folder;
  const auto application = StartApplication(in_folder);
  MakeDemoInstall(application->state());
  if (options.json) {
    WriteJsonLine({{"event", "result"}, {"demo", folder}});
  } else {
    std::cout << "A demonstration install stands in " << folder << ".\n";
  }
  return ExitCode::kDone;
}

}  // namespace golf
