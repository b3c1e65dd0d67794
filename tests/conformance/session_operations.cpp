#include <stdexcept>

#include "tests/conformance/answer.h"
#include "tests/conformance/operations.h"
#include "tests/conformance/session_subject.h"

namespace conformance {
namespace {

/// What a text step does ends as its caller in the application ends it.
json run_step(session_subject& subject, const json& step) {
  const std::string name = step.at("do");
  try {
    if (const session_step input = find_input_step(name)) return input(subject, step);
    const session_step text = find_text_step(name);
    if (!text) throw std::logic_error("step not available: " + name);
    json result = text(subject, step);
    subject.text().endOfEdit(/*relayout=*/true);
    return result;
  } catch (const std::exception& error) {
    return {{"error", describe_error(error)}};
  }
}

json run_session(const json& in) {
  session_subject subject(in);
  json results = json::array();
  for (const json& step : in.value("steps", json::array())) results.push_back(run_step(subject, step));
  subject.ended();
  return {{"steps", results}};
}

}  // namespace

void add_session_operations(operation_table& table) { table["session"] = run_session; }

}  // namespace conformance
