// Reads a string, lays it out, and writes it again. One byte chooses the base format, seven the frame; the
// rest is the string.

#include <algorithm>

#include "fuzz/layout_laws.h"
#include "fuzz/require.h"
#include "fuzz/stable_text.h"
#include "fuzz/text_input.h"
#include "mtext/decode.h"
#include "mtext/flatten.h"
#include "mtext/parse.h"
#include "mtext/serialize.h"
#include "mtext/to_geom.h"
#include "od/base/unicode.h"
#include "tests/mtext/stub_finder.h"

namespace {

using namespace mtext;
using fuzz::require;

/// How many elements a part is laid out as.
std::size_t elements_of(const part& each) {
  switch (each.type()) {
    case part_string:
      return static_cast<const mtext::string&>(each).text.size();
    case part_spaces:
      return static_cast<const spaces&>(each).count;
    case part_field: {
      const auto& value = static_cast<const field&>(each).value;
      return value ? value->size() : 4;
    }
    default:
      return 1;
  }
}

std::size_t elements_of(const multitext& text) {
  std::size_t count = 0;
  for (const part& each : text.parts) count += elements_of(each);
  return count;
}

void require_one_character_each(const geom_multitext& text) {
  for (const geom_part& each : text.parts) {
    require(each.part().format.height_kind == 0, "laid-out heights are drawing units");
    if (each.type() == part_string)
      require(static_cast<const mtext::string&>(each.part()).text.size() == 1,
              "a word element is one character");
    if (each.type() == part_spaces)
      require(static_cast<const spaces&>(each.part()).count == 1, "a blank element is one blank");
  }
}

/// All lines put together again are the text without its line ends.
void require_lines(const geom_multitext& text) {
  std::size_t parts = 0;
  for (std::size_t i = 0; i < std::min<std::size_t>(text.lines.size(), 20); ++i) {
    const geom_multitext line = text.line(i);
    fuzz::require_marks_in_range(line);
    parts = line.parts.size();
    require(parts <= text.lines[i].last - text.lines[i].first, "a line has the parts of its range");
  }
}

/// `base` with the height in drawing units, as the elements have it.
format::string absolute(format::string base, double height) {
  base.height *= height;
  base.height_kind = 0;
  return base;
}

void travel(const geom_multitext& text, const format::string& base, const fields_map& fields) {
  const format::string written_base = absolute(base, text.info.height);
  const std::u16string once = encode(text, written_base, text.info.height);
  const geom_multitext again = decode(once, base, text.info, stub_finder(), fields);
  if (!fuzz::is_stable(text, base)) return;
  require(encode(again, written_base, text.info.height) == once,
          "what was written once is written the same again");
  require(serialize_raw(flatten(again), false) == serialize_raw(flatten(text), false),
          "writing keeps the words");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::byte_source input(data, size);
  const format::string base = fuzz::base_format(input);
  const convert_info info = fuzz::frame(input);
  const fields_map fields = fuzz::bound_fields();
  multitext logical;
  parse(odToUtf16(input.rest()), base, logical, fields);
  geom_multitext text = to_geom(logical, info.height, stub_finder());
  text.info = info;
  require(text.parts.size() == elements_of(logical), "each character is an element");
  require_one_character_each(text);
  fuzz::require_marks_in_range(text);
  fuzz::require_layout(text);
  require_lines(text);
  for (const double at : {-1e9, -10.0, 0.0, 5.0, 1e9}) fuzz::require_hit(text, at, -at / 3);
  travel(text, base, fields);
  return 0;
}
