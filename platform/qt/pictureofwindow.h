// Looking at a start from outside: a picture of the main window, and the time that it took to come up.
#pragma once

class QWidget;

namespace morlan {

// Where MORLAN7_PICTURE names a file: true, and the program saves a picture of the window there as soon as it has come
// to rest, and ends with 0, or with 1 when the file cannot be written.
bool SavePictureAndQuit(QWidget& window);
bool IsPictureWanted();

// Where MORLAN7_TRACE_START is set: tells on the standard error how many milliseconds ago the process was started.
void TraceStart();

}  // namespace morlan
