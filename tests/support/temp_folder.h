#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

namespace golf {

// A folder that is deleted with its contents at the end of the test. Names are UTF-8 and may be
// paths below it.
class TempFolder {
 public:
  // `name` is the folder's own name. Its parent makes it unique.
  explicit TempFolder(std::string_view name = "install")
      : parent_(NewFolder()), folder_(parent_ / FromUtf8(name)) {
    std::filesystem::create_directory(folder_);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(parent_, ignored);
  }

  std::string Path(std::string_view name = "") const {
    const std::u8string path = At(name).u8string();
    return {path.begin(), path.end()};
  }
  bool Exists(std::string_view name) const { return std::filesystem::exists(At(name)); }

  // Writing makes missing folders.
  void Write(std::string_view name, std::string_view bytes) const {
    std::filesystem::create_directories(At(name).parent_path());
    std::ofstream file(At(name), std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!file.flush()) throw std::runtime_error("cannot write " + Path(name));
  }
  void MakeFolder(std::string_view name) const { std::filesystem::create_directories(At(name)); }
  void Remove(std::string_view name) const { std::filesystem::remove(At(name)); }
  // Returns the whole file. The test fails if it cannot be read.
  std::string Read(std::string_view name) const {
    std::ifstream file(At(name), std::ios::binary);
    if (!file) throw std::runtime_error("cannot read " + Path(name));
    return {std::istreambuf_iterator<char>(file), {}};
  }
  // Returns all files with their bytes, by their paths below a folder, with "/".
  std::map<std::string, std::string> Files(std::string_view below = "") const {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(At(below))) {
      if (!entry.is_regular_file()) continue;
      std::string& bytes = files[entry.path().lexically_relative(At(below)).generic_string()];
      bytes.resize(entry.file_size());
      std::ifstream(entry.path(), std::ios::binary).read(bytes.data(), std::ssize(bytes));
    }
    return files;
  }

 private:
  static std::filesystem::path FromUtf8(std::string_view name) {
    return {std::u8string(name.begin(), name.end())};
  }
  static std::filesystem::path NewFolder() {
    // The pictures of the help show the name, so it must be the same each time they are taken.
    const bool is_picture = std::getenv("GOLF_PICTURES") != nullptr;
    std::random_device random;
    for (int number = 1;; ++number) {
      const auto folder = std::filesystem::temp_directory_path() /
                          (is_picture ? "golf-" + std::to_string(number)
                                      : "golf-transfer-test-" + std::to_string(random()));
      if (std::filesystem::create_directory(folder)) return folder;
    }
  }
  std::filesystem::path At(std::string_view name) const {
    return name.empty() ? folder_ : folder_ / FromUtf8(name);
  }

  std::filesystem::path parent_;
  std::filesystem::path folder_;
};

}  // namespace golf
