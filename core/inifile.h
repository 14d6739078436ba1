// The keyed text store: a header line "[Orvil Dantrel's - MORLAN - INI File (C)1997]", item lines "[Item]" and under each
// sub-item lines "Name=value", all ended by CR LF, in Windows-1250. There is no quoting, no escape and no comment.
//
// Two families answer differently, on purpose. GetSubItemValue and SetSubItemValue look for names as plain substrings of
// the whole file, in any letter case; the first "[" behind an item ends it, and a key also matches the tail of a longer
// name. The line family compares whole names with the blanks removed and rewrites through "inifile.tmp" in the current
// directory. A failed look-up answers with the error value, the empty string unless SetError was called.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace morlan {

class INIFile {
 public:
  explicit INIFile(Files& files);

  // Binds the instance to a file. It touches no file.
  void Init(std::string_view fileName);
  const std::string& FileName() const { return fileName_; }
  void SetError(std::string_view value);

  // A missing file is made, with length 0. On a last line without CR the value loses its last character.
  std::string GetSubItemValue(std::string_view item, std::string_view subItem);
  // Makes item and sub-item where they are missing. The file is not truncated: when the text gets shorter, the old
  // file's last bytes stay behind it.
  void SetSubItemValue(std::string_view item, std::string_view subItem, std::string_view value);

  // The scan does not stop at the next item: a sub-item is found in any item that follows the wanted one.
  std::string GetSubItemValueSlow(std::string_view item, std::string_view subItem);
  void SetSubItemValue2(std::string_view item, std::string_view subItem, std::string_view value);
  void RemoveSubItem(std::string_view item, std::string_view subItem);
  // A key that is the front of an existing longer one counts as present.
  void CreateSubItem(std::string_view item, std::string_view subItem);
  void CreateItem(std::string_view item);

  void CreateFile();  // a new store with only its header line
  void OpenFile();    // makes the store when it cannot be read
  void CloseFile();
  void AppendFile();
  void OpenTmp();
  bool CloseTmp();  // writes what was printed; false when that failed or none was open
  void KillTmp();
  static std::string KillSpaces(std::string_view text);  // without the blanks (32), wherever they stand

 private:
  // Copies the store, giving the name of the sub-item's first line, "=" included, to `print` instead of copying that line.
  void RewriteSubItem(std::string_view item, std::string_view subItem, const std::function<void(std::string_view name)>& print);
  void PrintToTmp(std::string_view line);
  void ReplaceByTmp();

  Files& files_;
  std::string fileName_, errorValue_;
  std::string content_;    // of the open file
  std::string appended_;   // what AppendFile's handle has yet to write
  std::string temporary_;  // of the open temporary file
  enum class Mode { Closed, Input, Append } mode_ = Mode::Closed;
  bool temporaryOpen_ = false;
};

}  // namespace morlan
