#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "core/change_gate.h"

namespace golf {

// Reads and writes a random-access file of records of one length, numbered from 1. A buffer, called
// the window, reads consecutive records ahead. The owner must call ForgetWindow when the file may
// have changed.
class RecordFile {
 public:
  RecordFile(ChangeGate& gate, std::string path, std::size_t record_length, FileAccess access);

  const std::string& path() const { return path_; }
  const FileIdentity& identity() const { return identity_; }

  // Returns the current length in bytes.
  std::int64_t Length();

  // Reads the start of a record, as many bytes as `into` holds. Bytes beyond the end of the file
  // read as zeros. Raises error 63 for a record below 1, error 59 if `into` is longer than a
  // record, and ReadError if the system cannot read the bytes. First writes the delayed writes of
  // this file, which may raise their own error.
  void Read(std::int64_t record, std::span<char> into);

  // Writes the start of a record. A record beyond the end extends the file. Raises error 63 for a
  // record below 1, error 59 if `bytes` is longer than a record, and the system's error for a
  // failed write.
  void Write(std::int64_t record, std::string_view bytes);

  // Closes the file. Raises an error only if the file was written and data may be lost.
  void Close();

  void ForgetWindow();
  // Returns a number that changes whenever the window is discarded. A record is as recent as the
  // window if the number is the same as when the record was read.
  std::uint64_t generation() const { return generation_; }

 private:
  void Check(std::int64_t record, std::size_t size) const;
  // Both return the number of bytes that they have read.
  std::size_t ReadInto(std::span<char> into, std::int64_t offset);
  std::size_t ReadByWindow(std::span<char> into, std::int64_t offset, bool inside);
  void FillWindow(std::int64_t offset, std::size_t size);

  ChangeGate& gate_;
  std::string path_;
  std::size_t record_length_;
  std::unique_ptr<PlatformFile> file_;
  FileIdentity identity_;
  std::vector<char> buffer_;  // contains the window, and is never made smaller
  std::int64_t window_offset_ = 0;
  std::size_t window_size_ = 0;    // number of bytes requested for the window
  std::size_t window_held_ = 0;    // number of bytes of the window read from the file
  std::int64_t next_offset_ = -1;  // start of the record after the last one read; -1 if none
  std::size_t ahead_ = 0;  // bytes requested by the last sequential read; 0 after any other read
  std::uint64_t generation_ = 0;
  bool written_ = false;
};

}  // namespace golf
