#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>

#include "core/numbered_error.h"

namespace golf {

// Holds a table with the indexes `kFirst` to `kLast`. Any other index raises error 9.
template <class T, int kFirst, int kLast>
class Indexed {
 public:
  T& operator[](int i) { return values_[Position(i)]; }
  const T& operator[](int i) const { return values_[Position(i)]; }

  void Fill(const T& value) { values_.fill(value); }
  std::span<T> span() { return values_; }

 private:
  static std::size_t Position(int i) {
    if (i < kFirst || i > kLast) {
      throw NumberedError(ErrorNumber::kSubscript,
                          "A table of scores has no place " + std::to_string(i) + ".");
    }
    return static_cast<std::size_t>(i - kFirst);
  }

  std::array<T, static_cast<std::size_t>(kLast - kFirst) + 1> values_{};
};

}  // namespace golf
