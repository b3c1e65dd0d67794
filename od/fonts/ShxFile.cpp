#include "od/fonts/ShxFile.h"

#include <algorithm>
#include <optional>

#include "od/base/OdError.h"

/// Reads little-endian numbers and stops at the end instead of running over it.
class ShxFile::Reader {
 public:
  Reader(std::string_view bytes, std::size_t at) : m_bytes(bytes), m_at(at) {}

  std::size_t at() const { return m_at; }
  void skip(std::size_t count) { m_at += count; }
  bool has(std::size_t count) const { return m_at <= m_bytes.size() && count <= m_bytes.size() - m_at; }

  /// 0 beyond the end.
  unsigned word() { return byte() | byte() << 8; }
  unsigned long doubleWord() { return word() | static_cast<unsigned long>(word()) << 16; }

 private:
  unsigned byte() { return has(1) ? static_cast<unsigned char>(m_bytes[m_at++]) : 0; }

  std::string_view m_bytes;
  std::size_t m_at;
};

namespace {

constexpr std::string_view kHeadEnd = "\r\n\x1A";
constexpr std::size_t kLongestHeadLine = 64;

/// What kind the text line at the start names.
std::optional<ShxFile::Kind> kindOf(std::string_view line) {
  if (line.find("unifont") != line.npos) return ShxFile::kUnifont;
  if (line.find("bigfont") != line.npos) return ShxFile::kBigfont;
  if (line.find("shapes") != line.npos) return ShxFile::kShapes;
  return std::nullopt;
}

unsigned char byteAt(std::string_view bytes, std::size_t at) {
  return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0;
}

}  // namespace

ShxFile ShxFile::parse(std::string bytes, const std::string& name) {
  ShxFile file;
  file.m_bytes = std::move(bytes);
  std::string_view all = file.m_bytes;
  std::size_t end = all.substr(0, kLongestHeadLine).find(kHeadEnd);
  auto kind = end == all.npos ? std::nullopt : kindOf(all.substr(0, end));
  if (!kind) throw OdError(eInvalidFile, name + " is not a compiled shape file");
  file.m_kind = *kind;
  Reader reader(all, end + kHeadEnd.size());
  if (*kind == kShapes) file.readShapes(reader);
  if (*kind == kUnifont) file.readUnifont(reader);
  if (*kind == kBigfont) file.readBigfont(reader);
  if (file.m_shapes.empty()) throw OdError(eInvalidFile, name + " holds no shape that can be read");
  return file;
}

void ShxFile::readShapes(Reader& reader) {
  reader.skip(4);  // lowest and highest number: the index tells the same
  unsigned count = reader.word();
  std::size_t offset = reader.at() + std::size_t{4} * count;
  for (unsigned i = 0; i < count && reader.has(4); ++i) {
    unsigned number = reader.word();
    unsigned length = reader.word();
    addRecord(number, offset, length);
    offset += length;
  }
}

void ShxFile::readUnifont(Reader& reader) {
  unsigned count = reader.word();
  for (unsigned i = 0; i < count && reader.has(4); ++i) {
    unsigned number = reader.word();
    unsigned length = reader.word();
    addRecord(number, reader.at(), length);
    reader.skip(length);
  }
}

void ShxFile::readBigfont(Reader& reader) {
  unsigned entrySize = reader.word();
  unsigned slots = reader.word();
  unsigned ranges = reader.word();
  for (unsigned i = 0; i < ranges && reader.has(4); ++i) {
    unsigned first = reader.word();
    m_leadRanges.emplace_back(first, reader.word());
  }
  // The index is a hash table. All that matters here is what its used slots say.
  for (unsigned i = 0; i < slots && entrySize >= 8 && reader.has(entrySize); ++i) {
    unsigned number = reader.word();
    unsigned length = reader.word();
    addRecord(number, reader.doubleWord(), length);
    reader.skip(entrySize - 8);
  }
}

void ShxFile::addRecord(unsigned number, std::size_t offset, std::size_t length) {
  if (length == 0 || offset > m_bytes.size() || length > m_bytes.size() - offset) return;
  std::string_view record = std::string_view(m_bytes).substr(offset, length);
  std::size_t nameEnd = record.find('\0');
  if (nameEnd == record.npos) return;
  if (number == 0) {
    readHead(record.substr(nameEnd + 1));
    return;
  }
  m_shapes.try_emplace(number, Place{offset + nameEnd + 1, length - nameEnd - 1});
}

void ShxFile::readHead(std::string_view bytes) {
  m_hasHead = true;
  m_above = byteAt(bytes, 0);
  m_below = byteAt(bytes, 1);
  m_modes = byteAt(bytes, 2);
  // The fifth byte of a big font's head is what tells an extended one.
  if (m_kind != kBigfont || bytes.size() < 5) return;
  m_kind = kExtendedBigfont;
  m_below = 0;
  m_width = byteAt(bytes, 3);
}

std::string_view ShxFile::shape(unsigned number) const {
  auto found = m_shapes.find(number);
  if (found == m_shapes.end()) return {};
  return std::string_view(m_bytes).substr(found->second.offset, found->second.length);
}

std::vector<unsigned> ShxFile::numbers() const {
  std::vector<unsigned> result;
  result.reserve(m_shapes.size());
  for (const auto& [number, place] : m_shapes) result.push_back(number);
  std::ranges::sort(result);
  return result;
}

bool ShxFile::isLeadByte(unsigned byte) const {
  return std::ranges::any_of(
      m_leadRanges, [byte](const auto& range) { return byte >= range.first && byte <= range.second; });
}
