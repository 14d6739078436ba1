#include <vector>

#include "core/menus.h"
#include "core/text.h"
#include "core/toolbars.h"

namespace morlan {
namespace {

constexpr MenuRow kFileRows[] = {
    {0, "xmnm_file", "&Plik"},
    {1, "xmn_files_new", "&Nowy...", "Ctrl+N"},
    {1, "xmn_open", "&Otwórz..."_pl, "Ctrl+O"},
    {1, "", "-"},
    {1, "xmn_save", "&Zapisz", "Ctrl+S"},
    {1, "xmn_saveas", "Zapisz &jako...", "Ctrl+Shift+S"},
    {1, "", "-"},
    {1, "xmn_close", "Za&mknij", "Ctrl+W"},
    {1, "xmn_closeall", "Zamknij &wszystkie", "Ctrl+Shift+W"},
    {1, "", "-"},
    {1, "xmn_recovery", "Odzy&skaj..."},
    {1, "", "-"},
    {1, "xmn_preview", "Po&dgląd"_pl, "F5"},
    {1, "mn_internal_view", "Podgląd w oknie &edytora"_pl, "Shift+F5"},
    {1, "mn_browsers", "Podgląd w &przeglądarce..."_pl, "Ctrl+F5"},
    {1, "mn_alwaysview", "Zawsze pokazuj pl&ik..."},
    {1, "xmn_print", "D&rukuj...", "Ctrl+P"},
    {1, "", "-"},
    {1, "mn_lastopen(0)", ""},
    {1, "mn_lastopen(1)", ""},
    {1, "mn_lastopen(2)", ""},
    {1, "mn_lastopen(3)", ""},
    {1, "", "-"},
    {1, "xmn_quit", "Za&kończ"_pl, "Ctrl+Q"},
};

constexpr MenuRow kEditRows[] = {
    {0, "xmnm_edit", "&Edycja"},
    {1, "xmn_undo", "&Cofnij", "Ctrl+Z"},
    {1, "", "-"},
    {1, "xmn_cut", "Wy&tnij", "Ctrl+X"},
    {1, "xmn_copy", "&Kopiuj", "Ctrl+C"},
    {1, "xmn_paste", "&Wklej", "Ctrl+V"},
    {1, "", "-"},
    {1, "xmn_selectall", "Zaznacz w&szystko", "Ctrl+A"},
    {1, "", "-"},
    {1, "xmn_repeatlastinsertion", "Powtórz wstawienie <>"_pl, "Ctrl+,"},
    {0, "xmnm_search", "&Szukaj"},
    {1, "xmn_find", "&Znajdź..."_pl, "Ctrl+F"},
    {1, "xmn_findnext", "Znajdź &następny"_pl, "F3"},
    {1, "xmn_replace", "Z&amień..."_pl, "Ctrl+H"},
    {1, "", "-"},
    {1, "xmn_jumptolabel", "&Skocz do etykiety...", "Ctrl+G"},
};

constexpr MenuRow kToolRows[] = {
    {0, "xmnm_tools", "&Narzędzia"_pl},
    {1, "xmn_checkspeeling", "Sprawdź &pisownię..."_pl, "F7"},
    {1, "xmn_charsets", "&Strona kodowa"},
    {2, "xmn_win1250", "&Windows-1250", "", true},
    {2, "xmn_iso88592", "&ISO-8859-2", "", true},
    {2, "mn_unicode", "&UTF-8", "", true},
    {2, "xmn_ascii", "&ASCII", "", true},
    {2, "xmn_plcharinne", "I&nna...", "", true},
    {2, "", "-"},
    {2, "xmn_symbols", "Zapisuj polskie znaki jako &symbole", "", true},
    {1, "mn_conventer", "Konwerter &formatów..."_pl},
    {1, "", "-"},
    {1, "mn_propertieseditor", "Edycja &właściwości..."_pl},
    {1, "mnm_macros", "&Makra"},
    {2, "mn_macrorun", "&Wykonaj"},
    {2, "mn_macroparam", "&Parametry..."},
    {2, "", "-"},
    {2, "mn_macronew", "&Nowe..."},
    {2, "mn_macroopen", "&Otwórz"_pl},
    {2, "mn_macrocreator", "&Kreator..."},
    {1, "", "-"},
    {1, "xmn_configuration", "&Konfiguracja..."},
};

constexpr MenuRow kPanelRows[] = {
    {0, "xmnm_view", "Wi&dok"},
    {1, "xmn_tools_visible", "Listwa &poleceń"_pl, "", true},
    {1, "xmn_filemanager_visible", "&Menadżer plików"_pl, "", true},
    {1, "xmn_windowsmanager_visible", "Lista &otwartych plików"_pl, "", true},
    {1, "xmn_symbols_visible", "&Symbole", "", true},
    {1, "xmn_status_visible", "Listwa s&tatusu", "", true},
};

constexpr MenuRow kTextViewRows[] = {
    {1, "", "-"},
    {1, "xmn_warp", "&Zawijanie wierszy", "", true},
    {1, "mn_linenumbers", "&Numery wierszy", "", true},
    {1, "mn_zoomreset", "Zwykła wie&lkość tekstu"_pl, "Ctrl+0"},
    {1, "", "-"},
    {1, "xmn_ModeHtml", "Tryb &HTML", "", true},
    {1, "xmn_ModeCdf", "Tryb &CDF", "", true},
};

constexpr MenuRow kThemeRows[] = {
    {1, "", "-"},
    {1, "mnm_theme", "&Wygląd"_pl},
    {2, "mn_theme_system", "Jak w &systemie", "", true},
    {2, "mn_theme_light", "&Jasny", "", true},
    {2, "mn_theme_dark", "&Ciemny", "", true},
};

constexpr MenuRow kWindowRows[] = {
    {0, "xmnm_windows", "&Okno"},
    {1, "xmn_nextdocument", "&Następny dokument"_pl, "Ctrl+Tab"},
    {1, "xmn_previousdocument", "&Poprzedni dokument", "Ctrl+Shift+Tab"},
};

constexpr MenuRow kInformationRows[] = {
    {0, "xmnm_help", "Pomo&c"},
    {1, "xmn_about", "&O programie..."},
};

constexpr MenuRow kFrameFileRows[] = {
    {0, "mnm_file", "&Plik"},
    {1, "mn_files_new", "&Nowy...", "Ctrl+N"},
    {1, "mn_open", "&Otwórz..."_pl, "Ctrl+O"},
    {1, "", "-"},
    {1, "mn_lastopen(0)", ""},
    {1, "mn_lastopen(1)", ""},
    {1, "mn_lastopen(2)", ""},
    {1, "mn_lastopen(3)", ""},
    {1, "", "-"},
    {1, "mn_quit", "Za&kończ"_pl, "Ctrl+Q"},
};

std::vector<MenuRow> Joined(std::initializer_list<std::span<const MenuRow>> tables) {
  std::vector<MenuRow> rows;
  for (const std::span<const MenuRow> table : tables) rows.insert(rows.end(), table.begin(), table.end());
  return rows;
}

}  // namespace

std::span<const MenuRow> DocumentMenuRows() {
  static const std::vector<MenuRow> kRows =
      Joined({kFileRows, kEditRows, InsertMenuRows(), kToolRows, kPanelRows, kTextViewRows, kThemeRows, kWindowRows, kInformationRows});
  return kRows;
}

std::span<const MenuRow> FrameMenuRows() {
  static const std::vector<MenuRow> kRows = Joined({kFrameFileRows, kPanelRows, kThemeRows, kInformationRows});
  return kRows;
}

}  // namespace morlan
