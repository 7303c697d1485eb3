#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace golf::bench {

// Contains the times and the memory that a process and its children used from its start to its end.
struct Measured {
  double seconds = 0;         // of the clock
  double user_seconds = 0;    // of the processor, in the program
  double system_seconds = 0;  // of the processor, in the system
  double peak_mib = 0;        // the largest resident set, in MiB
};

// Describes a command that does the work of a benchmark. "{}" in a word is replaced by the work
// folder.
struct Contender {
  std::string name;
  std::vector<std::string> command;
};

// Runs the contenders and returns their medians in the same order. Copies `pristine` to the work
// folder before each run, so that all contenders do the same work. The time of the copying does not
// count. Throws an exception if a command fails, which ends the benchmark.
std::vector<Measured> Race(const std::filesystem::path& pristine, const std::filesystem::path& work,
                           const std::vector<Contender>& contenders, int rounds);

// Prints a line for each contender with its ratio to the contender `base`. If the environment
// variable BENCH_ROWS contains the path of a file, also appends each line to it, as a JSON object.
void Print(const std::string& title, const std::vector<Contender>& contenders,
           const std::vector<Measured>& medians, std::size_t base);

// Makes an install, runs the contenders on copies of it, and prints a line for each with its ratio
// to the contender `base`. Returns their medians.
std::vector<Measured> RaceOnInstall(
    const std::string& title, const std::function<void(const std::filesystem::path&)>& make_install,
    const std::vector<Contender>& contenders, std::size_t base, int rounds);

// Returns a contender: a command of the program on the install, without its output of the progress.
Contender ProgramContender(const std::string& name, const std::vector<std::string>& words);

// Runs a command once. "{}" in a word is replaced by the folder. Throws an exception if it fails.
void RunOnce(const Contender& command, const std::filesystem::path& folder);

// Returns the number of rounds given as an argument of the benchmark, but at least 5.
int RoundsAsked(int argc, char** argv, int if_none = 7);

// Describes a command of the program that is compared with a bare loop that does the same work.
struct BareLoopRace {
  std::string title;
  std::function<void(const std::filesystem::path& folder)> make_install;
  std::vector<std::string> words;  // the words after "--install FOLDER", first the command's name
  std::vector<Contender> others = {};
};

// Does the work of the main function of a benchmark with a bare loop. Runs the loop on an install
// if the arguments are "--bare-loop DIR". Otherwise it runs and prints each race. The argument is
// the number of rounds, at least 5. Returns the seconds of the command in each race.
std::vector<double> RaceBareLoop(int argc, char** argv,
                                 void (*bare_loop)(const std::filesystem::path&),
                                 const std::vector<BareLoopRace>& races);

// Creates a folder for one benchmark. The destructor deletes it. It is below TMPDIR if that is set.
class ScratchFolder {
 public:
  explicit ScratchFolder(const std::string& name);
  ~ScratchFolder();
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace golf::bench
