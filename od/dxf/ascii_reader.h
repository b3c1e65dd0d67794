#pragma once

#include "od/dxf/group_reader.h"

namespace dxf {

/// Reads the text form: a line with the code, a line with the value.
class AsciiReader : public GroupReader {
 public:
  AsciiReader(std::string_view bytes, const std::string& name, Manner& manner);

  std::optional<Group> next() override;

 private:
  struct Line {
    std::string_view text;  ///< without the line end
    std::size_t end = 0;    ///< position behind the line end
  };

  Line line_at(std::size_t position) const;
  bool only_padding_left() const;
  int parse_code(std::string_view text) const;

  std::size_t line_ = 1;
};

}  // namespace dxf
