#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "core/platform.h"

namespace golf {

// One change of one file, as it is about to be made.
struct FileChange {
  enum class Kind { kWriteRecord, kCreateFile, kCreateFolder, kDelete, kReplaceText };

  Kind kind;
  std::string path;
  std::int64_t record = 0;     // from 1; 0 where the change is no record
  std::string_view new_bytes;  // valid during the call
  // Reads what stands in that place now; shorter where the file ends there.
  std::function<std::string()> old_bytes;
};

// The one place through which every change of a file goes.
class ChangeGate {
 public:
  using Observer = std::function<void(const FileChange&)>;

  explicit ChangeGate(Platform& platform) : platform_(platform) {}

  // Told of each change before it is made. One observer at most; an empty one ends it.
  void Observe(Observer observer) { observer_ = std::move(observer); }

  // While changes are refused a record that is written stays as it is, any other change is error
  // 75, and a file that is not there opens as an empty one that comes into being nowhere.
  void RefuseChanges(bool refuse = true) { refuses_ = refuse; }

  // Opens a file; one that is not there is created empty first, unless it is only to be read.
  std::unique_ptr<PlatformFile> Open(const std::string& path, FileAccess access);

  // Writes the bytes of a record; `record_length` is the file's. While writes are joined they may
  // be kept back and reach the system later, in their order.
  void WriteRecord(PlatformFile& file, const std::string& path, std::int64_t record,
                   std::size_t record_length, std::string_view bytes);

  void Delete(const std::string& path);
  void CreateFolder(const std::string& path);
  // The file holds just `text` afterwards, whether it was there or not. It is never emptied first.
  void ReplaceText(const std::string& path, std::string_view text);

  // Joining is for runs that stop at their first error. Ending it writes nothing by itself.
  void JoinWrites(bool join) { joins_ = join; }

  // Hands every write kept back to the system. After an error nothing is kept any more.
  void Settle();
  // The same if any of them is for this file.
  void Settle(const FileIdentity& identity);

 private:
  // Writes to neighbouring records of one file.
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

// Refuses changes as long as it lives.
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
