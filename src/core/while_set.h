#pragma once

#include <utility>

namespace golf {

// Gives a flag another value as long as it lives, and then the one that it had.
class WhileSet {
 public:
  explicit WhileSet(bool& flag, bool value = true)
      : flag_(flag), before_(std::exchange(flag, value)) {}
  WhileSet(const WhileSet&) = delete;
  WhileSet& operator=(const WhileSet&) = delete;
  ~WhileSet() { flag_ = before_; }

 private:
  bool& flag_;
  bool before_;
};

}  // namespace golf
