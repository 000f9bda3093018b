// The store under the growing tables: items from 1, room made in blocks of 10.
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace dorvalin {

template <class T>
class BlockArray {
 public:
  static constexpr int kBlock = 10;

  /// `leastBlocks` stay allocated even when there is no item.
  explicit BlockArray(int leastBlocks = 0) : leastBlocks_(leastBlocks) { SetCount(0); }

  [[nodiscard]] int Count() const { return count_; }

  /// Keeps what is there. Room that a smaller count leaves within the last block keeps its contents
  /// too; new room is empty. A negative count is 0.
  void SetCount(int count) {
    count_ = std::max(count, 0);
    const int blocks = std::max(count_ / kBlock + (count_ % kBlock != 0), leastBlocks_);
    items_.resize(static_cast<std::size_t>(blocks) * kBlock);
  }

  /// The item at an index, counted from 1; nullptr outside the room there is, which may reach
  /// beyond the count. Valid until the count changes.
  [[nodiscard]] const T* At(int index) const {
    return index >= 1 && static_cast<std::size_t>(index) <= items_.size() ? &items_[Slot(index)]
                                                                          : nullptr;
  }
  [[nodiscard]] T* At(int index) { return const_cast<T*>(std::as_const(*this).At(index)); }

  /// Moves the items from `index` on up and fills the gap; the caller has checked the index.
  void OpenGap(int index, int length, const T& value) {
    const int old = count_;
    SetCount(old + length);
    const auto first = items_.begin() + (index - 1);
    std::move_backward(first, items_.begin() + old, items_.begin() + count_);
    std::fill_n(first, length, value);
  }

  /// Moves the items behind `length` ones at `index` down over them; the caller has checked both.
  void CloseGap(int index, int length) {
    const auto first = items_.begin() + (index - 1);
    std::move(first + length, items_.begin() + count_, first);
    SetCount(count_ - length);
  }

 private:
  static std::size_t Slot(int index) { return static_cast<std::size_t>(index) - 1; }

  int leastBlocks_;
  int count_ = 0;
  std::vector<T> items_;
};

}  // namespace dorvalin
