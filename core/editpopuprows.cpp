#include "core/menus.h"
#include "core/toolbars.h"
#include "platform/encoding.h"

namespace morlan {
namespace {

// The captions of the tag's entries are set when the menu comes up.
constexpr MenuRow kRows[] = {
    {0, "xmn_tagname", "<>"},
    {0, "xmn_item", "&Edytuj znacznik..."},
    {0, "xmn_item2", ""},
    {0, "xmn_item3", ""},
    {0, "xmn_properties", "Właściwości z&nacznika..."_pl},
    {0, "xmn_editmenuline", "-"},
    {0, "xmn_undo", "&Cofnij"},
    {0, "", "-"},
    {0, "xmn_cut", "Wy&tnij"},
    {0, "xmn_copy", "&Kopiuj"},
    {0, "xmn_paste", "&Wklej"},
    {0, "", "-"},
    {0, "xmn_selectall", "&Zaznacz wszystko"},
};

}  // namespace

std::span<const MenuRow> EditPopupRows() { return kRows; }

}  // namespace morlan
