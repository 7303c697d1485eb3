#pragma once

#include <string>
#include <vector>

namespace golf {

// Is a file or folder outside the install that the program creates. It is written under another
// name in the same folder and gets its own name at the end, so that it is never incomplete. All
// paths are UTF-8. Except for the queries, the functions raise NumberedError: error 61 if the disk
// is full, 75 if access is refused, and 57 otherwise.
class NewTarget {
 public:
  explicit NewTarget(const std::string& utf8_path);
  NewTarget(const NewTarget&) = delete;
  NewTarget& operator=(const NewTarget&) = delete;
  // Deletes what was written, unless Publish has been called.
  ~NewTarget();

  const std::string& path() const { return path_; }
  std::string name() const;       // without its folder; empty if the path names no file or folder
  std::string extension() const;  // such as ".csv"
  std::string folder() const;     // "." if the path has none
  bool HasFolder() const;         // true if the folder exists
  // Returns the names of the folders that contain the target, from the root on. Symbolic links are
  // resolved.
  std::vector<std::string> Folders() const;
  // Returns true if a file exists whose name is that of the target with one of these endings.
  bool HasCompanion(const std::string& ending, const std::string& other) const;

  enum class Kind { kNothing, kFile, kFolder, kOther };
  // Returns what exists at the path. A link is another kind.
  Kind Existing() const;
  // Returns the names in the existing folder. A name that is no file ends in "/".
  std::vector<std::string> NamesInExisting() const;

  // Chooses the other name, creates a folder of that name if `is_folder` is true, and returns its
  // path.
  std::string Prepare(bool is_folder);
  // Gives the target its own name. Replaces a file or folder that exists there. Returns after the
  // name is on the disk.
  void Publish();

 private:
  std::string Unused(const std::string& purpose) const;

  std::string path_;
  std::string written_;  // empty if there is nothing to delete
};

// Returns the user's folder for temporary files, which ends in a separator, in UTF-8. Raises error
// 76 if there is no such folder.
std::string TemporaryFolder();

// Returns the path of a file in the user's folder for temporary files. Its name is the stem, a
// number and the extension, and no file has this path yet. All texts are UTF-8. Raises the error of
// TemporaryFolder.
std::string TemporaryPath(const std::string& stem, const std::string& extension);

}  // namespace golf
