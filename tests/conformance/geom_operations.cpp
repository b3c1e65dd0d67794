#include <stdexcept>

#include "desk/text_json/format_json.h"
#include "desk/text_json/multitext_json.h"
#include "mtext/decode.h"
#include "tests/conformance/answer.h"
#include "tests/conformance/dictionary_json.h"
#include "tests/conformance/geom_json.h"
#include "tests/conformance/geom_step.h"
#include "tests/conformance/operations.h"

namespace conformance {
namespace {

using namespace mtext;

geom_subject read_subject(const json& in) {
  geom_subject subject;
  subject.base = read_format(object_member(in, "base"));
  subject.dictionary = read_dictionary(in);
  subject.text = decode(text_member(in, "text"), subject.base, read_info(object_member(in, "info")),
                        subject.finder, read_fields(object_member(in, "fields")));
  return subject;
}

geom_step find_step(const std::string& name) {
  if (geom_step step = find_edit_step(name)) return step;
  if (geom_step step = find_mark_step(name)) return step;
  if (geom_step step = find_format_step(name)) return step;
  if (geom_step step = find_numbering_step(name)) return step;
  throw std::logic_error("step not available: " + name);
}

json run_step(geom_subject& subject, const json& step) {
  try {
    return find_step(step.at("do"))(subject, step);
  } catch (const std::exception& error) {
    return {{"error", describe_error(error)}};
  }
}

json decode_text(const json& in) { return {{"geom", write_geom(read_subject(in).text)}}; }

json encode_text(const json& in) {
  const geom_subject subject = read_subject(in);
  return {{"text", write_text(encode(subject.text, subject.base, in.at("base_height")))}};
}

json run_steps(const json& in) {
  geom_subject subject = read_subject(in);
  json results = json::array();
  for (const json& step : in.value("steps", json::array())) results.push_back(run_step(subject, step));
  return {{"steps", results}, {"geom", write_geom(subject.text)}};
}

}  // namespace

void add_geom_operations(operation_table& table) {
  table["decode"] = decode_text;
  table["encode"] = encode_text;
  table["geom"] = run_steps;
}

}  // namespace conformance
