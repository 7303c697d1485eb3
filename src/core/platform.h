#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/regional_forms.h"

namespace golf {

// This header is the only interface to the operating system. All other code is portable, and tests
// replace the platform by one that fails on purpose.
//
// A path is text in code page 1252. It starts with ProgramFolder(). The name of that folder may
// contain characters that the code page lacks, so the platform keeps it in the system's encoding.
// Names below it are matched without regard to case.
//
// A call that fails raises a NumberedError: error 53 if the file does not exist, 57 for other
// device faults, 61 if the disk is full, 67 if too many files are open, 70 if another program has
// the file open, 75 if access is refused, and 76 if a folder does not exist. Error 75 is also
// raised if a path contains "..", or if the path of a file names a folder, a pipe or a device. No
// call waits for a pipe or a device.

// Permits a change of a file. Only ChangeGate and HistoryGate can make one, so no other code can
// change a file. HistoryGate commits delayed changes. NewFile writes a file that is not part of an
// install.
class ChangePass {
 private:
  friend class ChangeGate;
  friend class HistoryGate;
  friend class NewFile;
  ChangePass() = default;
};

enum class FileAccess {
  kReadWriteShared,  // raises error 70 if another program has an exclusive lock
  kDefault,          // the same, but opens a file without write permission for reading
  kReadOnly,         // shared; writing raises an error
  kAlone,            // exclusive; raises error 70 if the file is open anywhere else
};

// Identifies an open file independently of the name that opened it.
struct FileIdentity {
  std::uint64_t volume = 0;
  std::uint64_t file = 0;
  bool operator==(const FileIdentity&) const = default;
};

// Identifies the content of a file by its length and the time of its last change. Equal stamps mean
// that the file has not changed in between.
struct FileStamp {
  std::int64_t length = -1;  // in bytes; -1: there is no such file
  std::int64_t changed = 0;  // in nanoseconds since the beginning of 1970, UTC
  bool operator==(const FileStamp&) const = default;
};

class PlatformFile {
 public:
  virtual ~PlatformFile() = default;

  // Reads bytes from `offset` on and returns their number. The number is smaller than the size of
  // `into` only at the end of the file.
  virtual std::size_t ReadAt(std::int64_t offset, std::span<char> into) = 0;
  // Writes all of `bytes`, or raises an error. Sets `written` to the number of bytes written to the
  // file, also if it raises an error.
  virtual void WriteAt(ChangePass pass, std::int64_t offset, std::string_view bytes,
                       std::size_t& written) = 0;
  virtual void Truncate(ChangePass pass, std::int64_t length) = 0;
  // Waits until the bytes written so far, and the length, are on the disk. After an error, bytes
  // written since the last Sync may be lost. The caller must write them again before the next Sync.
  virtual void Sync(ChangePass pass) = 0;
  virtual std::int64_t Length() = 0;  // in bytes
  // Returns false if the file is open for reading only.
  virtual bool IsWritable() const = 0;
  virtual FileIdentity Identity() const = 0;
  // Returns the stamp of the file. Returns none if the system cannot tell it, or if the next change
  // could leave it equal.
  virtual std::optional<FileStamp> Stamp() { return std::nullopt; }
  // Closes the file, even if it raises an error. An error means that bytes written before may not
  // be on the disk. The destructor closes an open file and raises no error.
  virtual void Close() = 0;
};

// Holds the lock of LockRun during its lifetime. The system releases the lock when the process ends
// for any reason.
class RunLock {
 public:
  virtual ~RunLock() = default;
};

// Records requests to end the process during its lifetime, such as an interrupt or a logoff.
// Requests that the process ignores stay ignored.
class StopWatch {
 public:
  virtual ~StopWatch() = default;
  // Returns the system's number of the last request, or 0 if there was none.
  virtual int Signal() const = 0;
};

class Platform {
 public:
  virtual ~Platform() = default;

  virtual std::unique_ptr<PlatformFile> Open(const std::string& path, FileAccess access) = 0;
  // Creates an empty file. Leaves an existing file unchanged.
  virtual void Create(ChangePass pass, const std::string& path) = 0;
  virtual void CreateFolder(ChangePass pass, const std::string& path) = 0;
  virtual void Delete(ChangePass pass, const std::string& path) = 0;
  // Moves a file to another path on the same disk, in one step. Replaces a file that exists at the
  // new path.
  virtual void Rename(ChangePass pass, const std::string& from, const std::string& to) = 0;
  // Waits until the file names created, changed and deleted in a folder are on the disk.
  virtual void SyncFolder(ChangePass pass, const std::string& folder) = 0;
  // Creates an empty file outside the install that only this process can use. Closing the file
  // deletes it.
  virtual std::unique_ptr<PlatformFile> OpenScratch() = 0;

  virtual bool FolderExists(const std::string& path) = 0;
  // Returns the names of the normal files in a folder, in no particular order. A folder or a device
  // is not a normal file. On Windows a hidden or system file is not a normal file either.
  virtual std::vector<std::string> FileNames(const std::string& folder) = 0;

  // Returns the stamp of a file without opening it. Raises no error.
  virtual FileStamp StampOf(const std::string&) { return {}; }

  // Locks a folder for one run. Raises error 70 if another process holds the lock. Returns null if
  // the folder cannot be locked.
  virtual std::unique_ptr<RunLock> LockRun(const std::string& folder) = 0;

  // Returns null if the system has no such requests.
  virtual std::unique_ptr<StopWatch> WatchStops() { return nullptr; }

  // Starts a program and does not wait for it. Raises an error if the system cannot start it.
  virtual void StartProgram(const std::string& path, const std::string& arguments) = 0;

  // Returns the folder of the install. It ends in a separator.
  virtual std::string ProgramFolder() const = 0;
  // Returns the same folder in UTF-8, with the characters that the code page lacks.
  virtual std::string Utf8ProgramFolder() const = 0;
  // Returns the folder in which the system keeps this user's copies of files of the install, in
  // UTF-8. It ends in a separator. Windows keeps such copies for old programs if the user must not
  // write into the folder. Returns an empty text if there is no such folder.
  virtual std::string RedirectedFolder() const { return {}; }
  virtual char Separator() const = 0;
  virtual RegionalForms Regional() const = 0;
};

// Opens the null device for each standard stream that is closed when the process starts. Some
// schedulers start programs with closed streams. Without this call the next opened file would
// become that stream, and printed text would be written into it. Reading or writing such a stream
// still fails. A program must call this before anything else.
void TakeStandardStreams();

// Makes the platform of this system for the install in `utf8_folder`. An empty `utf8_folder` means
// the folder of the running program. Raises error 76 if the folder does not exist or is not a
// folder.
std::unique_ptr<Platform> MakePlatform(const std::string& utf8_folder);

// Creates a file outside the install and opens it for writing. Raises error 75 if the path exists.
std::unique_ptr<PlatformFile> CreateOutside(const std::string& utf8_path);
// Waits until the file names created, changed and deleted in a folder outside the install are on
// the disk. Windows offers no such call, so the function does nothing there.
void SyncOutside(const std::string& utf8_folder);

}  // namespace golf
