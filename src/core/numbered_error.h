#pragma once

#include <exception>
#include <string>

namespace golf {

// Lists the numbers of the errors that the operator may see.
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
  kPermissionDenied = 70,  // another program has the file open
  kDiskNotReady = 71,
  kPathAccess = 75,    // access is refused, or the file or folder is read-only
  kPathNotFound = 76,  // a folder of the path is missing
};

// Reports an error with its number. `description` is a full sentence for the operator. It names the
// file if a file is concerned. A screen or a run may continue after this kind of exception, but not
// after any other kind.
class NumberedError : public std::exception {
 public:
  NumberedError(ErrorNumber number, std::string description);

  int number() const { return static_cast<int>(number_); }
  bool Is(ErrorNumber number) const { return number_ == number; }
  // Returns true if a file, its disk or its folder caused the error, rather than the content of a
  // file.
  bool IsOfFile() const;
  const std::string& source() const { return source_; }
  const std::string& description() const { return description_; }
  const char* what() const noexcept override { return description_.c_str(); }

  // Returns the message for an error that no handler has caught.
  std::string Report() const;

 private:
  ErrorNumber number_;
  std::string source_;
  std::string description_;
};

// Reports that the system could not read a record. The buffer may contain another record, so a run
// leaves out the golfer concerned and never saves the buffer.
class ReadError : public NumberedError {
 public:
  explicit ReadError(const NumberedError& cause) : NumberedError(cause) {}
};

}  // namespace golf
