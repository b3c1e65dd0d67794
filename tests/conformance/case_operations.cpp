#include "commands/letter_case/case_of_contents.h"
#include "desk/text_json/text_json.h"
#include "tests/conformance/operations.h"
#include "tests/mtext/stub_finder.h"

namespace conformance {

namespace {

case_mode mode_of(const json& in) { return static_cast<case_mode>(in.at("mode").get<int>()); }

json case_of_multi_line(const json& in) {
  const auto changed = case_of_contents(text_member(in, "contents"), in.at("text_height").get<double>(),
                                        mode_of(in), mtext::stub_finder(), mtext::marks::default_letters());
  return {{"text", write_text(changed)}};
}

json case_of_single_line(const json& in) {
  return {{"text", write_text(case_of_line(text_member(in, "text"), mode_of(in)))}};
}

}  // namespace

void add_case_operations(operation_table& table) {
  table["case"] = case_of_multi_line;
  table["case_text"] = case_of_single_line;
}

}  // namespace conformance
