#include "tags/pageeditors.h"

#include "tags/bodyeditor.h"
#include "tags/comentseditor.h"
#include "tags/emaileditor.h"
#include "tags/quickstart.h"
#include "tags/tageditors.h"
#include "tags/variables.h"

namespace morlan {
namespace {

constexpr EditorRow kEditors[] = {{"EditBody", EditBody}};

// clang-format off
constexpr InsertionRow kInsertions[] = {
    {"Toolbar1",  "quickstart", "mn_quickstart", "QuickStart", StartPage},
    {"Toolbar1",  "body",       "mn_body",       "BodyTag",    EditBody},
    {"Toolbar1",  "comment",    "mn_coments",    "coments",    InsertComment},
    {"Toolbar1",  "email",      "mn_email",      "email",      InsertEmail},
    {"Toolbar13", "meta",       "mn_variables",  "Variables",  SetVariables},
};
// clang-format on

}  // namespace

void RegisterPageEditors(Program& program) { RegisterEditors(program, kEditors, kInsertions); }

}  // namespace morlan
