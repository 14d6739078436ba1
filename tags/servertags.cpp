#include "tags/servertags.h"

#include "core/defs.h"
#include "core/text.h"
#include "tags/aplet.h"
#include "tags/cfcol.h"
#include "tags/cffile.h"
#include "tags/cfmail.h"
#include "tags/cfquery.h"
#include "tags/cftable.h"
#include "tags/includefile.h"
#include "tags/insertcommands.h"
#include "tags/scripttag.h"
#include "tags/servervariables.h"
#include "tags/tageditor.h"
#include "tags/tageditors.h"

namespace morlan {
namespace {

// What stands round the attributes of a tag that is written anew and of a new one.
struct ServerTag {
  std::string_view opening, endOnEdit, endOnInsert, closing;
};

// clang-format off
constexpr ServerTag kCfQuery = {"<CFQUERY", ">\r\n\r\n", ">\r\n\r\n",                "</CFQUERY>"};
constexpr ServerTag kCfMail =  {"<CFMAIL",  ">\r\n\r\n", ">\r\n\r\n",                "</CFMAIL>"};
constexpr ServerTag kCfTable = {"<CFTABLE", ">",         ">\r\n",                    "</CFTABLE>"};
constexpr ServerTag kCfCol =   {"<CFCOL",   ">\r\n\r\n", ">",                        ""};
constexpr ServerTag kCfFile =  {"<CFFILE",  ">",         ">",                        ""};
constexpr ServerTag kApplet =  {"<APPLET",  ">",         ">\r\n",                    "</APPLET>"};
constexpr ServerTag kScript =  {"<SCRIPT",  ">",         ">\r\n <!--\r\n//-->\r\n",  "</SCRIPT>"};
// clang-format on

template <class Dialog, const ServerTag& tag>
void Edit(Program& program) {
  Dialog& form = program.forms.Get<Dialog>();
  form.Read(program.tagState.CurrentTagText);
  const std::string attributes = form.Ask();
  if (!attributes.empty()) RewriteTag(program, Concat({tag.opening, attributes, tag.endOnEdit}));
}

template <class Dialog, const ServerTag& tag>
void Insert(Program& program) {
  const std::string attributes = program.forms.Get<Dialog>().Ask();
  if (!attributes.empty()) InsertPair(program, Concat({tag.opening, attributes, tag.endOnInsert}), tag.closing);
}

// clang-format off
constexpr EditorRow kEditors[] = {
    {"EditCfQuery", Edit<CFQUERY, kCfQuery>},
    {"EditCfMail",  Edit<CFMAIL,  kCfMail>},
    {"EditCfTable", Edit<CFTable, kCfTable>},
    {"EditCfCol",   Edit<CFCOL,   kCfCol>},
    {"EditCfFile",  Edit<CFFILE,  kCfFile>},
    {"EditApplet",  Edit<Aplet,   kApplet>},
    {"EditScript",  Edit<Script,  kScript>},
};

constexpr InsertionRow kInsertions[] = {
    {"Toolbar11", "servervar", "mn_aspservervar", "ServerVariables", InsertAspVariable},
    {"Toolbar11", "include",   "mn_aspinclude",   "IncludeFile",     InsertAspInclude},
    {"Toolbar12", "servervar", "mn_cfservervar",  "",                InsertCfVariable},
    {"Toolbar12", "include",   "mn_cfinclude",    "",                InsertCfInclude},
    {"Toolbar12", "query",     "mn_cfquery",      "CFQUERY",         Insert<CFQUERY, kCfQuery>},
    {"Toolbar12", "mail",      "mn_cfmail",       "CFMAIL",          Insert<CFMAIL,  kCfMail>},
    {"Toolbar12", "table",     "mn_cftable",      "CFTable",         Insert<CFTable, kCfTable>},
    {"Toolbar12", "file",      "mn_cffile",       "CFFILE",          Insert<CFFILE,  kCfFile>},
    {"Toolbar12", "col",       "mn_cfcol",        "CFCOL",           Insert<CFCOL,   kCfCol>},
    {"Toolbar14", "applet",    "mn_applet",       "Aplet",           Insert<Aplet,   kApplet>},
    {"Toolbar14", "script",    "mn_script",       "Script",          Insert<Script,  kScript>},
};
// clang-format on

}  // namespace

void RegisterServerTags(Program& program) { RegisterEditors(program, kEditors, kInsertions); }

}  // namespace morlan
