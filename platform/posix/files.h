// Files of a POSIX machine under the program's paths. There is one drive, "c:", and its root is "/": "c:\home\ala\a.html" is
// /home/ala/a.html. A path with another drive does not exist.
//
// Look-up ignores case and keeps it: the exact name wins; failing that, each part of the path is looked for without regard
// to case, and of several candidates the first in the order of their bytes is taken.
#pragma once

#include "platform/files.h"

namespace morlan {

class PosixFiles : public Files {
 public:
  // Starts in the process's current directory and never changes that one.
  PosixFiles();

  std::optional<std::string> Read(std::string_view path) override;
  std::unique_ptr<MappedFile> Map(std::string_view path) override;
  bool Write(std::string_view path, std::string_view bytes) override;
  bool WriteInPlace(std::string_view path, std::string_view bytes) override;
  bool Append(std::string_view path, std::string_view bytes, bool create = true) override;
  bool Delete(std::string_view path) override;  // files only
  bool Rename(std::string_view from, std::string_view to) override;
  bool Copy(std::string_view from, std::string_view to) override;  // replaces `to`
  std::optional<std::uint64_t> Size(std::string_view path) override;
  std::optional<DateTime> Modified(std::string_view path) override;

  bool DirectoryExists(std::string_view path) override;
  bool CreateDirectory(std::string_view path) override;  // its parent must exist
  std::vector<DirectoryEntry> List(std::string_view directory) override;

  std::string CurrentDirectory() override;
  bool ChangeDirectory(std::string_view path) override;

  // Absolute and in the spelling of the files that exist. A path of another drive and an empty one are only re-encoded.
  std::string ToNative(std::string_view path) override;
  // What starts with "/" is taken as native, with any "\" in it as part of a name. A relative path stays relative.
  std::string FromNative(std::string_view nativeUtf8) override;

  // A path from the root of the drive, without "." and "..": "a\..\b.html" gives "c:\home\ala\b.html".
  std::string Absolute(std::string_view path);

 private:
  // The native path as it is spelt; nothing for what cannot exist.
  std::optional<std::string> Spelt(std::string_view path) const;
  // The native path of what exists, found without regard to case where need be; else nothing.
  std::optional<std::string> Existing(std::string_view path) const;
  // The same, or where only the last part is missing, the place where it would be made.
  std::optional<std::string> Place(std::string_view path) const;

  std::string currentDirectory_;  // native
};

}  // namespace morlan
