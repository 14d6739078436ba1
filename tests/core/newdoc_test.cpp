#include "core/newdoc.h"

#include <gtest/gtest.h>

#include "core/documents.h"
#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct NewDocuments : testing::Test {
  TestProgram test;
  Program& program = test.program;
  std::vector<std::string> metas;
  NewDocuments() {
    test.Write("program\\SZABLONY\\Pusty.hst", "<html>pusty");
    test.Write("program\\SZABLONY\\Kanal.HST", "<!DOCTYPE Channel>");
    test.Write("program\\SZABLONY\\Szablony.ini", "x");
    program.MainIni.SetSubItemValue("Document", "CharSet", "windows-1250");
    program.passes.setMeta = [this](std::string_view attribute, std::string_view name, std::string_view content) {
      metas.push_back(Concat({attribute, "|", name, "|", content}));
    };
  }
  void Ask(std::function<void(NewDoc&)> act) {
    test.windows.modals.push_back([act = std::move(act)](Form& form) { act(static_cast<NewDoc&>(form)); });
    program.commands.RunMenu("mn_files_new");
  }
};

TEST_F(NewDocuments, ListTheTemplatesInBothTabs) {
  Ask([](NewDoc& form) {
    EXPECT_EQ((std::vector<std::string>{"Kanal", "Pusty"}), form.DocList.Rows());
    EXPECT_EQ(form.DocList.Rows(), form.TempList.Rows());
    form.Command2.UserClicks();
  });
  EXPECT_EQ(0, program.DialogChoice);
  EXPECT_EQ(1u, program.documents.size());
}

TEST_F(NewDocuments, StartFromATemplateInTheCurrentDirectory) {
  Ask([](NewDoc& form) {
    form.DocList.UserSelects(1);
    form.Command1.UserClicks();
  });
  EXPECT_EQ(1, program.DialogChoice);
  EXPECT_EQ(test.Path("program\\SZABLONY\\\\Pusty.hst"), program.DialogResult);
  EXPECT_EQ(test.Path("work\\BezTytułu1.html"_pl), program.ActiveDocument->Caption());
  EXPECT_EQ("html", program.ActiveDocument->FileType.Caption());
  EXPECT_EQ((std::vector<std::string>{"HTTP-EQUIV|Content-Type|text/html;CHARSET=windows-1250",
                                      "HTTP-EQUIV|Generator|Morlan7 wersja 1.5 Final (C)1997/1998"}),
            metas);
}

TEST_F(NewDocuments, StartByADoubleClickToo) {
  Ask([](NewDoc& form) {
    form.DocList.UserSelects(1);
    form.DocList.UserDblClicks();
  });
  EXPECT_EQ(test.Path("work\\BezTytułu1.html"_pl), program.ActiveDocument->Caption());
}

TEST_F(NewDocuments, OfAChannelGetNoMetaTags) {
  Ask([](NewDoc& form) {
    form.DocList.UserSelects(0);
    form.Command1.UserClicks();
  });
  EXPECT_EQ(test.Path("work\\BezTytułu.cdf"_pl), program.ActiveDocument->Caption());
  EXPECT_EQ("cdf", program.ActiveDocument->FileType.Caption());
  EXPECT_TRUE(metas.empty());
  EXPECT_TRUE(test.frame().CDFObject.Visible());
}

TEST_F(NewDocuments, AreNotTheTemplateThatIsOpenForEditing) {
  OpenDocument(program, test.Path("program\\SZABLONY\\Pusty.hst"));
  Ask([](NewDoc& form) {
    form.DocList.UserSelects(1);
    form.Command1.UserClicks();
  });
  EXPECT_EQ(2u, program.documents.size());
  EXPECT_EQ(test.Path("work\\BezTytułu.html"_pl), program.ActiveDocument->Caption());
}

TEST_F(NewDocuments, LetTheTemplateItselfBeEdited) {
  Ask([](NewDoc& form) {
    form.TempList.UserSelects(1);
    form.Command6.UserClicks();
  });
  EXPECT_EQ(2, program.DialogChoice);
  EXPECT_EQ(test.Path("program\\SZABLONY\\Pusty.hst"), program.ActiveDocument->Caption());
  EXPECT_EQ("szablon", program.ActiveDocument->FileType.Caption());
  EXPECT_TRUE(metas.empty());
}

TEST_F(NewDocuments, WriteAStrayQuoteIntoTheCharsetOfANewTemplate) {
  test.Write("program\\SZABLONY\\Bez tytułu.hst"_pl, "<html>");
  Ask([](NewDoc& form) { form.Command3.UserClicks(); });
  EXPECT_EQ(3, program.DialogChoice);
  EXPECT_EQ(test.Path("program\\SZABLONY\\Bez tytułu.hst"_pl), program.ActiveDocument->Caption());
  ASSERT_EQ(2u, metas.size());
  EXPECT_EQ("HTTP-EQUIV|Content-Type|text/html;CHARSET=\"windows-1250", metas[0]);
}

TEST_F(NewDocuments, StopBehindTheMessageWhereTheNewTemplateIsMissing) {
  Ask([](NewDoc& form) { form.Command3.UserClicks(); });
  EXPECT_EQ(R"(message "Plik  nie istnieje !" "Morlan7" stop ok)", test.Asked().back());
  EXPECT_EQ(1u, program.documents.size());
  EXPECT_TRUE(metas.empty());
}

TEST_F(NewDocuments, DeleteATemplateAfterAQuestion) {
  Ask([this](NewDoc& form) {
    test.Asked();
    form.TempList.UserSelects(1);
    test.windows.answers.push_back(Answer::No);
    form.Command5.UserClicks();
    EXPECT_TRUE(test.Exists("program\\SZABLONY\\Pusty.hst"));
    test.windows.answers.push_back(Answer::Yes);
    form.Command5.UserClicks();
    EXPECT_EQ((Record{R"(message "Usunąć szablon Pusty ?" "Szablony" question yesno)",
                      R"(message "Usunąć szablon Pusty ?" "Szablony" question yesno)", R"(message "Szablon usunięty" "Morlan7" none ok)"}),
              test.Asked());
    EXPECT_EQ(std::vector<std::string>{"Kanal"}, form.TempList.Rows());
    EXPECT_EQ(form.TempList.Rows(), form.DocList.Rows());
    EXPECT_TRUE(form.IsVisible());
    form.Command4.UserClicks();
  });
  EXPECT_FALSE(test.Exists("program\\SZABLONY\\Pusty.hst"));
}

TEST_F(NewDocuments, EnableTheToolbarsEvenWhenCancelled) {
  CloseActiveDocument(program);
  Ask([](NewDoc& form) { form.UserCloses(); });
  EXPECT_TRUE(test.frame().toolbars[1]->Enabled());
}

}  // namespace
}  // namespace morlan
