#include <filesystem>
#include <fstream>
#include <iostream>
#include <system_error>

#include "cli/commands.h"
#include "cli/json_text.h"
#include "cli/utf8_path.h"
#include "outlets/formats/kaitai.h"

namespace golf {
namespace {

namespace fs = std::filesystem;

void WriteFile(const fs::path& path, const std::string& text) {
  std::ofstream file(path, std::ios::binary);
  file << text;
  file.close();
  if (!file) throw Refusal(Utf8FromPath(path) + " cannot be written.");
}

}  // namespace

ExitCode RunFormats(const Options& options, const std::string& folder) {
  const fs::path target = PathFromUtf8(folder);
  std::error_code error;
  fs::create_directories(target, error);
  if (!fs::is_directory(target, error)) {
    throw Refusal(folder + " is no folder, or cannot be created.");
  }
  Json files = Json::array();
  for (const KaitaiDescription& description : KaitaiDescriptions()) {
    WriteFile(target / description.FileName(), description.text);
    files.push_back(description.FileName());
  }
  if (options.json) {
    WriteJsonLine({{"event", "result"}, {"formats", folder}, {"files", files}});
  } else {
    std::cout << files.size() << " descriptions were written to " << folder << ".\n";
  }
  return ExitCode::kDone;
}

}  // namespace golf
