// What may be wrong with the look of a dialog and with its use by keyboard. Each check answers with what it found, a line
// each in words for people; an empty answer is a sound dialog. Only what is visible is looked at.
#pragma once

#include <string>
#include <vector>

class QWidget;

namespace morlan {

class Form;

using Findings = std::vector<std::string>;

// Texts of labels, buttons, boxes, lists' rows, tabs, groups and the title that have less room than they need.
Findings ClippedTexts(QWidget& dialog);
Findings OverlappingControls(QWidget& dialog);
Findings ControlsOutsideTheirParents(QWidget& dialog);
// Controls that take the focus and tell a screen reader no words.
Findings NamelessControls(QWidget& dialog);
Findings DuplicateMnemonics(QWidget& dialog);
// Larger than a screen of 1280 by 720 with a window's frame and a panel.
Findings TooLarge(QWidget& dialog);
// Without a button that Enter or Esc presses.
Findings MissingButtons(const Form& form);
// Controls that take the focus and are never reached by Tab.
Findings OutOfReach(QWidget& dialog);
// Steps of Tab that go up or back on the screen, other than to the next column.
Findings TabJumps(QWidget& dialog);
// Fields, boxes and buttons that only show a sign, without a tip that explains them.
Findings MissingToolTips(QWidget& dialog);

}  // namespace morlan
