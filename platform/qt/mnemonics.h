// The letters by which a dialog's controls are reached with Alt.
#pragma once

#include <QSet>
#include <QString>

class QWidget;

namespace morlan {

// Moves the mark of a caption to its first letter that is free: one with a key of its own before a Polish one, one that begins a
// word before others. Takes the mark away where none is free.
QString WithFreeMnemonic(const QString& caption, const QSet<QChar>& taken);

// Lets no two controls that are seen together have the same letter: the first one keeps it. Pages that lie behind each other may
// share letters.
void PartMnemonics(QWidget& dialog);

}  // namespace morlan
