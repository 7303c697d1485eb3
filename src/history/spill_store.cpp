#include "history/spill_store.h"

#include <algorithm>
#include <cstring>

#include "core/numbered_error.h"
#include "history/hold_failed.h"

namespace golf {
namespace {

constexpr std::size_t kBlock = std::size_t{1} << 20;
constexpr std::size_t kTail = std::size_t{256} << 10;
// Positions from this number on are in the scratch file. Lower positions are in memory.
constexpr std::int64_t kScratch = std::int64_t{1} << 40;

}  // namespace

std::int64_t SpillStore::Append(std::string_view bytes) {
  if (bytes.empty()) return 0;
  const std::size_t used = in_memory_ % kBlock;
  const std::size_t room = blocks_.empty() || used == 0 ? 0 : kBlock - used;
  if (tail_.empty() && scratch_ == nullptr && bytes.size() <= kBlock) {
    std::size_t at = in_memory_;
    if (bytes.size() > room) {
      at = blocks_.size() * kBlock;
      if (at + kBlock <= memory_) blocks_.push_back(std::make_unique_for_overwrite<char[]>(kBlock));
    }
    if (at + bytes.size() <= blocks_.size() * kBlock) {
      std::copy(bytes.begin(), bytes.end(), blocks_[at / kBlock].get() + at % kBlock);
      in_memory_ = at + bytes.size();
      return static_cast<std::int64_t>(at);
    }
  }
  const std::int64_t place = kScratch + in_scratch_ + static_cast<std::int64_t>(tail_.size());
  tail_ += bytes;
  if (tail_.size() >= kTail) WriteTail();
  return place;
}

void SpillStore::WriteTail() {
  OrHoldFailed([&] {
    if (scratch_ == nullptr) scratch_ = gate_.platform().OpenScratch();
    gate_.Write(*scratch_, in_scratch_, tail_);
  });
  in_scratch_ += static_cast<std::int64_t>(tail_.size());
  tail_.clear();
}

void SpillStore::Read(std::int64_t place, std::span<char> into) {
  if (into.empty()) return;
  if (place < kScratch) {
    const auto at = static_cast<std::size_t>(place);
    std::copy_n(blocks_[at / kBlock].get() + at % kBlock, into.size(), into.begin());
    return;
  }
  const std::int64_t at = place - kScratch;
  if (at >= in_scratch_) {
    tail_.copy(into.data(), into.size(), static_cast<std::size_t>(at - in_scratch_));
    return;
  }
  OrHoldFailed([&] {
    if (scratch_->ReadAt(at, into) == into.size()) return;
    throw NumberedError(ErrorNumber::kDeviceFault, "The scratch file was cut.");
  });
}

}  // namespace golf
