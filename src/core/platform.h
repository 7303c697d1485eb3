#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/regional_forms.h"

namespace golf {

// The only seam to the operating system. Everything above it is portable and can be tried with a
// platform that fails on purpose.
//
// A path is text in code page 1252. It starts with ProgramFolder(), whose own name may hold
// characters that the code page lacks: the seam keeps it in the system's form. Below it names are
// found whatever their case.
//
// Every call fails with a NumberedError: 70 where another program holds the file, 61 disk full, 75
// access refused, 76 no such folder, 53 no such file, 67 too many open files, 57 other faults of a
// device. Error 75 also where a path leads back up a folder (".."), and where a folder, a pipe or a
// device stands in the place of a file: none of them is ever waited for.

// Lets its holder change files. Only the ChangeGate can make one, so that no change of a file goes
// past it, and the HistoryGate, through which held changes are committed.
class ChangePass {
 private:
  friend class ChangeGate;
  friend class HistoryGate;
  ChangePass() = default;
};

enum class FileAccess {
  kReadWriteShared,  // fails with 70 where another program holds the file exclusively
  kDefault,          // as above, but a file that may only be read is opened for reading
  kReadOnly,         // shared, nothing can be written
  kAlone,            // fails with 70 where anybody else has the file open, in whatever way
};

// Tells two open files apart, whatever names they were opened by.
struct FileIdentity {
  std::uint64_t volume = 0;
  std::uint64_t file = 0;
  bool operator==(const FileIdentity&) const = default;
};

class PlatformFile {
 public:
  virtual ~PlatformFile() = default;

  // Bytes read: fewer than asked for at the end of the file only.
  virtual std::size_t ReadAt(std::int64_t offset, std::span<char> into) = 0;
  // Writes all of `bytes`, or fails; `written` tells how many of them have reached the file.
  virtual void WriteAt(ChangePass pass, std::int64_t offset, std::string_view bytes,
                       std::size_t& written) = 0;
  virtual void Truncate(ChangePass pass, std::int64_t length) = 0;
  // Returns when the bytes written so far, and the length, are on the disk. After an error nothing is
  // known of bytes that were written since the last Sync: write them again before the next one.
  virtual void Sync(ChangePass pass) = 0;
  virtual std::int64_t Length() = 0;
  // False for a file that could be opened for reading only.
  virtual bool IsWritable() const = 0;
  virtual FileIdentity Identity() const = 0;
  // Ends the use of the file. An error tells that bytes written before may not have reached it; the
  // file is closed all the same. A file that is destroyed open is closed in silence.
  virtual void Close() = 0;
};

// Held while it lives. The system lets it go when the process ends in whatever way.
class RunLock {
 public:
  virtual ~RunLock() = default;
};

class Platform {
 public:
  virtual ~Platform() = default;

  virtual std::unique_ptr<PlatformFile> Open(const std::string& path, FileAccess access) = 0;
  // Makes an empty file; one that is there by now is left as it is.
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
  // The names of the normal files in a folder, in no order.
  virtual std::vector<std::string> FileNames(const std::string& folder) = 0;

  // Error 70 where another process holds the lock of this folder. Null where the folder cannot be
  // locked at all.
  virtual std::unique_ptr<RunLock> LockRun(const std::string& folder) = 0;

  // Starts a program and does not wait for it. Fails where the system cannot start it.
  virtual void StartProgram(const std::string& path, const std::string& arguments) = 0;

  // Ends in a separator.
  virtual std::string ProgramFolder() const = 0;
  virtual char Separator() const = 0;
  virtual RegionalForms Regional() const = 0;
};

// Puts something harmless into the place of each standard stream that the process was started
// without, as some schedulers start programs. Otherwise the next file to be opened would take that
// place, and what is printed would be written into it. Reading and writing such a stream fails as
// before. A program calls this before anything else.
void TakeStandardStreams();

// The platform of this system over the install in `utf8_folder`, or, where that is empty, in the
// folder of the running program. Error 76 if the folder is not there or is none.
std::unique_ptr<Platform> MakePlatform(const std::string& utf8_folder);

}  // namespace golf
