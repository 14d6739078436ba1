#include <iterator>
#include <vector>

#include "core/menus.h"
#include "core/toolbars.h"
#include "platform/encoding.h"

namespace morlan {
namespace {

constexpr MenuRow kRows[] = {
    {0, "xmnm_insert", "&Wstaw"},
    {1, "xmn_quickstart", "S&zybki start..."},
    {1, "xmn_body", "Właściwości st&rony..."_pl},
    {1, "mnm_insert_text", "&Tekst"},
    {2, "xmn_bold", "&Pogrubienie", "Ctrl+B"},
    {2, "xmn_italic", "&Kursywa", "Ctrl+I"},
    {2, "xmn_underline", "Po&dkreślenie"_pl, "Ctrl+U"},
    {2, "xmn_strike", "P&rzekreślenie"_pl},
    {2, "", "-"},
    {2, "xmn_paragraph", "&Akapit", "Ctrl+Shift+P"},
    {2, "xmn_right", "Do pra&wej"},
    {2, "xmn_center", "Do &środka"_pl},
    {2, "", "-"},
    {2, "xmn_nbr", "&Twarda spacja"},
    {2, "xmn_line", "&Linia pozioma..."},
    {2, "xmn_coments", "K&omentarz..."},
    {1, "mnm_insert_font", "&Czcionka"},
    {2, "xmn_big", "&Większa"_pl},
    {2, "xmn_small", "&Mniejsza"},
    {2, "xmn_sub", "Indeks &dolny"},
    {2, "xmn_sup", "Indeks &górny"_pl},
    {2, "xmn_pre", "&Sformatowana"},
    {2, "xmn_strong", "Wyróżnienie silne (ST&RONG)"_pl},
    {2, "xmn_em", "Wyróżn&ienie (EM)"_pl},
    {2, "xmn_tt", "Maszynowa"},
    {2, "", "-"},
    {2, "xmn_basefont", "Czcionka &podstawowa..."},
    {2, "xmn_quickfont", "Czcionka &chwilowa..."},
    {1, "mnm_insert_headers", "&Nagłówek"_pl},
    {2, "xmn_h1", "Nagłówek &1"_pl},
    {2, "xmn_h2", "Nagłówek &2"_pl},
    {2, "xmn_h3", "Nagłówek &3"_pl},
    {2, "xmn_h4", "Nagłówek &4"_pl},
    {2, "xmn_h5", "Nagłówek &5"_pl},
    {2, "xmn_h6", "Nagłówek &6"_pl},
    {1, "", "-"},
    {1, "xmn_anchor", "&Odnośnik..."_pl},
    {1, "xmn_email", "Adr&es poczty..."},
    {1, "xmn_image", "&Grafika..."},
    {1, "", "-"},
    {1, "mnm_insert_tables", "Ta&bela"},
    {2, "xmn_tabelewizard", "&Kreator tabel..."},
    {2, "xmn_quicktable", "&Szybka tabela..."},
    {2, "xmn_table", "&Tabela"},
    {2, "xmn_caption", "&Podpis"},
    {2, "xmn_tr", "&Wiersz"},
    {2, "xmn_th", "Komórka &nagłówka"_pl},
    {2, "xmn_td", "K&omórka"_pl},
    {1, "mnm_insert_frames", "R&amki"},
    {2, "xmn_frameswizard", "&Kreator ramek..."},
    {2, "xmn_frameset", "&Zestaw ramek"},
    {2, "xmn_frametag", "&Ramka"},
    {2, "xmn_noframes", "&Bez ramek"},
    {2, "xmn_iframe", "Ramka w &tekście"_pl},
    {2, "xmn_basetarget", "&Domyślny cel odnośników"_pl},
    {1, "mnm_insert_lists", "&Lista"},
    {2, "xmn_listwizard", "&Kreator list..."},
    {2, "xmn_quicklist", "&Szybka lista..."},
    {2, "xmn_ul", "&Punktowana"},
    {2, "xmn_ol", "&Numerowana"},
    {2, "xmn_li", "&Element listy"},
    {2, "xmn_deflist", "Lista &definicji"},
    {2, "xmn_dt", "&Termin"},
    {2, "xmn_dd", "&Opis terminu"},
    {2, "xmn_menulist", "&Menu"},
    {1, "mnm_insert_objects", "Ob&iekty i skrypty"},
    {2, "xmn_map", "&Mapa odnośników"_pl},
    {2, "xmn_object", "&Obiekt"},
    {2, "xmn_noscript", "&Bez skryptów"_pl},
    {2, "xmn_documentwrite", "&Pisanie w dokumencie"},
    {1, "", "-"},
    {1, "mnm_insert_asp", "A&SP"},
    {2, "xmn_asp", "&Skrypt"},
    {2, "xmn_aspvalue", "&Wartość"_pl},
    {2, "xmn_aspif", "&If"},
    {2, "xmn_aspelse", "&Else"},
    {2, "xmn_aspendif", "En&d if"},
    {1, "mnm_insert_cfml", "CF&ML"},
    {2, "xmn_cfif", "CF&IF"},
    {2, "xmn_cfelseif", "CFELSEI&F"},
    {2, "xmn_cfelse", "CF&ELSE"},
    {2, "xmn_cfset", "CF&SET"},
    {2, "xmn_cfoutput", "CF&OUTPUT"},
    {2, "xmn_cfcomment", "&Komentarz"},
    {1, "", "-"},
    {1, "mnm_taglist", "Lista znaczni&ków"_pl},
    {2, "mn_taglist_insert", "&Wstaw z listy"},
    {2, "", "-"},
    {2, "mn_taglist_tags", "Znaczniki &HTML"},
    {2, "mn_taglist_user", "Znaczniki &użytkownika"_pl},
    {2, "mn_taglist_attrib", "A&trybuty"},
    {2, "mn_taglist_asp", "&ASP"},
    {2, "mn_taglist_cf", "&CFML"},
};

}  // namespace

std::span<const MenuRow> InsertMenuRows() {
  static const std::vector<MenuRow> kAll = [] {
    std::vector<MenuRow> rows(std::begin(kRows), std::end(kRows));
    rows.push_back({0, "xmnm_format", "&Format"});
    for (MenuRow row : SelectionMenuRows()) {
      ++row.depth;
      rows.push_back(row);
    }
    return rows;
  }();
  return kAll;
}

}  // namespace morlan
