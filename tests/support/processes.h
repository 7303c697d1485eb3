#pragma once

#include <string>

#include "support/temp_folder.h"

namespace golf {

// Holds a file so that no other program may open it.
class HeldFile {
 public:
  explicit HeldFile(const std::string& utf8_path);
  HeldFile(const HeldFile&) = delete;
  HeldFile& operator=(const HeldFile&) = delete;
  ~HeldFile();

  // False where another has the file open.
  bool held() const { return held_; }

 private:
  void* system_ = nullptr;
  bool held_ = false;
};

// How a program has ended.
struct Ended {
  int code;
  std::string out;
  std::string problems;
};

// Runs a program in the folder to its end. `words` are its arguments, UTF-8, with a blank between
// them. The three streams are files there: in, out, problems.
Ended RunProgram(const TempFolder& folder, const std::string& program, const std::string& words,
                 const std::string& input = "");

}  // namespace golf
