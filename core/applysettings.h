// What follows from the settings elsewhere in the program.
#pragma once

namespace morlan {

class INIFile;
class Program;

// AutoSaveInterval, from the period and its switch.
void ReadAutoSave(Program& program);
// HintShow and HintShowList.
void ReadHints(Program& program);

struct HintChoice {
  bool show, asList;
};
// Both are on while Show is not stored, whatever ShowList says.
HintChoice StoredHints(INIFile& store);

// Brings everything that is open up to what is stored now: panels, hints, the period of saving, fonts and colours.
void ApplySettings(Program& program);

}  // namespace morlan
