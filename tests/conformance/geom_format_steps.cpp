#include <map>

#include "desk/text_json/format_json.h"
#include "mtext/format_at.h"
#include "tests/conformance/geom_step.h"

namespace conformance {
namespace {

using namespace mtext;

marks::mark range_of(const json& in) { return {in.at("begin"), in.at("end")}; }

json current_format(geom_subject& subject, const json& in) {
  return write_format(format::current_format(subject.text, subject.base, range_of(in)));
}

json current_paragraph_format(geom_subject& subject, const json& in) {
  return write_paragraph(format::current_paragraph_format(subject.text, range_of(in)));
}

json insertion_format(geom_subject& subject, const json& in) {
  if (in.contains("at")) {
    return write_format(format::insertion_format(subject.text, subject.base, in.at("at").get<std::size_t>()));
  }
  return write_format(format::insertion_format(subject.text, subject.base, range_of(in)));
}

json format_at(geom_subject& subject, const json& in) {
  return write_format(subject.text.parts.at(in.at("at").get<std::size_t>()).part().format);
}

json paragraph_in_force(geom_subject& subject, const json& in) {
  const std::size_t at = in.at("at");
  subject.text.verify_elem(at);
  return write_paragraph(paragraph_at(subject.text, at));
}

}  // namespace

geom_step find_format_step(const std::string& name) {
  static const std::map<std::string, geom_step> steps{{"current_format", current_format},
                                                      {"current_paragraph_format", current_paragraph_format},
                                                      {"insertion_format", insertion_format},
                                                      {"format_at", format_at},
                                                      {"paragraph_at", paragraph_in_force}};
  const auto found = steps.find(name);
  return found == steps.end() ? nullptr : found->second;
}

}  // namespace conformance
