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

// All files of the process by their numbers. Fixed numbers lie below 256; a free number is given
// once and never again, so that one left over from a closed file is error 52 and never another
// file.
class FileTable {
 public:
  explicit FileTable(Platform& platform) : platform_(platform), gate_(platform) {}

  Platform& platform() { return platform_; }
  ChangeGate& gate() { return gate_; }

  int FreeNumber() { return next_free_++; }

  // Opens a random-access file of records of `record_length` bytes; one that is not there is
  // created empty. A file that has this number is closed first.
  void Open(int number, const std::string& path, std::size_t record_length,
            FileAccess access = FileAccess::kReadWriteShared);
  // A number that is not open is left alone. Errors as those of a write, where writes may be lost;
  // the files are closed all the same.
  void Close(int number);
  void CloseAll();

  // Error 52 in all of these if the number is not open.
  std::int64_t Length(int number);
  // Whole records; a torn one at the end does not count.
  std::int64_t CountTruncated(int number, std::size_t record_length);
  // To the nearest whole number, half to even: a torn record of more than a half counts.
  std::int64_t CountRounded(int number, std::size_t record_length);

  template <class Layout>
  std::int32_t RecordCount(int number) {  // truncated
    return static_cast<std::int32_t>(CountTruncated(number, Layout::kLength));
  }

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

  // Changes when a record that was read before may read differently now.
  std::uint64_t Generation(int number) { return At(number).generation(); }

  // True if a search for the name finds a normal file; "*" and "?" in its last part stand for any
  // characters and any one, and a path that ends in a separator for any name.
  bool FileExists(const std::string& path);
  // The normal files of a folder that a pattern of such characters finds, sorted by their names in
  // capitals.
  std::vector<std::string> FilesLike(const std::string& folder, std::string_view pattern);
  // The whole of a text file; of a longer one the first megabyte.
  std::string ReadText(const std::string& path);
  // A failure is swallowed, but not one of writes that were still to be made.
  void DeleteFile(const std::string& path);

  // The point at which anybody may look at the files: hands joined writes to the system and
  // forgets what was read ahead. Comes at every box and at the end of every click.
  void Synchronize();

 private:
  RecordFile& At(int number);

  Platform& platform_;
  ChangeGate gate_;
  std::map<int, std::unique_ptr<RecordFile>> files_;
  int next_free_ = 256;
};

// Joins the writes of a run that stops at its first error, as long as it lives.
class JoinedWrites {
 public:
  explicit JoinedWrites(FileTable& files) : gate_(files.gate()) { gate_.JoinWrites(true); }
  JoinedWrites(const JoinedWrites&) = delete;
  JoinedWrites& operator=(const JoinedWrites&) = delete;
  ~JoinedWrites() { gate_.JoinWrites(false); }

 private:
  ChangeGate& gate_;
};

}  // namespace golf
