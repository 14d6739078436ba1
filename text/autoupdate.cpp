#include "text/autoupdate.h"

#include <algorithm>

#include "core/paths.h"
#include "core/sizetext.h"
#include "core/status.h"
#include "core/text.h"
#include "platform/files.h"
#include "tags/tagscan.h"
#include "text/dateformat.h"

namespace morlan {
namespace {

constexpr std::string_view kStart = "<!--morlan7autoupdate";
constexpr std::string_view kEnd = "<!--/morlan7autoupdate-->";
constexpr std::string_view kCommentEnd = "-->";

// A date's pattern in quotes may hold blanks; without them it ends at the first one.
std::string DatePattern(std::string_view comment) {
  constexpr std::string_view kFormat = "format=\"";
  return FindNoCase(comment, kFormat) ? GetTagTextParam(comment, "format") : GetTagParam(comment, "format");
}

// A path that begins at a drive or at the root is whole already.
bool IsWhole(std::string_view path) { return path.starts_with('\\') || (path.size() > 1 && path[1] == ':'); }

std::string WholePath(const StampSource& source, std::string_view fileName) {
  std::string path(fileName);
  std::replace(path.begin(), path.end(), '/', '\\');
  if (IsWhole(path)) return path;
  return WithBackslash(source.directory.empty() ? source.files.CurrentDirectory() : source.directory) + path;
}

std::string StampText(std::string_view comment, const StampSource& source) {
  const std::string type = LowerCase(GetTagParam(comment, "type"));
  if (type == "date") return FormatDateTime(source.now, DatePattern(comment));
  if (type == "time") return FormatDateTime(source.now, GetTagParam(comment, "format"));
  if (type == "fileinfo")
    return FileInfoText(source, GetTagTextParam(comment, "filename"), TextToBool(GetTagParam(comment, "filesize")),
                        GetTagTextParam(comment, "moddate"));
  return "";
}

}  // namespace

std::string UpdateBlocks(std::string text, const StampSource& source) {
  std::string updated;
  std::size_t copied = 0;  // offset up to which the text has been taken over
  for (std::size_t start = FindNoCase(text, kStart); start; start = FindNoCase(text, kStart, copied + 1)) {
    const std::size_t commentEnd = Find(text, kCommentEnd, start);
    const std::size_t end = commentEnd ? FindNoCase(text, kEnd, commentEnd) : 0;
    if (!end) break;
    const std::string_view comment = std::string_view(text).substr(start - 1, commentEnd - start);
    updated.append(text, copied, commentEnd - 1 + kCommentEnd.size() - copied);
    updated += Concat({CrLf, StampText(comment, source), CrLf, std::string_view(text).substr(end - 1, kEnd.size())});
    copied = end - 1 + kEnd.size();
  }
  if (copied == 0) return text;
  return updated.append(text, copied);
}

std::string FileInfoText(const StampSource& source, std::string_view fileName, bool withSize, std::string_view datePattern) {
  const std::string path = WholePath(source, fileName);
  const auto size = fileName.empty() ? std::nullopt : source.files.Size(path);
  if (!size) return "";
  std::string text = FileNameOf(path);
  if (withSize) text += " " + SizeText(*size);
  if (const auto changed = source.files.Modified(path); changed && !datePattern.empty())
    text += " " + FormatDateTime(*changed, datePattern);
  return text;
}

std::string Stamp(std::string_view attributes, std::string_view text) {
  return Concat({UpperCase(kStart), attributes, " ", kCommentEnd, text, UpperCase(kEnd)});
}

}  // namespace morlan
