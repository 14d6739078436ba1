// A file system in memory under the program's paths, for tests and fuzz targets. There is the drive "c:"; names are the same
// whatever their letter case.
#pragma once

#include <map>
#include <string>

#include "platform/files.h"

namespace morlan {

class MemoryFiles : public Files {
 public:
  bool failWrites = false;     // every change fails, as on a full or read-only disk
  DateTime modified;           // of every file
  std::size_t writeCount = 0;  // changes of contents that took place

  std::optional<std::string> Read(std::string_view path) override;
  std::unique_ptr<MappedFile> Map(std::string_view path) override;
  bool Write(std::string_view path, std::string_view bytes) override;
  bool WriteInPlace(std::string_view path, std::string_view bytes) override;
  bool Append(std::string_view path, std::string_view bytes, bool create = true) override;
  bool Delete(std::string_view path) override;
  bool Rename(std::string_view from, std::string_view to) override;
  bool Copy(std::string_view from, std::string_view to) override;
  std::optional<std::uint64_t> Size(std::string_view path) override;
  std::optional<DateTime> Modified(std::string_view path) override;

  bool DirectoryExists(std::string_view path) override;
  bool CreateDirectory(std::string_view path) override;
  std::vector<DirectoryEntry> List(std::string_view directory) override;

  std::string CurrentDirectory() override { return currentDirectory_; }
  bool ChangeDirectory(std::string_view path) override;

  // Paths have one form here, but for the encoding.
  std::string ToNative(std::string_view path) override;
  std::string FromNative(std::string_view nativeUtf8) override;

 private:
  struct Node {
    std::string path;  // as it was spelt first
    std::string bytes;
    bool isDirectory = false;
  };
  std::string Absolute(std::string_view path) const;
  Node* Find(std::string_view path);
  // The file, made where it is missing; null where that cannot be.
  Node* Make(std::string_view path);

  std::map<std::string, Node> nodes_;  // by lower-cased absolute path
  std::string currentDirectory_ = "c:\\";
};

}  // namespace morlan
