// The one door to the file system. Paths are in the program's form: Windows-1250, with "\" between the parts.
// A path without a drive and without a leading "\" is relative to the current directory.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/datetime.h"

namespace morlan {

struct DirectoryEntry {
  std::string name;
  bool isDirectory = false;
  std::uint64_t size = 0;
};

// The content of a file where it lies. A file that is replaced meanwhile stays readable as it was.
class MappedFile {
 public:
  virtual ~MappedFile() = default;
  virtual std::string_view Bytes() const = 0;
};

class Files {
 public:
  virtual ~Files() = default;

  // The whole content; nothing when the file cannot be read or is a directory.
  virtual std::optional<std::string> Read(std::string_view path) = 0;
  // The same without a copy, for large files of which little is needed; null where Read gives nothing.
  virtual std::unique_ptr<MappedFile> Map(std::string_view path) = 0;
  // Replaces the file in one go: a reader sees the old bytes or the new ones, and a failure leaves the old.
  virtual bool Write(std::string_view path, std::string_view bytes) = 0;
  // Writes over the file from its first byte on and leaves what lies behind; makes a missing file.
  virtual bool WriteInPlace(std::string_view path, std::string_view bytes) = 0;
  // Adds at the end; fails when the file is missing and `create` is false.
  virtual bool Append(std::string_view path, std::string_view bytes, bool create = true) = 0;
  virtual bool Delete(std::string_view path) = 0;
  // Fails when `to` exists.
  virtual bool Rename(std::string_view from, std::string_view to) = 0;
  virtual bool Copy(std::string_view from, std::string_view to) = 0;
  // Length in bytes; nothing for a directory or a file that cannot be reached.
  virtual std::optional<std::uint64_t> Size(std::string_view path) = 0;
  // When the file's content changed last, in local time; nothing where Size has none.
  virtual std::optional<DateTime> Modified(std::string_view path) = 0;

  virtual bool DirectoryExists(std::string_view path) = 0;
  virtual bool CreateDirectory(std::string_view path) = 0;
  // Entries without "." and "..", directories and files mixed, in the order of their names without regard to case.
  virtual std::vector<DirectoryEntry> List(std::string_view directory) = 0;

  // The current directory, without a trailing "\" unless it is the root of the drive ("c:\").
  virtual std::string CurrentDirectory() = 0;
  virtual bool ChangeDirectory(std::string_view path) = 0;

  // The path as people know it on this machine, in UTF-8, and back. Either form is accepted by FromNative.
  virtual std::string ToNative(std::string_view path) = 0;
  virtual std::string FromNative(std::string_view nativeUtf8) = 0;
};

}  // namespace morlan
