#include <map>
#include <memory>

#include "mtext/marks.h"
#include "tests/conformance/geom_json.h"
#include "tests/conformance/geom_step.h"

namespace conformance {
namespace {

using namespace mtext;

json verify_mark(geom_subject& subject, const json& in) {
  subject.text.verify_mark(marks::mark(in.at("begin"), in.at("end")));
  return nullptr;
}

json verify_elem(geom_subject& subject, const json& in) {
  subject.text.verify_elem(in.at("at"));
  return nullptr;
}

json add_mark(geom_subject& subject, const json& in) {
  subject.text.marks.push_back(read_mark(in));
  return nullptr;
}

json list_marks(geom_subject& subject, const json&) { return write_marks(subject.text.marks); }

json merge_selections(geom_subject& subject, const json&) {
  marks::merge_selections(subject.text.marks);
  return nullptr;
}

json set_selections(geom_subject& subject, const json& in) {
  marks::mark_list given;
  for (const json& each : in.at("selections")) given.push_back(read_mark(each));
  marks::set_selections(marks::selections_of(given), subject.text.marks);
  return nullptr;
}

json slide_selections(geom_subject& subject, const json&) {
  marks::slide_selections(subject.text.marks);
  return nullptr;
}

json mark_or_null(const marks::mark* found) { return found ? write_mark(*found) : json(nullptr); }

json find_solid(geom_subject& subject, const json& in) {
  return mark_or_null(marks::find_solid(subject.text.marks, in.at("at")));
}

json find_numbering(geom_subject& subject, const json& in) {
  return mark_or_null(marks::find_numbering(subject.text.marks, in.at("at")));
}

json drop_empty_solids(geom_subject& subject, const json&) {
  marks::drop_empty_solids(subject.text.marks);
  return nullptr;
}

}  // namespace

geom_step find_mark_step(const std::string& name) {
  static const std::map<std::string, geom_step> steps{{"verify_mark", verify_mark},
                                                      {"verify_elem", verify_elem},
                                                      {"add_mark", add_mark},
                                                      {"marks", list_marks},
                                                      {"merge_selections", merge_selections},
                                                      {"set_selections", set_selections},
                                                      {"slide_selections", slide_selections},
                                                      {"find_solid", find_solid},
                                                      {"find_numbering", find_numbering},
                                                      {"drop_empty_solids", drop_empty_solids}};
  const auto found = steps.find(name);
  return found == steps.end() ? nullptr : found->second;
}

}  // namespace conformance
