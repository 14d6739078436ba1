#include "tags/pairrows.h"

namespace morlan {
namespace {

// clang-format off
constexpr PairRow kPairs[] = {
    {"mn_bold",          "Toolbar1",  "bold",      "<B>",                                  "</B>"},
    {"mn_italic",        "Toolbar1",  "italic",    "<I>",                                  "</I>"},
    {"mn_underline",     "Toolbar1",  "underline", "<U>",                                  "</U>"},
    {"mn_right",         "Toolbar1",  "right",     "<P ALIGN=\"RIGHT\">",                  "</P>"},
    {"mn_center",        "Toolbar1",  "center",    "<CENTER>",                             "</CENTER>"},
    {"mn_justify",       "Toolbar1",  "justify",   "<P STYLE=\"text-align:justify;\">",    "</P>"},
    {"mn_strike",        "Toolbar1",  "strike",    "<STRIKE>",                             "</STRIKE>"},
    {"mn_nbr",           "Toolbar1",  "nbr",       "&nbsp;",                               ""},

    {"mn_big",           "Toolbar2",  "big",       "<FONT SIZE=+1>",                       "</FONT>"},
    {"mn_small",         "Toolbar2",  "small",     "<FONT SIZE=-1>",                       "</FONT>"},
    {"mn_sub",           "Toolbar2",  "sub",       "<SUB>",                                "</SUB>"},
    {"mn_sup",           "Toolbar2",  "sup",       "<SUP>",                                "</SUP>"},
    {"mn_pre",           "Toolbar2",  "pre",       "<PRE>",                                "</PRE>"},
    {"mn_strong",        "Toolbar2",  "s",         "<STRONG>",                             "</STRONG>"},
    {"mn_em",            "Toolbar2",  "em",        "<EM>",                                 "</EM>"},
    {"mn_h1",            "Toolbar2",  "h1",        "<H1>",                                 "</H1>"},
    {"mn_h2",            "Toolbar2",  "h2",        "<H2>",                                 "</H2>"},
    {"mn_h3",            "Toolbar2",  "h3",        "<H3>",                                 "</H3>"},
    {"mn_h4",            "Toolbar2",  "h4",        "<H4>",                                 "</H4>"},
    {"mn_h5",            "Toolbar2",  "h5",        "<H5>",                                 "</H5>"},
    {"mn_h6",            "Toolbar2",  "h6",        "<H6>",                                 "</H6>"},
    {"mn_tt",            "Toolbar2",  "tt",        "<TT>",                                 "</TT>"},

    {"mn_caption",       "Toolbar3",  "caption",   "<CAPTION>",                            "</CAPTION>"},
    {"mn_table",         "Toolbar3",  "metatbl",   "<TABLE>",                              "</TABLE>"},
    {"mn_tr",            "Toolbar3",  "metatr",    "<TR>",                                 "</TR>"},
    {"mn_th",            "Toolbar3",  "metath",    "<TH>",                                 "</TH>"},
    {"mn_td",            "Toolbar3",  "metatd",    "<TD>",                                 "</TD>"},

    {"mn_frameset",      "Toolbar4",  "set",       "<FRAMESET>",                           "</FRAMESET>"},
    {"mn_frametag",      "Toolbar4",  "fra",       "<FRAME>",                              ""},
    {"mn_noframes",      "Toolbar4",  "no",        "<NOFRAMES>",                           "</NOFRAMES>"},
    {"mn_iframe",        "Toolbar4",  "if",        "<IFRAME>",                             "</IFRAME>"},
    {"mn_basetarget",    "Toolbar4",  "base",      "<BASE TARGET=\"",                      "\">"},

    {"mn_ul",            "Toolbar6",  "ul",        "<UL>\r\n",                             "\r\n</UL>"},
    {"mn_ol",            "Toolbar6",  "ol",        "<OL>",                                 "</OL>"},
    {"mn_li",            "Toolbar6",  "li",        "<LI>",                                 ""},
    {"mn_dt",            "Toolbar6",  "dt",        "<DT>",                                 ""},
    {"mn_dd",            "Toolbar6",  "dd",        "<DD>",                                 ""},
    {"mn_deflist",       "Toolbar6",  "def",       "<DL>\r\n <DT>  <DD>\r\n</DL>",         ""},
    {"mn_menulist",      "Toolbar6",  "menu",      "<MENU>",                               "\r\n</MENU>"},

    {"mn_asp",           "Toolbar11", "%",         "<% ",                                  " %>"},
    {"mn_aspvalue",      "Toolbar11", "%=",        "<%=",                                  " %>"},
    {"mn_aspif",         "Toolbar11", "if",        "<% if ",                               " %>"},
    {"mn_aspelse",       "Toolbar11", "else",      "<% else ",                             " %>"},
    {"mn_aspendif",      "Toolbar11", "endif",     "<% endif ",                            " %>"},

    {"mn_cfif",          "Toolbar12", "if",        "<CFIF>",                               "</CFIF>"},
    {"mn_cfelseif",      "Toolbar12", "eif",       "<CFELSEIF>",                           "</CFELSEIF>"},
    {"mn_cfelse",        "Toolbar12", "else",      "<CFLESE>",                             "</CFELSE>"},
    {"mn_cfset",         "Toolbar12", "set",       "<CFSET ",                              ">"},
    {"mn_cfoutput",      "Toolbar12", "out",       "<CFOUTPUT>",                           "</CFOUTPUT>"},
    {"mn_cfcomment",     "Toolbar12", "comment",   "<!--- ",                               "--->"},

    {"mn_map",           "Toolbar13", "map",       "<MAP NAME=\"\">\r\n <AREA SHAPE=\"\" COORDS=\"\" HREF=\"\">\r\n", "</MAP>"},
    {"mn_object",        "Toolbar13", "object",    "<OBJECT>",                             "</OBJECT>"},

    {"mn_noscript",      "Toolbar14", "noscript",  "<NOSCRIPT>",                           "</NOSCRIPT>"},
    {"mn_documentwrite", "Toolbar14", "write",     "document.write(\"",                    "\")"},

    {"mn_edit_bold",     "", "", "<B>",                   "</B>"},
    {"mn_edit_italic",   "", "", "<I>",                   "</I>"},
    {"mn_edit_underline","", "", "<U>",                   "</U>"},
    {"mn_edit_strike",   "", "", "<STRIKE>",              "</STRIKE>"},
    {"mn_edit_center",   "", "", "<CENTER>",              "</CENTER>"},
    {"mn_edit_pre",      "", "", "<PRE>",                 "</PRE>"},
    {"mn_edit_big",      "", "", "<BIG>",                 "</BIG>"},
    {"mn_edit_small",    "", "", "<SMALL>",               "</SMALL>"},
    {"mn_edit_right",    "", "", "<P ALIGN=RIGHT>",       "</P>"},
    {"mn_edit_left",     "", "", "<P ALIGN=LEFT>",        "</P>"},
    {"mn_header1",       "", "", "<H1>",                  "</H1>"},
    {"mn_header2",       "", "", "<H2>",                  "</H2>"},
    {"mn_header3",       "", "", "<H3>",                  "</H3>"},
    {"mn_header4",       "", "", "<H4>",                  "</H4>"},
    {"mn_header5",       "", "", "<H5>",                  "</H5>"},
    {"mn_header6",       "", "", "<H6>",                  "</H6>"},
    {"mn_index_down",    "", "", "<SUB>",                 "</SUB>"},
    {"mn_index_up",      "", "", "<SUP>",                 "</SUP>"},
    {"mn_aqua",          "", "", "<FONT COLOR=\"Aqua\">",    "</FONT>"},
    {"mn_black",         "", "", "<FONT COLOR=\"Black\">",   "</FONT>"},
    {"mn_Blue",          "", "", "<FONT COLOR=\"Blue\">",    "</FONT>"},
    {"mn_brown",         "", "", "<FONT COLOR=\"Brown\">",   "</FONT>"},
    {"mn_fuchsia",       "", "", "<FONT COLOR=\"Fuchsia\">", "</FONT>"},
    {"mn_gray",          "", "", "<FONT COLOR=\"Gray\">",    "</FONT>"},
    {"mn_green",         "", "", "<FONT COLOR=\"Green\">",   "</FONT>"},
    {"mn_lime",          "", "", "<FONT COLOR=\"Lime\">",    "</FONT>"},
    {"mn_magneta",       "", "", "<FONT COLOR=\"Magneta\">", "</FONT>"},
    {"mn_maroon",        "", "", "<FONT COLOR=\"Maroon\">",  "</FONT>"},
    {"mn_navy",          "", "", "<FONT COLOR=\"Navy\">",    "</FONT>"},
    {"mn_olive",         "", "", "<FONT COLOR=\"Olive\">",   "</FONT>"},
    {"mn_purple",        "", "", "<FONT COLOR=\"Purple\">",  "</FONT>"},
    {"mn_red",           "", "", "<FONT COLOR=\"Red\">",     "</FONT>"},
    {"mn_silver",        "", "", "<FONT COLOR=\"Silver\">",  "</FONT>"},
    {"mn_white",         "", "", "<FONT COLOR=\"White\">",   "</FONT>"},
    {"mn_yellow",        "", "", "<FONT COLOR=\"Yellow\">",  "</FONT>"},
};
// clang-format on

}  // namespace

std::span<const PairRow> PairRows() { return kPairs; }

}  // namespace morlan
