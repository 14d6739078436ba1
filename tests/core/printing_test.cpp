#include "core/printing.h"

#include <gtest/gtest.h>

#include "core/documents.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

TEST(Printing, PrintsTheHeaderLinesAndTheTextAsOneItem) {
  TestProgram test;
  test.OpenText("raz\r\ndwa", "a.html");
  test.windows.answers.push_back(Answer::Yes);
  test.program.commands.RunMenu("xmn_print");
  const std::string path = test.Path("work\\a.html");
  EXPECT_EQ((Record{"message " + Quoted("Drukowa\xE6 plik " + path + " ?") + " \"Drukuj\" question yesno",
                    R"(print "[Ten wydruk został zrobiony przez program Morlan7 1.5 Final (C)1997/1998]")",
                    R"(print "Data wydruku :98-03-07")", "print " + Quoted("FileName:" + path), R"(print "raz\r\ndwa")", "print end"}),
            test.Asked());
}

TEST(Printing, LeavesOutEmptyHeaderLines) {
  TestProgram test;
  test.OpenText("x", "a.html");
  test.program.PrintHeader[0].clear();
  test.program.PrintHeader[1].clear();
  test.windows.answers.push_back(Answer::Yes);
  PrintDocument(test.program);
  EXPECT_EQ(4u, test.Asked().size());
}

TEST(Printing, PrintsNothingOnNo) {
  TestProgram test;
  test.OpenText("x", "a.html");
  test.windows.answers.push_back(Answer::No);
  PrintDocument(test.program);
  EXPECT_EQ(1u, test.Asked().size());
}

TEST(Printing, AsksNothingWithoutADocument) {
  TestProgram test;
  CloseActiveDocument(test.program);
  PrintDocument(test.program);
  EXPECT_EQ(Record{}, test.Asked());
}

}  // namespace
}  // namespace morlan
