#include "commands/single_line/text_fit_command.h"

#include <algorithm>

#include "commands/base/locked_layer.h"
#include "commands/single_line/text_fit_tracker.h"
#include "editor/text_justify.h"
#include "host/document.h"
#include "host/prompt.h"
#include "host/selection_set.h"
#include "host/translate.h"

namespace {

constexpr int kSelectText = 1104;
constexpr int kEndPoint = 1105;
constexpr int kStartPoint = 1106;
constexpr int kStartWord = 1107;
constexpr int kNotText = 1108;
constexpr unsigned kSelectFlags = 0x12000;
static_assert(kSelectFlags & kSelectSingle);

/// Asks until a single-line text is selected that may be changed. Null when the selection was not completed.
OdDbTextPtr select_text(HostDocument& document) {
  for (;;) {
    HostSelectionSet picked;
    const int answer = document.prompt().select(host::resource_string(kSelectText), kSelectFlags, picked);
    if (answer != kAnswerValue || picked.ids().size() != 1) return {};
    const OdDbObjectId id = picked.ids().front();
    const auto text = odCast<OdDbText>(id.openObject(OdDb::kForWrite));
    if (text && !is_on_locked_layer(id)) return text;
    document.prompt().message(text ? Supp_Translate(u"Layer locked") : host::resource_string(kNotText));
  }
}

/// The words of a sentence as one keyword.
std::u16string as_keyword(std::u16string words) {
  std::replace(words.begin(), words.end(), u' ', u'\u00A0');
  return words;
}

int ask_end(HostDocument& document, TextFitTracker& tracker, const std::u16string& keywords) {
  OdGePoint3d end;
  const int answer = document.prompt().getPoint({.prompt = host::resource_string(kEndPoint),
                                                 .keywords = keywords,
                                                 .base_point = tracker.preview().position(),
                                                 .tracker = &tracker,
                                                 .rubber_line = true},
                                                end);
  // A point that is typed moves no cursor.
  if (answer == kAnswerValue) tracker.setEnd(end);
  return answer;
}

/// Asks for the end, and before it for another start where the keyword wants that. False when it was
/// cancelled.
bool ask_fit(HostDocument& document, TextFitTracker& tracker) {
  const int answer = ask_end(document, tracker, as_keyword(host::resource_string(kStartWord)));
  if (answer < 0) return answer == kAnswerValue;
  OdGePoint3d start;
  const int given = document.prompt().getPoint({.prompt = host::resource_string(kStartPoint)}, start);
  if (given != kAnswerValue) return false;
  tracker.setStart(start);
  return ask_end(document, tracker, u"") == kAnswerValue;
}

/// Gives the text the shape of the preview; it keeps its own justification around that.
void apply(const OdDbTextPtr& text, const OdDbText& preview) {
  const OdDb::TextHorzMode horizontal = text->horizontalMode();
  const OdDb::TextVertMode vertical = text->verticalMode();
  ApplyTextJustify(text, OdDb::kTextLeft, OdDb::kTextBase);
  text->setPosition(preview.position());
  text->setRotation(preview.rotation());
  text->setWidthFactor(preview.widthFactor());
  ApplyTextJustify(text, horizontal, vertical);
}

}  // namespace

int CTextFitCmd::runIn(HostDocument& document) {
  const OdDbTextPtr text = select_text(document);
  if (!text) return kCommandCancelled;
  TextFitTracker tracker(*text);
  if (!ask_fit(document, tracker)) return kCommandCancelled;
  apply(text, tracker.preview());
  document.entityChanged(text->objectId());
  return kCommandDone;
}
