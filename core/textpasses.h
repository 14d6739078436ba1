// What a document's text goes through on its way in and out, supplied by the rooms above. An empty entry leaves the
// text as it is.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace morlan {

class MlnEditor;
class TEditor;

struct TextPasses {
  // Text as read from `path` to the text that is edited, and back.
  std::function<std::string(std::string text, std::string_view path)> decode;
  std::function<std::string(std::string text)> encode;
  std::function<std::string(std::string text, std::string_view path)> updateBlocks;
  // Text of a named set to the text that is edited.
  std::function<std::string(std::string text, std::string_view charset)> fromCharset;
  // Ticks the character-set entries of a document's menu by the text's META tag.
  std::function<void(TEditor& document)> markCharset;

  // Reads the colour settings and gives them to all open documents.
  std::function<void()> loadColours;
  // Colours the open documents anew if ColoursChanged is set.
  std::function<void()> recolourAll;
  // The names of the character sets that documents can be kept in.
  std::function<std::vector<std::string>()> charsetNames;
  std::function<void(MlnEditor& editor)> colourDocument;
  // Positions from 1; below 1 they mean the first and the last character.
  std::function<void(MlnEditor& editor, std::ptrdiff_t from, std::ptrdiff_t to)> colourBlock;
  // After the user's edit of the characters from offset `from` up to `to`: gives back plain colour to what is plain
  // again and colours what the edit reaches.
  std::function<void(MlnEditor& editor, std::size_t from, std::size_t to)> colourEdited;

  // META tags: in a text that is not in a window yet, and in the active document.
  std::function<std::string(std::string text, std::string_view attribute, std::string_view name, std::string_view content)> setMetaInText;
  std::function<void(std::string_view attribute, std::string_view name, std::string_view content)> setMeta;
};

}  // namespace morlan
