#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "core/platform.h"

namespace golf {

// One change of one file, before it is made.
struct FileChange {
  enum class Kind { kWriteRecord, kCreateFile, kCreateFolder, kDelete, kReplaceText };

  Kind kind;
  std::string path;
  std::int64_t record = 0;     // from 1; 0 if the change is not to a record
  std::string_view new_bytes;  // valid during the call
  // Reads the bytes that the change replaces: those of the record, or of the whole file. Returns
  // fewer where the file ends earlier and none where there is no file. Valid during the call.
  std::function<std::string()> old_bytes;
};

// Makes every change of a file. No other code can, since none can make a ChangePass.
class ChangeGate {
 public:
  using Observer = std::function<void(const FileChange&)>;

  explicit ChangeGate(Platform& platform) : platform_(platform) {}

  // Sets the observer, which is called before each change. There is at most one. An empty one ends
  // the observation.
  void Observe(Observer observer) { observer_ = std::move(observer); }

  // While changes are refused, WriteRecord writes nothing and raises no error. Any other change
  // raises error 75. A missing file that is not opened kReadOnly opens as an empty one, and is not
  // created.
  void RefuseChanges(bool refuse = true) { refuses_ = refuse; }

  // Opens a file. A missing one is created empty first; for kReadOnly it raises error 53.
  std::unique_ptr<PlatformFile> Open(const std::string& path, FileAccess access);

  // Writes `bytes` at the start of a record, numbered from 1, of a file with records of
  // `record_length` bytes. While writes are joined, they may be kept back and reach the system
  // later, in their order.
  void WriteRecord(PlatformFile& file, const std::string& path, std::int64_t record,
                   std::size_t record_length, std::string_view bytes);

  void Delete(const std::string& path);
  void CreateFolder(const std::string& path);
  // Makes `text` the whole content of the file. A missing file is created. An existing one is never
  // emptied first.
  void ReplaceText(const std::string& path, std::string_view text);

  // Turns the joining of writes on or off, for runs that stop at their first error. Turning it off
  // writes nothing by itself.
  void JoinWrites(bool join) { joins_ = join; }

  // Hands every write kept back to the system. After an error no write is kept back any more.
  void Settle();
  // Does the same, but only if the writes kept back are for this file.
  void Settle(const FileIdentity& identity);

 private:
  // Writes to consecutive records of one file that are kept back.
  struct KeptWrites {
    PlatformFile* file = nullptr;
    FileIdentity identity;
    std::int64_t offset = 0;
    std::size_t record_length = 0;
    std::string bytes;
  };

  void Announce(FileChange::Kind kind, const std::string& path, std::string_view new_bytes = {});
  bool Follows(const FileIdentity& identity, std::int64_t offset, std::size_t record_length,
               std::size_t size) const;
  void WriteThrough(PlatformFile& file, std::int64_t offset, std::size_t record_length,
                    std::string_view bytes);

  Platform& platform_;
  Observer observer_;
  KeptWrites kept_;
  bool joins_ = false;
  bool refuses_ = false;
};

// Refuses changes during its lifetime.
class RefusedChanges {
 public:
  explicit RefusedChanges(ChangeGate& gate) : gate_(gate) { gate_.RefuseChanges(); }
  ~RefusedChanges() { gate_.RefuseChanges(false); }
  RefusedChanges(const RefusedChanges&) = delete;
  RefusedChanges& operator=(const RefusedChanges&) = delete;

 private:
  ChangeGate& gate_;
};

}  // namespace golf
