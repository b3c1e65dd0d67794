#include "host/profile_file.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

#include "od/base/unicode.h"

namespace {

/// Signs that would be taken for the form of the file, and the letter that stands for each behind a
/// backslash.
constexpr std::pair<char, char> kEscapes[] = {{'\n', 'n'}, {'\r', 'r'}, {'\\', '\\'}, {'=', 'e'}, {'[', 'o'}};

std::string escaped(std::u16string_view text) {
  std::string result;
  for (const char unit : odToUtf8(text)) {
    const auto* escape = std::find_if(std::begin(kEscapes), std::end(kEscapes),
                                      [unit](const auto& pair) { return pair.first == unit; });
    if (escape != std::end(kEscapes)) result += '\\';
    result += escape == std::end(kEscapes) ? unit : escape->second;
  }
  return result;
}

char meant_by(char letter) {
  const auto* escape = std::find_if(std::begin(kEscapes), std::end(kEscapes),
                                    [letter](const auto& pair) { return pair.second == letter; });
  return escape == std::end(kEscapes) ? letter : escape->first;
}

std::u16string unescaped(std::string_view text) {
  std::string result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool is_escape = text[at] == '\\' && at + 1 < text.size();
    result += is_escape ? meant_by(text[++at]) : text[at];
  }
  return odToUtf16(result);
}

[[noreturn]] void fail(const std::filesystem::path& file, const char* what) {
  throw std::runtime_error("The profile " + file.string() + " cannot be " + what + ".");
}

}  // namespace

HostProfileFile::HostProfileFile(std::filesystem::path file) : m_file(std::move(file)) {
  if (std::filesystem::exists(m_file)) read();
}

void HostProfileFile::setText(std::u16string_view section, std::u16string_view name,
                              std::u16string_view text) {
  HostMemoryProfile::setText(section, name, text);
  write();
}

void HostProfileFile::read() {
  std::ifstream in(m_file, std::ios::binary);
  std::u16string section;
  for (std::string line; std::getline(in, line);) {
    const std::size_t mark = line.find('=');
    if (line.starts_with('[') && line.ends_with(']')) {
      section = unescaped(std::string_view(line).substr(1, line.size() - 2));
    } else if (mark != line.npos) {
      const std::string_view whole = line;
      HostMemoryProfile::setText(section, unescaped(whole.substr(0, mark)),
                                 unescaped(whole.substr(mark + 1)));
    }
  }
  if (!in.eof()) fail(m_file, "read");
}

void HostProfileFile::write() const {
  if (m_file.has_parent_path()) std::filesystem::create_directories(m_file.parent_path());
  const std::filesystem::path beside = m_file.string() + ".new";
  {
    std::ofstream out(beside, std::ios::binary | std::ios::trunc);
    const std::u16string* section = nullptr;
    for (const auto& [key, text] : m_texts) {
      if (!section || *section != key.first) out << '[' << escaped(key.first) << "]\n";
      section = &key.first;
      out << escaped(key.second) << '=' << escaped(text) << '\n';
    }
    out.flush();
    if (!out) fail(m_file, "written");
  }
  std::error_code error;
  std::filesystem::rename(beside, m_file, error);
  if (error) fail(m_file, "written");
}
