#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "history/history_gate.h"

namespace golf {

// Keeps pieces of bytes: the first ones in memory, all others in a scratch file. Raises HoldFailed
// where the scratch file cannot be made, written or read.
class SpillStore {
 public:
  // Bytes. With the index of the pieces it is 32 MiB for 300,000 golfers.
  static constexpr std::size_t kMemory = std::size_t{20} << 20;

  explicit SpillStore(Platform& platform, std::size_t memory = kMemory)
      : gate_(platform), memory_(memory) {}

  // Returns the place of the piece in the store.
  std::int64_t Append(std::string_view bytes);
  void Read(std::int64_t place, std::span<char> into);

 private:
  void WriteTail();

  HistoryGate gate_;
  std::size_t memory_;
  std::vector<std::unique_ptr<char[]>> blocks_;
  std::size_t in_memory_ = 0;  // bytes
  std::unique_ptr<PlatformFile> scratch_;
  std::int64_t in_scratch_ = 0;  // bytes that were written to it
  std::string tail_;             // follows them
};

}  // namespace golf
