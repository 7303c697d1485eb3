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

// The frame of a benchmark beside a bare loop: "--bare-loop DIR" is the loop over an install, any
// other arguments are `race`, which is given how many rounds are asked for, 5 at least.
int RunBenchmark(int argc, char** argv, void (*bare_loop)(const std::filesystem::path&),
                 const std::function<void(int rounds)>& race);
// The bare loop of this very program as a contender.
Contender BareLoopOf(const std::string& own_path);

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
