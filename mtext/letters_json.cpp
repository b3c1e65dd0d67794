// The parser of this Boost uses the placeholders of bind in the global namespace, and would say so each time.
#define BOOST_BIND_GLOBAL_PLACEHOLDERS
#include <boost/property_tree/json_parser.hpp>
#include <boost/property_tree/ptree.hpp>
#include <sstream>

#include "mtext/letters_dictionary.h"
#include "od/base/unicode.h"

namespace mtext::marks {
namespace {

namespace pt = boost::property_tree;

/// A dictionary nests two deep; the parser uses stack for each level, so a stranger's text must not have
/// many.
constexpr std::size_t deepest = 100;

/// Follows the nesting of a JSON text, character by character, as far as the text is right.
class nesting {
 public:
  void read(char character) {
    if (m_in_string) return read_in_string(character);
    if (character == '"') m_in_string = true;
    if (character == '{' || character == '[') ++m_depth;
    if ((character == '}' || character == ']') && m_depth > 0) --m_depth;
  }

  std::size_t depth() const { return m_depth; }

 private:
  void read_in_string(char character) {
    if (m_escaped) {
      m_escaped = false;
    } else if (character == '\\') {
      m_escaped = true;
    } else if (character == '"') {
      m_in_string = false;
    }
  }

  std::size_t m_depth = 0;
  bool m_in_string = false;
  bool m_escaped = false;
};

void check_depth(std::string_view text) {
  nesting read;
  unsigned long line = 1;
  for (const char character : text) {
    read.read(character);
    if (character == '\n') ++line;
    if (read.depth() > deepest) {
      throw pt::json_parser_error("nested deeper than " + std::to_string(deepest), "", line);
    }
  }
}

std::u16string member(const pt::ptree& node, const char* name) {
  return odToUtf16(node.get<std::string>(name));
}

}  // namespace

letters_dictionary letters_dictionary::from_json(std::string_view text) {
  check_depth(text);
  std::istringstream stream{std::string(text)};
  pt::ptree document;
  pt::read_json(stream, document);
  letters_dictionary letters;
  for (const auto& [key, node] : document) {
    alphabet& each = letters.emplace_back();
    each.key = odToUtf16(key);
    each.upper = member(node, "upper");
    each.lower = member(node, "lower");
    each.name = member(node, "name");
  }
  return letters;
}

}  // namespace mtext::marks
