#pragma once

#include <exception>
#include <string>

namespace golf {

// The numbers by which a failure travels from the place where it happens to the handler of a click.
enum class ErrorNumber : int {
  kBadCall = 5,
  kOverflow = 6,
  kSubscript = 9,
  kBadFileNumber = 52,
  kFileNotFound = 53,
  kDeviceFault = 57,
  kBadRecordLength = 59,
  kDiskFull = 61,
  kBadRecordNumber = 63,
  kTooManyFiles = 67,
  kPermissionDenied = 70,  // another program holds the file
  kDiskNotReady = 71,
  kPathAccess = 75,    // access refused, or a read-only file or folder
  kPathNotFound = 76,  // a folder on the way is not there
};

// A failure with its number. `description` is a full sentence for the operator and names the file
// where there is one. This is the only exception that a screen or a run may carry on over.
class NumberedError : public std::exception {
 public:
  NumberedError(ErrorNumber number, std::string description);

  int number() const { return static_cast<int>(number_); }
  bool Is(ErrorNumber number) const { return number_ == number; }
  const std::string& source() const { return source_; }
  const std::string& description() const { return description_; }
  const char* what() const noexcept override { return description_.c_str(); }

  // The one general form in which an error is told that no handler has taken.
  std::string Report() const;

 private:
  ErrorNumber number_;
  std::string source_;
  std::string description_;
};

// The system could not read a record. The buffer then holds the bytes of another record, or none. A
// run leaves out the golfer whose record it is, and never saves the buffer.
class ReadError : public NumberedError {
 public:
  explicit ReadError(const NumberedError& cause) : NumberedError(cause) {}
};

}  // namespace golf
