#include "history/place_reader.h"

#include <algorithm>

#include "core/numbered_error.h"

namespace golf {
namespace {

constexpr std::size_t kFirstWindow = std::size_t{4} << 10;
constexpr std::size_t kLargestWindow = std::size_t{256} << 10;

}  // namespace

std::string_view PlaceReader::Read(std::int64_t offset, std::size_t size) {
  const bool inside = offset >= at_ && offset + static_cast<std::int64_t>(size) <=
                                           at_ + static_cast<std::int64_t>(asked_);
  if (!inside) {
    const bool is_close = offset - last_end_ <= kCloseGap;
    ahead_ = is_close ? std::clamp(ahead_ * 2, kFirstWindow, kLargestWindow) : 0;
    at_ = offset;
    try {
      Fill(std::max(size, ahead_));
    } catch (const NumberedError&) {
      if (ahead_ <= size) throw;
      Fill(size);  // perhaps only bytes behind the place cannot be read
    }
  }
  last_end_ = offset + static_cast<std::int64_t>(size);
  const auto start = static_cast<std::size_t>(offset - at_);
  return std::string_view(buffer_.data(), held_).substr(std::min(start, held_), size);
}

void PlaceReader::Fill(std::size_t size) {
  asked_ = held_ = 0;  // after an error the buffer counts as empty
  if (buffer_.size() < size) buffer_.resize(size);
  held_ = file_.ReadAt(at_, std::span(buffer_).first(size));
  asked_ = size;
}

}  // namespace golf
