#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/platform.h"
#include "core/record.h"
#include "core/shared_state.h"

namespace golf {

// Reads the records of an open file one after the other, several with one call to the system. The
// functions raise the errors of a PlatformFile.
class RecordReader {
 public:
  // `length` is the length of a record in bytes.
  RecordReader(std::unique_ptr<PlatformFile> file, std::size_t length);

  std::int64_t count() const { return count_; }      // whole records
  std::size_t rest() const { return rest_; }         // bytes after the last whole record
  std::int64_t number() const { return next_ - 1; }  // of the record that was read last, from 1
  // Returns the next whole record, or an empty view after the last one. The view is valid until the
  // next call. After an error, the call can be repeated.
  std::string_view Next();

 private:
  void Fill();
  void Read(std::size_t records);

  std::unique_ptr<PlatformFile> file_;
  std::size_t length_;
  std::int64_t count_ = 0;
  std::size_t rest_ = 0;
  std::int64_t next_ = 1;
  std::int64_t first_ = 1;  // number of the first record in the buffer
  std::string buffer_;      // whole records
};

// Finds and opens the files of an install for programs that read it as a whole. Files are named by
// their paths below the install, with "/". Nothing is changed.
class RecordFiles {
 public:
  explicit RecordFiles(SharedState& state) : state_(state) {}

  SharedState& state() const { return state_; }

  // Returns the path of a file below the install, with "/".
  std::string NameOf(const std::string& folder, const std::string& name) const;
  bool HasFolder(const std::string& folder) const;
  // Returns the names of the files in a folder that match a pattern such as "*.KV5". Returns none
  // if the folder does not exist.
  std::vector<std::string> FilesLike(const std::string& folder, std::string_view pattern) const;
  // Returns the names without extension of the files in a folder that match a pattern and have one
  // of the extensions, such as ".KV5". Sorts them without regard to case. All files of a roster, a
  // tournament or a league have the same name without extension.
  std::vector<std::string> BasesLike(const std::string& folder, std::string_view pattern,
                                     std::initializer_list<std::string_view> extensions) const;

  // Returns the length of all data files of the install in the three programs' folders, in bytes.
  // Leaves out a file that cannot be opened.
  std::int64_t LengthOfAll() const;

  // Opens a file for reading. Returns null if the file or its folder does not exist. Raises the
  // errors of Platform otherwise.
  std::unique_ptr<PlatformFile> Open(const std::string& file) const;

 private:
  SharedState& state_;
};

}  // namespace golf
