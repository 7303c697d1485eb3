#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "history/history_gate.h"

namespace golf {

// Stores strings of bytes. Keeps the first ones in memory and all others in a scratch file. Raises
// HoldFailed if the scratch file cannot be opened, written or read.
class SpillStore {
 public:
  // Limits the memory for the strings, in bytes. With its HeldPlace index, a run over 300,000
  // golfers then needs 32 MiB.
  static constexpr std::size_t kMemory = std::size_t{20} << 20;

  explicit SpillStore(Platform& platform, std::size_t memory = kMemory)
      : gate_(platform), memory_(memory) {}

  // Returns the position at which Read finds the bytes.
  std::int64_t Append(std::string_view bytes);
  void Read(std::int64_t place, std::span<char> into);

 private:
  void WriteTail();

  HistoryGate gate_;
  std::size_t memory_;
  std::vector<std::unique_ptr<char[]>> blocks_;
  std::size_t in_memory_ = 0;  // bytes
  std::unique_ptr<PlatformFile> scratch_;
  std::int64_t in_scratch_ = 0;  // number of bytes written to `scratch_`
  std::string tail_;             // bytes to be written behind them
};

}  // namespace golf
