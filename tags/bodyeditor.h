// The dialog of a page's properties, the BODY tag. It reads the active document itself.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class Program;

// What the tag says of the page.
struct BodyValues {
  std::string background;
  bool watermark = false;
  std::optional<Colour> bgColor, textColor, linksColor, visitedLinks, activeLinks;  // nothing leaves it to the browser
};
// The opening tag, with what is set alone.
std::string BodyText(const BodyValues& values);

// The first BODY tag of a text, from its "<" up to but not including its ">"; empty when there is none. Only capitals
// are seen: "<body>" is none.
std::string_view FindBodyTag(std::string_view text);

// Fills its fields from the document each time that it is shown, as far as that has the tag.
struct BodyTag : Form {
  TextBox background{*this, "background"};
  Button backgroundFile{*this, "backgroundFile", "..."};
  CheckBox watermark{*this, "watermark", "Rysunek w tle nieruchomy (&znak wodny)"};
  ColourBox BGColor{*this, "BGColor", "", RgbColour(255, 255, 255)};
  Button noBGColor{*this, "noBGColor", "×"_pl};
  ColourBox TextColor{*this, "TextColor", ""};
  Button noTextColor{*this, "noTextColor", "×"_pl};
  ColourBox LinksColor{*this, "LinksColor", "", RgbColour(0, 0, 255)};
  Button noLinksColor{*this, "noLinksColor", "×"_pl};
  ColourBox VisitedLinks{*this, "VisitedLinks", "", RgbColour(128, 0, 128)};
  Button noVisitedLinks{*this, "noVisitedLinks", "×"_pl};
  ColourBox ActiveLinks{*this, "ActiveLinks", "", RgbColour(255, 0, 0)};
  Button noActiveLinks{*this, "noActiveLinks", "×"_pl};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit BodyTag(Program& program);
  BodyValues Values() const;

 private:
  void Form_Load();
  void SetUpColours();
  Program& program_;
};

// Shows the dialog and writes the tag: over the document's BODY tag; else, with a "</BODY>", behind "</head>"; and where
// there is none, at the caret.
void EditBody(Program& program);

}  // namespace morlan
