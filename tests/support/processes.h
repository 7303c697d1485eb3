#pragma once

#include <string>

#include "support/temp_folder.h"

namespace golf {

// Holds a file so that no other program can open it.
class HeldFile {
 public:
  explicit HeldFile(const std::string& utf8_path);
  HeldFile(const HeldFile&) = delete;
  HeldFile& operator=(const HeldFile&) = delete;
  ~HeldFile();

  // False if another program has the file open.
  bool held() const { return held_; }

 private:
  void* system_ = nullptr;
  bool held_ = false;
};

// The end of a program.
struct Ended {
  int code;
  std::string out;
  std::string problems;
};

// Runs a program in the folder to its end. `words` are its arguments in UTF-8, separated by blanks.
// Its three streams are the files in, out and problems there.
Ended RunProgram(const TempFolder& folder, const std::string& program, const std::string& words,
                 const std::string& input = "");

}  // namespace golf
