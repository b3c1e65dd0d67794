#pragma once

#include <string>
#include <string_view>

#include "od/dxf/record.h"

namespace dxf {

/// The codes of a text that is cut into several groups: all pieces but the last, and the last.
struct ChunkCodes {
  int more = 3;
  int last = 1;
};

/// The text whose pieces stand in `range`, in file order. The bytes are joined before they are decoded, so a
/// cut may fall inside a character or an escape.
std::u16string read_chunked_text(const Record& record, Range range, ChunkCodes codes = {});

/// Writes `text` in pieces of 250 UTF-16 units as they stand in the file, the last shorter than that.
/// Pieces that stand in `range` and stay the same keep their bytes, wherever they were cut. A text that has
/// no piece yet is inserted in front of the group at `place`.
void write_chunked_text(Record& record, Range range, std::size_t place, std::u16string_view text,
                        ChunkCodes codes = {});

}  // namespace dxf
