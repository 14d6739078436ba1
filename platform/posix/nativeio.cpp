#include "platform/posix/nativeio.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <stdexcept>

namespace morlan::native {
namespace {

constexpr mode_t kNewFileMode = 0666;  // less the user's mask
constexpr int kMostLinks = 40;
constexpr off_t kLargestFile = INT_MAX;

bool ReadAll(int descriptor, std::string& bytes) {
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t count = ::read(descriptor, bytes.data() + done, bytes.size() - done);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return false;
    if (count == 0) break;
    done += static_cast<std::size_t>(count);
  }
  bytes.resize(done);
  return true;
}

bool WriteAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(descriptor, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

// Opens a regular file; anything else gives an empty descriptor. O_NONBLOCK keeps a pipe from waiting for its other end.
int OpenRegular(const std::string& path, int flags) {
  const int descriptor = ::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, kNewFileMode);
  struct stat status;
  if (descriptor < 0 || (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode))) return descriptor;
  ::close(descriptor);
  errno = EINVAL;
  return -1;
}

// Takes back what a failed write added; always false.
bool FailedAtSize(int descriptor, off_t size) {
  if (::ftruncate(descriptor, size) != 0) errno = EIO;
  return false;
}

// Reserves the bytes that a longer text needs, so that a full disk is met before a byte is overwritten.
bool Grow(int descriptor, off_t oldSize, off_t newSize) {
  if (newSize <= oldSize) return true;
  const int error = ::posix_fallocate(descriptor, oldSize, newSize - oldSize);
  if (error == 0 || error == EOPNOTSUPP || error == EINVAL) return true;
  return FailedAtSize(descriptor, oldSize);
}

off_t SizeOf(int descriptor) {
  struct stat status;
  return ::fstat(descriptor, &status) == 0 ? status.st_size : 0;
}

// The file that a chain of links ends at, whether it exists or not; nothing for a loop.
std::optional<std::string> LinkTarget(std::string path) {
  for (int i = 0; i < kMostLinks; ++i) {
    struct stat status;
    if (::lstat(path.c_str(), &status) != 0 || !S_ISLNK(status.st_mode)) return path;
    std::string target(PATH_MAX, '\0');
    const ssize_t length = ::readlink(path.c_str(), target.data(), target.size());
    if (length <= 0) return std::nullopt;
    target.resize(static_cast<std::size_t>(length));
    path = target.front() == '/' ? target : DirectoryOf(path) + "/" + target;
  }
  return std::nullopt;
}

// Gives the new file the owner and the permissions of the old one. Where the group cannot be kept, its members get no
// more than everybody.
void KeepRights(int descriptor, const struct stat& old) {
  mode_t mode = old.st_mode & 0777;
  const bool ownerKept = ::fchown(descriptor, old.st_uid, old.st_gid) == 0;
  if (!ownerKept && ::fchown(descriptor, static_cast<uid_t>(-1), old.st_gid) != 0) mode &= ~static_cast<mode_t>(070) | (mode & 07) << 3;
  if (::fchmod(descriptor, mode) != 0) return;  // the file keeps the private rights with which it was made
}

class Mapping : public MappedFile {
 public:
  // `start` is where the system has put the bytes; null for an empty file.
  Mapping(void* start, std::size_t size) : start_(start), size_(size) {}
  ~Mapping() override {
    if (start_) ::munmap(start_, size_);
  }
  Mapping(const Mapping&) = delete;
  Mapping& operator=(const Mapping&) = delete;
  std::string_view Bytes() const override { return {static_cast<const char*>(start_), size_}; }

 private:
  void* start_;
  std::size_t size_;
};

mode_t CurrentMask() {
  const mode_t mask = ::umask(077);
  ::umask(mask);
  return mask;
}

enum class Outcome { Done, Failed, DirectoryRefuses };

Outcome ReplaceByNewFile(const std::string& path, const std::optional<struct stat>& old, std::string_view bytes) {
  const auto refused = [](int error) {
    return error == EACCES || error == EPERM || error == EROFS || error == EBUSY ? Outcome::DirectoryRefuses : Outcome::Failed;
  };
  std::string temporary = DirectoryOf(path) + "/.morlan7-XXXXXX";
  const Descriptor file(::mkostemp(temporary.data(), O_CLOEXEC));
  if (!file) return refused(errno);
  if (old)
    KeepRights(file.Number(), *old);
  else if (::fchmod(file.Number(), kNewFileMode & ~CurrentMask()) != 0)
    return ::unlink(temporary.c_str()), Outcome::Failed;
  Outcome outcome = WriteAll(file.Number(), bytes) && ::fsync(file.Number()) == 0 ? Outcome::Done : Outcome::Failed;
  if (outcome == Outcome::Done && ::rename(temporary.c_str(), path.c_str()) != 0) outcome = refused(errno);
  if (outcome != Outcome::Done) ::unlink(temporary.c_str());
  return outcome;
}

bool Overwrite(int descriptor, off_t oldSize, std::string_view bytes) {
  return Grow(descriptor, oldSize, static_cast<off_t>(bytes.size())) && ::lseek(descriptor, 0, SEEK_SET) == 0 &&
         WriteAll(descriptor, bytes);
}

// Rewrites the file where it lies; the old bytes come back when that fails.
bool ReplaceWhereItLies(const std::string& path, std::string_view bytes) {
  const std::optional<std::string> old = Read(path);
  const Descriptor file(OpenRegular(path, O_WRONLY));
  if (!old || !file) return false;
  const auto write = [&](std::string_view content, std::size_t sizeBefore) {
    return Overwrite(file.Number(), static_cast<off_t>(sizeBefore), content) &&
           ::ftruncate(file.Number(), static_cast<off_t>(content.size())) == 0 && ::fsync(file.Number()) == 0;
  };
  if (write(bytes, old->size())) return true;
  write(*old, old->size());
  return false;
}

// For file systems that cannot refuse an existing name by themselves.
bool RenameAfterLook(const std::string& from, const std::string& to) {
  struct stat status;
  if (::lstat(to.c_str(), &status) == 0) return false;
  return ::rename(from.c_str(), to.c_str()) == 0;
}

bool MoveAcross(const std::string& from, const std::string& to) {
  const std::optional<std::string> bytes = Read(from);
  return bytes && !Status(to) && Replace(to, *bytes) && ::unlink(from.c_str()) == 0;
}

}  // namespace

Descriptor::~Descriptor() {
  if (number_ >= 0) ::close(number_);
}

std::optional<struct stat> Status(const std::string& path) {
  struct stat status;
  if (::stat(path.c_str(), &status) != 0) return std::nullopt;
  return status;
}

bool IsDirectory(const std::string& path) {
  const auto status = Status(path);
  return status && S_ISDIR(status->st_mode);
}

bool IsRegularFile(const std::string& path) {
  const auto status = Status(path);
  return status && S_ISREG(status->st_mode);
}

std::optional<std::string> Read(const std::string& path) {
  const Descriptor file(OpenRegular(path, O_RDONLY));
  if (!file) return std::nullopt;
  const off_t size = SizeOf(file.Number());
  if (size > kLargestFile) return std::nullopt;
  try {
    std::string bytes(static_cast<std::size_t>(size), '\0');
    if (ReadAll(file.Number(), bytes)) return bytes;
  } catch (const std::bad_alloc&) {  // more than the machine can hold is the same as not readable
    errno = ENOMEM;
  }
  return std::nullopt;
}

std::unique_ptr<MappedFile> Map(const std::string& path) {
  const Descriptor file(OpenRegular(path, O_RDONLY));
  if (!file) return nullptr;
  const off_t size = SizeOf(file.Number());
  if (size > kLargestFile) return nullptr;
  if (size == 0) return std::make_unique<Mapping>(nullptr, 0);
  const auto length = static_cast<std::size_t>(size);
  void* const start = ::mmap(nullptr, length, PROT_READ, MAP_PRIVATE, file.Number(), 0);
  return start == MAP_FAILED ? nullptr : std::make_unique<Mapping>(start, length);
}

bool Replace(const std::string& path, std::string_view bytes) {
  const std::optional<std::string> target = LinkTarget(path);
  if (!target) return false;
  const auto old = Status(*target);
  if (old && (!S_ISREG(old->st_mode) || ::faccessat(AT_FDCWD, target->c_str(), W_OK, AT_EACCESS) != 0)) return false;
  const Outcome outcome = ReplaceByNewFile(*target, old, bytes);
  if (outcome == Outcome::DirectoryRefuses && old) return ReplaceWhereItLies(*target, bytes);
  return outcome == Outcome::Done;
}

bool WriteInPlace(const std::string& path, std::string_view bytes) {
  const Descriptor file(OpenRegular(path, O_WRONLY | O_CREAT));
  return file && Overwrite(file.Number(), SizeOf(file.Number()), bytes);
}

bool Append(const std::string& path, std::string_view bytes, bool create) {
  const Descriptor file(OpenRegular(path, O_WRONLY | O_APPEND | (create ? O_CREAT : 0)));
  if (!file) return false;
  const off_t size = SizeOf(file.Number());
  return WriteAll(file.Number(), bytes) || FailedAtSize(file.Number(), size);
}

bool RenameToNew(const std::string& from, const std::string& to) {
  if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return true;
  if (errno == EINVAL || errno == ENOSYS) return RenameAfterLook(from, to);
  return errno == EXDEV && MoveAcross(from, to);
}

bool MakeDirectories(const std::string& path) {
  for (std::size_t slash = path.find('/', 1); slash != std::string::npos; slash = path.find('/', slash + 1))
    ::mkdir(path.substr(0, slash).c_str(), 0700);
  ::mkdir(path.c_str(), 0700);
  return IsDirectory(path);
}

std::string DirectoryOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

}  // namespace morlan::native
