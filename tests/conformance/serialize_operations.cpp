#include "mtext/serialize.h"

#include "desk/text_json/format_json.h"
#include "desk/text_json/multitext_json.h"
#include "tests/conformance/operations.h"

namespace conformance {

namespace {

json text_answer(const std::u16string& text) { return {{"text", write_text(text)}}; }

json serialize_whole(const json& in) {
  return text_answer(mtext::serialize(read_multitext(object_member(in, "multitext")),
                                      read_format(object_member(in, "base")),
                                      in.at("base_height").get<double>()));
}

json serialize_parts(const json& in) {
  auto base = read_format(object_member(in, "base"));
  auto base_height = in.at("base_height").get<double>();
  bool plain_spaces = member_or(in, "plain_spaces", false);
  auto paragraph = read_paragraph(object_member(in, "paragraph"));
  auto current = base;
  mtext::serialize_state state;
  bool px_written = false;
  std::u16string out;
  mtext::serialize(out, base_height, paragraph, px_written);
  for (const auto& part : object_member(in, "parts")) {
    mtext::serialize(out, base_height, paragraph, base, current, state, *read_part(part), px_written,
                     plain_spaces);
  }
  mtext::serialize(out, state);
  return text_answer(out);
}

json serialize_raw(const json& in) {
  return text_answer(mtext::serialize_raw(read_multitext(object_member(in, "multitext")),
                                          member_or(in, "tilde_spaces", false)));
}

}  // namespace

void add_serialize_operations(operation_table& table) {
  table["serialize"] = serialize_whole;
  table["serialize_parts"] = serialize_parts;
  table["serialize_raw"] = serialize_raw;
}

}  // namespace conformance
