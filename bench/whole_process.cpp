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
#include <fstream>
#include <nlohmann/json.hpp>
#include <stdexcept>

extern char** environ;

namespace golf::bench {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> WithFolder(std::vector<std::string> words, const fs::path& folder) {
  for (std::string& word : words) {
    for (std::size_t at = 0; (at = word.find("{}", at)) != std::string::npos;) {
      word.replace(at, 2, folder.string());
      at += folder.string().size();
    }
  }
  return words;
}

double Seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
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
  return {taken.count(), Seconds(usage.ru_utime), Seconds(usage.ru_stime),
          static_cast<double>(usage.ru_maxrss) / 1024};
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
  std::ofstream rows;
  if (const char* path = std::getenv("BENCH_ROWS")) rows.open(path, std::ios::app);
  for (std::size_t i = 0; i < contenders.size(); ++i) {
    const Measured& of = medians[i];
    const double ratio = of.seconds / medians[base].seconds;
    std::printf("  %-24s %8.3f s  user %7.3f s  system %7.3f s  %6.1f MiB  %5.2f x\n",
                contenders[i].name.c_str(), of.seconds, of.user_seconds, of.system_seconds,
                of.peak_mib, ratio);
    rows << nlohmann::ordered_json{{"task", title},
                                   {"contender", contenders[i].name},
                                   {"seconds", of.seconds},
                                   {"userSeconds", of.user_seconds},
                                   {"systemSeconds", of.system_seconds},
                                   {"peakMiB", of.peak_mib},
                                   {"ratio", ratio}}
         << '\n';
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
  for (const BareLoopRace& race : races) {
    std::vector<Contender> contenders = {ProgramContender(race.words.front(), race.words),
                                         {"bare loop", {argv[0], "--bare-loop", "{}"}}};
    contenders.insert(contenders.end(), race.others.begin(), race.others.end());
    const auto medians = RaceOnInstall(race.title, race.make_install, contenders, 1, rounds);
    seconds.push_back(medians[0].seconds);
  }
  return seconds;
}

std::vector<Measured> RaceOnInstall(const std::string& title,
                                    const std::function<void(const fs::path&)>& make_install,
                                    const std::vector<Contender>& contenders, std::size_t base,
                                    int rounds) {
  const ScratchFolder scratch("bench");
  const fs::path pristine = scratch.path() / "pristine";
  make_install(pristine);
  const auto medians = Race(pristine, scratch.path() / "work", contenders, rounds);
  Print(title, contenders, medians, base);
  return medians;
}

Contender ProgramContender(const std::string& name, const std::vector<std::string>& words) {
  Contender contender{name, {GOLF_CLI, "--quiet", "--install", "{}"}};
  contender.command.insert(contender.command.end(), words.begin(), words.end());
  return contender;
}

void RunOnce(const Contender& command, const fs::path& folder) {
  RunProcess(WithFolder(command.command, folder));
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
