#include "desk/batch/order_json.h"

#include <nlohmann/json.hpp>

#include "desk/batch/batch_journal.h"
#include "desk/batch/batch_options.h"
#include "desk/batch/digest.h"
#include "desk/batch/order_script.h"

namespace {

using json = nlohmann::ordered_json;

json kindNames(const std::vector<TextKind>& kinds) {
  json names = json::array();
  for (const TextKind kind : kinds) names.push_back(nameOf(kind));
  return names;
}

json scriptJson(const std::string& script) {
  if (!isScriptFile(script)) return {{"command", script}};
  return {{"script", script}, {"script_digest", fileDigest(script)}};
}

json replacementJson(const TextReplacement& replacement) {
  return {{"find", replacement.find},
          {"replace", replacement.replace},
          {"regex", replacement.is_expression},
          {"ignore_case", replacement.ignores_case}};
}

}  // namespace

json orderJson(const BatchOptions& options) {
  const TextFilterOptions& filter = options.order.filter;
  json order = options.order.replacement ? replacementJson(*options.order.replacement)
                                         : scriptJson(options.order.script);
  if (!filter.layers.empty()) order["layer"] = filter.layers;
  if (!filter.styles.empty()) order["text_style"] = filter.styles;
  if (!filter.kinds.empty()) order["kind"] = kindNames(filter.kinds);
  if (!filter.match.empty()) order["match"] = filter.match;
  order["space"] = filter.all_blocks ? "all" : "current";
  order["in_place"] = options.in_place;
  if (!options.out.empty()) order["out"] = pathInJson(std::filesystem::absolute(options.out));
  return order;
}
