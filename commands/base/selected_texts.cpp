#include "commands/base/selected_texts.h"

#include "commands/base/locked_layer.h"
#include "host/document.h"
#include "host/prompt.h"
#include "host/translate.h"
#include "ui/resources/message_format.h"

namespace {

constexpr int kSelectTexts = 1069;
constexpr int kNotTexts = 1070;
constexpr int kLocked = 1362;

}  // namespace

HostSelectionSet without_locked(const HostSelectionSet& picked, HostEdPrompt& prompt) {
  HostSelectionSet open;
  for (const OdDbObjectId& id : picked.ids())
    if (!is_on_locked_layer(id)) open.add(id);
  const std::size_t locked = picked.ids().size() - open.ids().size();
  if (locked > 0) prompt.message(resources::format_string(kLocked, {static_cast<double>(locked)}));
  return open;
}

std::optional<HostSelectionSet> ask_for_texts(HostDocument& document) {
  HostSelectionSet picked;
  const int answer = document.prompt().select(host::resource_string(kSelectTexts), kSelectMany, picked);
  if (answer != kAnswerValue) return std::nullopt;
  return without_locked(picked, document.prompt());
}

selected_texts open_texts(const HostSelectionSet& selection) {
  selected_texts texts;
  for (const OdDbObjectId& id : selection.ids()) {
    const OdDbObjectPtr object = id.openObject(OdDb::kForWrite);
    if (const auto single = odCast<OdDbText>(object)) texts.single_line.push_back(single);
    if (const auto multi = odCast<OdDbMText>(object)) texts.multi_line.push_back(multi);
  }
  return texts;
}

std::optional<selected_texts> ask_and_open_texts(HostDocument& document) {
  const auto selected = ask_for_texts(document);
  if (!selected) return std::nullopt;
  selected_texts texts = open_texts(*selected);
  if (texts.empty()) refuse_without_texts(document);
  return texts;
}

void refuse_without_texts(HostDocument& document) {
  document.prompt().refuse(host::resource_string(kNotTexts));
}
