#include "tests/program/failing_calls.h"

#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>

namespace quintara::failing_calls {
namespace {

bool counting = false;
Faults counted;
Way chosen = Way::HalfDone;

bool NextFails() {
  return counting && counted.NextFails();
}

void Fail(int error) {
  if (chosen == Way::Killed) raise(SIGKILL);
  errno = error;
}

// The function that one of those below stands before.
template <typename Function>
Function* Real(Function* /*own*/, const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

template <typename Function, typename Result, typename... Arguments>
Result CallOrFail(Function* own, const char* name, Result failure, int error, Arguments... arguments) {
  if (!NextFails()) return Real(own, name)(arguments...);
  Fail(error);
  return failure;
}

std::size_t Write(const void* bytes, std::size_t size, std::size_t count, std::FILE* file) {
  const auto real = Real(&fwrite, "fwrite");
  if (!NextFails()) return real(bytes, size, count, file);
  const std::size_t written = real(bytes, size, count / 2, file);
  Real(&fflush, "fflush")(file);
  Fail(ENOSPC);
  return written;
}

int Close(std::FILE* file) {
  const bool fails = NextFails();
  if (fails && chosen == Way::Killed) Fail(0);
  // What was flushed, but never came to the disk.
  [[maybe_unused]] const int cut = fails ? ftruncate(fileno(file), 0) : 0;
  const int result = Real(&fclose, "fclose")(file);
  if (!fails) return result;
  Fail(ENOSPC);
  return EOF;
}

}  // namespace

void Begin(const Faults& faults, Way way) {
  counted = faults;
  chosen = way;
  counting = true;
}

Faults End() {
  counting = false;
  return counted;
}

}  // namespace quintara::failing_calls

namespace calls = quintara::failing_calls;

extern "C" {

FILE* fopen(const char* path, const char* mode) {
  return calls::CallOrFail(&fopen, "fopen", static_cast<FILE*>(nullptr), EACCES, path, mode);
}
FILE* fopen64(const char* path, const char* mode) {
  return calls::CallOrFail(&fopen64, "fopen64", static_cast<FILE*>(nullptr), EACCES, path, mode);
}
size_t fwrite(const void* bytes, size_t size, size_t count, FILE* file) {
  return calls::Write(bytes, size, count, file);
}
int fflush(FILE* file) {
  return calls::CallOrFail(&fflush, "fflush", EOF, ENOSPC, file);
}
int fclose(FILE* file) {
  return calls::Close(file);
}
off64_t lseek64(int file, off64_t offset, int from) noexcept {
  return calls::CallOrFail(&lseek64, "lseek64", off64_t{-1}, EIO, file, offset, from);
}
ssize_t read(int file, void* bytes, size_t most) {
  return calls::CallOrFail(&read, "read", ssize_t{-1}, EIO, file, bytes, most);
}
int stat(const char* path, struct stat* status) noexcept {
  return calls::CallOrFail(&stat, "stat", -1, EIO, path, status);
}
int fchmodat(int folder, const char* path, mode_t mode, int flags) noexcept {
  return calls::CallOrFail(&fchmodat, "fchmodat", -1, EPERM, folder, path, mode, flags);
}
int rename(const char* fresh, const char* old) noexcept {
  return calls::CallOrFail(&rename, "rename", -1, EIO, fresh, old);
}
int remove(const char* path) noexcept {
  return calls::CallOrFail(&remove, "remove", -1, EIO, path);
}

}  // extern "C"
