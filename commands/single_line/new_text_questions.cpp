#include "commands/single_line/new_text_questions.h"

#include <array>
#include <cmath>
#include <optional>

#include "commands/justify/justification_prompt.h"
#include "commands/justify/justify_rows.h"
#include "commands/single_line/new_text.h"
#include "commands/single_line/text_data.h"
#include "commands/single_line/text_style_prompt.h"
#include "host/angle_text.h"
#include "host/distance_text.h"
#include "host/document.h"
#include "host/keyword_list.h"
#include "host/prompt.h"
#include "host/selection_set.h"
#include "host/translate.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbTextStyleTableRecord.h"
#include "ui/resources/message_format.h"

namespace {

/// First question by justification, and the words that may answer it.
constexpr std::array<int, 15> kOriginPrompts{1017, 1076, 1076, 1078, 1079, 1080, 1081, 1082,
                                             1083, 1084, 1079, 1086, 1087, 1088, 1089};
constexpr int kOriginWords = 1018;
constexpr int kBaselineWords = 1074;
constexpr int kPlaceWords = 1085;
constexpr int kEqualPoints = 1075;
constexpr int kEndPoint = 1077;
constexpr int kHeight = 1023;
constexpr int kRotation = 1024;
constexpr int kStatus = 1112;
constexpr double kNone = 1e-10;

/// The text made last; null when there is none in the drawing any more.
OdDbTextPtr last_text(const HostDocument& document) {
  const OdDbObjectId id = text_data()[document].last_text;
  return odCast<OdDbText>(id && !id.isErased() ? id.openObject() : OdDbObjectPtr());
}

/// Shows the text made last as selected, for as long as it lives.
class Highlight {
 public:
  explicit Highlight(HostDocument& document) : m_selection(document.pickFirst()) {
    if (const auto text = last_text(document)) m_selection.add(text->objectId());
  }
  ~Highlight() { m_selection.clear(); }
  Highlight(const Highlight&) = delete;
  Highlight& operator=(const Highlight&) = delete;

 private:
  HostSelectionSet& m_selection;
};

class Questions {
 public:
  Questions(HostDocument& document, new_text_settings& settings)
      : m_document(document), m_prompt(document.prompt()), m_settings(settings) {}

  bool ask() {
    const auto is_placed = ask_place();
    if (!is_placed) return false;
    if (!*is_placed) return go_below(*last_text(m_document));
    return ask_end() && ask_height() && ask_rotation();
  }

 private:
  /// Whether the text has a point of its own, or goes below the last one; nothing when it was cancelled.
  std::optional<bool> ask_place() {
    for (;;) {
      tell_status();
      const HostKeywordList words(origin_words());
      const int answer = ask_origin();
      if (answer == kAnswerValue) return true;
      if (answer == kAnswerNothing) return false;
      if (answer < 0 || !take_word(words.globalName(static_cast<std::size_t>(answer)))) return std::nullopt;
    }
  }

  void tell_status() {
    const auto style =
        odCastOrThrow<OdDbTextStyleTableRecord>(m_document.database().getTEXTSTYLE().openObject());
    m_prompt.message(resources::format_string(kStatus, {style->getName().str(), hostdbRToS(m_settings.height),
                                                        justification_name(m_settings.justify)}));
  }

  std::u16string origin_words() const {
    if (m_settings.has_two_points()) return host::resource_string(kBaselineWords);
    return host::resource_string(m_settings.justify == 0 ? kOriginWords : kPlaceWords);
  }

  /// An empty line counts where there is a text to go below.
  int ask_origin() {
    const Highlight highlight(m_document);
    const int prompt = kOriginPrompts.at(static_cast<std::size_t>(m_settings.justify));
    return m_prompt.getPoint({.prompt = host::resource_string(prompt),
                              .keywords = origin_words(),
                              .may_be_empty = static_cast<bool>(last_text(m_document))},
                             m_settings.origin);
  }

  /// False when a question behind the word was cancelled.
  bool take_word(const std::u16string& word) {
    if (word == u"Style") return take_style();
    if (word != u"Justify") {
      m_settings.justify = justification_of(word).value_or(m_settings.justify);
      return true;
    }
    const int answer = ask_justification(m_prompt);
    if (answer >= 0) m_settings.justify = answer;
    return answer >= 0 || answer == kAnswerNothing;
  }

  bool take_style() {
    if (!ask_text_style(m_document)) return false;
    if (const double fixed = fixed_height(m_document); fixed != 0) m_settings.height = fixed;
    keep_height(m_document, m_settings.height);
    return true;
  }

  bool ask_end() {
    if (!m_settings.has_two_points()) return true;
    for (;;) {
      const int answer = m_prompt.getPoint(
          {.prompt = host::resource_string(kEndPoint), .base_point = m_settings.origin, .rubber_line = true},
          m_settings.end);
      if (answer != kAnswerValue) return false;
      if (!m_settings.end.isEqualTo(m_settings.origin)) break;
      m_prompt.message(host::resource_string(kEqualPoints));
    }
    const OdGePoint2d way = OdGePlane(m_settings.origin, m_settings.normal).paramOf(m_settings.end);
    m_settings.rotation = std::atan2(way.y, way.x);
    return true;
  }

  bool ask_height() {
    const bool is_aligned =
        justify_rows()[static_cast<std::size_t>(m_settings.justify)].horizontal == OdDb::kTextAlign;
    if (is_aligned || fixed_height(m_document) != 0) return true;
    double height = 0;
    const int answer =
        m_prompt.getDistance({.prompt = resources::format_string(kHeight, {hostdbRToS(m_settings.height)}),
                              .base_point = m_settings.origin,
                              .rubber_line = true,
                              .may_be_empty = true},
                             height);
    if (answer == kAnswerValue && height > kNone) m_settings.height = height;
    keep_height(m_document, m_settings.height);
    return answer == kAnswerValue || answer == kAnswerNothing;
  }

  bool ask_rotation() {
    if (m_settings.has_two_points()) return true;
    const int answer =
        m_prompt.getAngle({.prompt = resources::format_string(kRotation, {hostdbAngToS(m_settings.rotation)}),
                           .base_point = m_settings.origin,
                           .normal = m_settings.normal,
                           .rubber_line = true,
                           .may_be_empty = true},
                          m_settings.rotation);
    return answer == kAnswerValue || answer == kAnswerNothing;
  }

  /// Takes what the last text has, and moves on.
  bool go_below(const OdDbText& last) {
    m_settings.normal = last.normal();
    m_settings.rotation = last.rotation();
    m_settings.height = last.height();
    m_settings.justify = justify_index(last.horizontalMode(), last.verticalMode());
    m_settings.origin =
        last.isDefaultAlignment() || m_settings.has_two_points() ? last.position() : last.alignmentPoint();
    m_settings.end = last.alignmentPoint();
    m_settings.go_down();
    return true;
  }

  HostDocument& m_document;
  HostEdPrompt& m_prompt;
  new_text_settings& m_settings;
};

}  // namespace

bool ask_new_text(HostDocument& document, new_text_settings& settings) {
  return Questions(document, settings).ask();
}
