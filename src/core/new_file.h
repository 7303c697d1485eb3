#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "core/platform.h"

namespace golf {

// Writes a new file outside the install from its start to its end. All functions raise the errors
// of a PlatformFile, for example error 61 if the disk is full.
class NewFile {
 public:
  // Creates the file. Raises error 75 if the path exists.
  explicit NewFile(const std::string& utf8_path) : file_(CreateOutside(utf8_path)) {}

  void Append(std::string_view bytes);
  // Returns after all bytes are on the disk. A file that is not closed may be incomplete.
  void Close();

 private:
  void Flush();

  std::unique_ptr<PlatformFile> file_;
  std::string waiting_;  // bytes that are not written yet
  std::int64_t length_ = 0;
};

}  // namespace golf
