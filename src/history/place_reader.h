#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "core/platform.h"

namespace golf {

// Reads places of a file by rising offsets. Reads several places with one call of the platform if
// they are close together.
class PlaceReader {
 public:
  // The longest gap between two places that are read or written with one call.
  static constexpr std::int64_t kCloseGap = 4 << 10;  // bytes

  // `file` must outlive this object.
  explicit PlaceReader(PlatformFile& file) : file_(file) {}

  // Returns `size` bytes, or fewer at the end of the file. They are valid until the next call.
  std::string_view Read(std::int64_t offset, std::size_t size);

 private:
  void Fill(std::size_t size);

  PlatformFile& file_;
  std::vector<char> buffer_;
  std::int64_t at_ = 0;    // start of the bytes in the buffer
  std::size_t asked_ = 0;  // bytes that were requested by the last call of the platform
  std::size_t held_ = 0;   // bytes that this call has read
  std::int64_t last_end_ = 0;
  std::size_t ahead_ = 0;  // bytes to read with one call; 0 if the last place was not close
};

}  // namespace golf
