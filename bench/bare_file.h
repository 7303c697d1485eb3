#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <stdexcept>

#include "core/record.h"

namespace golf::bench {

// Reads and writes an open file of records, counted from 0. Each record costs one system call.
template <class Layout>
class BareFile {
 public:
  explicit BareFile(const std::filesystem::path& path) : file_(open(path.c_str(), O_RDWR)) {
    Need(file_ >= 0);
  }
  BareFile(const BareFile&) = delete;
  BareFile& operator=(const BareFile&) = delete;
  ~BareFile() { close(file_); }

  int Count() const { return static_cast<int>(lseek(file_, 0, SEEK_END) / kLength); }
  void Read(int record) {
    const auto bytes = buffer.MutableBytes();
    Need(pread(file_, bytes.data(), bytes.size(), record * kLength) == kLength);
  }
  void Write(int record) {
    const auto bytes = buffer.Bytes();
    Need(pwrite(file_, bytes.data(), bytes.size(), record * kLength) == kLength);
  }
  void ReadAll() {
    for (int record = 0, count = Count(); record < count; ++record) Read(record);
  }

  Record<Layout> buffer;

 private:
  static constexpr auto kLength = static_cast<off_t>(Layout::kLength);

  static void Need(bool worked) {
    if (!worked) throw std::runtime_error("the bare loop failed");
  }

  int file_;
};

}  // namespace golf::bench
