#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace golf {

// A folder that is deleted with its contents at the end of the test. Names are UTF-8 and may be
// paths below it.
class TempFolder {
 public:
  // `name` is the folder's own name. Its parent makes it unique.
  explicit TempFolder(std::string_view name = "install");
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder();

  std::string Path(std::string_view name = "") const;
  bool Exists(std::string_view name) const;

  // Writing makes missing folders.
  void Write(std::string_view name, std::string_view bytes) const;
  void MakeFolder(std::string_view name) const;
  void Remove(std::string_view name) const;
  // Returns the whole file. The test fails if it cannot be read.
  std::string Read(std::string_view name) const;

 private:
  std::filesystem::path At(std::string_view name) const;

  std::filesystem::path parent_;
  std::filesystem::path folder_;
};

}  // namespace golf
