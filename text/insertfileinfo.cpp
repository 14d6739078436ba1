#include "text/insertfileinfo.h"

#include "core/document.h"
#include "core/filetag.h"
#include "core/paths.h"
#include "core/text.h"
#include "tags/insertcommands.h"

namespace morlan {
namespace {

constexpr std::string_view kDatePatterns[] = {"DD/MM/YY HH:MM:SS",     "DD/MM/YY",    "DD/MMMM/YY HH:MM:SS", "DD/MMMM/YY",
                                              "DD/MMMM/YYYY HH:MM:SS", "DD/MMMM/YYYY"};

}  // namespace

InsertFileInfo::InsertFileInfo(Program& program) : Form("InsertFileInfo", "Informacje o pliku"), program_(program) {
  for (const std::string_view pattern : kDatePatterns) DateFormat.AddItem(pattern);
  DateFormat.SetText(kDatePatterns[0]);
  FileName.SetToolTip("Plik, którego dotyczy informacja, liczony od katalogu dokumentu"_pl);
  fileButton.SetToolTip("Wybiera plik z dysku").SetAccessibleName("Wybierz plik");
  ModDate_.SetToolTip("Dopisuje datę ostatniej zmiany pliku"_pl);
  FileSize_.SetToolTip("Dopisuje rozmiar pliku");
  DateFormat.SetToolTip("Wzór, według którego zapisana będzie data"_pl);
  TestIt.SetAccessibleName("Wynik");
  OnLoad = FileName.OnChange = DateFormat.OnChange = ModDate_.OnClick = FileSize_.OnClick = [this] { RedrawTest(); };
  fileButton.OnClick = [this] { AskForFile(); };
  Command2.OnClick = [this] { Insert(); };
  Command1.OnClick = [this] { Hide(); };
  layout = layout::Rows(layout::Field("&Plik", FileName, &fileButton), ModDate_, layout::Field("&Format daty", DateFormat), FileSize_,
                        layout::Field("Wynik", TestIt), layout::ButtonRow(Command2, Command1));
  defaultButton = &Command2;
  cancelButton = &Command1;
  firstFocus = &FileName;
}

StampSource InsertFileInfo::Source() const {
  return {program_.platform.files, program_.platform.clock.Now(),
          program_.ActiveDocument ? PathOf(program_.ActiveDocument->Caption()) : std::string()};
}

std::string InsertFileInfo::DatePattern() const { return ModDate_.Value() ? DateFormat.Text() : std::string(); }

void InsertFileInfo::AskForFile() {
  FileRequest request;
  request.title = "Wskaz plik";
  request.filter = "Wszystkie pliki (*.*)|*.*|";
  request.directory = Source().directory;
  if (request.directory.empty()) request.directory = program_.platform.files.CurrentDirectory();
  if (const auto path = program_.platform.windows.AskFile(request)) FileName.UserSets(RelativeLink(*path, request.directory));
}

void InsertFileInfo::RedrawTest() {
  DateFormat.SetEnabled(ModDate_.Value());
  TestIt.SetCaption(FileInfoText(Source(), FileName.Text(), FileSize_.Value(), DatePattern()));
}

void InsertFileInfo::Insert() {
  std::string attributes = Concat({" TYPE=FILEINFO FILENAME=", Quote, FileName.Text(), Quote});
  if (FileSize_.Value()) attributes += " FILESIZE=TRUE";
  if (ModDate_.Value()) attributes += Concat({" MODDATE=", Quote, DateFormat.Text(), Quote});
  InsertPair(program_, Stamp(attributes, FileInfoText(Source(), FileName.Text(), FileSize_.Value(), DatePattern())), "");
  Hide();
}

}  // namespace morlan
