#include <map>

#include "mtext/numbering.h"
#include "tests/conformance/geom_step.h"

namespace conformance {
namespace {

using namespace mtext;

/// The label that a step names by its place among the marks.
marks::numbering& label_of(geom_subject& subject, const json& in) {
  return dynamic_cast<marks::numbering&>(subject.text.marks.at(in.at("mark").get<std::size_t>()));
}

format::paragraph& paragraph_of(geom_subject& subject, const marks::numbering& label) {
  return paragraph_at(subject.text, label.begin);
}

json mark_labels(geom_subject& subject, const json&) {
  mark_numberings(subject.text, subject.dictionary);
  return nullptr;
}

json count_labels(geom_subject& subject, const json&) {
  marks::update_numberings(subject.text.marks, subject.dictionary);
  return nullptr;
}

json write_label(geom_subject& subject, const json& in) {
  update_numbering(subject.text, label_of(subject, in), subject.finder, subject.dictionary);
  return nullptr;
}

json indent_label(geom_subject& subject, const json& in) {
  marks::numbering& label = label_of(subject, in);
  indent_numbering(subject.text, label, paragraph_of(subject, label), subject.finder, in.at("deeper"),
                   subject.dictionary);
  return nullptr;
}

json clear_label(geom_subject& subject, const json& in) {
  marks::numbering& label = label_of(subject, in);
  clear_numbering(subject.text, label, paragraph_of(subject, label));
  return nullptr;
}

json clean_label(geom_subject& subject, const json& in) {
  clean_numbering_format(subject.text, label_of(subject, in));
  return nullptr;
}

}  // namespace

geom_step find_numbering_step(const std::string& name) {
  static const std::map<std::string, geom_step> steps{
      {"mark_numberings", mark_labels},  {"update_numberings", count_labels},
      {"update_numbering", write_label}, {"indent_numbering", indent_label},
      {"clear_numbering", clear_label},  {"clean_numbering_format", clean_label}};
  const auto found = steps.find(name);
  return found == steps.end() ? nullptr : found->second;
}

}  // namespace conformance
