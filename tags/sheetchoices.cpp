#include "tags/sheetchoices.h"

#include "platform/encoding.h"
#include "tags/tageditor.h"

namespace morlan {
namespace {

struct KindRow {
  std::string_view name, toolTip;
  bool hasChoices;
};

// In the order of ParamKind.
constexpr KindRow kKinds[] = {
    {"Kolor", "Kolor: jego nazwa albo # i sześć cyfr szesnastkowych"_pl, true},
    {"Tekst", "Wartość atrybutu; puste pole pomija atrybut"_pl, false},
    {"Lista", "Wartość z listy albo własna; puste pole pomija atrybut"_pl, true},
    {"Lista z pliku", "Wartość z listy albo własna; puste pole pomija atrybut"_pl, true},
    {"Przełącznik"_pl, "TRUE wstawia samą nazwę atrybutu, FALSE ją pomija"_pl, true},
    {"Zdarzenie", "Polecenia skryptu, które wykona zdarzenie"_pl, false},
    {"Styl!", "", false},
    {"Okienko dialogowe", "Wartość atrybutu; przycisk obok pomaga ją wybrać"_pl, false},
};

constexpr std::string_view kKindNames[] = {kKinds[0].name, kKinds[1].name, kKinds[2].name, kKinds[3].name,
                                           kKinds[4].name, kKinds[5].name, kKinds[6].name, kKinds[7].name};
// In the order of ParamDialog.
constexpr std::string_view kDialogNames[] = {"Kolor", "Pliki graficzne", "Pliki HTML", "Wszystkie pliki"};
constexpr std::string_view kAllFiles = "Wszystkie pliki|*.*";

}  // namespace

std::span<const std::string_view> KindNames() { return kKindNames; }
std::span<const std::string_view> DialogNames() { return kDialogNames; }

bool HasChoices(ParamKind kind) { return kKinds[static_cast<std::size_t>(kind)].hasChoices; }
std::string_view ToolTipOf(ParamKind kind) { return kKinds[static_cast<std::size_t>(kind)].toolTip; }

std::vector<std::string> ChoicesOf(const ParamRecord& param) {
  switch (param.kind) {
    case ParamKind::Colour:
      return {kSheetColours.begin(), kSheetColours.end()};
    case ParamKind::List:
      return param.values;
    case ParamKind::Switch:
      return {"TRUE", "FALSE"};
    default:
      return {};
  }
}

std::string_view FilterOf(ParamDialog type) {
  switch (type) {
    case ParamDialog::Colour:
      return {};
    case ParamDialog::Pictures:
      return kPictureFiles;
    case ParamDialog::Pages:
      return kPageFiles;
    case ParamDialog::AllFiles:
      return kAllFiles;
  }
  return {};
}

}  // namespace morlan
