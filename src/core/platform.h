#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/regional_forms.h"

namespace golf {

// The only interface to the operating system. All other code is portable and can be tested with a
// platform that fails on purpose.
//
// A path is text in code page 1252. It starts with ProgramFolder(). That folder's own name may hold
// characters that the code page lacks, so the platform keeps it in the system's form. Names below
// it are found without regard to case.
//
// A call that fails raises a NumberedError: 70 where another program holds the file, 61 disk full,
// 75 access refused, 76 no such folder, 53 no such file, 67 too many open files, 57 other faults of
// a device. Error 75 is also raised for a path that leads up a folder (".."), and where a path for
// a file names a folder, a pipe or a device. No call waits for a pipe or a device.

// Permits a change of a file. Only the ChangeGate makes one, and the HistoryGate, through which
// held changes are committed. So no other code changes a file.
class ChangePass {
 private:
  friend class ChangeGate;
  friend class HistoryGate;
  ChangePass() = default;
};

enum class FileAccess {
  kReadWriteShared,  // raises error 70 where another program holds the file exclusively
  kDefault,          // the same, but opens a file that may only be read for reading
  kReadOnly,         // shared; nothing can be written
  kAlone,            // raises error 70 where anybody else has the file open, in whatever way
};

// Identifies an open file, whatever name it was opened by.
struct FileIdentity {
  std::uint64_t volume = 0;
  std::uint64_t file = 0;
  bool operator==(const FileIdentity&) const = default;
};

class PlatformFile {
 public:
  virtual ~PlatformFile() = default;

  // Reads bytes from `offset` on and returns their number. It is smaller than `into` only at the
  // end of the file.
  virtual std::size_t ReadAt(std::int64_t offset, std::span<char> into) = 0;
  // Writes all of `bytes`, or raises an error. `written` is the number of bytes that reached the
  // file, also after an error.
  virtual void WriteAt(ChangePass pass, std::int64_t offset, std::string_view bytes,
                       std::size_t& written) = 0;
  virtual void Truncate(ChangePass pass, std::int64_t length) = 0;
  // Returns when the bytes written so far, and the length, are on the disk. After an error, bytes
  // that were written since the last Sync may be lost: write them again before the next one.
  virtual void Sync(ChangePass pass) = 0;
  virtual std::int64_t Length() = 0;  // in bytes
  // False for a file that could be opened for reading only.
  virtual bool IsWritable() const = 0;
  virtual FileIdentity Identity() const = 0;
  // Closes the file, also if it raises an error. An error means that bytes written before may not
  // have reached the file. The destructor closes an open file without an error.
  virtual void Close() = 0;
};

// The lock that LockRun takes, held during the object's lifetime. The system releases it when the
// process ends, in whatever way.
class RunLock {
 public:
  virtual ~RunLock() = default;
};

// Takes note of requests to end the process, while it lives: an interrupt, the end of the session.
// Requests that the process ignores stay ignored.
class StopWatch {
 public:
  virtual ~StopWatch() = default;
  // The system's number of the last request; 0 with none.
  virtual int Signal() const = 0;
};

class Platform {
 public:
  virtual ~Platform() = default;

  virtual std::unique_ptr<PlatformFile> Open(const std::string& path, FileAccess access) = 0;
  // Creates an empty file. A file that exists by now is left as it is.
  virtual void Create(ChangePass pass, const std::string& path) = 0;
  virtual void CreateFolder(ChangePass pass, const std::string& path) = 0;
  virtual void Delete(ChangePass pass, const std::string& path) = 0;
  // Gives a file another path on the same disk, in one step. A file that is there already is
  // replaced.
  virtual void Rename(ChangePass pass, const std::string& from, const std::string& to) = 0;
  // Returns when the names that were created, changed and deleted in a folder are on the disk.
  virtual void SyncFolder(ChangePass pass, const std::string& folder) = 0;
  // Makes an empty file outside the install, for this process alone. It is gone when it is closed.
  virtual std::unique_ptr<PlatformFile> OpenScratch() = 0;

  virtual bool FolderExists(const std::string& path) = 0;
  // Returns the names of the normal files in a folder, in no order. A folder, a device, and on
  // Windows a hidden or system file is not a normal file.
  virtual std::vector<std::string> FileNames(const std::string& folder) = 0;

  // Locks a folder for one run. Error 70 if another process holds the lock. Returns null if the
  // folder cannot be locked at all.
  virtual std::unique_ptr<RunLock> LockRun(const std::string& folder) = 0;

  // Null where the system has no such requests.
  virtual std::unique_ptr<StopWatch> WatchStops() { return nullptr; }

  // Starts a program and does not wait for it. Raises an error if the system cannot start it.
  virtual void StartProgram(const std::string& path, const std::string& arguments) = 0;

  // Ends in a separator.
  virtual std::string ProgramFolder() const = 0;
  virtual char Separator() const = 0;
  virtual RegionalForms Regional() const = 0;
};

// Opens the null device for each standard stream that the process was started without, as some
// schedulers start programs. Otherwise the next file opened would become that stream, and printed
// text would be written into it. Reading or writing such a stream still fails. A program calls this
// before anything else.
void TakeStandardStreams();

// Makes the platform of this system over the install in `utf8_folder`. An empty `utf8_folder` means
// the folder of the running program. Error 76 if the folder is missing or is not a folder.
std::unique_ptr<Platform> MakePlatform(const std::string& utf8_folder);

}  // namespace golf
