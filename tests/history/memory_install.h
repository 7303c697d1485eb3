#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "history/deeds.h"
#include "history/transactions.h"
#include "support/error_of.h"
#include "support/failing_platform.h"
#include "support/memory_platform.h"

namespace golf {

// The siblings' files with their bytes, by paths in capitals, without the history.
using DataFiles = std::map<std::string, std::string>;

DataFiles DataOf(const MemoryPlatform& disk);
// Returns the names of the files that differ, with their lengths; empty if none differs.
std::string Difference(const DataFiles& found, const DataFiles& expected);

// The states of the files in the order in which a run passes through them.
struct States : std::vector<DataFiles> {
  // Adds the state of a disk if it is a new one.
  void Note(const MemoryPlatform& disk);
  void ExpectOneIn(const MemoryPlatform& disk) const;
};

// Returns the demonstration install, with everything synced.
const MemoryPlatform& DemoDisk();

// Returns another process on a disk.
std::unique_ptr<Platform> ProcessOn(const MemoryPlatform& disk);

const Deed& DeedNamed(std::string_view name);

// Does a deed in a program of its own. Returns the events of the host. `look` is called whenever
// the operator may look at the files, and at each step of a run.
std::vector<std::string> Do(const Deed& deed, std::unique_ptr<Platform> platform,
                            const std::function<void()>& look = {});

// The transactions of a program without screens.
struct HistoryProgram {
  explicit HistoryProgram(Platform& platform);

  HeldPlatform held;
  Transactions transactions;
};

// Returns a small disk with everything synced. The other functions make every kind of change on it
// in one transaction.
MemoryPlatform SmallDisk();
void HoldEveryKind(HistoryProgram& program);
void CommitEveryKind(Platform& platform);
MemoryPlatform DiskAfterEveryKind();
// Returns the disk of a process that was killed in the nth call of CommitEveryKind that changes
// something; nothing if it makes fewer calls.
std::optional<MemoryPlatform> DiskKilledAt(int nth);

// True if the action throws Died.
bool DiesIn(const std::function<void()>& action);

// Act as another process on a disk.
Recovery Recover(const MemoryPlatform& disk, RecoveryChoice choice = RecoveryChoice::kByItself);
bool IsUnfinished(const MemoryPlatform& disk);

// Undoes the newest run that is not an undo itself. Returns the number of conflicts.
std::size_t UndoNewest(Platform& platform);

}  // namespace golf
