#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "core/change_gate.h"

namespace golf {

// A random-access file of records of one length, numbered from 1. Records that follow each other
// are read ahead through a window, which the owner forgets when what stands in the file may have
// changed.
class RecordFile {
 public:
  RecordFile(ChangeGate& gate, std::string path, std::size_t record_length, FileAccess access);

  const std::string& path() const { return path_; }
  const FileIdentity& identity() const { return identity_; }

  // Bytes, as the system tells it now.
  std::int64_t Length();

  // Reads the start of a record, as many bytes as `into` holds; zeros stand for what lies behind
  // the end of the file. Error 63 for a record below 1, 59 if `into` is longer than a record;
  // ReadError where the system does not give the bytes.
  void Read(std::int64_t record, std::span<char> into);

  // Writes the start of a record; behind the end the file grows. Errors as for Read.
  void Write(std::int64_t record, std::string_view bytes);

  // Ends the use of the file. Raises an error where bytes that were written may be lost.
  void Close();

  void ForgetWindow();
  // Changes whenever the window was forgotten: what was read under one generation is as fresh as
  // the window is.
  std::uint64_t generation() const { return generation_; }

 private:
  void Check(std::int64_t record, std::size_t size) const;
  void FillWindow(std::int64_t offset, std::size_t size);

  ChangeGate& gate_;
  std::string path_;
  std::size_t record_length_;
  std::unique_ptr<PlatformFile> file_;
  FileIdentity identity_;
  std::vector<char> window_;
  std::int64_t window_offset_ = 0;
  std::size_t window_held_ = 0;    // bytes of the window that the file had
  std::int64_t next_offset_ = -1;  // where a read would follow the last one
  std::size_t ahead_ = 0;          // bytes to read at the next one that does
  std::uint64_t generation_ = 0;
  bool written_ = false;
};

}  // namespace golf
