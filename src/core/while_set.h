#pragma once

#include <utility>

namespace golf {

// Sets a flag to a value during its lifetime. The destructor restores the previous value.
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
