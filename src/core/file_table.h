#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/record.h"
#include "core/record_file.h"

namespace golf {

// Holds all open files of the process by their numbers. Fixed numbers lie below 256. A free number
// is given out only once. So the number of a closed file raises error 52 and never reaches another
// file.
class FileTable {
 public:
  explicit FileTable(Platform& platform) : platform_(platform), gate_(platform) {}

  Platform& platform() { return platform_; }
  ChangeGate& gate() { return gate_; }

  int FreeNumber() { return next_free_++; }

  // Opens a random-access file of records of `record_length` bytes. A missing file is created
  // empty; for kReadOnly it raises error 53. A file already open under this number is closed first.
  void Open(int number, const std::string& path, std::size_t record_length,
            FileAccess access = FileAccess::kReadWriteShared);
  // Close one file or all. A number that is not open is ignored. The errors of a write are raised
  // where written data may be lost; the files are closed all the same.
  void Close(int number);
  void CloseAll();

  // The members from here to Generation raise error 52 if the number is not open.

  std::int64_t Length(int number);  // in bytes
  // Returns the number of whole records. An incomplete record at the end does not count.
  std::int64_t CountTruncated(int number, std::size_t record_length);
  // Returns the number of records, rounded to the nearest whole number, half to even. An incomplete
  // record at the end counts if more than half of it is there.
  std::int64_t CountRounded(int number, std::size_t record_length);

  template <class Layout>
  std::int32_t RecordCount(int number) {  // truncated
    return static_cast<std::int32_t>(CountTruncated(number, Layout::kLength));
  }

  // Read or write the start of a record, numbered from 1. Errors as for RecordFile.
  template <class Layout>
  void Read(int number, std::int64_t record, Record<Layout>& into) {
    ReadBytes(number, record, into.MutableBytes());
  }
  template <class Layout>
  void Write(int number, std::int64_t record, const Record<Layout>& from) {
    WriteBytes(number, record, from.Bytes());
  }
  void ReadBytes(int number, std::int64_t record, std::span<char> into);
  void WriteBytes(int number, std::int64_t record, std::string_view from);

  // Returns a number that changes when a record read before may now read differently.
  std::uint64_t Generation(int number) { return At(number).generation(); }

  // Returns true if the path finds a normal file, and false on an error. In the last part of the
  // path "*" stands for any characters and "?" for any one. A path that ends in a separator finds
  // any name.
  bool FileExists(const std::string& path);
  // Returns the names of the normal files in a folder that match a pattern of such characters,
  // sorted by their names in capitals. Error 76 if the folder is missing.
  std::vector<std::string> FilesLike(const std::string& folder, std::string_view pattern);
  // Returns the content of a text file, at most its first megabyte. Error 53 if the file is
  // missing.
  std::string ReadText(const std::string& path);
  // Deletes a file. A failed deletion raises no error.
  void DeleteFile(const std::string& path);

  // Forgets all bytes read ahead. Another program may change or look at the files from here on.
  // Called at every box and at the end of every click.
  void Synchronize();

 private:
  RecordFile& At(int number);

  Platform& platform_;
  ChangeGate gate_;
  std::map<int, std::unique_ptr<RecordFile>> files_;
  int next_free_ = 256;
};

}  // namespace golf
