#pragma once

#include <memory>
#include <string>
#include <vector>

#include "od/dxf/record_list.h"

namespace dxf {

/// Gathers groups into records and watches that they make a drawing.
class RecordBuilder {
 public:
  explicit RecordBuilder(std::shared_ptr<const Manner> manner) : manner_(std::move(manner)) {}

  void add(const Group& group);
  /// True once the group `0:EOF` was added: what follows is no part of the drawing.
  bool at_end_mark() const { return at_end_mark_; }
  /// True for the first group that is no remark: it decides whether this is a drawing.
  bool is_first(const Group& group) const { return !has_content_ && group.code() != 999; }
  /// Name of the section that is open, with "a section" for one without a name; empty between sections.
  const std::string& open_section() const { return open_section_; }
  /// All records; call once, at the end.
  RecordList finish();

 private:
  void close_record();
  void follow_sections(const Record& record);

  std::shared_ptr<const Manner> manner_;
  std::vector<Group> groups_;
  RecordList records_;
  std::string open_section_;
  bool has_content_ = false;
  bool at_end_mark_ = false;
};

}  // namespace dxf
