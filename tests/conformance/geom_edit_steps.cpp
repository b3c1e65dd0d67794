#include <map>

#include "desk/text_json/format_json.h"
#include "desk/text_json/multitext_json.h"
#include "mtext/dispose.h"
#include "mtext/flatten.h"
#include "mtext/to_geom.h"
#include "tests/conformance/geom_json.h"
#include "tests/conformance/geom_step.h"

namespace conformance {
namespace {

using namespace mtext;

/// A count; -1 runs up to the end.
std::size_t read_count(const json& in) {
  return static_cast<std::size_t>(in.at("count").get<std::int64_t>());
}

geom_multitext typed_text(const geom_subject& subject, const json& in) {
  const format::string format = read_format(object_member(in, "format"));
  return to_geom(read_text(in.at("text")), format, subject.text.info.height, subject.finder);
}

json insert(geom_subject& subject, const json& in) {
  subject.text.insert(in.at("at"), typed_text(subject, in));
  return nullptr;
}

json append(geom_subject& subject, const json& in) {
  subject.text.append(typed_text(subject, in));
  return nullptr;
}

json erase(geom_subject& subject, const json& in) {
  subject.text.erase(in.at("first"), read_count(in), in.value("drop_empty", false));
  return nullptr;
}

json keep(geom_subject& subject, const json& in) {
  subject.text.keep(in.at("first"), read_count(in));
  return nullptr;
}

json slice(geom_subject& subject, const json& in) {
  return write_geom(subject.text.slice(in.at("first"), read_count(in)));
}

json line(geom_subject& subject, const json& in) { return write_geom(subject.text.line(in.at("index"))); }

json position_at(geom_subject& subject, const json& in) {
  const text_hit hit = subject.text.position_at(in.at("x"), in.at("y"));
  json out{{"at", hit.at}, {"line", -1}, {"column", hit.column}, {"outside", hit.outside}};
  if (hit.line != text_hit::no_line) out["line"] = hit.line;
  return out;
}

json lay_out(geom_subject& subject, const json&) {
  dispose(subject.text);
  return nullptr;
}

json geom(geom_subject& subject, const json&) { return write_geom(subject.text); }

json flat(geom_subject& subject, const json&) { return write_multitext(flatten(subject.text)); }

}  // namespace

geom_step find_edit_step(const std::string& name) {
  static const std::map<std::string, geom_step> steps{{"insert", insert},
                                                      {"append", append},
                                                      {"erase", erase},
                                                      {"keep", keep},
                                                      {"slice", slice},
                                                      {"line", line},
                                                      {"position_at", position_at},
                                                      {"dispose", lay_out},
                                                      {"geom", geom},
                                                      {"flatten", flat}};
  const auto found = steps.find(name);
  return found == steps.end() ? nullptr : found->second;
}

}  // namespace conformance
