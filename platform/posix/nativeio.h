// Whole files of the machine by their native paths (UTF-8 as a rule, in truth any bytes). Only regular files are read or
// written; a pipe, a device or a directory is refused at once and never waited for.
#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace morlan::native {

// A file descriptor that closes itself; negative when nothing is open.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor();
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int Number() const { return number_; }
  explicit operator bool() const { return number_ >= 0; }

 private:
  int number_;
};

// Nothing when the path leads nowhere. Links are followed.
std::optional<struct stat> Status(const std::string& path);
bool IsDirectory(const std::string& path);
bool IsRegularFile(const std::string& path);

// The whole content of a regular file below 2 GB; errno tells why there is none.
std::optional<std::string> Read(const std::string& path);
std::unique_ptr<MappedFile> Map(const std::string& path);

// Replaces the file by a new one that is flushed before it takes the name. Links are followed and stay, permissions too.
// Where the directory lets no file be made but the file itself may be written, it is rewritten where it lies, and put
// back as it was when that fails. False leaves the old bytes.
bool Replace(const std::string& path, std::string_view bytes);

// Writes from the first byte on and leaves what lies behind; makes a missing file.
bool WriteInPlace(const std::string& path, std::string_view bytes);
bool Append(const std::string& path, std::string_view bytes, bool create);

// Fails when `to` exists. Works across file systems for files.
bool RenameToNew(const std::string& from, const std::string& to);

// Makes a directory with all that lead to it, for the user alone. True when it stands in the end.
bool MakeDirectories(const std::string& path);

// Everything up to the last "/": "/a/b" gives "/a", "/a" gives "/", "a" gives ".".
std::string DirectoryOf(const std::string& path);

}  // namespace morlan::native
