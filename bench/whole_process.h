#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace golf::bench {

// What a process took, from its start to its end.
struct Measured {
  double seconds = 0;
  double peak_mib = 0;  // largest resident set
};

// One way to do the work of a benchmark, as the words of a command. "{}" in a word stands for the
// work folder.
struct Contender {
  std::string name;
  std::vector<std::string> command;
};

// Medians for each contender, in their order. Each round restores the work folder from `pristine`
// before each contender, so that all do the same work; restoring is not timed. A command that fails
// ends the benchmark.
std::vector<Measured> Race(const std::filesystem::path& pristine, const std::filesystem::path& work,
                           const std::vector<Contender>& contenders, int rounds);

// Prints a line for each contender, with its ratio to the contender `base`.
void Print(const std::string& title, const std::vector<Contender>& contenders,
           const std::vector<Measured>& medians, std::size_t base);

// How many rounds a benchmark's argument asks for, 5 at least.
int RoundsAsked(int argc, char** argv, int if_none = 7);

// A command of the program beside the same work as a bare loop.
struct BareLoopRace {
  std::string title;
  std::function<void(const std::filesystem::path& folder)> make_install;
  std::vector<std::string> words;  // behind "--install FOLDER"; the command's name first
  std::vector<Contender> others = {};
};

// The main function of a benchmark beside a bare loop. "--bare-loop DIR" is the loop over an
// install; else each race is run and printed, in as many rounds as the argument says, 5 at least.
// Gives the seconds of the command in each.
std::vector<double> RaceBareLoop(int argc, char** argv,
                                 void (*bare_loop)(const std::filesystem::path&),
                                 const std::vector<BareLoopRace>& races);

// A folder for one benchmark, taken away at the end. Below TMPDIR, where that is set.
class ScratchFolder {
 public:
  explicit ScratchFolder(const std::string& name);
  ~ScratchFolder();
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace golf::bench
