#pragma once

#include <string_view>

/// Walks over the lines of a text file with LF or CR LF ends.
class FontLines {
 public:
  explicit FontLines(std::string_view text, std::size_t at = 0) : m_text(text), m_at(at) {}

  /// The next line without its end. False at the end of the text.
  bool next(std::string_view& line) {
    if (m_at >= m_text.size()) return false;
    std::size_t end = m_text.find('\n', m_at);
    line = m_text.substr(m_at, end == m_text.npos ? m_text.npos : end - m_at);
    m_at = end == m_text.npos ? m_text.size() : end + 1;
    if (line.ends_with('\r')) line.remove_suffix(1);
    return true;
  }
  /// Where the next line begins.
  std::size_t at() const { return m_at; }

 private:
  std::string_view m_text;
  std::size_t m_at;
};
