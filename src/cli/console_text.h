#pragma once

#include <array>
#include <functional>
#include <streambuf>
#include <string>
#include <string_view>

namespace golf {

// These convert between the UTF-8 of the program and the UTF-16 of the Windows console. They do not
// call the system, so the tests of all systems include them.

// Removes the whole characters from the front of `utf8` and returns them in UTF-16. What remains is
// the beginning of a character whose end is missing. Each other byte that is not UTF-8 becomes
// U+FFFD.
std::u16string TakeUtf16(std::string_view& utf8);

// Does the reverse. What remains is the first half of a pair. Any other half becomes U+FFFD.
std::string TakeUtf8(std::u16string_view& utf16);

// Passes each flushed piece of UTF-8 to a console. A character that is cut off at the end of the
// piece waits for its other bytes.
class ConsoleOutput : public std::streambuf {
 public:
  // Returns false if the console did not take the text.
  using Write = std::function<bool(std::u16string_view)>;
  explicit ConsoleOutput(Write write);

 protected:
  int_type overflow(int_type c) override;
  int sync() override;

 private:
  Write write_;
  // No piece is longer than this, since a console may refuse a long text.
  std::array<char, 4096> bytes_{};
};

// Reads what the operator types at a console, as UTF-8.
class ConsoleInput : public std::streambuf {
 public:
  // Returns the next line or a part of it, and an empty text at the end of the input.
  using Read = std::function<std::u16string()>;
  explicit ConsoleInput(Read read);

 protected:
  int_type underflow() override;

 private:
  Read read_;
  std::u16string half_;  // the first half of a pair whose second half has not been read
  std::string bytes_;
};

}  // namespace golf
