#include "tags/frameeditors.h"

#include "tags/formeditor.h"
#include "tags/formelements.h"
#include "tags/frameeditor.h"
#include "tags/frameseteditor.h"
#include "tags/iframeeditor.h"
#include "tags/tageditors.h"

namespace morlan {
namespace {

constexpr EditorRow kEditors[] = {
    {"EditFrameSet", EditFrameSet}, {"EditFrame", EditFrame}, {"EditIFrame", EditIFrame}, {"EditForm", EditForm}};

template <FormElement Element>
void Insert(Program& program) {
  InsertFormElement(program, Element);
}

// clang-format off
constexpr InsertionRow kInsertions[] = {
    {"Toolbar4", "dset",      "mn_framesetdialog", "FrameSet",     InsertFrameSet},
    {"Toolbar4", "dfra",      "mn_framedialog",    "Frame",        InsertFrame},
    {"Toolbar4", "dif",       "mn_iframedialog",   "IFrame",       InsertIFrame},
    {"Toolbar5", "formshape", "mn_formshape",      "FormShape",    InsertForm},
    {"Toolbar5", "text",      "mn_formtext",       "FormElements", Insert<FormElement::Text>},
    {"Toolbar5", "password",  "mn_formpassword",   "",             Insert<FormElement::Password>},
    {"Toolbar5", "textarea",  "mn_formtextarea",   "",             Insert<FormElement::TextArea>},
    {"Toolbar5", "check",     "mn_formcheck",      "",             Insert<FormElement::Check>},
    {"Toolbar5", "radio",     "mn_formradio",      "",             Insert<FormElement::Radio>},
    {"Toolbar5", "submit",    "mn_formsubmit",     "",             Insert<FormElement::Submit>},
    {"Toolbar5", "reset",     "mn_formreset",      "",             Insert<FormElement::Reset>},
    {"Toolbar5", "hidden",    "mn_formhidden",     "",             Insert<FormElement::Hidden>},
    {"Toolbar5", "image",     "mn_formimage",      "",             Insert<FormElement::Image>},
    {"Toolbar5", "file",      "mn_formfile",       "",             Insert<FormElement::File>},
    {"Toolbar5", "list",      "mn_formlist",       "",             Insert<FormElement::List>},
};
// clang-format on

}  // namespace

void RegisterFrameEditors(Program& program) { RegisterEditors(program, kEditors, kInsertions); }

}  // namespace morlan
