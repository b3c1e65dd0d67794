#include <stdexcept>

#include "tests/conformance/answer.h"
#include "tests/conformance/gadget_subject.h"
#include "tests/conformance/operations.h"

namespace conformance {
namespace {

json run_step(gadget_subject& subject, const json& step) {
  const std::string name = step.at("do");
  try {
    if (const gadget_step change = find_gadget_step(name)) return change(subject, step);
    if (const gadget_step question = find_gadget_question(name)) return question(subject, step);
    throw std::logic_error("step not available: " + name);
  } catch (const std::exception& error) {
    return {{"error", describe_error(error)}};
  }
}

json run_gadgets(const json& in) {
  gadget_subject subject(in);
  json results = json::array();
  for (const json& step : in.value("steps", json::array())) results.push_back(run_step(subject, step));
  return {{"steps", results}};
}

}  // namespace

void add_gadget_operations(operation_table& table) { table["gadgets"] = run_gadgets; }

}  // namespace conformance
