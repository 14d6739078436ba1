#include "text/pagetext.h"

#include <gtest/gtest.h>

#include <string>

namespace morlan {
namespace {

// The stretches, parted by "|".
std::string Read(std::string_view page) {
  PageText text(page);
  std::string all;
  for (Stretch stretch; text.Next(stretch);) {
    EXPECT_LE(stretch.End(), page.size());
    all += std::string(page.substr(stretch.start, stretch.length)) + "|";
  }
  return all;
}

TEST(PageText, ReadsWhatStandsBetweenTags) {
  EXPECT_EQ(Read("<HTML><BODY>Ala <B>ma</B> kota</BODY></HTML>"), "Ala |ma| kota|");
  EXPECT_EQ(Read("sam tekst"), "sam tekst|");
  EXPECT_EQ(Read(""), "");
}

TEST(PageText, SkipsCommentsDeclarationsAndServerCode) {
  EXPECT_EQ(Read("a<!-- b > c -->d<!DOCTYPE x>e<% if a > b %>f<?php x > 1 ?>g<?xml:namespace prefix = o />h"), "a|d|e|f|g|h|");
}

TEST(PageText, SkipsScriptsAndStyleSheets) {
  EXPECT_EQ(Read("a<SCRIPT language=x>var b = '<b>c';</script>d<style>p { e: f }</STYLE>g<CFSCRIPT>h</CFSCRIPT>i"), "a|d|g|i|");
  EXPECT_EQ(Read("<script src=x></script>a"), "a|");
}

TEST(PageText, ReadsTheValuesOfAltAndTitle) {
  EXPECT_EQ(Read("<IMG SRC=\"a.gif\" ALT=\"Nasz dom\" WIDTH=10>b"), "Nasz dom|b|");
  EXPECT_EQ(Read("<a href=x title='o nas > wy'>b</a>"), "o nas > wy|b|");
  EXPECT_EQ(Read("<img Alt = dom>b<img alt=\"\">c<img alt>d<img data-alt='x' alts=y>"), "dom|b|c|d|");
}

TEST(PageText, ALessSignThatOpensNoTagIsText) { EXPECT_EQ(Read("a < b i 1<2 </ 3 <"), "a < b i 1<2 </ 3 <|"); }

TEST(PageText, WhatIsNeverClosedReachesToTheEnd) {
  EXPECT_EQ(Read("a<!-- b"), "a|");
  EXPECT_EQ(Read("a<script>b"), "a|");
  EXPECT_EQ(Read("a<b c"), "a|");
  EXPECT_EQ(Read("a<img alt="), "a|");
  EXPECT_EQ(Read("a<%b"), "a|");
}

TEST(PageText, AValueWithoutItsClosingQuoteEndsAtABlankOrTheTagsEnd) {
  EXPECT_EQ(Read("<img alt=\"dom>a b"), "\"dom|a b|");
  EXPECT_EQ(Read("<img src='x alt=dom>a"), "dom|a|");
}

TEST(PageText, ReadsLongBrokenPagesInOneGo) {
  std::string page;
  for (int i = 0; i < 200'000; ++i) page += "<a '\"<b =<!x";
  EXPECT_LE(Read(page).size(), page.size() * 2);
}

TEST(IsTagWithinWords, TellsTagsThatPartNoWords) {
  for (const char* tag : {"<B>", "</b>", "<font size=2>", "<sup>", "</STRONG>", "<a href=x>"}) EXPECT_TRUE(IsTagWithinWords(tag, 0)) << tag;
  for (const char* tag : {"<BR>", "</p>", "<td>", "<!-- -->", "b", "<", "</", "<bb>", "<strongest>"})
    EXPECT_FALSE(IsTagWithinWords(tag, 0)) << tag;
}

}  // namespace
}  // namespace morlan
