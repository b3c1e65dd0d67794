#include "tests/docs/format_code_example.h"

#include <array>
#include <sstream>
#include <stdexcept>

#include "od/base/unicode.h"

namespace {

constexpr char16_t k_shown_line_end = u'\u23CE';
constexpr char16_t k_shown_tab = u'\u2192';

/// What stands behind `name` and blanks in `line`.
std::string value_of(const std::string& name, const std::string& line, int number) {
  const std::string key = name + ":";
  if (!line.starts_with(key))
    throw std::runtime_error("line " + std::to_string(number) + ": \"" + key + "\" is missing");
  const std::size_t first = line.find_first_not_of(' ', key.size());
  return first == line.npos ? "" : line.substr(first);
}

}  // namespace

std::vector<format_code_example> read_examples(const std::string& document) {
  std::vector<format_code_example> examples;
  std::istringstream lines(document);
  std::string line;
  for (int number = 1; std::getline(lines, line); ++number) {
    if (line != "```mtext") continue;
    format_code_example example;
    example.line = number;
    const std::array<std::pair<const char*, std::string*>, 4> members{{{"code", &example.code},
                                                                       {"reads", &example.reads},
                                                                       {"plain", &example.plain},
                                                                       {"again", &example.again}}};
    for (const auto& [name, value] : members) {
      std::getline(lines, line);
      *value = value_of(name, line, ++number);
    }
    if (!std::getline(lines, line) || line != "```")
      throw std::runtime_error("line " + std::to_string(number) + ": the example does not end");
    ++number;
    examples.push_back(example);
  }
  return examples;
}

std::u16string unshown(const std::string& shown) {
  std::u16string text = odToUtf16(shown);
  for (char16_t& unit : text) {
    if (unit == k_shown_line_end) unit = u'\n';
    if (unit == k_shown_tab) unit = u'\t';
  }
  return text;
}

std::string shown(const std::u16string& text) {
  std::u16string result;
  for (char16_t unit : text) {
    if (unit == u'\r') continue;
    result += unit == u'\n' ? k_shown_line_end : unit == u'\t' ? k_shown_tab : unit;
  }
  return odToUtf8(result);
}
