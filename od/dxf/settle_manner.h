#pragma once

#include "od/dxf/record_list.h"

namespace dxf {

/// Fills in what can be known only after reading: version and code page from the header variables, and in the
/// text form the columns in which codes and integers are right aligned.
void settle_manner(const RecordList& records, Manner& manner);

}  // namespace dxf
