#include "od/dxf/record_builder.h"

#include "od/dxf/number_text.h"

namespace dxf {

void RecordBuilder::add(const Group& group) {
  if (group.code() == 0) {
    close_record();
    at_end_mark_ = trim(group.value()) == "EOF";
  }
  if (group.code() != 999) has_content_ = true;
  groups_.push_back(group);
}

void RecordBuilder::close_record() {
  if (groups_.empty()) return;
  groups_.shrink_to_fit();
  auto record = std::make_unique<Record>(manner_, std::move(groups_));
  groups_.clear();
  follow_sections(records_.insert_before(nullptr, std::move(record)));
}

void RecordBuilder::follow_sections(const Record& record) {
  if (record.is("ENDSEC")) open_section_.clear();
  if (!record.is("SECTION")) return;
  const auto name = record.find(2, record.whole());
  open_section_ = name ? "the section " + std::string(trim(record[*name].value())) : "a section";
}

RecordList RecordBuilder::finish() {
  close_record();
  return std::move(records_);
}

}  // namespace dxf
