#include "platform/posix/files.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <memory>
#include <tuple>

#include "platform/encoding.h"
#include "platform/lettercase.h"
#include "platform/posix/clock.h"
#include "platform/posix/filenames.h"
#include "platform/posix/nativeio.h"

namespace morlan {
namespace {

constexpr std::string_view kProgramSeparators = "\\/";

bool HasDrive(std::string_view path) {
  return path.size() >= 2 && path[1] == ':' && LowerCharacter(path[0]) >= 'a' && LowerCharacter(path[0]) <= 'z';
}
bool IsSeparator(char character) { return kProgramSeparators.find(character) != std::string_view::npos; }

// The parts between separators, empty ones left out.
std::vector<std::string_view> PartsOf(std::string_view path, std::string_view separators) {
  std::vector<std::string_view> parts;
  for (std::size_t i = path.find_first_not_of(separators); i < path.size(); i = path.find_first_not_of(separators, i)) {
    const std::size_t end = std::min(path.find_first_of(separators, i), path.size());
    parts.push_back(path.substr(i, end - i));
    i = end;
  }
  return parts;
}

// Goes one part down from a native path, or up for "..".
void Descend(std::string& nativePath, std::string_view part) {
  if (part == ".") return;
  if (part == "..") {
    nativePath.resize(nativePath.rfind('/') == std::string::npos ? 0 : nativePath.rfind('/'));
    return;
  }
  nativePath += '/';
  nativePath += NameToNative(part);
}

std::vector<std::string> NamesIn(const std::string& nativeDirectory) {
  std::vector<std::string> names;
  const std::unique_ptr<DIR, int (*)(DIR*)> directory(::opendir(nativeDirectory.c_str()), ::closedir);
  if (!directory) return names;
  while (const dirent* entry = ::readdir(directory.get())) {
    const std::string_view name = entry->d_name;
    if (name != "." && name != "..") names.emplace_back(name);
  }
  return names;
}

bool Exists(const std::string& nativePath) {
  struct stat status;
  return ::lstat(nativePath.c_str(), &status) == 0;
}

// The entry of a directory that equals a name but for case, the first in the order of bytes; empty when there is none.
std::string NameWithoutCase(const std::string& nativeDirectory, const std::string& nativeName) {
  const std::string wanted = LowerCase(NameFromNative(nativeName));
  std::string found;
  for (std::string& name : NamesIn(nativeDirectory))
    if ((found.empty() || name < found) && LowerCase(NameFromNative(name)) == wanted) found = std::move(name);
  return found;
}

struct Walk {
  std::string path;         // as far as it exists in the spelling of what exists, then as it was asked for
  std::size_t missing = 0;  // parts that do not exist
};

// Follows a native path part by part.
Walk WalkWithoutCase(const std::string& nativePath) {
  Walk walk;
  for (const std::string_view part : PartsOf(nativePath, "/")) {
    const std::string name(part);
    const std::string exact = walk.path + "/" + name;
    if (walk.missing == 0 && !Exists(exact)) {
      const std::string other = NameWithoutCase(walk.path.empty() ? "/" : walk.path, name);
      walk.path += "/" + (other.empty() ? name : other);
      walk.missing = other.empty() ? 1 : 0;
      continue;
    }
    walk.path = exact;
    if (walk.missing > 0) ++walk.missing;
  }
  if (walk.path.empty()) walk.path = "/";
  return walk;
}

}  // namespace

PosixFiles::PosixFiles() : currentDirectory_("/") {
  std::string directory(PATH_MAX, '\0');
  if (::getcwd(directory.data(), directory.size())) currentDirectory_ = directory.c_str();
}

std::optional<std::string> PosixFiles::Spelt(std::string_view path) const {
  if (path.empty() || path.find('\0') != std::string_view::npos) return std::nullopt;
  if (HasDrive(path)) {
    if (LowerCharacter(path[0]) != kDrive[0]) return std::nullopt;
    path.remove_prefix(kDrive.size());
  }
  const bool fromRoot = !path.empty() && IsSeparator(path[0]);
  std::string nativePath = fromRoot || currentDirectory_ == "/" ? "" : currentDirectory_;
  for (const std::string_view part : PartsOf(path, kProgramSeparators)) Descend(nativePath, part);
  if (nativePath.empty()) return "/";
  if (nativePath.size() >= PATH_MAX) return std::nullopt;
  // The trailing slash makes the machine refuse a file where a directory is meant.
  if (!path.empty() && IsSeparator(path.back())) nativePath += '/';
  return nativePath;
}

std::optional<std::string> PosixFiles::Existing(std::string_view path) const {
  std::optional<std::string> spelt = Spelt(path);
  if (!spelt || Exists(*spelt)) return spelt;
  const Walk walk = WalkWithoutCase(*spelt);
  if (walk.missing > 0) return std::nullopt;
  return spelt->ends_with('/') ? walk.path + "/" : walk.path;
}

std::optional<std::string> PosixFiles::Place(std::string_view path) const {
  std::optional<std::string> spelt = Spelt(path);
  if (!spelt || Exists(*spelt)) return spelt;
  const Walk walk = WalkWithoutCase(*spelt);
  if (walk.missing > 1) return std::nullopt;
  return spelt->ends_with('/') ? walk.path + "/" : walk.path;
}

std::optional<std::string> PosixFiles::Read(std::string_view path) {
  const std::optional<std::string> spelt = Spelt(path);
  if (!spelt) return std::nullopt;
  std::optional<std::string> bytes = native::Read(*spelt);
  if (bytes || (errno != ENOENT && errno != ENOTDIR)) return bytes;
  const std::optional<std::string> existing = Existing(path);
  return existing ? native::Read(*existing) : std::nullopt;
}

std::unique_ptr<MappedFile> PosixFiles::Map(std::string_view path) {
  const auto existing = Existing(path);
  return existing ? native::Map(*existing) : nullptr;
}

bool PosixFiles::Write(std::string_view path, std::string_view bytes) {
  const std::optional<std::string> place = Place(path);
  return place && !place->ends_with('/') && native::Replace(*place, bytes);
}

bool PosixFiles::WriteInPlace(std::string_view path, std::string_view bytes) {
  const std::optional<std::string> place = Place(path);
  return place && native::WriteInPlace(*place, bytes);
}

bool PosixFiles::Append(std::string_view path, std::string_view bytes, bool create) {
  const std::optional<std::string> place = Place(path);
  return place && native::Append(*place, bytes, create);
}

bool PosixFiles::Delete(std::string_view path) {
  const std::optional<std::string> existing = Existing(path);
  return existing && ::unlink(existing->c_str()) == 0;
}

bool PosixFiles::Rename(std::string_view from, std::string_view to) {
  const std::optional<std::string> source = Existing(from);
  const std::optional<std::string> spelt = Spelt(to);
  const std::optional<std::string> place = Place(to);
  if (!source || !place) return false;
  // Only the case of the name changes: what exists under the new name is the file itself.
  if (*place == *source && *spelt != *source)
    return native::RenameToNew(*source, native::DirectoryOf(*source) + spelt->substr(spelt->rfind('/')));
  return native::RenameToNew(*source, *place);
}

bool PosixFiles::Copy(std::string_view from, std::string_view to) {
  const std::optional<std::string> bytes = Read(from);
  return bytes && Write(to, *bytes);
}

std::optional<std::uint64_t> PosixFiles::Size(std::string_view path) {
  const std::optional<std::string> existing = Existing(path);
  const auto status = existing ? native::Status(*existing) : std::nullopt;
  if (!status || !S_ISREG(status->st_mode)) return std::nullopt;
  return static_cast<std::uint64_t>(status->st_size);
}

std::optional<DateTime> PosixFiles::Modified(std::string_view path) {
  const std::optional<std::string> existing = Existing(path);
  const auto status = existing ? native::Status(*existing) : std::nullopt;
  if (!status || !S_ISREG(status->st_mode)) return std::nullopt;
  return LocalTime(status->st_mtime);
}

bool PosixFiles::DirectoryExists(std::string_view path) {
  const std::optional<std::string> existing = Existing(path);
  return existing && native::IsDirectory(*existing);
}

bool PosixFiles::CreateDirectory(std::string_view path) {
  const std::optional<std::string> place = Place(path);
  return place && ::mkdir(place->c_str(), 0777) == 0;
}

std::vector<DirectoryEntry> PosixFiles::List(std::string_view directory) {
  struct Row {
    std::string key;
    DirectoryEntry entry;
  };
  std::vector<Row> rows;
  const std::optional<std::string> existing = Existing(directory);
  if (!existing) return {};
  for (const std::string& nativeName : NamesIn(*existing)) {
    const auto status = native::Status(*existing + "/" + nativeName);
    std::string name = NameFromNative(nativeName);
    std::string key = LowerCase(name);
    const bool isDirectory = status && S_ISDIR(status->st_mode);
    const bool hasSize = status && S_ISREG(status->st_mode);
    rows.push_back({std::move(key), {std::move(name), isDirectory, hasSize ? static_cast<std::uint64_t>(status->st_size) : 0}});
  }
  std::sort(rows.begin(), rows.end(),
            [](const Row& a, const Row& b) { return std::tie(a.key, a.entry.name) < std::tie(b.key, b.entry.name); });
  std::vector<DirectoryEntry> entries;
  entries.reserve(rows.size());
  for (Row& row : rows) entries.push_back(std::move(row.entry));
  return entries;
}

std::string PosixFiles::CurrentDirectory() { return PathFromNative(currentDirectory_); }

bool PosixFiles::ChangeDirectory(std::string_view path) {
  std::optional<std::string> existing = Existing(path);
  if (!existing || !native::IsDirectory(*existing)) return false;
  while (existing->size() > 1 && existing->ends_with('/')) existing->pop_back();
  currentDirectory_ = std::move(*existing);
  return true;
}

std::string PosixFiles::ToNative(std::string_view path) {
  const std::optional<std::string> spelt = Spelt(path);
  if (!spelt) return ToUtf8(path);
  return Exists(*spelt) ? *spelt : WalkWithoutCase(*spelt).path;
}

std::string PosixFiles::FromNative(std::string_view nativeUtf8) {
  if (nativeUtf8.starts_with('/')) return PathFromNative(nativeUtf8);
  if (HasDrive(nativeUtf8) || nativeUtf8.find('\\') != std::string_view::npos) return ProgramFormFromUtf8(nativeUtf8);
  std::string path;
  for (const char character : NameFromNative(nativeUtf8)) path += character == '/' ? '\\' : character;
  return path;
}

std::string PosixFiles::Absolute(std::string_view path) {
  const std::optional<std::string> spelt = Spelt(path);
  return spelt ? PathFromNative(*spelt) : std::string(path);
}

}  // namespace morlan
