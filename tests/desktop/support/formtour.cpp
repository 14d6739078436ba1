#include "tests/desktop/support/formtour.h"

#include <QApplication>
#include <QDialog>
#include <QTabWidget>
#include <QTimer>
#include <fstream>
#include <stdexcept>

#include "app/assemble.h"
#include "core/documents.h"
#include "core/editsurface.h"
#include "core/morlan.h"
#include "core/text.h"
#include "platform/posix/clock.h"
#include "platform/posix/environment.h"
#include "platform/posix/files.h"
#include "platform/posix/processes.h"
#include "platform/posix/profile.h"
#include "platform/posix/registry.h"
#include "platform/qt/desktop.h"
#include "platform/qt/formdialog.h"
#include "platform/qt/mainwindow.h"
#include "tags/tagdispatch.h"
#include "tags/tagscan.h"

namespace morlan {
namespace {

struct TagRow {
  std::string_view form, state, tag;
};

// Tags as they stand in real pages, with something in every field.
constexpr TagRow kTags[] = {
    {"lineedit", "tag", "<HR WIDTH=80% SIZE=2 ALIGN=\"center\" NOSHADE COLOR=\"NAVY\">"},
    {"Fonty", "tag", "<FONT SIZE=+2 FACE=\"DejaVu Sans\" COLOR=\"MAROON\">"},
    {"embed", "tag", "<EMBED SRC=\"muzyka/walc.mid\" WIDTH=145 HEIGHT=60 BORDER=0 ALIGN=MIDDLE AUTOSTART=True LOOP=False>"},
    {"anchor", "tag", "<A HREF=\"kontakt/dojazd.html\" NAME=\"dojazd\" TARGET=\"_blank\">"},
    {"image", "tag",
     "<IMG SRC=\"obrazy/rynek-noca.jpg\" ALT=\"Rynek w nocy\" USEMAP=\"#plan\" WIDTH=320 HEIGHT=240 BORDER=1 VSPACE=4 HSPACE=8 "
     "ALIGN=LEFT>"},
    {"Tabela", "tag",
     "<TABLE BORDER=1 HEIGHT=\"300\" WIDTH=\"90%\" BACKGROUND=\"obrazy/tlo.gif\" BGCOLOR=\"#E0F0FF\" ALIGN=\"CENTER\" "
     "CELLSPACING=\"2\" CELLPADDING=\"4\">"},
    {"DTR", "tag", "<TR ALIGN=\"LEFT\" VALIGN=\"TOP\" BGCOLOR=\"#F0E0A0\">"},
    {"DTH", "tag", "<TD ALIGN=\"CENTER\" VALIGN=\"MIDDLE\" BGCOLOR=\"#204060\" NOWARP WIDTH=\"120\" HEIGHT=\"40\" COLSPAWN=\"2\">"},
    {"FrameSet", "tag", "<FRAMESET COLS=\"200,*\" ROWS=\"80,*\" FRAMEBORDER=\"YES\" FRAMESPACING=\"2\" BORDER=\"1\">"},
    {"Frame", "tag",
     "<FRAME SRC=\"menu.html\" NAME=\"menu\" MARGINWIDTH=\"4\" MARGINHEIGHT=\"4\" NORESIZE FRAMEBORDER=\"NO\" SCROLLING=\"AUTO\">"},
    {"IFrame", "tag",
     "<IFRAME SRC=\"pogoda.html\" NAME=\"pogoda\" HEIGHT=\"200\" WIDTH=\"300\" MARGINWIDTH=\"4\" FRAMEBORDER=\"YES\" SCROLLING=\"NO\" "
     "ALIGN=\"RIGHT\">"},
    {"FormShape", "tag", "<FORM ACTION=\"/cgi-bin/zapisz.pl\" METHOD=\"POST\" TARGET=\"wynik\" ENCTYPE=\"multipart/form-data\">"},
    {"CFQUERY", "tag", "<CFQUERY DATASOURCE=\"Sklep\" NAME=\"towary\">"},
    {"CFMAIL", "tag", "<CFMAIL TO=\"ala@example.com\" FROM=\"biuro@example.com\" QUERY=\"towary\" SUBJECT=\"Nowe towary\">"},
    {"CFFILE", "tag", "<CFFILE ACTION=\"Upload\" DESTINATION=\"c:\\pliki\" FILEFIELD=\"plik\" NAMECONFLICT=\"MakeUnique\">"},
    {"CFTable", "tag", "<CFTABLE QUERY=\"towary\" COLSPACING=\"2\" HEADERLINES=\"1\" MAXROWS=\"50\" COLHEADERS HTMLTABLE>"},
    {"CFCOL", "tag", "<CFCOL HEADER=\"Nazwa\" TEXT=\"#nazwa#\" ALIGN=\"LEFT\" WIDTH=\"20\">"},
    {"Aplet", "tag",
     "<APPLET CODE=\"Zegar.class\" CODEBASE=\"klasy\" NAME=\"zegar\" TITLE=\"Zegar\" ALIGN=\"RIGHT\" WIDTH=\"120\" HEIGHT=\"120\">"},
    {"Script", "tag", "<SCRIPT LANGUAGE=\"JavaScript\" SOURCE=\"skrypty/menu.js\" RUNAT=\"server\">"},
    {"Channel_Channel", "tag", "<CHANNEL BASE=\"http://www.example.com/\" HREF=\"kanal.html\" LEVEL=\"2\">"},
    {"Channel_Item", "tag", "<ITEM HREF=\"nowe.html\" PRECACHE=\"YES\" LEVEL=\"1\" LASTMOD=\"1998-03-07\">"},
    {"Channel_Logo", "tag", "<LOGO HREF=\"znak.gif\" STYLE=\"ICON\"/>"},
    {"Channel_MultiEdit", "tag", "<AUTHOR VALUE=\"Ala\"/>"},
    {"Channel_MultiData", "tag", "<LASTMOD VALUE=\"1998-03-07\"/>"},
    {"Properties", "tag", "<INPUT TYPE=\"text\" NAME=\"imie\" VALUE=\"Ala\" DISABLED>"},
};

constexpr std::string_view kPageBefore =
    "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01 Transitional//EN\">\r\n<HTML>\r\n<HEAD>\r\n<TITLE>Miasto noca</TITLE>\r\n</HEAD>\r\n"
    "<BODY BACKGROUND=\"obrazy/tlo.gif\" BGPROPERTIES=\"FIXED\" BGCOLOR=\"#FFFFF0\" TEXT=\"#202020\" LINK=\"#0000C0\">\r\n"
    "<H1>Miasto noca</H1>\r\n<A NAME=\"rynek\"></A><A NAME=\"ratusz\"></A>\r\n";
constexpr std::string_view kPageBehind = "\r\n<P>Spacer po rynku.</P>\r\n</BODY>\r\n</HTML>\r\n";

}  // namespace

void HandleEvents() {
  for (int round = 0; round < 3; ++round) QApplication::processEvents();
}

void VisitPages(FormDialog& dialog, const std::function<void(int page)>& visit) {
  auto* tabs = dialog.findChild<QTabWidget*>();
  if (!tabs) return visit(0);
  const int shown = tabs->currentIndex();
  for (int page = 0; page < tabs->count(); ++page) {
    tabs->setCurrentIndex(page);
    HandleEvents();
    visit(page + 1);
  }
  tabs->setCurrentIndex(shown);
}

class FormTour::Running {
 public:
  explicit Running(Scheme scheme) {
    Assemble(program_);
    program_.frame().splashShown = true;
    desktop_.Start(program_);
    program_.commands.RunMenu(scheme == Scheme::Dark ? "mn_theme_dark" : "mn_theme_light");
    const std::string file = folder_.Path() + "/miasto.html";
    std::ofstream(file, std::ios::binary) << kPageBefore << kPageBehind;
    OpenDocument(program_, files_.FromNative(file));
    HandleEvents();
  }
  ~Running() { desktop_.Finish(); }

  Program& program() { return program_; }
  MainWindow& Window() { return *desktop_.frontEnd().Window(); }

  void Show(const FormStop& stop) {
    SetPage(stop.tag);
    if (stop.tag.empty() || !EditTagAtCaret()) program_.forms.ShowByName(stop.form);
    program_.ForgetClosed();
  }

 private:
  static ProfileFolders Filled(const std::string& folder) {
    const ProfileFolders folders = FoldersBelow(folder);
    // Without its data the program would only come up with a message.
    if (!FillProfile(folders, FindShippedData().value_or(""))) throw std::runtime_error("there is no shipped data beside the program");
    return folders;
  }

  void SetPage(std::string_view tag) {
    program_.DocumentLoading = true;
    program_.ActiveEditor->SetText(Concat({kPageBefore, tag, kPageBehind}));
    program_.DocumentLoading = false;
    program_.ActiveEditor->Select(kPageBefore.size() + (tag.empty() ? 0 : 1), 0);
  }

  bool EditTagAtCaret() {
    const FoundTag found = FindTagAt(program_.ActiveEditor->Text(), program_.ActiveEditor->SelStart());
    const std::string caption = Concat({"<", UpperCase(GetTagName(found.text)), ">"});
    program_.tagState.CurrentTagStart = found.start;
    program_.tagState.CurrentTagText = found.text;
    if (!HasTagEditor(program_, caption)) return false;
    EditTag(program_, caption);
    return true;
  }

  PrivateFolder folder_;
  ProfileFolders folders_ = Filled(folder_.Path());
  PosixFiles files_;
  PosixEnvironment environment_{folders_};
  FileRegistry registry_{folders_.windows + "/registry"};
  PosixClock clock_;
  PosixProcesses processes_{files_};
  Desktop desktop_{{files_, environment_, registry_, processes_, clock_}};
  Program program_{desktop_.platform(), desktop_.frontEnd()};
};

FormTour::FormTour(Scheme scheme) : running_(std::make_unique<Running>(scheme)) {}

FormTour::~FormTour() = default;

Program& FormTour::program() { return running_->program(); }

MainWindow& FormTour::Window() { return running_->Window(); }

std::vector<FormStop> FormTour::Stops() {
  std::vector<FormStop> stops;
  for (const std::string& form : program().forms.Names()) {
    stops.push_back({form, "", ""});
    for (const TagRow& row : kTags)
      if (row.form == form) stops.push_back({form, std::string(row.state), std::string(row.tag)});
  }
  return stops;
}

bool FormTour::Open(const FormStop& stop, const std::function<void(FormDialog& dialog)>& visit) {
  bool came = false;
  const auto visitDialog = [&](FormDialog& dialog) {
    HandleEvents();
    if (!came && dialog.ShownForm().Name() == stop.form) {
      came = true;
      visit(dialog);
    }
    dialog.ShownForm().UserCloses();
    if (dialog.ShownForm().IsVisible()) dialog.ShownForm().Hide();
  };
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
    QWidget* modal = QApplication::activeModalWidget();
    if (!modal || !modal->isVisible()) return;
    watch.stop();
    if (auto* dialog = dynamic_cast<FormDialog*>(modal))
      visitDialog(*dialog);
    else
      modal->close();
    watch.start();
  });
  watch.start(0);
  running_->Show(stop);
  watch.stop();
  // Windows of their own, and forms that lie in the main window.
  for (QWidget* widget : QApplication::allWidgets())
    if (auto* dialog = dynamic_cast<FormDialog*>(qobject_cast<QDialog*>(widget)); dialog && dialog->isVisible()) visitDialog(*dialog);
  HandleEvents();
  return came;
}

}  // namespace morlan
