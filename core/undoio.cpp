#include "core/undoio.h"

#include <utility>

#include "core/defs.h"
#include "core/document.h"

namespace morlan {

void UndoIO::AddChange(std::size_t position, std::size_t selectionLength, std::string_view inserted, std::string_view removed,
                       ChangeKind kind) {
  if (inserted.empty() && removed.empty() && selectionLength == 0) return;
  if (records_.size() == kDepth) records_.pop_front();
  records_.push_back({std::string(inserted), position, selectionLength, kind, std::string(removed)});
}

void UndoIO::AddRemovedToNewest(std::string_view removed) {
  if (!records_.empty()) records_.back().removed.insert(0, removed);
}

void UndoIO::DoUndo(TEditor& document) {
  if (records_.empty()) return;
  const UndoRecord record = std::move(records_.back());
  records_.pop_back();
  MlnEditor& editor = document.EditedText;
  editor.Select(record.position, record.kind == ChangeKind::Replacement ? record.inserted.size() : 0);
  document.ReplaceAndColour(record.removed);
  if (record.selectionLength != 0) editor.Select(record.position, record.selectionLength);
}

}  // namespace morlan
