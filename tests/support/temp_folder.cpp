#include "support/temp_folder.h"

#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <system_error>

namespace golf {
namespace {

namespace fs = std::filesystem;

fs::path FromUtf8(std::string_view name) { return {std::u8string(name.begin(), name.end())}; }

fs::path NewFolder() {
  std::random_device random;
  for (;;) {
    const fs::path folder =
        fs::temp_directory_path() / ("golf-transfer-test-" + std::to_string(random()));
    if (fs::create_directory(folder)) return folder;
  }
}

}  // namespace

TempFolder::TempFolder(std::string_view name)
    : parent_(NewFolder()), folder_(parent_ / FromUtf8(name)) {
  fs::create_directory(folder_);
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  fs::remove_all(parent_, ignored);
}

fs::path TempFolder::At(std::string_view name) const {
  return name.empty() ? folder_ : folder_ / FromUtf8(name);
}

std::string TempFolder::Path(std::string_view name) const {
  const std::u8string path = At(name).u8string();
  return {path.begin(), path.end()};
}

bool TempFolder::Exists(std::string_view name) const { return fs::exists(At(name)); }

void TempFolder::MakeFolder(std::string_view name) const { fs::create_directories(At(name)); }

void TempFolder::Remove(std::string_view name) const { fs::remove(At(name)); }

void TempFolder::Write(std::string_view name, std::string_view bytes) const {
  fs::create_directories(At(name).parent_path());
  std::ofstream file(At(name), std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!file.flush()) throw std::runtime_error("cannot write " + Path(name));
}

std::string TempFolder::Read(std::string_view name) const {
  std::ifstream file(At(name), std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + Path(name));
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace golf
