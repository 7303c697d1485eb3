// A library that the loader loads into the command-line program before all others. It counts the
// calls to the system that change something, and makes one of them go wrong. It also creates the
// empty file "faulty" then. Environment variables select the call and the fault:
//
//   GOLF_CALL   the number of the call, from 1
//   GOLF_FAULT  "kill": the process ends before the call
//               "tear": the same, but half of the bytes of a write reach the file first
//               "replace:FILE": the file "replacement" becomes FILE before the call
//               "stop": the process gets SIGTERM before the call
//               "ERRNO": the call fails with this value of errno
//               "ERRNO COUNT": so many calls fail, from this one on

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string_view>

namespace {

std::string_view Variable(const char* name) {
  const char* const value = getenv(name);
  return value == nullptr ? "" : value;
}

template <class Function>
Function* Real(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

// Counts a call. Returns true if it must fail; errno is set then. `tear` is called if the process
// ends in the call and half of its bytes must be written.
bool Fails(const std::function<void()>& tear = [] {}) {
  constexpr std::string_view kReplace = "replace:";
  static int calls = 0;
  const std::string_view fault = Variable("GOLF_FAULT");
  int error = 0;
  int count = 1;
  std::sscanf(fault.data(), "%d %d", &error, &count);
  const int first = std::atoi(Variable("GOLF_CALL").data());
  if (++calls < first || calls >= first + count) return false;
  close(Real<decltype(open)>("open")("faulty", O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
  if (fault.starts_with(kReplace)) {
    Real<decltype(rename)>("rename")("replacement", fault.data() + kReplace.size());
  }
  if (fault == "stop") raise(SIGTERM);
  if (fault == "tear") tear();
  if (fault == "tear" || fault == "kill") raise(SIGKILL);
  errno = error;
  return error != 0;
}

template <class Function, class... Arguments>
int Call(const char* name, Arguments... arguments) {
  return Fails() ? -1 : Real<Function>(name)(arguments...);
}

}  // namespace

extern "C" {

ssize_t pwrite(int file, const void* bytes, size_t size, off_t offset) {
  const auto write = [&](size_t some) {
    return Real<decltype(pwrite)>("pwrite")(file, bytes, some, offset);
  };
  return Fails([&] { write(size / 2); }) ? -1 : write(size);
}

// Opening a file changes something only if it may create the file.
int open(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const bool creates = (flags & O_CREAT) != 0;
  const bool has_mode = creates || (flags & O_TMPFILE) == O_TMPFILE;
  const mode_t mode = has_mode ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  return creates && Fails() ? -1 : Real<decltype(open)>("open")(path, flags, mode);
}

int ftruncate(int file, off_t size) noexcept {
  return Call<decltype(ftruncate)>("ftruncate", file, size);
}
int rename(const char* from, const char* to) noexcept {
  return Call<decltype(rename)>("rename", from, to);
}
int unlink(const char* path) noexcept { return Call<decltype(unlink)>("unlink", path); }
int mkdir(const char* path, mode_t mode) noexcept {
  return Call<decltype(mkdir)>("mkdir", path, mode);
}
int fsync(int file) { return Call<decltype(fsync)>("fsync", file); }
int fdatasync(int file) { return Call<decltype(fdatasync)>("fdatasync", file); }

// SQLite calls these names.
ssize_t pwrite64(int, const void*, size_t, off64_t) __attribute__((alias("pwrite")));
int open64(const char*, int, ...) __attribute__((alias("open")));
int ftruncate64(int, off64_t) noexcept __attribute__((alias("ftruncate")));

}  // extern "C"
