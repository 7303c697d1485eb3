#include <filesystem>
#include <system_error>

#include "core/code_page.h"
#include "core/new_target.h"
#include "core/numbered_error.h"
#include "core/platform.h"

namespace golf {
namespace {

namespace fs = std::filesystem;

fs::path PathOf(const std::string& utf8) { return std::u8string(utf8.begin(), utf8.end()); }

std::string Utf8Of(const fs::path& path) {
  const std::u8string utf8 = path.u8string();
  return {utf8.begin(), utf8.end()};
}

// Raises an error if a call that concerns the path has failed.
void Check(const std::string& path, const std::error_code& error) {
  if (!error) return;
  const bool is_refused = error == std::errc::permission_denied ||
                          error == std::errc::operation_not_permitted ||
                          error == std::errc::read_only_file_system;
  const ErrorNumber number = error == std::errc::no_space_on_device ? ErrorNumber::kDiskFull
                             : is_refused                           ? ErrorNumber::kPathAccess
                                                                    : ErrorNumber::kDeviceFault;
  throw NumberedError(
      number, TextFromUtf8(path) + " cannot be written: " + TextFromUtf8(error.message()) + ".");
}

fs::file_status StatusOf(const std::string& path) {
  std::error_code ignored;
  return fs::symlink_status(PathOf(path), ignored);
}

}  // namespace

NewTarget::NewTarget(const std::string& utf8_path) : path_(utf8_path) {
  // A separator at the end of a folder would otherwise be followed by an empty name.
  const fs::path path = PathOf(path_);
  if (!path.has_filename()) path_ = Utf8Of(path.parent_path());
}

NewTarget::~NewTarget() {
  std::error_code ignored;
  if (!written_.empty()) fs::remove_all(PathOf(written_), ignored);
}

std::string NewTarget::name() const {
  const std::string name = Utf8Of(PathOf(path_).filename());
  return name == "." || name == ".." ? "" : name;
}

std::string NewTarget::extension() const { return Utf8Of(PathOf(path_).extension()); }

std::string NewTarget::folder() const {
  const std::string folder = Utf8Of(PathOf(path_).parent_path());
  return folder.empty() ? "." : folder;
}

bool NewTarget::HasFolder() const {
  std::error_code ignored;
  return fs::is_directory(PathOf(folder()), ignored);
}

std::vector<std::string> NewTarget::Folders() const {
  std::error_code ignored;
  std::vector<std::string> names;
  for (const fs::path& name : fs::canonical(PathOf(folder()), ignored)) {
    names.push_back(Utf8Of(name));
  }
  return names;
}

bool NewTarget::HasCompanion(const std::string& ending, const std::string& other) const {
  return fs::exists(StatusOf(path_ + ending)) || fs::exists(StatusOf(path_ + other));
}

NewTarget::Kind NewTarget::Existing() const {
  const fs::file_status status = StatusOf(path_);
  if (!fs::exists(status)) return Kind::kNothing;
  if (fs::is_regular_file(status)) return Kind::kFile;
  return fs::is_directory(status) ? Kind::kFolder : Kind::kOther;
}

std::vector<std::string> NewTarget::NamesInExisting() const {
  std::vector<std::string> names;
  std::error_code error;
  for (fs::directory_iterator entry(PathOf(path_), error);
       !error && entry != fs::directory_iterator(); entry.increment(error)) {
    const bool is_file = fs::is_regular_file(StatusOf(Utf8Of(entry->path())));
    names.push_back(Utf8Of(entry->path().filename()) + (is_file ? "" : "/"));
  }
  Check(path_, error);
  return names;
}

// Returns a path in the folder of the target that does not exist.
std::string NewTarget::Unused(const std::string& purpose) const {
  for (int i = 1;; ++i) {
    std::string path = path_ + "." + purpose + "-" + std::to_string(i);
    if (!fs::exists(StatusOf(path))) return path;
  }
}

std::string NewTarget::Prepare(bool is_folder) {
  written_ = Unused("new");
  if (is_folder) {
    std::error_code error;
    fs::create_directory(PathOf(written_), error);
    Check(written_, error);
  }
  return written_;
}

void NewTarget::Publish() {
  std::error_code error;
  std::string old;
  if (Existing() == Kind::kFolder) {  // a rename does not replace a folder that has content
    old = Unused("old");
    fs::rename(PathOf(path_), PathOf(old), error);
    Check(path_, error);
  }
  fs::rename(PathOf(written_), PathOf(path_), error);
  if (error && !old.empty()) {
    std::error_code ignored;
    fs::rename(PathOf(old), PathOf(path_), ignored);
  }
  Check(path_, error);
  written_.clear();
  SyncOutside(folder());
  if (!old.empty()) fs::remove_all(PathOf(old), error);
}

std::string TemporaryFolder() {
  std::error_code error;
  const fs::path folder = fs::temp_directory_path(error);
  if (error) {
    throw NumberedError(ErrorNumber::kPathNotFound, "There is no folder for temporary files.");
  }
  return Utf8Of(folder / "");
}

std::string TemporaryPath(const std::string& stem, const std::string& extension) {
  const std::string folder = TemporaryFolder();
  for (int number = 1;; ++number) {
    std::string path = folder + stem + std::to_string(number) + extension;
    if (!fs::exists(StatusOf(path))) return path;
  }
}

}  // namespace golf
