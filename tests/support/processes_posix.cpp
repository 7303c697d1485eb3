#include <fcntl.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>

#include "support/processes.h"

namespace golf {

HeldFile::HeldFile(const std::string& utf8_path) {
  const int number = open(utf8_path.c_str(), O_RDONLY | O_CLOEXEC);
  held_ = number >= 0 && flock(number, LOCK_EX | LOCK_NB) == 0;
  system_ = reinterpret_cast<void*>(static_cast<std::intptr_t>(number));
}

HeldFile::~HeldFile() { close(static_cast<int>(reinterpret_cast<std::intptr_t>(system_))); }

Ended RunProgram(const TempFolder& folder, const std::string& program, const std::string& words,
                 const std::string& input) {
  folder.Write("in", input);
  const std::string command =
      "cd '" + folder.Path() + "' && '" + program + "' " + words + " <in >out 2>problems";
  const int status = std::system(command.c_str());
  return {WEXITSTATUS(status), folder.Read("out"), folder.Read("problems")};
}

}  // namespace golf
