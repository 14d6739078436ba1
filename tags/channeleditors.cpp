#include "tags/channeleditors.h"

#include <string>
#include <string_view>

#include "core/defs.h"
#include "core/text.h"
#include "tags/channelchannel.h"
#include "tags/channelitem.h"
#include "tags/channellogo.h"
#include "tags/channelmultidata.h"
#include "tags/channelmultiedit.h"
#include "tags/insertcommands.h"
#include "tags/tageditor.h"
#include "tags/tageditors.h"
#include "tags/tagscan.h"

namespace morlan {
namespace {

// What a dialog is told: a date has neither a title of its own nor a list.
struct Question {
  std::string_view title, info, list;
  bool isDate = false;
};

constexpr Question Date(std::string_view info) { return {"", info, "", true}; }

// clang-format off
constexpr Question kAuthor = {"Autor", "Autor:", "Listy\\CHAuthor.lst"};
constexpr Question kPublisher = {"Wydawca", "Wydawca:", "Listy\\CHPub.lst"};
constexpr Question kCopyright = {"Prawa autorskie", "Prawa autorskie:", "Listy\\CHCopyR.lst"};
// The keywords of a tag that stands there are asked for without the colon.
constexpr Question kKeywords = {"Słowa kluczowe"_pl, "Słowa kluczowe (rozdzielaj je przecinkiem):"_pl, "Listy\\CHKey.lst"};
constexpr Question kOldKeywords = {"Słowa kluczowe"_pl, "Słowa kluczowe (rozdzielaj je przecinkiem)"_pl, "Listy\\CHKey.lst"};
constexpr Question kIntro = {"Strona wprowadzająca w temat kanału"_pl, "Adres URL:", "Listy\\CHCopyR.lst"};
constexpr Question kMinStorage = {"Ilość potrzebnego miejsca"_pl, "Ilość w KB"_pl, ""};
constexpr Question kCategory = {"Kategoria", "Kategoria:", "Listy\\CHCat.lst"};
constexpr Question kDescription = {"Kategoria", "Opis kategorii:", ""};
constexpr Question kLink = {"Połączenie"_pl, "Adres URL:", "Listy\\HREF.lst"};
constexpr Question kLastMod = Date("Data ostatniej modyfikacji:");
constexpr Question kPublication = Date("Data publikacji:");
constexpr Question kEndDate = Date("Do kiedy obowiązuje uaktualnianie kanału:"_pl);

// A tag with the one attribute VALUE.
struct ValueEditorRow {
  std::string_view editor, tag;
  Question question;
};

constexpr ValueEditorRow kValueEditors[] = {
    {"EditLastMod",         "LASTMOD",         kLastMod},
    {"EditStartDate",       "STARTDATE",       Date("Od kiedy obowiązuje uaktualnianie kanału:"_pl)},
    {"EditEndDate",         "ENDDATE",         kEndDate},
    {"EditPublicationDate", "PUBLICATIONDATE", kPublication},
    {"EditMinStorage",      "MINSTORAGE",      kMinStorage},
    {"EditIntroUrl",        "INTROURL",        kIntro},
    {"EditCategoryName",    "CATEGORYNAME",    kCategory},
    {"EditDescription",     "DESCRIPTION",     kDescription},
    {"EditKeywords",        "KEYWORDS",        kOldKeywords},
    {"EditAuthor",          "AUTHOR",          kAuthor},
    {"EditPublisher",       "PUBLISHER",       kPublisher},
    {"EditCopyright",       "COPYRIGHT",       kCopyright},
    {"EditChannelTitle",    "TITLE",           {"Edytuj tytuł kanału"_pl, "Tytuł kanału"_pl, "Listy\\CHTitle.lst"}},
    {"EditAbstract",        "ABSTRACT",        {"Edytuj opis kanału"_pl, "Opis kanału"_pl, ""}},
};

constexpr EditorRow kEditors[] = {{"EditChannel", EditChannel}, {"EditItem", EditItem}, {"EditLogo", EditLogo}};

constexpr InsertionRow kInsertions[] = {
    {"Toolbar15", "channeldlg", "", "Channel_Channel", InsertChannel},
    {"Toolbar15", "logo",       "", "",                InsertLogo},
    {"Toolbar17", "logo",       "", "Channel_Logo",    InsertLogo},
    {"Toolbar17", "itemdlg",    "", "Channel_Item",    InsertItem},
};

struct ChannelPairRow {
  std::string_view toolbar, key, tag;
  bool hasLines;  // the tags stand in lines of their own
};
constexpr ChannelPairRow kPairs[] = {
    {"Toolbar15", "channel",      "CHANNEL",     true},
    {"Toolbar15", "item",         "ITEM",        true},
    {"Toolbar15", "schedule",     "SCHEDULE",    true},
    {"Toolbar15", "categorydef",  "CATEGORYDEF", true},
    {"Toolbar15", "title",        "TITLE",       false},
    {"Toolbar15", "abstract",     "ABSTRACT",    false},
    {"Toolbar17", "item",         "ITEM",        true},
    {"Toolbar17", "title",        "TITLE",       false},
    {"Toolbar17", "abstract",     "ABSTRACT",    false},
    {"Toolbar19", "category",     "CATEGORYDEF", true},
    {"Toolbar20", "config",       "CONFIG",      false},
    {"Toolbar20", "dependencies", "DEPENDENCY",  false},
    {"Toolbar20", "title",        "TITLE",       false},
    {"Toolbar20", "abstract",     "ABSTRACT",    false},
};

// A value in quotes between the opening and its end. One with a closing tag goes round the selection, one without takes the
// selection's place. The button of the start date writes the end date: it belongs so.
struct ValueCommandRow {
  std::string_view toolbar, key, opening, end, close;
  const Question& question;
};
constexpr ValueCommandRow kValueCommands[] = {
    {"Toolbar15", "author",          "<AUTHOR VALUE=",          "/>", "",     kAuthor},
    {"Toolbar15", "publisher",       "<PUBLISHER VALUE=",       "/>", "",     kPublisher},
    {"Toolbar15", "copyright",       "<COPYRIGHT VALUE=",       "/>", "",     kCopyright},
    {"Toolbar15", "keywords",        "<KEYWORDS VALUE=",        "/>", "",     kKeywords},
    {"Toolbar15", "intro",           "<INTROURL VALUE=",        "/>", "",     kIntro},
    {"Toolbar15", "minstorage",      "<MINSTORAGE VALUE=",      "/>", "",     kMinStorage},
    {"Toolbar15", "lastmod",         "<LASTMOD VALUE=",         "/>", "",     kLastMod},
    {"Toolbar15", "publicationdate", "<PUBLICATIONDATE VALUE=", "/>", "",     kPublication},
    {"Toolbar15", "category",        "<CATEGORY VALUE=",        "/>", "",     kCategory},
    {"Toolbar15", "anchor",          "<A HREF=",                ">",  "</A>", kLink},
    {"Toolbar17", "author",          "<AUTHOR VALUE=",          "/>", "",     kAuthor},
    {"Toolbar17", "publisher",       "<PUBLISHER VALUE=",       "/>", "",     kPublisher},
    {"Toolbar17", "copyright",       "<COPYRIGHT VALUE=",       "/>", "",     kCopyright},
    {"Toolbar17", "keywords",        "<KEYWORDS VALUE=",        "/>", "",     kKeywords},
    {"Toolbar17", "lastmod",         "<LASTMOD VALUE=",         "/>", "",     kLastMod},
    {"Toolbar17", "publicationdate", "<PUBLICATIONDATE VALUE=", "/>", "",     kPublication},
    {"Toolbar17", "category",        "<CATEGORY VALUE=",        "/>", "",     kCategory},
    {"Toolbar17", "anchor",          "<A HREF=",                ">",  "</A>", kLink},
    {"Toolbar18", "startdate",       "<ENDDATE VALUE=",         "/>", "",     kEndDate},
    {"Toolbar19", "categoryname",    "<CATEGORYNAME VALUE=",    "/>", "",     kCategory},
    {"Toolbar19", "categorydesc",    "<DESCRIPTION VALUE=",     "/>", "",     kDescription},
};
// clang-format on

std::string AskValue(Program& program, const Question& question, std::optional<std::string_view> value = {}) {
  if (question.isDate) return program.forms.Get<Channel_MultiData>().Ask(question.info, value.value_or(""));
  return program.forms.Get<Channel_MultiEdit>().Ask(question.title, question.info, question.list, value);
}

void EditValue(Program& program, const ValueEditorRow& row) {
  const std::string old = GetTagTextParam(program.tagState.CurrentTagText, "value");
  const std::string value = AskValue(program, row.question, old);
  if (!value.empty()) RewriteTag(program, TagText(Concat({"<", row.tag})).Quoted(" VALUE=", value).Close("/>"));
}

void InsertValue(Program& program, const ValueCommandRow& row) {
  const std::string value = AskValue(program, row.question);
  if (value.empty()) return;
  const std::string tag = Concat({row.opening, Quote, value, Quote, row.end});
  if (row.close.empty())
    ReplaceSelection(program, tag);
  else
    InsertPair(program, tag, row.close);
}

void InsertChannelPair(Program& program, const ChannelPairRow& row) {
  const std::string_view lineEnd = row.hasLines ? CrLf : std::string_view();
  InsertPair(program, Concat({"<", row.tag, ">", lineEnd}), Concat({lineEnd, "</", row.tag, ">"}));
}

// The row of a table with its command, which runs only while a document is open.
template <class Row>
std::function<void()> Command(Program& program, const Row& row, void (*run)(Program&, const Row&)) {
  return [&program, &row, run] {
    if (program.ActiveDocument) run(program, row);
  };
}

}  // namespace

void RegisterChannelEditors(Program& program) {
  RegisterEditors(program, kEditors, kInsertions);
  for (const ValueEditorRow& row : kValueEditors) program.tagState.tagEditors[std::string(row.editor)] = Command(program, row, EditValue);
  for (const ChannelPairRow& row : kPairs) program.commands.OnToolbar(row.toolbar, row.key, Command(program, row, InsertChannelPair));
  for (const ValueCommandRow& row : kValueCommands) program.commands.OnToolbar(row.toolbar, row.key, Command(program, row, InsertValue));
  program.forms.OnShow("Channel_MultiEdit", [&program] { program.commands.RunToolbar("Toolbar17", "author"); });
  program.forms.OnShow("Channel_MultiData", [&program] { program.commands.RunToolbar("Toolbar17", "lastmod"); });
}

}  // namespace morlan
