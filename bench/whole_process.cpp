#include "whole_process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

extern char** environ;

namespace golf::bench {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> WithFolder(std::vector<std::string> words, const fs::path& folder) {
  for (std::string& word : words) {
    const std::size_t at = word.find("{}");
    if (at != std::string::npos) word.replace(at, 2, folder.string());
  }
  return words;
}

Measured RunProcess(std::vector<std::string> words) {
  std::vector<char*> argv;
  for (std::string& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);
  posix_spawn_file_actions_t quiet;
  posix_spawn_file_actions_init(&quiet);
  posix_spawn_file_actions_addopen(&quiet, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  const auto start = std::chrono::steady_clock::now();
  pid_t pid = 0;
  const int failed = posix_spawnp(&pid, argv[0], &quiet, nullptr, argv.data(), environ);
  posix_spawn_file_actions_destroy(&quiet);
  int status = 0;
  struct rusage usage {};
  if (failed == 0) wait4(pid, &status, 0, &usage);
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  if (failed != 0 || status != 0) throw std::runtime_error(words[0] + " failed");
  return {taken.count(), static_cast<double>(usage.ru_maxrss) / 1024};
}

void Restore(const fs::path& pristine, const fs::path& work) {
  fs::remove_all(work);
  fs::copy(pristine, work, fs::copy_options::recursive);
  sync();  // no contender waits for another's delayed writes
}

Measured Median(std::vector<Measured> runs) {
  const auto middle = runs.begin() + static_cast<std::ptrdiff_t>(runs.size() / 2);
  std::nth_element(runs.begin(), middle, runs.end(),
                   [](const Measured& a, const Measured& b) { return a.seconds < b.seconds; });
  return *middle;
}

}  // namespace

std::vector<Measured> Race(const fs::path& pristine, const fs::path& work,
                           const std::vector<Contender>& contenders, int rounds) {
  std::vector<std::vector<Measured>> runs(contenders.size());
  for (int round = 0; round < rounds; ++round) {
    for (std::size_t i = 0; i < contenders.size(); ++i) {
      Restore(pristine, work);
      runs[i].push_back(RunProcess(WithFolder(contenders[i].command, work)));
    }
  }
  std::vector<Measured> medians;
  for (auto& of_one : runs) medians.push_back(Median(std::move(of_one)));
  return medians;
}

void Print(const std::string& title, const std::vector<Contender>& contenders,
           const std::vector<Measured>& medians, std::size_t base) {
  std::printf("%s\n", title.c_str());
  for (std::size_t i = 0; i < contenders.size(); ++i) {
    std::printf("  %-24s %8.3f s  %6.1f MiB  %5.2f x\n", contenders[i].name.c_str(),
                medians[i].seconds, medians[i].peak_mib,
                medians[i].seconds / medians[base].seconds);
  }
}

int RoundsAsked(int argc, char** argv, int if_none) {
  return std::max(argc > 1 ? std::atoi(argv[1]) : if_none, 5);
}

std::vector<double> RaceBareLoop(int argc, char** argv, void (*bare_loop)(const fs::path&),
                                 const std::vector<BareLoopRace>& races) {
  std::vector<double> seconds;
  if (argc == 3 && std::string(argv[1]) == "--bare-loop") {
    bare_loop(argv[2]);
    return seconds;
  }
  const int rounds = RoundsAsked(argc, argv);
  const ScratchFolder scratch("bench");
  const fs::path pristine = scratch.path() / "pristine";
  for (const BareLoopRace& race : races) {
    fs::remove_all(pristine);
    race.make_install(pristine);
    Contender command{race.words.front(), {GOLF_CLI, "--quiet", "--install", "{}"}};
    command.command.insert(command.command.end(), race.words.begin(), race.words.end());
    std::vector<Contender> contenders = {command, {"bare loop", {argv[0], "--bare-loop", "{}"}}};
    contenders.insert(contenders.end(), race.others.begin(), race.others.end());
    const auto medians = Race(pristine, scratch.path() / "work", contenders, rounds);
    Print(race.title, contenders, medians, 1);
    seconds.push_back(medians[0].seconds);
  }
  return seconds;
}

ScratchFolder::ScratchFolder(const std::string& name)
    : path_(fs::temp_directory_path() / (name + "-" + std::to_string(getpid()))) {
  fs::create_directories(path_);
}

ScratchFolder::~ScratchFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

}  // namespace golf::bench
