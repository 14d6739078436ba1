#include "core/menus.h"
#include "core/toolbars.h"
#include "platform/encoding.h"

namespace morlan {
namespace {

constexpr MenuRow kRows[] = {
    {0, "mn_edit_bold", "&Pogrubienie"},
    {0, "mn_edit_italic", "K&ursywa"},
    {0, "mn_edit_underline", "Po&dkreślenie"_pl},
    {0, "mn_edit_strike", "P&rzekreślenie"_pl},
    {0, "mnm_format_text", "&Tekst"},
    {1, "mn_edit_big", "&Większy"_pl},
    {1, "mn_edit_small", "&Mniejszy"},
    {1, "mn_edit_pre", "&Sformatowany"},
    {1, "mn_index_up", "Indeks &górny"_pl},
    {1, "mn_index_down", "Indeks &dolny"},
    {1, "mn_edit_font", "&Czcionka..."},
    {0, "mnm_format_align", "Wyrówna&nie"_pl},
    {1, "mn_edit_left", "Do &lewej"},
    {1, "mn_edit_center", "Do ś&rodka"_pl},
    {1, "mn_edit_right", "Do &prawej"},
    {1, "mn_justify", "Wy&justowane"},
    {0, "mnm_format_headers", "Na&główek"_pl},
    {1, "mn_header1", "Nagłówek &1"_pl},
    {1, "mn_header2", "Nagłówek &2"_pl},
    {1, "mn_header3", "Nagłówek &3"_pl},
    {1, "mn_header4", "Nagłówek &4"_pl},
    {1, "mn_header5", "Nagłówek &5"_pl},
    {1, "mn_header6", "Nagłówek &6"_pl},
    {0, "mnm_format_colours", "&Kolor"},
    {1, "mn_aqua", "&Morski"},
    {1, "mn_black", "&Czarny"},
    {1, "mn_Blue", "&Niebieski"},
    {1, "mn_brown", "&Brązowy"_pl},
    {1, "mn_fuchsia", "&Fuksja"},
    {1, "mn_gray", "Sza&ry"},
    {1, "mn_green", "&Zielony"},
    {1, "mn_lime", "&Jasnozielony"},
    {1, "mn_magneta", "M&agenta"},
    {1, "mn_maroon", "Bordo&wy"},
    {1, "mn_navy", "&Granatowy"},
    {1, "mn_olive", "&Oliwkowy"},
    {1, "mn_purple", "Fiole&towy"},
    {1, "mn_red", "Cz&erwony"},
    {1, "mn_silver", "&Srebrny"},
    {1, "mn_white", "B&iały"_pl},
    {1, "mn_yellow", "Żó&łty"_pl},
    {1, "", "-"},
    {1, "mn_other", "Inny &kolor..."},
    {0, "", "-"},
    {0, "mn_numlist", "L&ista numerowana"},
    {0, "mn_ordlist", "&Lista punktowana"},
    {0, "mn_frame", "Ra&mka..."},
    {0, "mn_changetoaddress", "Zamień na &adres"_pl},
    {0, "", "-"},
    {0, "mn_lowercase", "Mał&e litery"_pl},
    {0, "mn_uppercase", "&Wielkie litery"},
    {0, "mn_words", "Liczba &słownie"_pl},
};

}  // namespace

std::span<const MenuRow> SelectionMenuRows() { return kRows; }

}  // namespace morlan
