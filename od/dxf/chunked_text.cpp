#include "od/dxf/chunked_text.h"

#include <algorithm>

namespace dxf {
namespace {

constexpr std::size_t kUnitsAPiece = 250;

std::vector<std::size_t> pieces_in(const Record& record, Range range, ChunkCodes codes) {
  std::vector<std::size_t> indices;
  for (std::size_t i = range.begin; i < range.end && i < record.size(); ++i) {
    if (record[i].code() == codes.more || record[i].code() == codes.last) indices.push_back(i);
  }
  return indices;
}

bool is_high_surrogate(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }

// A pair of surrogates is one character of the file and stays in one piece.
std::size_t piece_size(std::u16string_view text) {
  const std::size_t size = std::min(kUnitsAPiece, text.size());
  return size == kUnitsAPiece && is_high_surrogate(text[size - 1]) ? size - 1 : size;
}

bool is_last_piece(std::u16string_view text) { return text.size() < kUnitsAPiece; }

// How many of the pieces begin `text` just as they stand; sets `rest` to what follows them.
std::size_t count_kept(const Record& record, const std::vector<std::size_t>& pieces, ChunkCodes codes,
                       std::u16string_view& rest) {
  std::size_t kept = 0;
  for (; kept < pieces.size() && record[pieces[kept]].code() == codes.more; ++kept) {
    const std::u16string piece = record.get_string(pieces[kept]);
    if (!rest.starts_with(piece)) break;
    rest.remove_prefix(piece.size());
  }
  return kept;
}

void set_piece(Record& record, std::size_t index, int code, std::u16string_view text) {
  if (record[index].code() == code) return record.set_string(index, text);
  record.erase(index);
  record.insert_string(index, code, text);
}

}  // namespace

std::u16string read_chunked_text(const Record& record, Range range, ChunkCodes codes) {
  std::string bytes;
  for (const std::size_t index : pieces_in(record, range, codes)) bytes += record[index].value();
  return record.manner().codec.decode(bytes);
}

void write_chunked_text(Record& record, Range range, std::size_t place, std::u16string_view text,
                        ChunkCodes codes) {
  const std::vector<std::size_t> pieces = pieces_in(record, range, codes);
  const std::u16string written = record.manner().codec.escape_missing(text);
  const std::u16string standing = read_chunked_text(record, range, codes);
  if (!pieces.empty() && (standing == text || standing == written)) return;

  std::u16string_view rest = written;
  const std::size_t kept = count_kept(record, pieces, codes, rest);
  std::size_t next = kept;
  std::size_t behind = kept > 0 ? pieces[kept - 1] + 1 : place;
  for (bool done = false; !done;) {
    done = is_last_piece(rest);
    const std::size_t size = done ? rest.size() : piece_size(rest);
    const int code = done ? codes.last : codes.more;
    if (next < pieces.size()) {
      behind = pieces[next++];
      set_piece(record, behind++, code, rest.substr(0, size));
    } else {
      record.insert_string(behind++, code, rest.substr(0, size));
    }
    rest.remove_prefix(size);
  }
  for (std::size_t i = pieces.size(); i > next; --i) record.erase(pieces[i - 1]);
}

}  // namespace dxf
