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

// Contains all open files of the process by their numbers. Fixed numbers are below 256. FreeNumber
// returns each free number only once, so the number of a closed file raises error 52 and never
// reaches another file.
class FileTable {
 public:
  explicit FileTable(Platform& platform) : platform_(platform), gate_(platform) {}

  Platform& platform() { return platform_; }
  ChangeGate& gate() { return gate_; }

  int FreeNumber() { return next_free_++; }

  // Opens a random-access file of records of `record_length` bytes. Creates a missing file, but
  // raises error 53 if the access is kReadOnly. First closes a file that is open under this number.
  void Open(int number, const std::string& path, std::size_t record_length,
            FileAccess access = FileAccess::kReadWriteShared);
  // Close one file or all files. A number that is not open is ignored. A write error is raised if
  // written data may be lost. Every file is closed in any case.
  void Close(int number);
  void CloseAll();

  // All functions from here to Generation raise error 52 if the number is not open.

  std::int64_t Length(int number);  // in bytes
  // Returns the number of whole records. Does not count an incomplete record at the end.
  std::int64_t CountTruncated(int number, std::size_t record_length);
  // Returns the number of records, rounded to the nearest whole number, half to even. Counts an
  // incomplete record at the end if the file contains more than half of it.
  std::int64_t CountRounded(int number, std::size_t record_length);

  template <class Layout>
  std::int32_t RecordCount(int number) {  // counts whole records only
    return static_cast<std::int32_t>(CountTruncated(number, Layout::kLength));
  }

  // Read or write the start of a record, numbered from 1. Raise the errors of RecordFile.
  template <class Layout>
  void Read(int number, std::int64_t record, Record<Layout>& into) {
    ReadBytes(number, record, into.MutableBytes());
  }
  template <class Layout>
  void Write(int number, std::int64_t record, const Record<Layout>& from) {
    WriteBytes(number, record, from.Bytes());
  }
  // Reads the record up to the end of a field that is no table, and changes no other byte of
  // `into`.
  template <FieldName kLast, class Layout>
  void ReadUntil(int number, std::int64_t record, Record<Layout>& into) {
    constexpr Field kField = FieldOf<Layout, kLast>();
    static_assert(kField.rank == 0);
    ReadBytes(number, record, into.MutableBytes().first(kField.offset + kField.width));
  }
  void ReadBytes(int number, std::int64_t record, std::span<char> into);
  void WriteBytes(int number, std::int64_t record, std::string_view from);

  // Returns a number that changes whenever the bytes of records read before may be out of date.
  std::uint64_t Generation(int number) { return At(number).generation(); }

  // Returns true if a normal file matches the path. Returns false on an error. In the last part of
  // the path "*" matches any characters and "?" matches any one character. A path that ends in a
  // separator matches every file in the folder.
  bool FileExists(const std::string& path);
  // Returns the names of the normal files in a folder that match such a pattern, sorted without
  // regard to case. Raises error 76 if the folder is missing.
  std::vector<std::string> FilesLike(const std::string& folder, std::string_view pattern);
  // Returns the content of a text file, but no more than its first megabyte. Raises error 53 if the
  // file is missing.
  std::string ReadText(const std::string& path);
  // Deletes a file. A failed deletion raises no error.
  void DeleteFile(const std::string& path);

  // Discards all bytes read ahead, so that later reads see the changes of other programs. The
  // program calls this at every box and at the end of every click.
  void Synchronize();

 private:
  RecordFile& At(int number);

  Platform& platform_;
  ChangeGate gate_;
  std::map<int, std::unique_ptr<RecordFile>> files_;
  int next_free_ = 256;
};

}  // namespace golf
