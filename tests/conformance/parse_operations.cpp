#include "desk/text_json/format_json.h"
#include "desk/text_json/multitext_json.h"
#include "mtext/parse.h"
#include "tests/conformance/operations.h"

namespace conformance {

namespace {

json parse_text(const json& in) {
  auto text = text_member(in, "text");
  auto base = read_format(object_member(in, "base"));
  auto fields = read_fields(object_member(in, "fields"));
  bool range_form = member_or<std::string>(in, "form", "merged") == "range";
  mtext::multitext parsed;
  bool result = range_form ? mtext::parse(text.data(), text.data() + text.size(), base, parsed, fields)
                           : mtext::parse(text, base, parsed, fields);
  return {{"result", result}, {"multitext", write_multitext(parsed)}};
}

}  // namespace

void add_parse_operations(operation_table& table) { table["parse"] = parse_text; }

}  // namespace conformance
