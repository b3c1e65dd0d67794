// Reads any bytes as HTML and as RTF from a clipboard, and writes what a text becomes of them again.

#include <cmath>
#include <string>

#include "editor/rich_text/read_html.h"
#include "editor/rich_text/read_rtf.h"
#include "editor/rich_text/to_multitext.h"
#include "editor/rich_text/write_html.h"
#include "fuzz/require.h"
#include "mtext/parse.h"
#include "mtext/serialize.h"
#include "od/base/unicode.h"

namespace {

using fuzz::require;

void require_sound(const rich::text& text, std::size_t given) {
  std::size_t units = 0;
  for (const rich::paragraph& each : text.paragraphs)
    for (const rich::run& run : each.runs) {
      require(!run.text.empty(), "a run has characters");
      require(std::isfinite(run.style.size) && run.style.size >= 0, "a size is a number");
      units += run.text.size();
    }
  require(units <= 4 * given + 4, "what is read is not much longer than its source");
}

/// Whether formats and characters can be written as codes, and as HTML that is read again.
void require_pasted(const rich::text& text) {
  const mtext::format::string base;
  const mtext::multitext parts = rich::to_multitext(text, base);
  mtext::multitext read;
  require(mtext::parse(mtext::serialize(parts, base, 2.5), base, read, {}), "what is pasted can be written");
  require_sound(rich::read_html(rich::write_html(parts, 2.5)), rich::kMostUnits);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  std::u16string units;
  for (const char byte : bytes) units += static_cast<unsigned char>(byte);
  for (const rich::text& text : {rich::read_html(odToUtf16(bytes)), rich::read_rtf(units)}) {
    require_sound(text, size);
    require_pasted(text);
  }
  return 0;
}
