#include "platform/qt/webaddress.h"

#include "platform/lettercase.h"
#include "platform/qt/qttext.h"

namespace morlan {
namespace {

constexpr std::string_view kFileScheme = "file://";

bool StartsWithDrive(std::string_view text) { return text.size() >= 3 && text[1] == ':' && (text[2] == '\\' || text[2] == '/'); }

bool IsPath(std::string_view text) { return StartsWithDrive(text) || text.starts_with('/') || (text.find('\\') != std::string_view::npos); }

bool Exists(Files& files, std::string_view path) { return files.Size(path) || files.DirectoryExists(path); }

// A "#" or "?" may belong to the name; it parts a place on the page from it only where no file is called that.
QUrl UrlOfPath(std::string_view path, Files& files) {
  const std::size_t mark = Exists(files, path) ? std::string_view::npos : path.find_last_of("#?");
  QUrl url = QUrl::fromLocalFile(QString::fromStdString(files.ToNative(path.substr(0, mark))));
  if (mark == std::string_view::npos) return url;
  if (path[mark] == '#')
    url.setFragment(ToQt(path.substr(mark + 1)));
  else
    url.setQuery(ToQt(path.substr(mark + 1)));
  return url;
}

}  // namespace

QUrl UrlOfAddress(std::string_view address, Files& files) {
  const bool hasScheme = EqualNoCase(address.substr(0, kFileScheme.size()), kFileScheme);
  const std::string_view rest = hasScheme ? address.substr(kFileScheme.size()) : address;
  if (rest.empty()) return {};
  // "file:///home/ala/a%20b.html" is an address as the engine has it.
  if (hasScheme && rest.starts_with('/') && !Exists(files, rest)) return QUrl(ToQt(address));
  if (IsPath(rest)) return UrlOfPath(StartsWithDrive(rest) ? std::string(rest) : files.FromNative(ToQt(rest).toStdString()), files);
  return QUrl::fromUserInput(ToQt(rest));
}

std::string AddressOfUrl(const QUrl& url, Files& files) {
  if (!url.isLocalFile()) return FromQt(url.toDisplayString());
  std::string address = std::string(kFileScheme) + files.FromNative(url.toLocalFile().toStdString());
  if (url.hasQuery()) address += "?" + FromQt(url.query());
  if (url.hasFragment()) address += "#" + FromQt(url.fragment());
  return address;
}

}  // namespace morlan
