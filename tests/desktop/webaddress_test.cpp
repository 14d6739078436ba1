// Addresses between the program and the browser engine.
#include "platform/qt/webaddress.h"

#include <gtest/gtest.h>

#include <fstream>

#include "platform/encoding.h"
#include "tests/desktop/support/desktopfixture.h"

namespace morlan {
namespace {

class WebAddress : public testing::Test {
 protected:
  void Put(std::string_view relative) { std::ofstream(folder_.path / relative).put('x'); }
  std::string Path(std::string_view relative) { return files_.FromNative((folder_.path / relative).string()); }
  std::string Native(std::string_view relative) const { return (folder_.path / relative).string(); }
  QString Url(std::string_view address) { return UrlOfAddress(address, files_).toString(QUrl::FullyDecoded); }
  QString FileUrl(std::string_view relative) const { return QStringLiteral("file://") + QString::fromStdString(Native(relative)); }
  ThrowAwayFolder folder_;
  PosixFiles files_;
};

TEST_F(WebAddress, AFileOfTheProgramsFormIsTheMachinesFile) {
  Put("żółw i kot.html");
  EXPECT_EQ(Url("file://" + Path("żółw i kot.html")), FileUrl("żółw i kot.html"));
  EXPECT_EQ(Url(Path("żółw i kot.html")), FileUrl("żółw i kot.html"));
  EXPECT_EQ(Url("FILE://" + Path("ŻÓŁW I KOT.HTML")), FileUrl("żółw i kot.html"));
}

TEST_F(WebAddress, APathOfTheMachineIsUnderstood) {
  Put("a b.html");
  EXPECT_EQ(Url(Native("a b.html")), FileUrl("a b.html"));
  EXPECT_EQ(Url("file://" + Native("a b.html")), FileUrl("a b.html"));
  EXPECT_EQ(Url("file://" + Native("a%20b.html")), FileUrl("a b.html"));
}

TEST_F(WebAddress, AMarkPartsAPlaceOnThePageUnlessItBelongsToTheName) {
  Put("a.html");
  Put("a#b.html");
  EXPECT_EQ(UrlOfAddress("file://" + Path("a.html") + "#plan", files_).fragment(), QStringLiteral("plan"));
  EXPECT_EQ(UrlOfAddress("file://" + Path("a.html") + "?x=1", files_).query(), QStringLiteral("x=1"));
  EXPECT_EQ(UrlOfAddress("file://" + Path("a#b.html"), files_).toLocalFile(), QString::fromStdString(Native("a#b.html")));
}

TEST_F(WebAddress, WhatPeopleTypeIsAnAddressOfTheNet) {
  EXPECT_EQ(Url("www.example.com"), QStringLiteral("http://www.example.com"));
  EXPECT_EQ(Url("http://example.com/a?b=c"), QStringLiteral("http://example.com/a?b=c"));
  EXPECT_EQ(Url("file://http://example.com/"), QStringLiteral("http://example.com/")) << "a fixed page may be one of the net";
  EXPECT_TRUE(UrlOfAddress("", files_).isEmpty());
  EXPECT_TRUE(UrlOfAddress("file://", files_).isEmpty());
}

TEST_F(WebAddress, ComesBackInTheProgramsForm) {
  Put("ż.html");
  EXPECT_EQ(AddressOfUrl(QUrl::fromLocalFile(QString::fromStdString(Native("ż.html"))), files_), "file://" + Path("ż.html"));
  const std::string place = "file://" + Path("ż.html") + "#plan";
  EXPECT_EQ(AddressOfUrl(UrlOfAddress(place, files_), files_), place);
  EXPECT_EQ(AddressOfUrl(QUrl(QStringLiteral("http://example.com/%C5%BC")), files_), "http://example.com/ż"_pl);
}

}  // namespace
}  // namespace morlan
