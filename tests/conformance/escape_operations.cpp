#include "mtext/escape.h"
#include "tests/conformance/operations.h"

namespace conformance {

namespace {

json escape(const json& in) {
  auto escaped =
      mtext::escape_mtext(text_member(in, "text").c_str(), member_or(in, "keep_line_feeds", false));
  return {{"text", write_text(escaped)}};
}

json unformat(const json& in) {
  return {{"text", write_text(mtext::unformat_mtext(text_member(in, "text").c_str()))}};
}

}  // namespace

void add_escape_operations(operation_table& table) {
  table["escape"] = escape;
  table["unformat"] = unformat;
}

}  // namespace conformance
