#include <fcntl.h>
#include <langinfo.h>
#include <locale.h>
#include <spawn.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <optional>
#include <utility>

#include "core/code_page.h"
#include "core/platform.h"
#include "core/platform_errors.h"
#include "core/stop_watch.h"
#include "core/text.h"

extern char** environ;

namespace golf {
namespace {

namespace fs = std::filesystem;

struct ErrnoMeaning {
  int code;
  PlatformFault fault;
};

constexpr ErrnoMeaning kMeanings[] = {
    {EWOULDBLOCK, PlatformFault::kHeld},
    {EBUSY, PlatformFault::kHeld},
    {ENOSPC, PlatformFault::kDiskFull},
    {EDQUOT, PlatformFault::kQuotaUsedUp},
    {EFBIG, PlatformFault::kTooLarge},
    {EACCES, PlatformFault::kRefused},
    {EPERM, PlatformFault::kRefused},
    {EROFS, PlatformFault::kReadOnlyDisk},
    {EISDIR, PlatformFault::kIsFolder},
    {EEXIST, PlatformFault::kIsThere},
    {ENOTDIR, PlatformFault::kNoFolder},
    {ENOENT, PlatformFault::kNoFile},
    {ENAMETOOLONG, PlatformFault::kNameTooLong},
    {EMFILE, PlatformFault::kTooManyFiles},
    {ENFILE, PlatformFault::kTooManyFiles},
};

[[noreturn]] void FailWith(int code, std::string_view native) {
  const std::string path = TextFromUtf8(native);
  for (const ErrnoMeaning& meaning : kMeanings) {
    if (meaning.code == code) throw PlatformError(meaning.fault, path);
  }
  throw DeviceFault(path, std::strerror(code));
}

// Returns true if this process may use the file or the folder in this way, or if that is unknown.
bool IsPermitted(const std::string& native, int use) {
  return faccessat(AT_FDCWD, native.c_str(), use, AT_EACCESS) == 0 || errno != EACCES;
}

enum class Use { kRead, kWrite, kName };  // kName: create, delete or rename

// Returns why the system refuses to use a file.
PlatformFault ReasonOfRefusal(const std::string& native, Use use) {
  constexpr mode_t kAnyWriter = S_IWUSR | S_IWGRP | S_IWOTH;
  struct stat status {};
  const bool exists = stat(native.c_str(), &status) == 0;
  if (use != Use::kName && !IsPermitted(native, R_OK)) return PlatformFault::kNoFileRights;
  if (exists && use == Use::kWrite && (status.st_mode & kAnyWriter) == 0) {
    return PlatformFault::kReadOnlyFile;
  }
  if (use == Use::kWrite && !IsPermitted(native, W_OK)) return PlatformFault::kNoFileRights;
  const std::size_t name = native.rfind('/') + 1;
  const std::string folder = name == 0 ? "." : native.substr(0, name);
  if (use != Use::kRead && !IsPermitted(folder, W_OK | X_OK)) return PlatformFault::kNoFolderRights;
  return PlatformFault::kRefused;
}

// Does the same as FailWith. If access is refused, the error contains the reason.
[[noreturn]] void FailToReach(int code, const std::string& native, Use use) {
  if (code != EACCES && code != EPERM) FailWith(code, native);
  throw PlatformError(ReasonOfRefusal(native, use), TextFromUtf8(native));
}

// With these flags the opening of a pipe or a device does not block.
constexpr int kOpenFlags = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  int get() const { return number_; }
  // Frees the descriptor, even if the system reports an error. An interrupting signal is not an
  // error.
  void Close(const std::string& native) {
    const int code = close(std::exchange(number_, -1)) == 0 ? 0 : errno;
    if (code != 0 && code != EINTR) FailWith(code, native);
  }

 private:
  int number_;
};

struct stat StatusOf(const Descriptor& descriptor, const std::string& native) {
  struct stat status {};
  if (fstat(descriptor.get(), &status) != 0) FailWith(errno, native);
  return status;
}

// Returns the error code of `sync`, or 0. Repeats the call if a signal interrupts it.
int SyncWith(int (*sync)(int), const Descriptor& descriptor) {
  int result = 0;
  do {
    result = sync(descriptor.get());
  } while (result != 0 && errno == EINTR);
  return result == 0 ? 0 : errno;
}

std::int64_t Nanoseconds(const struct timespec& time) {
  return time.tv_sec * std::int64_t{1'000'000'000} + time.tv_nsec;
}

class PosixFile : public PlatformFile {
 public:
  PosixFile(Descriptor descriptor, std::string native, bool writable, FileIdentity identity)
      : descriptor_(std::move(descriptor)),
        native_(std::move(native)),
        writable_(writable),
        identity_(identity) {}

  std::size_t ReadAt(std::int64_t offset, std::span<char> into) override {
    std::size_t done = 0;
    while (done < into.size()) {
      const ssize_t count = pread(descriptor_.get(), into.data() + done, into.size() - done,
                                  offset + static_cast<off_t>(done));
      if (count == 0) break;
      if (count > 0) done += static_cast<std::size_t>(count);
      if (count < 0 && errno != EINTR) FailWith(errno, native_);
    }
    return done;
  }

  void WriteAt(ChangePass, std::int64_t offset, std::string_view bytes,
               std::size_t& written) override {
    for (written = 0; written < bytes.size();) {
      const std::string_view rest = bytes.substr(written);
      const ssize_t count =
          pwrite(descriptor_.get(), rest.data(), rest.size(), offset + static_cast<off_t>(written));
      if (count > 0) written += static_cast<std::size_t>(count);
      if (count == 0) FailWith(EIO, native_);
      // A write to a descriptor opened for reading only fails with EBADF. This is reported as
      // refused access.
      if (count < 0 && errno != EINTR) FailWith(errno == EBADF ? EACCES : errno, native_);
    }
  }

  void Truncate(ChangePass, std::int64_t length) override {
    if (ftruncate(descriptor_.get(), length) != 0) FailWith(errno, native_);
  }

  // fdatasync waits for the data and the length, but not for the times of the file.
  void Sync(ChangePass) override {
    if (const int code = SyncWith(fdatasync, descriptor_)) FailWith(code, native_);
  }

  std::int64_t Length() override { return StatusOf(descriptor_, native_).st_size; }

  bool IsWritable() const override { return writable_; }

  FileIdentity Identity() const override { return identity_; }

  // The system stamps a change with the time of its last tick, and some disks store only seconds.
  // Two changes in the same tick or second leave equal stamps.
  std::optional<FileStamp> Stamp() override {
    struct stat status {};
    struct timespec tick {};
    if (fstat(descriptor_.get(), &status) != 0) return std::nullopt;
    if (clock_gettime(CLOCK_REALTIME_COARSE, &tick) != 0) return std::nullopt;
    const std::int64_t changed = Nanoseconds(status.st_ctim);
    if (status.st_ctim.tv_nsec == 0 || changed >= Nanoseconds(tick)) return std::nullopt;
    return FileStamp{status.st_size, changed};
  }

  void Close() override { descriptor_.Close(native_); }

 private:
  Descriptor descriptor_;
  std::string native_;
  bool writable_;
  FileIdentity identity_;
};

class PosixRunLock : public RunLock {
 public:
  explicit PosixRunLock(Descriptor folder) : folder_(std::move(folder)) {}

 private:
  Descriptor folder_;  // closing it releases the lock
};

std::string NameOf(const fs::directory_entry& entry) {
  const std::string& path = entry.path().native();
  return path.substr(path.rfind('/') + 1);
}

// Returns the entry of a folder that has this name without regard to case. Returns the first in
// byte order if several match, so that all spellings refer to the same entry.
std::optional<std::string> FindEntry(const std::string& folder, std::string_view name) {
  std::optional<std::string> found;
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    const std::string candidate = NameOf(*entry);
    if (EqualIgnoringCase(TextFromUtf8(candidate), name) && (!found || candidate < *found)) {
      found = candidate;
    }
  }
  return found;
}

bool IsFolder(const std::string& native) {
  std::error_code error;
  return fs::is_directory(native, error);
}

// Holds the attributes of a started program. They reset the signals that this process ignores to
// their default actions.
class DefaultSignals {
 public:
  DefaultSignals() {
    sigset_t ignored_here;
    sigemptyset(&ignored_here);
    sigaddset(&ignored_here, SIGPIPE);
    sigaddset(&ignored_here, SIGXFSZ);
    posix_spawnattr_init(&attributes_);
    posix_spawnattr_setsigdefault(&attributes_, &ignored_here);
    posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGDEF);
  }
  DefaultSignals(const DefaultSignals&) = delete;
  DefaultSignals& operator=(const DefaultSignals&) = delete;
  ~DefaultSignals() { posix_spawnattr_destroy(&attributes_); }
  const posix_spawnattr_t* get() const { return &attributes_; }

 private:
  posix_spawnattr_t attributes_{};
};

// Holds the picture for one strftime letter in a date or time form.
struct PictureOf {
  char letter;
  std::string_view picture;
};

constexpr PictureOf kPictures[] = {
    {'d', "dd"},       {'e', "d"},          {'m', "MM"},         {'y', "yy"},  {'Y', "yyyy"},
    {'b', "MMM"},      {'B', "MMMM"},       {'h', "MMM"},        {'a', "ddd"}, {'A', "dddd"},
    {'D', "MM/dd/yy"}, {'F', "yyyy-MM-dd"}, {'H', "HH"},         {'k', "H"},   {'I', "hh"},
    {'l', "h"},        {'M', "mm"},         {'S', "ss"},         {'p', "tt"},  {'P', "tt"},
    {'T', "HH:mm:ss"}, {'R', "HH:mm"},      {'r', "hh:mm:ss tt"}};

std::string PictureFromStrftime(std::string_view form) {
  std::string picture;
  for (std::size_t i = 0; i < form.size(); ++i) {
    if (form[i] != '%') {
      const bool letter = std::isalpha(static_cast<unsigned char>(form[i])) != 0;
      picture += letter ? "'" + std::string(1, form[i]) + "'" : std::string(1, form[i]);
      continue;
    }
    while (i + 1 < form.size() && std::strchr("-_0EO", form[i + 1]) != nullptr) ++i;
    if (++i == form.size()) break;
    const auto known = std::find_if(std::begin(kPictures), std::end(kPictures),
                                    [&](const PictureOf& p) { return p.letter == form[i]; });
    if (known != std::end(kPictures)) picture += known->picture;
  }
  return TextFromUtf8(picture);
}

void CheckMode(mode_t mode, const std::string& native) {
  if (S_ISDIR(mode)) FailWith(EISDIR, native);
  if (!S_ISREG(mode)) throw PlatformError(PlatformFault::kIsNoFile, TextFromUtf8(native));
}

// Raises an error for anything but a regular file. This happens before the file is opened, since
// opening a device may have an effect.
void RefuseNoFile(const std::string& native) {
  struct stat status {};
  if (stat(native.c_str(), &status) == 0) CheckMode(status.st_mode, native);
}

// Checks the file again after it was opened, since another file may have replaced it after the
// first check.
FileIdentity CheckOpened(const Descriptor& descriptor, const std::string& native) {
  if (descriptor.get() <= STDERR_FILENO) {
    throw PlatformError(PlatformFault::kIsStandardStream, TextFromUtf8(native));
  }
  const struct stat status = StatusOf(descriptor, native);
  CheckMode(status.st_mode, native);
  return {status.st_dev, status.st_ino};
}

// Waits until the names in a folder are on the disk.
void SyncNamesOf(const std::string& native) {
  const Descriptor descriptor(open(native.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (descriptor.get() < 0) FailWith(errno == ENOENT ? ENOTDIR : errno, native);
  const int code = SyncWith(fsync, descriptor);
  // A file system that cannot sync folders returns EINVAL.
  if (code != 0 && code != EINVAL) FailWith(code, native);
}

class PosixPlatform : public Platform {
 public:
  explicit PosixPlatform(std::string native_root)
      : native_root_(std::move(native_root)), root_(TextFromUtf8(native_root_)) {}

  std::unique_ptr<PlatformFile> Open(const std::string& path, FileAccess access) override {
    const std::string native = Resolve(path);
    RefuseNoFile(native);
    auto [descriptor, writable] = OpenExisting(native, access);
    const FileIdentity identity = CheckOpened(descriptor, native);
    const int lock = access == FileAccess::kAlone ? LOCK_EX : LOCK_SH;
    if (flock(descriptor.get(), lock | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
      FailWith(errno, native);
    }
    return std::make_unique<PosixFile>(std::move(descriptor), native, writable, identity);
  }

  void Create(ChangePass, const std::string& path) override {
    const std::string native = Resolve(path);
    Descriptor made(open(native.c_str(), O_WRONLY | O_CREAT | kOpenFlags, 0666));
    if (made.get() < 0) FailToReach(errno, native, Use::kWrite);
    CheckOpened(made, native);
    made.Close(native);
  }

  FileStamp StampOf(const std::string& path) override {
    try {
      struct stat status {};
      if (stat(Resolve(path).c_str(), &status) != 0) return {};
      return {status.st_size, Nanoseconds(status.st_mtim)};
    } catch (const NumberedError&) {  // the folder does not exist
      return {};
    }
  }

  void CreateFolder(ChangePass, const std::string& path) override {
    const std::string native = Resolve(path);
    if (mkdir(native.c_str(), 0777) != 0) FailToReach(errno, native, Use::kName);
  }

  void Delete(ChangePass, const std::string& path) override {
    const std::string native = Resolve(path);
    if (unlink(native.c_str()) != 0) FailToReach(errno, native, Use::kName);
  }

  void Rename(ChangePass, const std::string& from, const std::string& to) override {
    const std::string old_native = Resolve(from);
    const std::string new_native = Resolve(to);
    RefuseNoFile(old_native);
    RefuseNoFile(new_native);
    if (rename(old_native.c_str(), new_native.c_str()) != 0) {
      FailToReach(errno, errno == ENOENT ? old_native : new_native, Use::kName);
    }
  }

  void SyncFolder(ChangePass, const std::string& folder) override { SyncNamesOf(Resolve(folder)); }

  std::unique_ptr<PlatformFile> OpenScratch() override {
    const char* wanted = std::getenv("TMPDIR");
    const std::string folder = wanted != nullptr && IsFolder(wanted) ? wanted : "/tmp";
    Descriptor descriptor(open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600));
    if (descriptor.get() < 0) descriptor = MakeUnnamed(folder);
    const FileIdentity identity = CheckOpened(descriptor, folder);
    return std::make_unique<PosixFile>(std::move(descriptor), folder, true, identity);
  }

  bool FolderExists(const std::string& path) override {
    try {
      return IsFolder(Resolve(path));
    } catch (const NumberedError&) {
      return false;
    }
  }

  std::vector<std::string> FileNames(const std::string& folder) override {
    const std::string native = Resolve(folder);
    std::vector<std::string> names;
    std::error_code error;
    fs::directory_iterator entry(native, error);
    if (error) FailWith(error.value() == ENOENT ? ENOTDIR : error.value(), native);
    for (; entry != fs::directory_iterator(); entry.increment(error)) {
      std::error_code unknown;
      if (entry->is_regular_file(unknown)) {
        names.push_back(TextFromUtf8(NameOf(*entry)));
      }
    }
    if (error) FailWith(error.value(), native);
    return names;
  }

  std::unique_ptr<RunLock> LockRun(const std::string& folder) override {
    const std::string native = Resolve(folder);
    Descriptor descriptor(open(native.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.get() < 0) return nullptr;
    if (flock(descriptor.get(), LOCK_EX | LOCK_NB) == 0) {
      return std::make_unique<PosixRunLock>(std::move(descriptor));
    }
    if (errno != EWOULDBLOCK) return nullptr;
    throw AnotherRun(folder);
  }

  std::unique_ptr<StopWatch> WatchStops() override { return MakeStopWatch(); }

  void StartProgram(const std::string& path, const std::string& arguments) override {
    std::string program = Resolve(path);
    std::string words = Utf8FromText(arguments);
    std::array<char*, 3> argv = {program.data(), words.empty() ? nullptr : words.data(), nullptr};
    pid_t pid = 0;
    const DefaultSignals attributes;
    const int code =
        posix_spawn(&pid, program.c_str(), nullptr, attributes.get(), argv.data(), environ);
    if (code != 0) FailWith(code == ENOEXEC ? EACCES : code, program);
  }

  std::string ProgramFolder() const override { return root_; }
  std::string Utf8ProgramFolder() const override { return native_root_; }
  char Separator() const override { return '/'; }

  RegionalForms Regional() const override {
    RegionalForms forms;
    if (const locale_t numbers = newlocale(LC_NUMERIC_MASK, "", nullptr)) {
      forms.decimal_comma = std::string_view(nl_langinfo_l(RADIXCHAR, numbers)) == ",";
      freelocale(numbers);
    }
    const locale_t locale = newlocale(LC_TIME_MASK, "", nullptr);
    if (locale == nullptr) return forms;
    forms.short_date = PictureFromStrftime(nl_langinfo_l(D_FMT, locale));
    forms.long_time = PictureFromStrftime(nl_langinfo_l(T_FMT, locale));
    freelocale(locale);
    return forms;
  }

 private:
  struct Opened {
    Descriptor descriptor;
    bool writable;
  };

  static Opened OpenExisting(const std::string& native, FileAccess access) {
    int code = 0;
    if (access != FileAccess::kReadOnly) {
      Descriptor descriptor(open(native.c_str(), O_RDWR | kOpenFlags));
      if (descriptor.get() >= 0) return {std::move(descriptor), true};
      code = errno;
    }
    const bool refused = code == EACCES || code == EROFS || code == EPERM;
    if (access == FileAccess::kReadOnly || (access == FileAccess::kDefault && refused)) {
      Descriptor descriptor(open(native.c_str(), O_RDONLY | kOpenFlags));
      if (descriptor.get() >= 0) return {std::move(descriptor), false};
      code = errno;
    }
    FailToReach(code, native, access == FileAccess::kReadOnly ? Use::kRead : Use::kWrite);
  }

  // Creates a file and deletes its name. This serves file systems without O_TMPFILE.
  static Descriptor MakeUnnamed(const std::string& folder) {
    std::string native = folder + "/golf-transfer-XXXXXX";
    Descriptor made(mkostemp(native.data(), O_CLOEXEC));
    if (made.get() < 0) FailWith(errno, folder);
    if (unlink(native.c_str()) != 0) FailWith(errno, native);
    return made;
  }

  // Returns the system's path for a path in code page 1252. Each name below the root is spelt as on
  // the disk. A missing last name is spelt as given. Raises error 76 if a folder of the path does
  // not exist.
  std::string Resolve(const std::string& path) const {
    if (path.compare(0, root_.size(), root_) != 0) return Utf8FromText(path);
    std::string native = native_root_;
    std::string_view rest = std::string_view(path).substr(root_.size());
    while (!rest.empty()) {
      const std::size_t end = std::min(rest.find('/'), rest.size());
      const std::string_view name = rest.substr(0, end);
      if (name == "..") throw PlatformError(PlatformFault::kIsNoFile, path);
      const auto found = FindEntry(native, name);
      const bool last = end == rest.size();
      if (!last && !(found && IsFolder(native + *found))) {
        FailWith(ENOTDIR, Utf8FromText(path));
      }
      native += found.value_or(Utf8FromText(name));
      if (last) break;
      native += '/';
      rest.remove_prefix(end + 1);
    }
    return native;
  }

  std::string native_root_;  // ends in a separator
  std::string root_;
};

std::string OwnFolder() {
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);
  if (error) FailWith(error.value(), "the program's own folder");
  return program.parent_path();
}

std::string Absolute(const std::string& native) {
  std::error_code error;
  const fs::path absolute = native == "." ? fs::current_path(error) : fs::absolute(native, error);
  if (error) FailWith(error.value(), native);
  return absolute;
}

}  // namespace

// Reopens each closed stream, input for writing only and output for reading only. Using such a
// stream then fails, as using a closed stream does. The loop relies on the system to assign the
// lowest free number.
void TakeStandardStreams() {
  for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (fcntl(number, F_GETFD) >= 0 || errno != EBADF) continue;
    if (open("/dev/null", number == STDIN_FILENO ? O_WRONLY : O_RDONLY) != number)
      _exit(EXIT_FAILURE);
  }
}

std::unique_ptr<Platform> MakePlatform(const std::string& utf8_folder) {
  // With this setting a write beyond the file size limit raises an error and does not end the
  // program.
  std::signal(SIGXFSZ, SIG_IGN);
  std::string folder = utf8_folder.empty() ? OwnFolder() : Absolute(utf8_folder);
  if (!folder.ends_with('/')) folder += '/';
  if (!IsFolder(folder)) throw NoInstall(TextFromUtf8(utf8_folder));
  return std::make_unique<PosixPlatform>(folder);
}

std::unique_ptr<PlatformFile> CreateOutside(const std::string& utf8_path) {
  Descriptor made(open(utf8_path.c_str(), O_RDWR | O_CREAT | O_EXCL | kOpenFlags, 0666));
  if (made.get() < 0) FailToReach(errno, utf8_path, Use::kWrite);
  const FileIdentity identity = CheckOpened(made, utf8_path);
  return std::make_unique<PosixFile>(std::move(made), utf8_path, true, identity);
}

void SyncOutside(const std::string& utf8_folder) { SyncNamesOf(utf8_folder); }

}  // namespace golf
