#pragma once

#include "od/dxf/record.h"
#include "samples/first_floor/sheet.h"

namespace samples {

/// Appends groups to a record, one after the other.
class Groups {
 public:
  explicit Groups(dxf::Record& record) : record_(&record) {}

  Groups& mark(int code, std::string_view text) {
    return string(code, std::u16string(text.begin(), text.end()));
  }
  Groups& string(int code, std::u16string_view text) {
    record_->insert_string(record_->size(), code, text);
    return *this;
  }
  Groups& real(int code, double value) {
    record_->insert_double(record_->size(), code, value);
    return *this;
  }
  Groups& integer(int code, int value) {
    record_->insert_int(record_->size(), code, value);
    return *this;
  }
  Groups& handle(int code, dxf::Handle value) {
    record_->insert_handle(record_->size(), code, value);
    return *this;
  }
  Groups& point(int code, Position at) {
    record_->insert_point(record_->size(), code, {at.x, at.y, 0});
    return *this;
  }
  dxf::Record& record() const { return *record_; }

 private:
  dxf::Record* record_;
};

}  // namespace samples
