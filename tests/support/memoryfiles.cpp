#include "tests/support/memoryfiles.h"

#include <algorithm>

#include "platform/encoding.h"
#include "platform/lettercase.h"

namespace morlan {
namespace {

struct MappedBytes : MappedFile {
  explicit MappedBytes(std::string content) : bytes(std::move(content)) {}
  std::string_view Bytes() const override { return bytes; }
  const std::string bytes;
};

constexpr std::string_view kRoot = "c:\\";

std::string_view ParentOf(std::string_view absolute) {
  const std::size_t backslash = absolute.rfind('\\');
  return absolute.substr(0, std::max(backslash, kRoot.size()));
}

}  // namespace

std::string MemoryFiles::Absolute(std::string_view path) const {
  if (path.size() >= 2 && path[1] == ':') path.remove_prefix(2);
  std::string absolute = path.starts_with('\\') ? "c:" : currentDirectory_;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find('\\'), path.size());
    if (end > 0) {
      if (!absolute.ends_with('\\')) absolute += '\\';
      absolute += path.substr(0, end);
    }
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return absolute.size() < kRoot.size() ? std::string(kRoot) : absolute;
}

MemoryFiles::Node* MemoryFiles::Find(std::string_view path) {
  if (path.empty() || path.find('\0') != path.npos) return nullptr;
  const auto node = nodes_.find(LowerCase(Absolute(path)));
  return node == nodes_.end() ? nullptr : &node->second;
}

MemoryFiles::Node* MemoryFiles::Make(std::string_view path) {
  if (failWrites || path.empty() || path.ends_with('\\') || path.find('\0') != path.npos) return nullptr;
  const std::string absolute = Absolute(path);
  if (!DirectoryExists(ParentOf(absolute)) || DirectoryExists(absolute)) return nullptr;
  Node& node = nodes_[LowerCase(absolute)];
  if (node.path.empty()) node.path = absolute;
  ++writeCount;
  return &node;
}

std::optional<std::string> MemoryFiles::Read(std::string_view path) {
  const Node* node = Find(path);
  return node && !node->isDirectory ? std::optional(node->bytes) : std::nullopt;
}

std::unique_ptr<MappedFile> MemoryFiles::Map(std::string_view path) {
  auto bytes = Read(path);
  return bytes ? std::make_unique<MappedBytes>(std::move(*bytes)) : nullptr;
}

bool MemoryFiles::Write(std::string_view path, std::string_view bytes) {
  Node* node = Make(path);
  if (node) node->bytes = bytes;
  return node != nullptr;
}

bool MemoryFiles::WriteInPlace(std::string_view path, std::string_view bytes) {
  Node* node = Make(path);
  if (node) node->bytes.replace(0, std::min(bytes.size(), node->bytes.size()), bytes);
  return node != nullptr;
}

bool MemoryFiles::Append(std::string_view path, std::string_view bytes, bool create) {
  Node* node = create || Find(path) ? Make(path) : nullptr;
  if (node) node->bytes += bytes;
  return node != nullptr;
}

bool MemoryFiles::Delete(std::string_view path) {
  const Node* node = Find(path);
  return !failWrites && node && !node->isDirectory && nodes_.erase(LowerCase(Absolute(path))) > 0;
}

bool MemoryFiles::Rename(std::string_view from, std::string_view to) {
  const std::optional<std::string> bytes = Read(from);
  return bytes && !Find(to) && Write(to, *bytes) && Delete(from);
}

bool MemoryFiles::Copy(std::string_view from, std::string_view to) {
  const std::optional<std::string> bytes = Read(from);
  return bytes && Write(to, *bytes);
}

std::optional<std::uint64_t> MemoryFiles::Size(std::string_view path) {
  const Node* node = Find(path);
  return node && !node->isDirectory ? std::optional<std::uint64_t>(node->bytes.size()) : std::nullopt;
}

std::optional<DateTime> MemoryFiles::Modified(std::string_view path) { return Size(path) ? std::optional(modified) : std::nullopt; }

bool MemoryFiles::DirectoryExists(std::string_view path) {
  if (Absolute(path) == kRoot) return !path.empty();
  const Node* node = Find(path);
  return node && node->isDirectory;
}

bool MemoryFiles::CreateDirectory(std::string_view path) {
  const std::string absolute = Absolute(path);
  if (failWrites || path.empty() || Find(absolute) || !DirectoryExists(ParentOf(absolute))) return false;
  return nodes_.try_emplace(LowerCase(absolute), Node{absolute, "", true}).second;
}

std::vector<DirectoryEntry> MemoryFiles::List(std::string_view directory) {
  std::vector<DirectoryEntry> entries;
  const std::string wanted = LowerCase(Absolute(directory));
  for (const auto& [key, node] : nodes_)
    if (ParentOf(key) == wanted) entries.push_back({node.path.substr(node.path.rfind('\\') + 1), node.isDirectory, node.bytes.size()});
  return entries;
}

bool MemoryFiles::ChangeDirectory(std::string_view path) {
  if (!DirectoryExists(path)) return false;
  currentDirectory_ = Absolute(path);
  return true;
}

std::string MemoryFiles::ToNative(std::string_view path) { return ToUtf8(path); }
std::string MemoryFiles::FromNative(std::string_view nativeUtf8) { return FromUtf8(nativeUtf8); }

}  // namespace morlan
