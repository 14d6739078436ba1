#include "text/conventer.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>

#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

std::string Page(std::string_view charset, std::string_view body) {
  return Concat({"<HTML><HEAD><META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html;CHARSET=", charset, "\"></HEAD>", body, "</HTML>"});
}

// Files of this process cannot grow beyond a size: the disk is full for them.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit narrow{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &narrow);
  }
  ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }

 private:
  rlimit before_;
};

// Whom the rights of files stop, which they do not for the superuser. What lies in the folder belongs to him meanwhile.
class OrdinaryUser {
 public:
  explicit OrdinaryUser(const std::filesystem::path& folder) {
    if (!wasRoot_) return;
    constexpr uid_t kNobody = 65534;
    EXPECT_EQ(lchown(folder.c_str(), kNobody, kNobody), 0);
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
      EXPECT_EQ(lchown(entry.path().c_str(), kNobody, kNobody), 0);
    EXPECT_EQ(seteuid(kNobody), 0);
  }
  ~OrdinaryUser() {
    if (wasRoot_) {
      EXPECT_EQ(seteuid(0), 0);
    }
  }

 private:
  const bool wasRoot_ = geteuid() == 0;
};

struct ConventerForm : testing::Test {
  ConventerForm() {
    std::ifstream file(MORLAN7_TREE "/CharSets.Def", std::ios::binary);
    test.Write("program\\CharSets.Def", std::string(std::istreambuf_iterator<char>(file), {}));
  }
  void Show(const std::function<void(Conventer&)>& user) {
    test.windows.modals.push_back([&](Form& form) { user(dynamic_cast<Conventer&>(form)); });
    EXPECT_TRUE(test.program.forms.ShowByName("Conventer"));
  }
  // A whole run over a source, whose files are overwritten.
  void Convert(std::string_view source, std::string_view target) {
    Show([&](Conventer& form) {
      form.FileName.UserSets(source);
      EXPECT_TRUE(form.FormatList.UserSetsText(target)) << target;
      form.AskForName.UserSets(false);
      form.OverWrite.UserSets(true);
      form.Command2.UserClicks();
      Run(form);
      report = form.Report.Rows();
      progress = form.Progress.Caption();
    });
  }
  static void Tick(Conventer& form) {
    if (form.Step.Enabled()) form.Step.OnTimer();
  }
  static void Run(Conventer& form) {
    while (form.Step.Enabled()) form.Step.OnTimer();
  }
  std::string Noted(std::string_view path, std::string_view text) { return Concat({test.Path(path), ": ", text}); }

  TestProgram test;
  std::vector<std::string> report;
  std::string progress;
};

TEST_F(ConventerForm, OffersUtf8AndTheSetsOfTheFile) {
  Show([](Conventer& form) {
    EXPECT_EQ(form.FormatList.List(0), "UTF-8");
    EXPECT_EQ(form.FormatList.List(1), "Win1250");
    EXPECT_EQ(form.FormatList.SelectedRow(), "UTF-8");
  });
}

TEST_F(ConventerForm, ConvertsTheFilesOfAProjectOneATick) {
  test.Write("work\\a.html", Page("iso-8859-2", "\xB1"));
  test.Write("work\\b.html", Page("windows-1250", "\xB9"));
  test.Write("program\\PROJEKTY\\strony.pro",
             Concat({"[Files]\r\nFileCount=2\r\nBaseDir=", test.Path("work"), "\\\r\nFileName1=a.html\r\nFileName2=b.html\r\n"}));
  Show([&](Conventer& form) {
    form.FileName.UserSets("@strony");
    EXPECT_TRUE(form.ConvertType.Value()) << "the sign of a project ticks the box";
    form.AskForName.UserSets(false);
    form.OverWrite.UserSets(true);
    form.Command2.UserClicks();
    EXPECT_EQ(form.Progress.Caption(), "Plik 1 z 2: a.html");
    EXPECT_EQ(test.Read("work\\a.html"), Page("iso-8859-2", "\xB1"));
    Tick(form);
    EXPECT_EQ(test.Read("work\\a.html"), Page("UTF-8", "ą"));
    EXPECT_EQ(test.Read("work\\b.html"), Page("windows-1250", "\xB9"));
    EXPECT_EQ(form.Progress.Caption(), "Plik 2 z 2: b.html");
    Tick(form);
    EXPECT_EQ(test.Read("work\\b.html"), Page("UTF-8", "ą"));
    EXPECT_FALSE(form.Step.Enabled());
    EXPECT_EQ(form.Progress.Caption(), "Przekształcono plików: 2 z 2"_pl);
    EXPECT_EQ(form.Report.ListCount(), 0u);
  });
}

TEST_F(ConventerForm, AFolderGoesThereAndBackWithNoByteLost) {
  std::vector<std::string> pages;
  for (int number = 0; number < 20; ++number) {
    pages.push_back(Page("iso-8859-2",
                         Concat({"za\xBF\xF3\xB3\xE6 g\xEA\xB6l\xB1 ja\xBC\xF1 ", NumberText(std::int64_t{number}), "\r\n\xE4\xF6\xFC"})));
    test.Write(Concat({"work\\", NumberText(std::int64_t{number}), ".html"}), pages.back());
  }
  Convert(test.Path("work"), "UTF-8");
  EXPECT_EQ(progress, "Przekształcono plików: 20 z 20"_pl);
  EXPECT_TRUE(report.empty());
  EXPECT_NE(test.Read("work\\7.html").find("zażółć gęślą jaźń 7"), std::string::npos);
  Convert(test.Path("work"), "iso-8859-2");
  for (int number = 0; number < 20; ++number)
    EXPECT_EQ(test.Read(Concat({"work\\", NumberText(std::int64_t{number}), ".html"})), pages[static_cast<std::size_t>(number)]);
}

TEST_F(ConventerForm, OneUnreadableOneReadOnlyAndAFullDiskDoNotStopTheOthers) {
  const std::string big = Page("iso-8859-2", std::string(300'000, '\xB1')), small = Page("iso-8859-2", "\xB1");
  test.Write("work\\1.html", small);
  test.Write("work\\2.html\\inside", "");  // a directory of that name cannot be read as a file
  test.Write("work\\3.html", small);
  test.Write("work\\4.html", big);
  test.Write("work\\5.html", small);
  test.Write("program\\PROJEKTY\\p.pro", Concat({"[Files]\r\nFileCount=5\r\nBaseDir=", test.Path("work"),
                                                 "\r\nFileName1=1.html\r\nFileName2=2.html\r\nFileName3=3.html\r\nFileName4=4.html\r\n"
                                                 "FileName5=5.html\r\n"}));
  std::filesystem::permissions(test.files.ToNative(test.Path("work\\3.html")), std::filesystem::perms::owner_read);
  {
    const OrdinaryUser user(test.folder.path);
    const FullDisk full(200'000);
    Convert("@p", "UTF-8");
  }
  EXPECT_EQ(report, (std::vector<std::string>{Noted("work\\2.html", "nie można odczytać"_pl),
                                              Noted("work\\3.html", "nie można zapisać, plik pozostał bez zmian"_pl),
                                              Noted("work\\4.html", "nie można zapisać, plik pozostał bez zmian"_pl)}));
  EXPECT_EQ(progress, "Przekształcono plików: 2 z 5"_pl);
  EXPECT_EQ(test.Read("work\\1.html"), Page("UTF-8", "ą"));
  EXPECT_EQ(test.Read("work\\3.html"), small);
  EXPECT_EQ(test.Read("work\\4.html"), big) << "nothing is half written";
  EXPECT_EQ(test.Read("work\\5.html"), Page("UTF-8", "ą"));
  EXPECT_EQ(test.files.List(test.Path("work")).size(), 5u) << "and no half file is left beside it";
}

TEST_F(ConventerForm, StopsBetweenTwoFiles) {
  for (const char* name : {"work\\1.html", "work\\2.html", "work\\3.html"}) test.Write(name, Page("iso-8859-2", "\xB1"));
  Show([&](Conventer& form) {
    form.FileName.UserSets(test.Path("work"));
    form.AskForName.UserSets(false);
    form.OverWrite.UserSets(true);
    form.Command2.UserClicks();
    EXPECT_FALSE(form.Command2.Enabled());
    EXPECT_FALSE(form.FileName.Enabled());
    Tick(form);
    EXPECT_EQ(form.Command1.Caption(), "Prz&erwij");
    form.Command1.UserClicks();
    EXPECT_TRUE(form.IsVisible()) << "the report can be read";
    EXPECT_FALSE(form.Step.Enabled());
    EXPECT_EQ(form.Progress.Caption(), "Przekształcono plików: 1 z 3, przerwano"_pl);
    EXPECT_TRUE(form.Command2.Enabled());
    EXPECT_EQ(form.Command1.Caption(), "&Anuluj");
    form.Command1.UserClicks();
    EXPECT_FALSE(form.IsVisible());
  });
  EXPECT_EQ(test.Read("work\\1.html"), Page("UTF-8", "ą"));
  EXPECT_EQ(test.Read("work\\2.html"), Page("iso-8859-2", "\xB1"));
}

TEST_F(ConventerForm, ClosingTheWindowStopsTheWorkFirst) {
  test.Write("work\\1.html", "");
  Show([&](Conventer& form) {
    form.FileName.UserSets(test.Path("work"));
    form.Command2.UserClicks();
    form.UserCloses();
    EXPECT_TRUE(form.IsVisible());
    EXPECT_FALSE(form.Step.Enabled());
    form.UserCloses();
    EXPECT_FALSE(form.IsVisible());
  });
}

TEST_F(ConventerForm, AsksForANameForEachFile) {
  test.Write("work\\a.html", Page("iso-8859-2", "\xB1"));
  test.Write("work\\b.html", Page("iso-8859-2", "\xB1"));
  test.windows.files = {test.Path("work\\nowa"), std::nullopt};
  Show([&](Conventer& form) {
    form.FileName.UserSets(test.Path("work"));
    form.AskForName.UserSets(true);
    form.OverWrite.UserSets(false);
    form.Command2.UserClicks();
    Run(form);
    EXPECT_EQ(form.Report.Rows(), std::vector<std::string>{Noted("work\\b.html", "pominięty"_pl)});
  });
  EXPECT_EQ(test.Read("work\\nowa.html"), Page("UTF-8", "ą"));
  EXPECT_EQ(test.Read("work\\a.html"), Page("iso-8859-2", "\xB1"));
  const Record asked = test.Asked();
  EXPECT_EQ(asked.at(1),
            Concat({"filedialog save \"Podaj nową nazwę dla pliku a.html\" \"Plik HTML (*.html,*.htm,shtml)|*.html;*.htm,*.shtml|"
                    "Plik tekstowy (*.txt)|*.txt|\" ",
                    Quoted(test.Path("work"))}));
}

TEST_F(ConventerForm, StoppedBehindAQuestionItEnds) {
  test.Write("work\\a.html", "");
  test.Write("work\\b.html", "");
  Show([&](Conventer& form) {
    form.FileName.UserSets(test.Path("work"));
    form.AskForName.UserSets(true);
    form.Command2.UserClicks();
    test.windows.files = {std::nullopt};
    Tick(form);
    form.Command1.UserClicks();
    EXPECT_FALSE(form.Step.Enabled());
  });
}

TEST_F(ConventerForm, TellsOfPagesWithCharactersOutsideTheirSet) {
  test.Write("work\\a.html", Page("utf-8", "\xC3\xB9"));
  test.Write("work\\b.html", "<html>ó");
  Convert(test.Path("work"), "iso-8859-2");
  EXPECT_EQ(report, (std::vector<std::string>{Noted("work\\a.html", "zawiera znaki spoza zestawu, zapis mógł je zmienić"_pl),
                                              Noted("work\\b.html", "pominięty: nie podaje zestawu znaków, a jest zapisany w UTF-8"_pl)}));
  EXPECT_EQ(test.Read("work\\b.html"), "<html>ó");
}

TEST_F(ConventerForm, RefusesAnIncompleteOrder) {
  Show([&](Conventer& form) {
    form.AskForName.UserSets(true);
    form.FileName.UserSets(" ");
    form.Command2.UserClicks();
    EXPECT_EQ(test.Asked().back(), "message \"Nie wskazane pliki źródłowe. Proszę wskazać.\" \"Morlan7\" stop ok");
    form.FileName.UserSets("@brak");
    form.Command2.UserClicks();
    EXPECT_EQ(test.Asked().back(), "message \"Nie ma plików do przekształcenia !\" \"Morlan7\" stop ok");
    form.FileName.UserSets("c:\\a.html");
    form.AskForName.UserSets(false);
    form.OverWrite.UserSets(false);
    form.Command2.UserClicks();
    EXPECT_EQ(test.Asked().back(), "message \"Proszę zaznaczyć pytanie o nazwę albo nadpisywanie plików źródłowych.\" \"Morlan7\" stop ok");
    form.OverWrite.UserSets(true);
    form.FormatList.SetListIndex(-1);
    form.Command2.UserClicks();
    EXPECT_EQ(test.Asked().back(), "message \"Nie wskazany format plików wyjściowych. Proszę wskazać.\" \"Morlan7\" stop ok");
    EXPECT_FALSE(form.Step.Enabled());
  });
}

TEST_F(ConventerForm, TheSourceIsChosenInDialogs) {
  Show([&](Conventer& form) {
    test.windows.files = {test.Path("work\\a.html")};
    form.FileButton.UserClicks();
    EXPECT_EQ(form.FileName.Text(), test.Path("work\\a.html"));
    form.ConvertType.UserSets(true);
    EXPECT_EQ(form.FileName.Text(), "@" + test.Path("work\\a.html"));
    test.windows.files = {test.Path("program\\PROJEKTY\\moje strony.pro")};
    form.FileButton.UserClicks();
    EXPECT_EQ(form.FileName.Text(), "@moje strony");
    form.ConvertType.UserSets(false);
    EXPECT_EQ(form.FileName.Text(), "moje strony");
    test.windows.directories = {test.Path("work")};
    form.DirectoryButton.UserClicks();
    EXPECT_EQ(form.FileName.Text(), test.Path("work"));
    EXPECT_FALSE(form.ConvertType.Value());
  });
}

}  // namespace
}  // namespace morlan
