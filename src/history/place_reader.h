#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/platform.h"

namespace golf {

// Reads places of a file by rising offsets. One call reads places that lie close together.
class PlaceReader {
 public:
  // The longest gap between two places that are read, or written, with one call.
  static constexpr std::int64_t kCloseGap = 4 << 10;  // bytes

  // `file` must outlive this object.
  explicit PlaceReader(PlatformFile& file) : file_(file) {}

  // Returns fewer than `size` bytes only at the end of the file. The next call may overwrite them.
  std::string_view Read(std::int64_t offset, std::size_t size);

 private:
  void Fill(std::size_t size);

  PlatformFile& file_;
  std::string window_;  // has more bytes than `held_` if the file ends inside
  std::int64_t at_ = 0;
  std::size_t held_ = 0;
  std::int64_t last_end_ = 0;
  std::size_t ahead_ = 0;  // bytes to read with one call
};

}  // namespace golf
