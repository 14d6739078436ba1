#include "tags/contextmenu.h"

#include <algorithm>
#include <array>
#include <memory>
#include <span>

#include "core/defs.h"
#include "core/document.h"
#include "core/documents.h"
#include "core/frontend.h"
#include "core/paths.h"
#include "core/status.h"
#include "core/text.h"
#include "tags/propertysheets.h"
#include "tags/propertytext.h"
#include "tags/tagdispatch.h"
#include "tags/tagscan.h"

namespace morlan {
namespace {

constexpr std::string_view kSoundTypes[] = {"mid"};
constexpr std::string_view kPictureTypes[] = {"jpg", "gif"};
constexpr std::string_view kPageTypes[] = {"html", "htm", "shtml", "class", "cgi", "map"};

enum class Captioned { WithName, Plain };

struct ActionRow {
  std::string_view tag, attribute;
  std::span<const std::string_view> types;
  TargetAction action;
  std::string_view caption;
  Captioned captioned = Captioned::WithName;
};

constexpr ActionRow kActions[] = {
    {"embed", "src", kSoundTypes, TargetAction::PlaySound, "Odtwórz plik "_pl},
    {"img", "src", kPictureTypes, TargetAction::PreviewPicture, "Podgląd pliku "_pl},
    {"img", "src", kPictureTypes, TargetAction::MakeImageMap, "Utwórz mapę dla "_pl},
    {"a", "href", kPageTypes, TargetAction::OpenFile, "Otwórz plik "_pl},
    {"body", "background", kPictureTypes, TargetAction::PreviewPicture, "Podgląd pliku "_pl},
    {"td", "src", kPageTypes, TargetAction::PreviewPage, "Podgląd pliku "_pl},
    {"frame", "src", kPageTypes, TargetAction::OpenFile, "Otwórz wskazany plik"_pl, Captioned::Plain},
    {"iframe", "src", kPageTypes, TargetAction::OpenFile, "Otwórz wskazany plik"_pl, Captioned::Plain},
};

// Tags whose entry is the edit entry alone.
constexpr std::string_view kEditedOnly[] = {
    "frameset",     "hr",          "basefont",   "font",    "table",           "tr",        "th",
    "form",         "cfquery",     "cfmail",     "cffile",  "cftable",         "cfcol",     "applet",
    "script",       "channel",     "logo",       "author",  "publisher",       "copyright", "keywords",
    "categoryname", "introurl",    "minstorage", "lastmod", "publicationdate", "item",      "enddate",
    "startdate",    "description", "category",
};

constexpr std::string_view kNameEntry = "xmn_tagname", kEditEntry = "xmn_item", kSheetEntry = "xmn_properties";
constexpr std::array<std::string_view, 2> kActionEntries = {"xmn_item2", "xmn_item3"};
constexpr std::string_view kTagEntries[] = {kNameEntry, kEditEntry, kActionEntries[0], kActionEntries[1], kSheetEntry};

bool Contains(std::span<const std::string_view> words, std::string_view word) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

// The path of a link, from the document's directory where it is relative. A link with a drive, as one with a scheme, is
// taken as it stands.
std::string PathOfLink(std::string_view link, std::string_view directory) {
  const std::string path = Replaced(link, "/", "\\");
  if (path.empty() || path.starts_with('\\') || path.find(':') != std::string::npos) return path;
  return WithBackslash(directory) + path;
}

std::optional<OfferedAction> LabelJump(std::string_view tag) {
  const std::string link = GetTagLinkParam(tag, "href");
  if (!link.starts_with('#')) return std::nullopt;
  const std::string label = link.substr(1);
  return OfferedAction{TargetAction::JumpToLabel, Concat({"Skocz do etykiety ", UpperCase(label)}), label};
}

std::optional<OfferedAction> ActionOf(Program& program, const ActionRow& row, std::string_view tag, std::string_view directory) {
  const std::string path = PathOfLink(GetTagLinkParam(tag, row.attribute), directory);
  const std::string shortName = FileNameOf(path);
  if (!Contains(row.types, LowerCase(ExtensionOf(shortName))) || !FileExists(program, path)) return std::nullopt;
  return OfferedAction{row.action, Concat({row.caption, row.captioned == Captioned::WithName ? shortName : ""}), path};
}

// The pop-up menu between the click that set it up and the entry that is picked.
class ContextMenu {
 public:
  explicit ContextMenu(Program& program) : program_(program) {}

  void MouseDown(TEditor& document, MouseButton button) {
    if (program_.tagState.ColorizeRunning) return;
    Menu& menu = document.xmnm_editpopup;
    shown_.clear();
    for (const std::string_view name : kTagEntries) menu.SetVisible(name, false);
    if (button != MouseButton::Right) return;
    if (document.EditedText.SelLength() == 0) SetUpForTag(document);
    program_.frontEnd.PopUp(menu);
  }

  void RunAction(std::size_t entry) const {
    if (entry >= shown_.size()) return;
    const OfferedAction offered = shown_[entry];
    if (offered.action == TargetAction::JumpToLabel) program_.DialogResult = offered.target;
    program_.tagState.targetActions.at(offered.action)(offered.target);
  }

  void EditTagShown() const {
    if (program_.ActiveDocument) EditTag(program_, program_.ActiveDocument->xmnm_editpopup.Find(kNameEntry)->caption);
  }

 private:
  void SetUpForTag(TEditor& document) {
    ShowBusy(program_, "");
    const FoundTag found = FindTagAt(document.EditedText.Text(), document.EditedText.SelStart());
    if (found.start != 0) ShowTag(document, found);
    ShowReady(program_);
  }

  void ShowTag(TEditor& document, const FoundTag& found) {
    program_.tagState.CurrentTagStart = found.start;
    program_.tagState.CurrentTagText = found.text;
    const std::string name = LowerCase(GetTagName(found.text));
    const std::string caption = Concat({"<", UpperCase(name), ">"});
    document.xmnm_editpopup.SetCaption(kNameEntry, caption);
    document.xmnm_editpopup.SetVisible(kSheetEntry, true);
    document.xmnm_editpopup.SetEnabled(kSheetEntry, HasPropertySheet(program_, TagNameOf(found.text)));
    const TagOffer offer = OfferFor(program_, found.text, name, PathOf(document.Caption()));
    if (offer.isKnown) ShowTagEntries(document.xmnm_editpopup, offer, caption);
  }

  void ShowTagEntries(Menu& menu, const TagOffer& offer, std::string_view caption) {
    menu.SetVisible(kNameEntry, true);
    menu.SetEnabled(kNameEntry, false);  // it only names the tag
    menu.SetVisible(kEditEntry, true);
    menu.SetEnabled(kEditEntry, HasTagEditor(program_, caption));  // DESCRIPTION and CATEGORY have none
    for (const OfferedAction& offered : offer.actions) {
      if (shown_.size() == kActionEntries.size() || !program_.tagState.targetActions.contains(offered.action)) continue;
      menu.SetCaption(kActionEntries[shown_.size()], offered.caption);
      menu.SetVisible(kActionEntries[shown_.size()], true);
      shown_.push_back(offered);
    }
  }

  Program& program_;
  std::vector<OfferedAction> shown_;  // in the order of kActionEntries
};

}  // namespace

TagOffer OfferFor(Program& program, std::string_view tag, std::string_view name, std::string_view directory) {
  TagOffer offer;
  offer.isKnown = Contains(kEditedOnly, name);
  for (const ActionRow& row : kActions) {
    if (row.tag != name) continue;
    offer.isKnown = true;
    if (auto action = ActionOf(program, row, tag, directory)) offer.actions.push_back(std::move(*action));
  }
  if (name == "a")
    if (auto jump = LabelJump(tag)) offer.actions = {std::move(*jump)};
  return offer;
}

void RegisterContextMenu(Program& program) {
  const auto menu = std::make_shared<ContextMenu>(program);
  program.hooks.mouseDown = [menu](TEditor& document, MouseButton button) { menu->MouseDown(document, button); };
  program.commands.OnMenu(kEditEntry, [menu] { menu->EditTagShown(); });
  for (std::size_t i = 0; i < kActionEntries.size(); ++i) program.commands.OnMenu(kActionEntries[i], [menu, i] { menu->RunAction(i); });
  program.tagState.targetActions[TargetAction::OpenFile] = [&program](const std::string& path) { OpenDocument(program, path); };
}

}  // namespace morlan
