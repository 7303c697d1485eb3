#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace golf::bench {

// What a process took from its start to its end.
struct Measured {
  double seconds = 0;
  double peak_mib = 0;  // largest resident set
};

// One way to do the work of a benchmark: the words of a command. "{}" in a word stands for the work
// folder.
struct Contender {
  std::string name;
  std::vector<std::string> command;
};

// Returns the medians of the contenders in their order. Before each run the work folder is restored
// from `pristine`, which is not timed, so all contenders do the same work. A command that fails
// ends the benchmark.
std::vector<Measured> Race(const std::filesystem::path& pristine, const std::filesystem::path& work,
                           const std::vector<Contender>& contenders, int rounds);

// Prints a line for each contender with its ratio to the contender `base`.
void Print(const std::string& title, const std::vector<Contender>& contenders,
           const std::vector<Measured>& medians, std::size_t base);

// Returns the number of rounds that the benchmark's argument asks for, at least 5.
int RoundsAsked(int argc, char** argv, int if_none = 7);

// A command of the program, to be compared with the same work as a bare loop.
struct BareLoopRace {
  std::string title;
  std::function<void(const std::filesystem::path& folder)> make_install;
  std::vector<std::string> words;  // after "--install FOLDER"; the command's name first
  std::vector<Contender> others = {};
};

// The main function of a benchmark with a bare loop. With "--bare-loop DIR" it runs the loop on an
// install. Otherwise it runs and prints each race, in as many rounds as the argument says, at least
// 5. Returns the seconds of the command in each race.
std::vector<double> RaceBareLoop(int argc, char** argv,
                                 void (*bare_loop)(const std::filesystem::path&),
                                 const std::vector<BareLoopRace>& races);

// A folder for one benchmark, deleted at its end. It lies below TMPDIR if that is set.
class ScratchFolder {
 public:
  explicit ScratchFolder(const std::string& name);
  ~ScratchFolder();
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace golf::bench
