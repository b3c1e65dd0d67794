#include "od/dxf/record_list.h"

#include <utility>

namespace dxf {

RecordList::RecordList(RecordList&& other) noexcept
    : first_(std::exchange(other.first_, nullptr)),
      last_(std::exchange(other.last_, nullptr)),
      size_(std::exchange(other.size_, 0)) {}

RecordList& RecordList::operator=(RecordList&& other) noexcept {
  if (this == &other) return *this;
  clear();
  first_ = std::exchange(other.first_, nullptr);
  last_ = std::exchange(other.last_, nullptr);
  size_ = std::exchange(other.size_, 0);
  return *this;
}

RecordList::~RecordList() { clear(); }

void RecordList::clear() {
  while (first_) take(*first_);
}

Record& RecordList::insert_before(Record* place, std::unique_ptr<Record> record) {
  Record* const made = record.release();
  Record* const before = place ? place->previous_ : last_;
  made->previous_ = before;
  made->next_ = place;
  (before ? before->next_ : first_) = made;
  (place ? place->previous_ : last_) = made;
  ++size_;
  return *made;
}

std::unique_ptr<Record> RecordList::take(Record& record) {
  (record.previous_ ? record.previous_->next_ : first_) = record.next_;
  (record.next_ ? record.next_->previous_ : last_) = record.previous_;
  record.previous_ = nullptr;
  record.next_ = nullptr;
  --size_;
  return std::unique_ptr<Record>(&record);
}

}  // namespace dxf
