// The undo stack of one document: the last 50 changes. There is no redo.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>

namespace morlan {

class TEditor;

enum class ChangeKind : std::uint8_t { Replacement = 1, Deletion = 2 };

struct UndoRecord {
  std::string inserted;
  std::size_t position = 0;         // SelStart where the change took place, from 0
  std::size_t selectionLength = 0;  // of the selection to restore; 0 for none
  ChangeKind kind = ChangeKind::Replacement;
  std::string removed;
};

class UndoIO {
 public:
  static constexpr std::size_t kDepth = 50;

  // Records nothing when both texts are empty and the selection length is 0.
  void AddChange(std::size_t position, std::size_t selectionLength, std::string_view inserted, std::string_view removed, ChangeKind kind);
  // Says that the newest change also took a text away, at its place and before it put its own there.
  void AddRemovedToNewest(std::string_view removed);
  // Applies the newest record to the document and drops it.
  void DoUndo(TEditor& document);
  std::size_t Count() const { return records_.size(); }
  void Clear() { records_.clear(); }

 private:
  std::deque<UndoRecord> records_;
};

}  // namespace morlan
