// Reads any bytes as the settings of list letters.

// The parser of this Boost uses the placeholders of bind in the global namespace, and would say so each time.
#define BOOST_BIND_GLOBAL_PLACEHOLDERS
#include <boost/property_tree/json_parser.hpp>
#include <string>

#include "fuzz/require.h"
#include "mtext/letters_dictionary.h"
#include "mtext/numbering.h"
#include "od/base/unicode.h"
#include "tests/mtext/stub_finder.h"

namespace {

using namespace mtext;
using fuzz::require;

/// `text` as JSON writes it, in quotes and ASCII.
std::string quoted(const std::u16string& text) {
  std::string out = "\"";
  for (char16_t unit : text) {
    char escape[8];
    std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(unit));
    out += escape;
  }
  return out + "\"";
}

std::string written(const marks::letters_dictionary& letters) {
  std::string out = "{";
  for (const marks::alphabet& each : letters) {
    if (out.size() > 1) out += ",";
    out += quoted(each.key) + ":{\"name\":" + quoted(each.name) + ",\"lower\":" + quoted(each.lower) +
           ",\"upper\":" + quoted(each.upper) + "}";
  }
  return out + "}";
}

/// Whether JSON can say it: no half of a pair without the other.
bool is_well_formed(const std::u16string& text) { return odToUtf16(odToUtf8(text)) == text; }

bool is_well_formed(const marks::letters_dictionary& letters) {
  for (const marks::alphabet& each : letters) {
    if (!is_well_formed(each.key) || !is_well_formed(each.name) || !is_well_formed(each.lower) ||
        !is_well_formed(each.upper))
      return false;
  }
  return true;
}

/// No member of it equals another one.
marks::letters_dictionary told_apart(marks::letters_dictionary letters) {
  for (marks::alphabet& each : letters) {
    each.name += u'n';
    each.lower += u'l';
    each.upper += u'u';
  }
  return letters;
}

void require_read_as_written(const marks::letters_dictionary& letters) {
  require(marks::letters_dictionary::from_json(written(letters)) == letters,
          "letters are read as they are written");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  try {
    const marks::letters_dictionary letters = marks::letters_dictionary::from_json(text);
    require(is_well_formed(letters), "what was read is Unicode text");
    require_read_as_written(letters);
    require_read_as_written(told_apart(letters));
  } catch (const boost::property_tree::ptree_error& refused) {
    require(*refused.what() != '\0', "a refusal says why");
  }
  return 0;
}
