#include "desk/batch/text_changes.h"

#include <nlohmann/json.hpp>
#include <unordered_map>
#include <unordered_set>

#include "od/base/unicode.h"
#include "od/db/OdDbObject.h"

namespace {

using json = nlohmann::ordered_json;

json written(const DrawingText* text) {
  if (!text) return nullptr;
  return {{"contents", odToUtf8(text->contents)}, {"plain", odToUtf8(text->plain)}};
}

json change(const DrawingText& text, const DrawingText* before, const DrawingText* after) {
  return {{"handle", handleOf(text)},
          {"kind", nameOf(text.kind)},
          {"layer", odToUtf8(text.layer)},
          {"before", written(before)},
          {"after", written(after)}};
}

bool differs(const DrawingText& before, const DrawingText& after) {
  return before.contents != after.contents || after.id.openObject()->isModified();
}

}  // namespace

json textChanges(const std::vector<DrawingText>& before, const std::vector<DrawingText>& after) {
  std::unordered_map<OdDbObjectId, const DrawingText*> old;
  for (const DrawingText& text : before) old.emplace(text.id, &text);
  json changes = json::array();
  std::unordered_set<OdDbObjectId> present;
  for (const DrawingText& text : after) {
    present.insert(text.id);
    const auto found = old.find(text.id);
    const DrawingText* was = found == old.end() ? nullptr : found->second;
    if (!was || differs(*was, text)) changes.push_back(change(text, was, &text));
  }
  for (const DrawingText& text : before)
    if (!present.contains(text.id)) changes.push_back(change(text, &text, nullptr));
  return changes;
}
