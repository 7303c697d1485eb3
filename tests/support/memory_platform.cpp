#include "support/memory_platform.h"

#include <algorithm>
#include <exception>
#include <iterator>
#include <random>
#include <set>
#include <utility>

#include "core/platform_errors.h"
#include "core/text.h"

namespace golf {
namespace {

constexpr std::size_t kDisk = std::size_t{16} << 20;
constexpr std::size_t kPage = 4096;

struct Node {
  std::string bytes;
  std::string synced;  // what is on the disk
  // Each open file has a copy of this pointer.
  std::shared_ptr<int> users = std::make_shared<int>();
  bool alone = false;  // its only user has opened it for itself

  bool InUse() const { return users.use_count() > 1; }
};

// The node of each path in capitals. A folder's path ends in a separator and has no node.
using Names = std::map<std::string, std::shared_ptr<Node>>;

// A creation has no old path, a deletion no new one.
struct NameChange {
  std::string from;
  std::string to;
  std::shared_ptr<Node> node;
  std::set<std::string> unsynced_folders;  // those that hold the two paths

  std::set<std::string> Paths() const {
    std::set<std::string> paths = {from, to};
    paths.erase("");
    return paths;
  }
};

std::string FileKey(std::string_view path) { return UpperCase(path); }

std::string FolderKey(std::string_view path) {
  std::string key = UpperCase(path);
  if (!key.empty() && !key.ends_with('/')) key += '/';
  return key;
}

// Returns the folder that contains a file or a folder.
std::string FolderOf(std::string_view key) {
  if (key.ends_with('/')) key.remove_suffix(1);
  return std::string(key.substr(0, key.rfind('/') + 1));
}

void Apply(Names& names, const NameChange& change) {
  if (!change.from.empty()) names.erase(change.from);
  if (!change.to.empty()) names[change.to] = change.node;
}

// Returns the range of names that begin with the folder.
auto Below(Names& names, const std::string& folder) {
  const auto first = names.lower_bound(folder);
  const auto last = std::find_if(first, names.end(),
                                 [&](const auto& name) { return !name.first.starts_with(folder); });
  return std::pair(first, last);
}

// Decides for each unsynced change whether a power cut loses it.
class Losses {
 public:
  explicit Losses(std::uint64_t seed) : seed_(seed), random_(seed), share_(1 + random_() % 7) {}

  bool Next() { return seed_ == 0 || (seed_ != 1 && random_() % 8 < share_); }

 private:
  std::uint64_t seed_;
  std::mt19937_64 random_;
  std::uint64_t share_;  // of 8
};

// A change is lost together with the earlier ones that it builds upon: those of the same name, and
// the creation of a folder above it.
Names NamesAfterCut(Names names, const std::vector<NameChange>& changes, Losses& losses) {
  std::set<std::string> lost;
  const auto builds_on_lost = [&](const std::string& path) {
    return std::any_of(lost.begin(), lost.end(), [&](const std::string& each) {
      return path == each || (each.ends_with('/') && path.starts_with(each));
    });
  };
  for (const NameChange& change : changes) {
    const std::set<std::string> paths = change.Paths();
    if (!losses.Next() && std::none_of(paths.begin(), paths.end(), builds_on_lost)) {
      Apply(names, change);
      continue;
    }
    lost.insert(paths.begin(), paths.end());
    if (change.to.ends_with('/')) {
      const auto [first, last] = Below(names, change.to);
      names.erase(first, last);
    }
  }
  return names;
}

std::string BytesAfterCut(const std::string& bytes, const std::string& synced, Losses& losses) {
  std::string left(std::max(bytes.size(), synced.size()), '\0');
  const std::size_t length =
      bytes.size() != synced.size() && losses.Next() ? synced.size() : bytes.size();
  for (std::size_t at = 0; at < left.size(); at += kPage) {
    const auto page_of = [&](const std::string& from) {
      std::string page = at < from.size() ? from.substr(at, kPage) : std::string();
      page.resize(std::min(kPage, left.size() - at));
      return page;
    };
    const std::string old_page = page_of(synced);
    const std::string new_page = at < bytes.size() ? page_of(bytes) : old_page;
    const bool lost = new_page != old_page && losses.Next();
    const std::string& page = lost ? old_page : new_page;
    left.replace(at, page.size(), page);
  }
  left.resize(length);
  return left;
}

}  // namespace

struct MemoryPlatform::Disk {
  Names names;
  Names synced_names;
  std::vector<NameChange> name_changes;  // those between the two
  std::map<std::string, std::weak_ptr<int>> locks;
  int generation = 0;  // files that an earlier one has opened are dead
  int changing_calls = 0;
  int calls_to_live = 0;  // 0 is for ever
  double share = 0;
  bool dead = false;

  void Live(const std::string& path) const {
    if (dead) Die(path);
  }

  [[noreturn]] static void Die(const std::string& path) {
    if (std::uncaught_exceptions() > 0) throw DeviceFault(path, "the program is dead");
    throw Died{};
  }

  // Counts a call that changes something. Returns true if the process dies in it.
  bool DiesIn(const std::string& path) {
    Live(path);
    ++changing_calls;
    dead = calls_to_live > 0 && --calls_to_live == 0;
    return dead;
  }

  void Change(const std::string& path) {
    if (DiesIn(path)) Die(path);
  }

  bool HasFolder(const std::string& key) const { return key == "/" || names.contains(key); }

  void NeedPlaceFor(const std::string& path) {
    if (!HasFolder(FolderOf(FileKey(path)))) throw PlatformError(PlatformFault::kNoFolder, path);
    if (HasFolder(FolderKey(path))) throw PlatformError(PlatformFault::kIsFolder, path);
  }

  std::shared_ptr<Node> Find(const std::string& path) {
    const auto found = names.find(FileKey(path));
    if (found != names.end() && found->second) return found->second;
    if (HasFolder(FolderKey(path))) throw PlatformError(PlatformFault::kIsFolder, path);
    const bool has_folder = HasFolder(FolderOf(FileKey(path)));
    throw PlatformError(has_folder ? PlatformFault::kNoFile : PlatformFault::kNoFolder, path);
  }

  std::shared_ptr<Node> FindUnused(const std::string& path) {
    auto node = Find(path);
    if (node->InUse()) throw PlatformError(PlatformFault::kHeld, path);
    return node;
  }

  void ChangeName(const std::string& from, const std::string& to, std::shared_ptr<Node> node) {
    NameChange change{from, to, std::move(node), {}};
    for (const std::string& path : change.Paths()) change.unsynced_folders.insert(FolderOf(path));
    Apply(names, change);
    name_changes.push_back(std::move(change));
  }

  // The earlier changes of a name reach the disk with a later one of it.
  void SyncNames(const std::string& folder) {
    std::set<std::string> synced_paths;
    std::vector<NameChange> left;
    std::vector<NameChange> synced;
    for (auto change = name_changes.rbegin(); change != name_changes.rend(); ++change) {
      change->unsynced_folders.erase(folder);
      const std::set<std::string> paths = change->Paths();
      const bool goes = change->unsynced_folders.empty() ||
                        std::any_of(paths.begin(), paths.end(), [&](const std::string& path) {
                          return synced_paths.contains(path);
                        });
      if (goes) synced_paths.insert(paths.begin(), paths.end());
      (goes ? synced : left).push_back(std::move(*change));
    }
    std::for_each(synced.rbegin(), synced.rend(),
                  [&](const NameChange& change) { Apply(synced_names, change); });
    name_changes.assign(std::make_move_iterator(left.rbegin()),
                        std::make_move_iterator(left.rend()));
  }

  void Revive() {
    dead = false;
    calls_to_live = 0;
    ++generation;
    locks.clear();
    for (const auto& [path, node] : names) {
      if (node) node->users = std::make_shared<int>();
    }
  }
};

class MemoryPlatform::File : public PlatformFile {
 public:
  File(std::shared_ptr<Disk> disk, std::shared_ptr<Node> node, std::string path, bool writable)
      : disk_(std::move(disk)),
        node_(std::move(node)),
        use_(node_->users),
        path_(std::move(path)),
        writable_(writable),
        generation_(disk_->generation) {}

  std::size_t ReadAt(std::int64_t offset, std::span<char> into) override {
    Live();
    const auto at = static_cast<std::size_t>(offset);
    return at < node_->bytes.size() ? node_->bytes.copy(into.data(), into.size(), at) : 0;
  }

  // The hash of the bytes serves as the time of the last change.
  std::optional<FileStamp> Stamp() override {
    return FileStamp{static_cast<std::int64_t>(node_->bytes.size()),
                     static_cast<std::int64_t>(std::hash<std::string>()(node_->bytes))};
  }

  void WriteAt(ChangePass, std::int64_t offset, std::string_view bytes,
               std::size_t& written) override {
    written = 0;
    const bool dies = Change();
    if (dies) {
      bytes = bytes.substr(
          0, static_cast<std::size_t>(disk_->share * static_cast<double>(bytes.size())));
    }
    const auto at = static_cast<std::size_t>(offset);
    if (at > kDisk || bytes.size() > kDisk - at) {
      throw PlatformError(PlatformFault::kDiskFull, path_);
    }
    if (!bytes.empty()) {
      node_->bytes.resize(std::max(node_->bytes.size(), at + bytes.size()));
      node_->bytes.replace(at, bytes.size(), bytes);
    }
    written = bytes.size();
    if (dies) Disk::Die(path_);
  }

  void Truncate(ChangePass, std::int64_t length) override {
    if (Change()) Disk::Die(path_);
    if (static_cast<std::size_t>(length) > kDisk) {
      throw PlatformError(PlatformFault::kDiskFull, path_);
    }
    node_->bytes.resize(static_cast<std::size_t>(length));
  }

  void Sync(ChangePass) override {
    if (Change()) Disk::Die(path_);
    node_->synced = node_->bytes;
  }

  std::int64_t Length() override {
    Live();
    return static_cast<std::int64_t>(node_->bytes.size());
  }

  bool IsWritable() const override { return writable_; }
  FileIdentity Identity() const override { return {1, reinterpret_cast<std::uintptr_t>(&*node_)}; }

  void Close() override {
    Live();
    use_.reset();
  }

 private:
  void Live() const {
    disk_->Live(path_);
    if (!use_ || generation_ != disk_->generation) {
      throw DeviceFault(path_, "the file is no longer open");
    }
  }

  // Returns true if the process dies in this call.
  bool Change() {
    Live();
    const bool dies = !IsScratch() && disk_->DiesIn(path_);
    if (!writable_ && !dies) throw PlatformError(PlatformFault::kRefused, path_);
    return dies;
  }

  bool IsScratch() const { return path_.empty(); }

  std::shared_ptr<Disk> disk_;
  std::shared_ptr<Node> node_;
  std::shared_ptr<int> use_;
  std::string path_;  // empty for a scratch file
  bool writable_;
  int generation_;
};

class MemoryPlatform::Lock : public RunLock {
 public:
  explicit Lock(std::shared_ptr<int> held) : held_(std::move(held)) {}

 private:
  std::shared_ptr<int> held_;
};

MemoryPlatform::MemoryPlatform() : disk_(std::make_shared<Disk>()) {}

MemoryPlatform MemoryPlatform::Copy() const {
  auto copy = std::make_shared<Disk>();
  std::map<const Node*, std::shared_ptr<Node>> nodes;
  const auto copied = [&](const std::shared_ptr<Node>& node) {
    auto& made = nodes[node.get()];
    if (node && !made) {
      made = std::make_shared<Node>();
      made->bytes = node->bytes;
      made->synced = node->synced;
    }
    return made;
  };
  for (const auto& [path, node] : disk_->names) copy->names[path] = copied(node);
  for (const auto& [path, node] : disk_->synced_names) copy->synced_names[path] = copied(node);
  copy->name_changes = disk_->name_changes;
  for (NameChange& change : copy->name_changes) change.node = copied(change.node);
  return MemoryPlatform(copy);
}

MemoryPlatform MemoryPlatform::OnSameDisk() const { return MemoryPlatform(disk_); }

std::string& MemoryPlatform::Bytes(std::string_view name) {
  const std::string key = ProgramFolder() + UpperCase(name);
  for (std::string folder = FolderOf(key); folder != "/"; folder = FolderOf(folder)) {
    if (disk_->names.emplace(folder, nullptr).second) disk_->synced_names[folder] = nullptr;
  }
  auto& node = disk_->names[key];
  if (!node) {
    node = std::make_shared<Node>();
    disk_->synced_names[key] = node;
  }
  return node->bytes;
}

std::map<std::string, std::string> MemoryPlatform::Files() const {
  std::map<std::string, std::string> files;
  for (const auto& [path, node] : disk_->names) {
    if (node) files[path] = node->bytes;
  }
  return files;
}

void MemoryPlatform::SyncAll() {
  for (const auto& [path, node] : disk_->names) {
    if (node) node->synced = node->bytes;
  }
  disk_->synced_names = disk_->names;
  disk_->name_changes.clear();
}

void MemoryPlatform::PowerCut(std::uint64_t seed) {
  disk_->Revive();
  Losses losses(seed);
  disk_->names = NamesAfterCut(disk_->synced_names, disk_->name_changes, losses);
  for (const auto& [path, node] : disk_->names) {
    if (node) node->bytes = BytesAfterCut(node->bytes, node->synced, losses);
  }
  SyncAll();
}

void MemoryPlatform::DieAt(int nth, double share) {
  disk_->calls_to_live = nth;
  disk_->share = share;
}

void MemoryPlatform::Revive() { disk_->Revive(); }

int MemoryPlatform::ChangingCalls() const { return disk_->changing_calls; }

std::unique_ptr<PlatformFile> MemoryPlatform::Open(const std::string& path, FileAccess access) {
  disk_->Live(path);
  auto node = disk_->Find(path);
  const bool alone = access == FileAccess::kAlone;
  if (node->InUse() && (alone || node->alone)) throw PlatformError(PlatformFault::kHeld, path);
  node->alone = alone;
  return std::make_unique<File>(disk_, std::move(node), path, access != FileAccess::kReadOnly);
}

void MemoryPlatform::Create(ChangePass, const std::string& path) {
  disk_->Change(path);
  disk_->NeedPlaceFor(path);
  if (disk_->names.contains(FileKey(path))) return;
  disk_->ChangeName("", FileKey(path), std::make_shared<Node>());
}

void MemoryPlatform::CreateFolder(ChangePass, const std::string& path) {
  disk_->Change(path);
  const std::string key = FolderKey(path);
  if (!disk_->HasFolder(FolderOf(key))) throw PlatformError(PlatformFault::kNoFolder, path);
  if (disk_->HasFolder(key) || disk_->names.contains(FileKey(path))) {
    throw PlatformError(PlatformFault::kIsThere, path);
  }
  disk_->ChangeName("", key, nullptr);
}

void MemoryPlatform::Delete(ChangePass, const std::string& path) {
  disk_->Change(path);
  disk_->FindUnused(path);
  disk_->ChangeName(FileKey(path), "", nullptr);
}

void MemoryPlatform::Rename(ChangePass, const std::string& from, const std::string& to) {
  disk_->Change(to);
  auto node = disk_->FindUnused(from);
  disk_->NeedPlaceFor(to);
  if (disk_->names.contains(FileKey(to))) disk_->FindUnused(to);
  if (FileKey(from) != FileKey(to)) disk_->ChangeName(FileKey(from), FileKey(to), std::move(node));
}

void MemoryPlatform::SyncFolder(ChangePass, const std::string& folder) {
  disk_->Change(folder);
  if (!FolderExists(folder)) throw PlatformError(PlatformFault::kNoFolder, folder);
  disk_->SyncNames(FolderKey(folder));
}

std::unique_ptr<PlatformFile> MemoryPlatform::OpenScratch() {
  disk_->Live("");
  return std::make_unique<File>(disk_, std::make_shared<Node>(), "", true);
}

bool MemoryPlatform::FolderExists(const std::string& path) {
  disk_->Live(path);
  return disk_->HasFolder(FolderKey(path));
}

std::vector<std::string> MemoryPlatform::FileNames(const std::string& folder) {
  if (!FolderExists(folder)) throw PlatformError(PlatformFault::kNoFolder, folder);
  const std::string key = FolderKey(folder);
  std::vector<std::string> names;
  const auto [first, last] = Below(disk_->names, key);
  for (auto each = first; each != last; ++each) {
    if (each->second && FolderOf(each->first) == key) {
      names.push_back(each->first.substr(key.size()));
    }
  }
  return names;
}

std::unique_ptr<RunLock> MemoryPlatform::LockRun(const std::string& folder) {
  if (!FolderExists(folder)) return nullptr;
  auto& lock = disk_->locks[FolderKey(folder)];
  if (!lock.expired()) throw AnotherRun(folder);
  auto held = std::make_shared<int>();
  lock = held;
  return std::make_unique<Lock>(std::move(held));
}

}  // namespace golf
