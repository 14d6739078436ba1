#include "tags/tagdispatch.h"

#include "core/defs.h"

namespace morlan {
namespace {

struct DispatchRow {
  std::string_view caption, editor;
};

// "<DECSCRIPTION>" is misspelt for good: the editor of the DESCRIPTION tag cannot be reached by this way.
constexpr DispatchRow kEditors[] = {
    {"<EMBED>", "EditEmbed"},
    {"<IMG>", "EditImage"},
    {"<A>", "EditAnchor"},
    {"<HR>", "EditLine"},
    {"<BASEFONT>", "EditBaseFont"},
    {"<FONT>", "EditFont"},
    {"<TABLE>", "EditTable"},
    {"<TR>", "EditRow"},
    {"<TH>", "EditCell"},
    {"<TD>", "EditCell"},
    {"<FRAMESET>", "EditFrameSet"},
    {"<FRAME>", "EditFrame"},
    {"<IFRAME>", "EditIFrame"},
    {"<FORM>", "EditForm"},
    {"<CFQUERY>", "EditCfQuery"},
    {"<CFMAIL>", "EditCfMail"},
    {"<CFFILE>", "EditCfFile"},
    {"<CFTABLE>", "EditCfTable"},
    {"<CFCOL>", "EditCfCol"},
    {"<APPLET>", "EditApplet"},
    {"<CHANNEL>", "EditChannel"},
    {"<LOGO>", "EditLogo"},
    {"<TITLE>", "EditChannelTitle"},
    {"<ABSTRACT>", "EditAbstract"},
    {"<AUTHOR>", "EditAuthor"},
    {"<PUBLISHER>", "EditPublisher"},
    {"<COPYRIGHT>", "EditCopyright"},
    {"<KEYWORDS>", "EditKeywords"},
    {"<CATEGORYNAME>", "EditCategoryName"},
    {"<DECSCRIPTION>", "EditDescription"},
    {"<INTROURL>", "EditIntroUrl"},
    {"<MINSTORAGE>", "EditMinStorage"},
    {"<LASTMOD>", "EditLastMod"},
    {"<PUBLICATIONDATE>", "EditPublicationDate"},
    {"<ITEM>", "EditItem"},
    {"<STARTDATE>", "EditStartDate"},
    {"<ENDDATE>", "EditEndDate"},
    {"<BODY>", "EditBody"},
    {"<SCRIPT>", "EditScript"},
};

}  // namespace

std::string_view EditorOfCaption(std::string_view caption) {
  for (const DispatchRow& row : kEditors)
    if (row.caption == caption) return row.editor;
  return {};
}

bool HasTagEditor(const Program& program, std::string_view caption) {
  const std::string_view editor = EditorOfCaption(caption);
  return !editor.empty() && program.tagState.tagEditors.contains(editor);
}

void EditTag(const Program& program, std::string_view caption) {
  const auto found = program.tagState.tagEditors.find(EditorOfCaption(caption));
  if (found != program.tagState.tagEditors.end()) found->second();
}

}  // namespace morlan
