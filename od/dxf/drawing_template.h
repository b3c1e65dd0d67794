#pragma once

#include <string>
#include <string_view>

#include "od/dxf/manner.h"

namespace dxf {

/// The groups that `lines` list, in `manner`. A line is a code, a blank and the value, which may be empty; a
/// line `>=1018 91 1` counts only from that version on. Numbers are written in the manner's columns.
std::string groups_of_template(std::string_view lines, const Manner& manner);

/// An empty drawing in lines of that kind, section by section, for R2000 and later.
extern const std::string_view kHeaderTemplate;
extern const std::string_view kClassesTemplate;
extern const std::string_view kTablesTemplate;
extern const std::string_view kBlocksTemplate;
extern const std::string_view kObjectsTemplate;

/// All of an empty R12 drawing but for the version.
extern const std::string_view kOldDrawingTemplate;

}  // namespace dxf
