#include <stdexcept>

#include "tests/conformance/operations.h"
#include "ui/controls/CUpDownWithEdit.h"

namespace conformance {

namespace {

void run_step(CUpDownWithEdit& spin, const json& step) {
  const std::string name = step.at(0);
  if (name == "text") {
    spin.edit().type(read_text(step.at(1)));
    spin.edit().enter();
  } else if (name == "arrow") {
    spin.arrow(step.at(1));
  } else if (name == "set") {
    spin.set(step.at(1));
  } else if (name == "clear") {
    spin.clear();
  } else {
    throw std::logic_error("step not available: " + name);
  }
}

json run_spin(const json& in) {
  CUpDownWithEdit spin({.factor = in.at("factor"), .low = in.at("low"), .high = in.at("high")},
                       in.at("value"));
  json changed;
  spin.changed = [&changed](double value) {
    changed = value;
    return true;
  };
  json results = json::array();
  for (const json& step : in.at("steps")) {
    changed = nullptr;
    run_step(spin, step);
    results.push_back(
        {{"text", write_text(spin.edit().text())}, {"position", spin.position()}, {"changed", changed}});
  }
  return {{"steps", results}};
}

}  // namespace

void add_spin_operations(operation_table& table) { table["spin"] = run_spin; }

}  // namespace conformance
