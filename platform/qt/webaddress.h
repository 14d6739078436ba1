// Addresses of pages between the program, where a file is "file://c:\home\ala\a.html", and the browser engine.
#pragma once

#include <QUrl>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace morlan {

// What people type is understood too: a path of either form, "www.example.com". A file may have a "#place" behind it.
// Empty for an empty text.
QUrl UrlOfAddress(std::string_view address, Files& files);

// A local file gives the program's form, all else the readable form of the address.
std::string AddressOfUrl(const QUrl& url, Files& files);

}  // namespace morlan
