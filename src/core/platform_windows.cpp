#define NOMINMAX
#include <windows.h>

#include <algorithm>
#include <array>
#include <utility>

#include "core/code_page.h"
#include "core/file_holders.h"
#include "core/platform.h"
#include "core/platform_errors.h"
#include "core/stop_watch.h"

namespace golf {
namespace {

constexpr wchar_t kSeparator = L'\\';
// With these prefixes the system accepts a path of any length and does not change it.
constexpr std::wstring_view kVerbatim = L"\\\\?\\";
constexpr std::wstring_view kVerbatimShare = L"\\\\?\\UNC\\";
// A path longer than this needs such a prefix. 14 characters less than MAX_PATH leave space in a
// folder's path for an 8.3 name.
constexpr std::size_t kLongestPlain = MAX_PATH - 14;

constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE;

// The compiler's headers lack these codes.
constexpr DWORD kElevationRequired = 740;
constexpr DWORD kDiskQuotaExceeded = 1295;

struct CodeMeaning {
  DWORD code;
  PlatformFault fault;
};

constexpr CodeMeaning kMeanings[] = {
    {ERROR_SHARING_VIOLATION, PlatformFault::kHeld},
    {ERROR_LOCK_VIOLATION, PlatformFault::kHeld},
    {ERROR_USER_MAPPED_FILE, PlatformFault::kHeld},
    {ERROR_DISK_FULL, PlatformFault::kDiskFull},
    {ERROR_HANDLE_DISK_FULL, PlatformFault::kDiskFull},
    {kDiskQuotaExceeded, PlatformFault::kQuotaUsedUp},
    {ERROR_FILE_TOO_LARGE, PlatformFault::kTooLarge},
    {ERROR_ACCESS_DENIED, PlatformFault::kRefused},
    {ERROR_CANCELLED, PlatformFault::kRefused},
    {ERROR_BAD_EXE_FORMAT, PlatformFault::kRefused},
    {ERROR_EXE_MACHINE_TYPE_MISMATCH, PlatformFault::kRefused},
    {ERROR_WRITE_PROTECT, PlatformFault::kReadOnlyDisk},
    {ERROR_FILE_EXISTS, PlatformFault::kIsThere},
    {ERROR_ALREADY_EXISTS, PlatformFault::kIsThere},
    {ERROR_PATH_NOT_FOUND, PlatformFault::kNoFolder},
    {ERROR_DIRECTORY, PlatformFault::kNoFolder},
    {ERROR_INVALID_DRIVE, PlatformFault::kNoFolder},
    {ERROR_BAD_PATHNAME, PlatformFault::kNoFolder},
    {ERROR_BAD_NETPATH, PlatformFault::kNoFolder},
    {ERROR_BAD_NET_NAME, PlatformFault::kNoFolder},
    {ERROR_FILE_NOT_FOUND, PlatformFault::kNoFile},
    {ERROR_INVALID_NAME, PlatformFault::kNoFile},
    {ERROR_FILENAME_EXCED_RANGE, PlatformFault::kNameTooLong},
    {ERROR_TOO_MANY_OPEN_FILES, PlatformFault::kTooManyFiles},
};

std::wstring WideFromUtf8(std::string_view utf8) {
  const auto size = static_cast<int>(utf8.size());
  const int length = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), length);
  return wide;
}

std::string Utf8FromWide(std::wstring_view wide) {
  const auto size = static_cast<int>(wide.size());
  const int length =
      WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, utf8.data(), length, nullptr, nullptr);
  return utf8;
}

std::string TextFromWide(std::wstring_view wide) { return TextFromUtf8(Utf8FromWide(wide)); }

std::wstring WideFromText(std::string_view text) { return WideFromUtf8(Utf8FromText(text)); }

// Returns the path without the prefix, as a user would write it.
std::wstring Plain(const std::wstring& path) {
  if (path.starts_with(kVerbatimShare)) return L"\\\\" + path.substr(kVerbatimShare.size());
  return path.starts_with(kVerbatim) ? path.substr(kVerbatim.size()) : path;
}

// Returns the path with backslashes, and with the prefix if it is long.
std::wstring Native(std::wstring path) {
  std::replace(path.begin(), path.end(), L'/', kSeparator);
  if (path.size() <= kLongestPlain || path.starts_with(kVerbatim)) return path;
  const bool on_share = path.starts_with(L"\\\\");
  return std::wstring(on_share ? kVerbatimShare : kVerbatim) + path.substr(on_share ? 2 : 0);
}

bool IsFolder(const std::wstring& native) {
  const DWORD attributes = GetFileAttributesW(native.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// Returns the system's description of an error, without its full stop.
std::string Words(DWORD code) {
  std::array<wchar_t, 512> buffer{};
  const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                                      nullptr, code, 0, buffer.data(), buffer.size(), nullptr);
  const std::wstring_view words(buffer.data(), length);
  const std::string text = TextFromWide(words.substr(0, words.find_last_not_of(L" .\r\n") + 1));
  return text.empty() ? "error " + std::to_string(code) : text;
}

[[noreturn]] void FailWith(DWORD code, const std::wstring& native) {
  const std::string path = TextFromWide(Plain(native));
  // The system also returns this code if the path of a file names a folder.
  if (code == ERROR_ACCESS_DENIED && IsFolder(native)) {
    throw PlatformError(PlatformFault::kIsFolder, path);
  }
  for (const CodeMeaning& meaning : kMeanings) {
    if (meaning.code != code) continue;
    if (meaning.fault == PlatformFault::kHeld) throw HeldBy(path, ProgramsHolding(Plain(native)));
    throw PlatformError(meaning.fault, path);
  }
  throw DeviceFault(path, Words(code));
}

class Handle {
 public:
  explicit Handle(HANDLE handle) : handle_(handle) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  Handle(Handle&& other) noexcept : handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE)) {}
  ~Handle() {
    if (IsOpen()) CloseHandle(handle_);
  }
  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE get() const { return handle_; }
  void Close(const std::wstring& native) {
    if (!CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE))) {
      FailWith(GetLastError(), native);
    }
  }

 private:
  HANDLE handle_;
};

Handle OpenHandle(const std::wstring& native, DWORD access, DWORD sharing, DWORD disposition,
                  DWORD flags = FILE_ATTRIBUTE_NORMAL) {
  return Handle(CreateFileW(native.c_str(), access, sharing, nullptr, disposition, flags, nullptr));
}

constexpr DWORD kStandardStreams[] = {STD_INPUT_HANDLE, STD_OUTPUT_HANDLE, STD_ERROR_HANDLE};

void CheckOpened(const Handle& handle, const std::wstring& native) {
  for (const DWORD stream : kStandardStreams) {
    if (GetStdHandle(stream) == handle.get()) {
      throw PlatformError(PlatformFault::kIsStandardStream, TextFromWide(Plain(native)));
    }
  }
  if (GetFileType(handle.get()) != FILE_TYPE_DISK) {
    throw PlatformError(PlatformFault::kIsNoFile, TextFromWide(Plain(native)));
  }
}

// Returns true if the file or folder can be opened for this access, or cannot for another reason
// than a lack of rights.
bool IsPermitted(const std::wstring& native, DWORD access) {
  const Handle handle = OpenHandle(native, access, kShared | FILE_SHARE_DELETE, OPEN_EXISTING,
                                   FILE_FLAG_BACKUP_SEMANTICS);
  return handle.IsOpen() || GetLastError() != ERROR_ACCESS_DENIED;
}

// Returns why the system refuses to open, create, delete or rename a file.
PlatformFault ReasonOfRefusal(const std::wstring& native, bool changes) {
  const DWORD attributes = GetFileAttributesW(native.c_str());
  const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
  if (exists && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return PlatformFault::kIsFolder;
  if (exists && changes && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
    return PlatformFault::kReadOnlyFile;
  }
  if (exists && !IsPermitted(native, changes ? GENERIC_READ | GENERIC_WRITE : GENERIC_READ)) {
    return PlatformFault::kNoFileRights;
  }
  const std::wstring folder = native.substr(0, native.rfind(kSeparator) + 1);
  if (changes && !IsPermitted(folder, FILE_ADD_FILE)) return PlatformFault::kNoFolderRights;
  return PlatformFault::kRefused;
}

// Does the same as FailWith. If access is refused, the error contains the reason.
[[noreturn]] void FailToReach(DWORD code, const std::wstring& native, bool changes = true) {
  if (code != ERROR_ACCESS_DENIED) FailWith(code, native);
  throw PlatformError(ReasonOfRefusal(native, changes), TextFromWide(Plain(native)));
}

class WindowsFile : public PlatformFile {
 public:
  WindowsFile(Handle handle, std::wstring native, bool writable)
      : handle_(std::move(handle)), native_(std::move(native)), writable_(writable) {
    BY_HANDLE_FILE_INFORMATION information{};
    if (!GetFileInformationByHandle(handle_.get(), &information)) {
      FailWith(GetLastError(), native_);
    }
    identity_ = {information.dwVolumeSerialNumber,
                 std::uint64_t{information.nFileIndexHigh} << 32 | information.nFileIndexLow};
  }

  std::size_t ReadAt(std::int64_t offset, std::span<char> into) override {
    std::size_t done = 0;
    while (done < into.size()) {
      OVERLAPPED place = Place(offset, done);
      DWORD count = 0;
      if (!ReadFile(handle_.get(), into.data() + done, Part(into.size() - done), &count, &place)) {
        if (GetLastError() == ERROR_HANDLE_EOF) break;
        FailWith(GetLastError(), native_);
      }
      if (count == 0) break;
      done += count;
    }
    return done;
  }

  void WriteAt(ChangePass, std::int64_t offset, std::string_view bytes,
               std::size_t& written) override {
    for (written = 0; written < bytes.size();) {
      OVERLAPPED place = Place(offset, written);
      DWORD count = 0;
      const BOOL done = WriteFile(handle_.get(), bytes.data() + written,
                                  Part(bytes.size() - written), &count, &place);
      const DWORD code = done ? ERROR_WRITE_FAULT : GetLastError();
      written += count;
      if (!done || count == 0) FailWith(code, native_);
    }
  }

  void Truncate(ChangePass, std::int64_t length) override {
    FILE_END_OF_FILE_INFO end{};
    end.EndOfFile.QuadPart = length;
    if (!SetFileInformationByHandle(handle_.get(), FileEndOfFileInfo, &end, sizeof end)) {
      FailWith(GetLastError(), native_);
    }
  }

  void Sync(ChangePass) override {
    if (!FlushFileBuffers(handle_.get())) FailWith(GetLastError(), native_);
  }

  std::int64_t Length() override {
    LARGE_INTEGER length{};
    if (!GetFileSizeEx(handle_.get(), &length)) FailWith(GetLastError(), native_);
    return length.QuadPart;
  }

  bool IsWritable() const override { return writable_; }

  FileIdentity Identity() const override { return identity_; }

  void Close() override { handle_.Close(native_); }

 private:
  static OVERLAPPED Place(std::int64_t offset, std::size_t done) {
    const std::uint64_t at = static_cast<std::uint64_t>(offset) + done;
    OVERLAPPED place{};
    place.Offset = static_cast<DWORD>(at);
    place.OffsetHigh = static_cast<DWORD>(at >> 32);
    return place;
  }

  // Returns `size`, limited to the bytes that one call may transfer.
  static DWORD Part(std::size_t size) {
    return static_cast<DWORD>(std::min<std::size_t>(size, 1u << 30));
  }

  Handle handle_;
  std::wstring native_;
  bool writable_;
  FileIdentity identity_;
};

class WindowsRunLock : public RunLock {
 public:
  explicit WindowsRunLock(Handle file) : file_(std::move(file)) {}

 private:
  Handle file_;  // the system deletes the file when the last handle to it closes
};

struct CloseSearch {
  using pointer = HANDLE;
  void operator()(HANDLE search) const { FindClose(search); }
};

bool IsNormal(const WIN32_FIND_DATAW& entry) {
  return (entry.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE |
                                    FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) == 0;
}

// Starts a program that needs administrator rights. The system asks the operator to permit it.
bool StartElevated(const std::wstring& program, const std::wstring& arguments) {
  SHELLEXECUTEINFOW start{};
  start.cbSize = sizeof start;
  start.fMask = SEE_MASK_NOASYNC | SEE_MASK_FLAG_NO_UI;
  start.lpFile = program.c_str();
  start.lpParameters = arguments.c_str();
  start.nShow = SW_SHOWNORMAL;
  return ShellExecuteExW(&start) != FALSE;
}

std::string Picture(LCTYPE type, std::string if_unknown) {
  std::array<wchar_t, 128> buffer{};
  const int size = GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, type, buffer.data(), buffer.size());
  return size > 0 ? TextFromWide(buffer.data()) : if_unknown;
}

class WindowsPlatform : public Platform {
 public:
  // `root` ends in a separator.
  explicit WindowsPlatform(std::wstring root) : native_root_(std::move(root)) {
    root_ = TextFromWide(native_root_);
  }

  std::unique_ptr<PlatformFile> Open(const std::string& path, FileAccess access) override {
    std::wstring native = Resolve(path);
    auto [handle, writable] = OpenExisting(native, access);
    CheckOpened(handle, native);
    return std::make_unique<WindowsFile>(std::move(handle), std::move(native), writable);
  }

  void Create(ChangePass, const std::string& path) override {
    const std::wstring native = Resolve(path);
    Handle made = OpenHandle(native, GENERIC_WRITE, kShared, OPEN_ALWAYS);
    if (!made.IsOpen()) FailToReach(GetLastError(), native);
    CheckOpened(made, native);
    made.Close(native);
  }

  FileStamp StampOf(const std::string& path) override {
    if (LeadsUp(path)) return {};
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!GetFileAttributesExW(Resolve(path).c_str(), GetFileExInfoStandard, &data)) return {};
    const auto joined = [](DWORD high, DWORD low) {
      return static_cast<std::int64_t>(std::uint64_t{high} << 32 | low);
    };
    // A FILETIME counts 100 nanoseconds since the beginning of 1601.
    constexpr std::int64_t kBefore1970 = 116'444'736'000'000'000;
    const FILETIME& time = data.ftLastWriteTime;
    return {joined(data.nFileSizeHigh, data.nFileSizeLow),
            (joined(time.dwHighDateTime, time.dwLowDateTime) - kBefore1970) * 100};
  }

  void CreateFolder(ChangePass, const std::string& path) override {
    const std::wstring native = Resolve(path);
    if (!CreateDirectoryW(native.c_str(), nullptr)) FailToReach(GetLastError(), native);
  }

  void Delete(ChangePass, const std::string& path) override {
    const std::wstring native = Resolve(path);
    if (!DeleteFileW(native.c_str())) FailToReach(GetLastError(), native);
  }

  // Renames a file. The system raises an error if the old or the new file is open.
  void Rename(ChangePass, const std::string& from, const std::string& to) override {
    const std::wstring old_native = Resolve(from);
    const std::wstring new_native = Resolve(to);
    if (IsFolder(old_native)) throw PlatformError(PlatformFault::kIsFolder, from);
    if (!MoveFileExW(old_native.c_str(), new_native.c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
      const DWORD code = GetLastError();
      FailToReach(code, code == ERROR_FILE_NOT_FOUND ? old_native : new_native);
    }
  }

  // Flushing the handle of a folder writes the journal of NTFS, which contains the file names.
  // Nothing is raised if the folder cannot be opened for this or does not support it. The system's
  // own order of changes must then suffice.
  void SyncFolder(ChangePass, const std::string& folder) override {
    const std::wstring native = Resolve(folder);
    if (!IsFolder(native)) throw PlatformError(PlatformFault::kNoFolder, folder);
    const Handle handle = OpenHandle(native, GENERIC_WRITE, kShared | FILE_SHARE_DELETE,
                                     OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
    if (!handle.IsOpen() || FlushFileBuffers(handle.get())) return;
    const DWORD code = GetLastError();
    constexpr DWORD kNoFlush[] = {ERROR_ACCESS_DENIED, ERROR_INVALID_FUNCTION, ERROR_NOT_SUPPORTED,
                                  ERROR_INVALID_PARAMETER};
    if (std::find(std::begin(kNoFlush), std::end(kNoFlush), code) == std::end(kNoFlush)) {
      FailWith(code, native);
    }
  }

  std::unique_ptr<PlatformFile> OpenScratch() override {
    std::array<wchar_t, MAX_PATH + 1> folder{};
    const DWORD length = GetTempPathW(static_cast<DWORD>(folder.size()), folder.data());
    if (length == 0) FailWith(GetLastError(), L"the folder of temporary files");
    std::array<wchar_t, MAX_PATH> name{};
    if (GetTempFileNameW(folder.data(), L"gtr", 0, name.data()) == 0) {
      FailWith(GetLastError(), folder.data());
    }
    std::wstring native = name.data();
    Handle handle = OpenHandle(native, GENERIC_READ | GENERIC_WRITE | DELETE, 0, OPEN_EXISTING,
                               FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE);
    if (!handle.IsOpen()) {
      const DWORD code = GetLastError();
      DeleteFileW(native.c_str());
      FailWith(code, native);
    }
    CheckOpened(handle, native);
    return std::make_unique<WindowsFile>(std::move(handle), std::move(native), true);
  }

  bool FolderExists(const std::string& path) override { return IsFolder(Resolve(path)); }

  std::vector<std::string> FileNames(const std::string& folder) override {
    const std::wstring native = InFolder(folder, L"*");
    WIN32_FIND_DATAW entry{};
    const std::unique_ptr<HANDLE, CloseSearch> search(FindFirstFileExW(
        native.c_str(), FindExInfoBasic, &entry, FindExSearchNameMatch, nullptr, 0));
    std::vector<std::string> names;
    DWORD code = GetLastError();
    if (search.get() == INVALID_HANDLE_VALUE) {
      // The root folder of a drive may be empty.
      if (code == ERROR_FILE_NOT_FOUND && FolderExists(folder)) return names;
      FailWith(code == ERROR_FILE_NOT_FOUND ? ERROR_PATH_NOT_FOUND : code, Resolve(folder));
    }
    do {
      if (IsNormal(entry)) names.push_back(TextFromWide(entry.cFileName));
    } while (FindNextFileW(search.get(), &entry));
    code = GetLastError();
    if (code != ERROR_NO_MORE_FILES) FailWith(code, Resolve(folder));
    return names;
  }

  std::unique_ptr<RunLock> LockRun(const std::string& folder) override {
    Handle file = OpenHandle(InFolder(folder, L"golf-transfer.lock"), GENERIC_WRITE | DELETE, 0,
                             OPEN_ALWAYS, FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE);
    if (file.IsOpen()) return std::make_unique<WindowsRunLock>(std::move(file));
    if (GetLastError() == ERROR_SHARING_VIOLATION) throw AnotherRun(folder);
    return nullptr;
  }

  std::unique_ptr<StopWatch> WatchStops() override { return MakeStopWatch(); }

  void StartProgram(const std::string& path, const std::string& arguments) override {
    const std::wstring program = Resolve(path);
    const std::wstring words = WideFromText(arguments);
    std::wstring line = L"\"" + Plain(program) + L"\"" + (words.empty() ? L"" : L" ") + words;
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESHOWWINDOW;
    start.wShowWindow = SW_SHOWNORMAL;
    PROCESS_INFORMATION started{};
    if (CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                       &start, &started)) {
      CloseHandle(started.hThread);
      CloseHandle(started.hProcess);
      return;
    }
    const bool wants_rights = GetLastError() == kElevationRequired;
    if (!wants_rights || !StartElevated(program, words)) FailWith(GetLastError(), program);
  }

  std::string ProgramFolder() const override { return root_; }
  std::string Utf8ProgramFolder() const override { return Utf8FromWide(native_root_); }

  // Windows keeps the copies below the user's folder for local data, under the path of the install
  // without its drive.
  std::string RedirectedFolder() const override {
    const bool is_on_drive = native_root_.size() > 3 && native_root_[1] == L':';
    const wchar_t* const local = _wgetenv(L"LOCALAPPDATA");
    if (!is_on_drive || local == nullptr) return {};
    const std::wstring copies = local + std::wstring(L"\\VirtualStore") + native_root_.substr(2);
    const DWORD attributes = GetFileAttributesW(copies.c_str());
    const bool is_folder =
        attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return is_folder ? Utf8FromWide(copies) : std::string();
  }
  char Separator() const override { return '\\'; }

  RegionalForms Regional() const override {
    const RegionalForms usual;
    return {Picture(LOCALE_SSHORTDATE, usual.short_date),
            Picture(LOCALE_STIMEFORMAT, usual.long_time), Picture(LOCALE_SDECIMAL, ".") == ","};
  }

 private:
  struct Opened {
    Handle handle;
    bool writable;
  };

  // Opens an existing file. If the access is kDefault, opens a file that cannot be opened for
  // writing for reading only.
  static Opened OpenExisting(const std::wstring& native, FileAccess access) {
    const bool writes = access != FileAccess::kReadOnly;
    const DWORD wanted = writes ? GENERIC_READ | GENERIC_WRITE : GENERIC_READ;
    const DWORD sharing = access == FileAccess::kAlone ? 0 : kShared;
    Handle handle = OpenHandle(native, wanted, sharing, OPEN_EXISTING);
    if (handle.IsOpen()) return {std::move(handle), writes};
    const DWORD code = GetLastError();
    const bool refused = code == ERROR_ACCESS_DENIED || code == ERROR_WRITE_PROTECT ||
                         code == ERROR_SHARING_VIOLATION;
    if (access == FileAccess::kDefault && refused) {
      Handle for_reading = OpenHandle(native, GENERIC_READ, kShared, OPEN_EXISTING);
      if (for_reading.IsOpen()) return {std::move(for_reading), false};
    }
    FailToReach(code, native, writes);
  }

  std::wstring Resolve(const std::string& path) const {
    if (path.compare(0, root_.size(), root_) != 0) return Native(WideFromText(path));
    const std::string_view rest = std::string_view(path).substr(root_.size());
    if (LeadsUp(rest)) throw PlatformError(PlatformFault::kIsNoFile, path);
    return Native(native_root_ + WideFromText(rest));
  }

  static bool LeadsUp(std::string_view path) {
    while (true) {
      const std::size_t end = path.find_first_of("\\/");
      if (path.substr(0, end) == "..") return true;
      if (end == std::string_view::npos) return false;
      path.remove_prefix(end + 1);
    }
  }

  std::wstring InFolder(const std::string& folder, std::wstring_view name) const {
    std::wstring native = Plain(Resolve(folder));
    if (!native.ends_with(kSeparator)) native += kSeparator;
    return Native(native.append(name));
  }

  std::wstring native_root_;
  std::string root_;
};

std::wstring OwnFolder() {
  std::wstring path(MAX_PATH, L'\0');
  DWORD length = 0;
  while ((length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()))) ==
         path.size()) {
    path.resize(2 * path.size());
  }
  return path.substr(0, path.rfind(kSeparator, length) + 1);
}

std::wstring Absolute(const std::wstring& path) {
  const DWORD room = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  std::wstring absolute(room, L'\0');
  absolute.resize(GetFullPathNameW(path.c_str(), room, absolute.data(), nullptr));
  return absolute;
}

}  // namespace

// A program with windows has no standard streams unless its parent process passed some. The handles
// stay open until the process ends.
void TakeStandardStreams() {
  for (const DWORD stream : kStandardStreams) {
    const HANDLE handle = GetStdHandle(stream);
    const bool usable = handle != nullptr && handle != INVALID_HANDLE_VALUE &&
                        (GetFileType(handle) != FILE_TYPE_UNKNOWN || GetLastError() == NO_ERROR);
    if (usable) continue;
    const DWORD access = stream == STD_INPUT_HANDLE ? GENERIC_WRITE : GENERIC_READ;
    SetStdHandle(stream, CreateFileW(L"NUL", access, kShared, nullptr, OPEN_EXISTING, 0, nullptr));
  }
}

std::unique_ptr<Platform> MakePlatform(const std::string& utf8_folder) {
  std::wstring folder =
      Plain(utf8_folder.empty() ? OwnFolder() : Absolute(WideFromUtf8(utf8_folder)));
  if (!folder.ends_with(kSeparator)) folder += kSeparator;
  if (!IsFolder(Native(folder))) throw NoInstall(TextFromUtf8(utf8_folder));
  return std::make_unique<WindowsPlatform>(std::move(folder));
}

std::unique_ptr<PlatformFile> CreateOutside(const std::string& utf8_path) {
  const std::wstring native = Native(Plain(Absolute(WideFromUtf8(utf8_path))));
  Handle handle = OpenHandle(native, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, CREATE_NEW);
  if (!handle.IsOpen()) FailToReach(GetLastError(), native);
  CheckOpened(handle, native);
  return std::make_unique<WindowsFile>(std::move(handle), native, true);
}

void SyncOutside(const std::string&) {}

}  // namespace golf
