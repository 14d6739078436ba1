// A sequence with a gap where it was last edited, so that edits that lie near each other move few elements. The elements
// stand in one block: those in front of the gap, the gap, those behind it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>

namespace morlan {

// Container is a std::string or a std::vector. Offsets count from 0 and must lie within the sequence.
template <class Container>
class GapBuffer {
 public:
  using Value = typename Container::value_type;

  std::size_t Size() const { return size_; }
  std::size_t GapStart() const { return gapStart_; }
  Value At(std::size_t offset) const { return block_[offset < gapStart_ ? offset : offset + GapLength()]; }
  const Value* Front() const { return block_.data(); }
  const Value* Back() const { return block_.data() + gapStart_ + GapLength(); }

  // The room that a sequence takes with its gap. It grows with the sequence, so that many small insertions cost a move of
  // the whole only now and then; the gap stays a small part of it, so that memory does.
  static std::size_t RoomFor(std::size_t size) {
    constexpr std::size_t kSmallestGap = 1024;
    return size + std::max(kSmallestGap, size / 32);
  }

  // The sequence becomes the given one, without a gap. A container that has room for one by its capacity spares the first
  // edit a copy of the whole.
  void Assign(Container elements) {
    block_ = std::move(elements);
    size_ = gapStart_ = block_.size();
  }

  // The whole sequence in one piece. Costs one move of the elements behind the gap.
  const Container& Whole() const {
    if (GapLength() != 0) {
      std::copy(Back(), Back() + (size_ - gapStart_), block_.data() + gapStart_);
      block_.resize(size_);
    }
    gapStart_ = size_;
    return block_;
  }

  // Puts `inserted` elements of unknown value at `offset` in the place of `removed` ones. The new elements follow each
  // other from the answer on.
  Value* Replace(std::size_t offset, std::size_t removed, std::size_t inserted) {
    if (GapLength() + removed < inserted) Grow(inserted);
    MoveGap(offset, removed);
    size_ = size_ - removed + inserted;
    gapStart_ = offset + inserted;
    return block_.data() + offset;
  }

  // Calls action(first, last) for the one or two stretches that hold the elements from `offset` on.
  template <class Action>
  void ForStretches(std::size_t offset, std::size_t length, Action action) {
    const std::size_t inFront = offset < gapStart_ ? std::min(length, gapStart_ - offset) : 0;
    if (inFront != 0) action(block_.data() + offset, block_.data() + offset + inFront);
    if (inFront == length) return;
    Value* const behind = block_.data() + offset + inFront + GapLength();
    action(behind, behind + (length - inFront));
  }

  void CopyTo(Value* target, std::size_t offset, std::size_t length) const {
    const std::size_t inFront = offset < gapStart_ ? std::min(length, gapStart_ - offset) : 0;
    target = std::copy(Front() + offset, Front() + offset + inFront, target);
    if (inFront == length) return;
    const Value* const behind = Front() + offset + inFront + GapLength();
    std::copy(behind, behind + (length - inFront), target);
  }

 private:
  std::size_t GapLength() const { return block_.size() - size_; }

  // The gap comes to lie at `offset` and swallows the `removed` elements there.
  void MoveGap(std::size_t offset, std::size_t removed) {
    Value* const data = block_.data();
    const std::size_t gap = GapLength();
    if (gapStart_ > offset + removed)
      std::move_backward(data + offset + removed, data + gapStart_, data + gapStart_ + gap);
    else if (gapStart_ < offset)
      std::move(data + gapStart_ + gap, data + offset + gap, data + gapStart_);
    gapStart_ = offset;
  }

  // Widens the gap so that `inserted` elements fit in.
  void Grow(std::size_t inserted) {
    const std::size_t behind = size_ - gapStart_;
    const std::size_t wanted = RoomFor(size_ + inserted);
    const std::size_t oldGap = GapLength();
    if (wanted <= block_.capacity()) {
      block_.resize(wanted);
      Value* const back = block_.data() + gapStart_ + oldGap;
      std::move_backward(back, back + behind, block_.data() + wanted);
      return;
    }
    // A container that grows by itself would double.
    Container grown;
    grown.reserve(wanted);
    grown.assign(Front(), Front() + gapStart_);
    grown.resize(wanted - behind);
    grown.insert(grown.end(), Back(), Back() + behind);
    block_ = std::move(grown);
  }

  mutable Container block_;  // its size is that of the sequence and the gap
  std::size_t size_ = 0;
  mutable std::size_t gapStart_ = 0;
};

}  // namespace morlan
