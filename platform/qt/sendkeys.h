// Key strokes written as a text, sent to a widget.
#pragma once

#include <string_view>

class QWidget;

namespace morlan {

// "^" "%" and "+" in front of a key stand for Ctrl, Alt and Shift, "~" for Enter; "{NAME}" is a named key such as
// "{F3}" or "{DEL}", "{NAME 5}" that key five times, and "{+}" the sign itself. Unknown names send nothing.
void PostKeys(std::string_view keys, QWidget& widget);

}  // namespace morlan
