#pragma once
// An owning list in insertion order with O(1) removal of any member: the
// links live in the members themselves, so a segment with many thousands of
// items deletes one of them without searching.
#include <cstddef>
#include <iterator>
#include <memory>

namespace graphics {

template <typename T>
class OwnedList;

// Base of every T kept in an OwnedList<T>.
template <typename T>
class ListLink {
 public:
  ListLink() = default;
  // A copied member starts outside any list.
  ListLink(const ListLink&) {}
  ListLink& operator=(const ListLink&) = delete;

 private:
  friend class OwnedList<T>;
  T* prev_ = nullptr;
  T* next_ = nullptr;
};

template <typename T>
class OwnedList {
 public:
  class Iterator {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = T;
    using difference_type = std::ptrdiff_t;
    using pointer = T*;
    using reference = T&;

    Iterator() = default;
    explicit Iterator(T* item) : item_(item) {}
    T& operator*() const { return *item_; }
    T* operator->() const { return item_; }
    Iterator& operator++() {
      item_ = Link(*item_).next_;
      return *this;
    }
    Iterator operator++(int) {
      Iterator before = *this;
      ++*this;
      return before;
    }
    bool operator==(const Iterator&) const = default;

   private:
    T* item_ = nullptr;
  };

  OwnedList() = default;
  OwnedList(const OwnedList&) = delete;
  OwnedList& operator=(const OwnedList&) = delete;
  ~OwnedList() { Clear(); }

  T& PushBack(std::unique_ptr<T> owned) {
    T* item = owned.release();
    Link(*item).prev_ = last_;
    Link(*item).next_ = nullptr;
    if (last_ != nullptr) {
      Link(*last_).next_ = item;
    } else {
      first_ = item;
    }
    last_ = item;
    ++size_;
    return *item;
  }

  // `item` must be a member of this list.
  std::unique_ptr<T> Remove(T& item) {
    ListLink<T>& link = Link(item);
    (link.prev_ != nullptr ? Link(*link.prev_).next_ : first_) = link.next_;
    (link.next_ != nullptr ? Link(*link.next_).prev_ : last_) = link.prev_;
    link.prev_ = link.next_ = nullptr;
    --size_;
    return std::unique_ptr<T>(&item);
  }

  void Clear() {
    while (first_ != nullptr) Remove(*first_);
  }

  bool empty() const { return size_ == 0; }
  size_t size() const { return size_; }
  Iterator begin() const { return Iterator(first_); }
  Iterator end() const { return Iterator(); }

 private:
  static ListLink<T>& Link(T& item) { return static_cast<ListLink<T>&>(item); }

  T* first_ = nullptr;
  T* last_ = nullptr;
  size_t size_ = 0;
};

}  // namespace graphics
