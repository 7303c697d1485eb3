#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "support/processes.h"

namespace golf {

// The command-line program on the demonstration, which is the folder "i".
class CommandLineTest : public testing::Test {
 protected:
  // Files by their paths below the install, with "/".
  using Tree = std::map<std::string, std::string>;

  Ended Run(const std::string& words, const std::string& input = "") {
    return RunProgram(folder, GOLF_CLI, words, input);
  }
  // Runs on the install at a fixed time, since the program stores the time in new golfers.
  Ended In(const std::string& words, const std::string& input = "") {
    return Run("--install i --now \"2026-05-13 12:00:00\" " + words, input);
  }
  Ended Script(const std::string& lines) { return In("script -", lines); }

  void SetUp() override { MakeDemo(); }
  // Makes the demonstration again, as the folder "i".
  void MakeDemo() {
    std::filesystem::remove_all(folder.Path("i"));
    ASSERT_EQ(Run("demo i").code, 0);
  }

  Tree AllFiles() const { return folder.Files("i"); }
  // Returns the install's files without the history.
  Tree Data() const {
    Tree files = AllFiles();
    std::erase_if(files, [](const auto& file) { return file.first.starts_with("transfer-"); });
    return files;
  }
  // Makes the install contain these files only.
  void Restore(const Tree& files) {
    for (const auto& [name, bytes] : AllFiles()) folder.Remove("i/" + name);
    for (const auto& [name, bytes] : files) folder.Write("i/" + name, bytes);
  }

  // Calls `change` with the bytes of a file of the install, and writes them again.
  template <class Change>
  void Edit(const std::string& file, Change change) {
    std::string bytes = folder.Read("i/" + file);
    change(bytes);
    folder.Write("i/" + file, bytes);
  }
  // Replaces bytes of a file. The file becomes longer if they are after its end.
  void Put(const std::string& file, std::size_t at, const std::string& bytes) {
    Edit(file, [&](std::string& content) {
      content.resize(std::max(content.size(), at + bytes.size()));
      content.replace(at, bytes.size(), bytes);
    });
  }

  TempFolder folder;
};

inline std::vector<nlohmann::json> JsonLines(const std::string& text) {
  std::vector<nlohmann::json> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(nlohmann::json::parse(line));
  return lines;
}

}  // namespace golf
