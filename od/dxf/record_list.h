#pragma once

#include <cstddef>
#include <iterator>
#include <memory>

#include "od/dxf/record.h"

namespace dxf {

/// The records of a drawing in file order. It owns them; a record keeps its address until it is taken out.
class RecordList {
 public:
  template <typename T>
  struct Iterator {
    using iterator_category = std::forward_iterator_tag;
    using value_type = T;
    using difference_type = std::ptrdiff_t;
    using pointer = T*;
    using reference = T&;

    T* at = nullptr;
    T& operator*() const { return *at; }
    T* operator->() const { return at; }
    Iterator& operator++() {
      at = at->next();
      return *this;
    }
    Iterator operator++(int) {
      Iterator old = *this;
      at = at->next();
      return old;
    }
    friend bool operator==(const Iterator&, const Iterator&) = default;
  };

  RecordList() = default;
  RecordList(RecordList&& other) noexcept;
  RecordList& operator=(RecordList&& other) noexcept;
  ~RecordList();

  Record* first() const { return first_; }
  Record* last() const { return last_; }
  std::size_t size() const { return size_; }
  bool empty() const { return size_ == 0; }

  Iterator<Record> begin() { return {first_}; }
  Iterator<Record> end() { return {}; }
  Iterator<const Record> begin() const { return {first_}; }
  Iterator<const Record> end() const { return {}; }

  /// Puts `record` in front of `place`, or at the end if `place` is null.
  Record& insert_before(Record* place, std::unique_ptr<Record> record);
  /// Takes `record` out of the list and gives it to the caller.
  std::unique_ptr<Record> take(Record& record);
  /// Takes `record` out and destroys it.
  void erase(Record& record) { take(record); }

 private:
  void clear();

  Record* first_ = nullptr;
  Record* last_ = nullptr;
  std::size_t size_ = 0;
};

}  // namespace dxf
