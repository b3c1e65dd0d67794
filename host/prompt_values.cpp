#include <cmath>

#include "host/distance_text.h"
#include "host/document.h"
#include "host/prompt_loop.h"
#include "host/prompt_text.h"
#include "host/reading.h"
#include "host/translate.h"
#include "host/typed_value.h"
#include "od/db/OdDbDatabase.h"
#include "od/ge/OdGePlane.h"

// What each prompt takes for its value.

namespace {

HostReading reading_of(const HostPromptRequest& request, std::u16string wanted) {
  return {.prompt = host::prompt_text(request),
          .keywords = HostKeywordList(request.keywords),
          .default_answer = request.default_answer,
          .may_be_empty = request.may_be_empty,
          .wanted = std::move(wanted),
          .take_line = {}};
}

/// Writes `value` to `target` if there is one; whether there was.
template <typename T>
bool take(const std::optional<T>& value, T& target) {
  if (value) target = *value;
  return value.has_value();
}

}  // namespace

OdGePoint3d HostPromptLoop::basePoint(const HostPromptRequest& request) const {
  return request.base_point.value_or(m_last_point);
}

std::optional<OdGePoint3d> HostPromptLoop::typedPoint(std::u16string_view line,
                                                      const HostPromptRequest& request) const {
  const OdGePoint3d base = basePoint(request);
  const auto along = request.rubber_line ? host::typed_along(line, base, m_cursor) : std::nullopt;
  return along ? along : host::typed_point(line, base);
}

int HostPromptLoop::getPoint(const HostPromptRequest& request, OdGePoint3d& point) {
  HostReading reading = reading_of(request, u"A point is wanted here, such as 10,20 or @5<90.");
  reading.take_line = [&](std::u16string_view line) { return take(typedPoint(line, request), point); };
  reading.take_press = [&](const OdGePoint3d& pressed) {
    point = pressed;
    return true;
  };
  const int answer = ask(request, reading);
  if (answer == kAnswerValue) m_last_point = point;
  return answer;
}

int HostPromptLoop::read_input(std::u16string_view prompt, std::u16string_view keywords, unsigned flags,
                               std::u16string* answer) {
  const HostPromptRequest request{.prompt = std::u16string(prompt),
                                  .keywords = std::u16string(keywords),
                                  .may_be_empty = (flags & (kReadMayBeEmpty | kReadOnlyWaits)) != 0};
  const char16_t* wanted = (flags & kReadOnlyWaits) ? u"Nothing is read here: Enter finishes and Esc cancels."
                                                    : u"Something has to be typed here.";
  HostReading reading = reading_of(request, wanted);
  reading.is_command = (flags & kReadCommand) != 0;
  if (reading.is_command) m_selection_answered = false;
  reading.takes_blanks = (flags & kReadBlanksAlone) != 0;
  reading.take_line = [&](std::u16string_view line) {
    if ((flags & kReadOnlyWaits) && !line.empty()) return false;
    const bool keeps_blanks = (flags & kReadKeepBlanks) != 0;
    if (answer) *answer = keeps_blanks ? line : host::without_outer_blanks(line);
    return true;
  };
  return ask(request, reading);
}

int HostPromptLoop::getString(const HostPromptRequest& request, bool whole_line, std::u16string& text) {
  HostReading reading = reading_of(request, u"A text is wanted here.");
  reading.take_line = [&](std::u16string_view line) {
    const std::u16string_view typed = whole_line ? line : host::without_outer_blanks(line);
    text = whole_line ? typed : typed.substr(0, typed.find(u' '));
    return !line.empty();
  };
  return ask(request, reading);
}

int HostPromptLoop::getReal(const HostPromptRequest& request, double& value) {
  HostReading reading = reading_of(request, u"A number is wanted here, such as 2.5.");
  reading.take_line = [&](std::u16string_view line) { return take(host::typed_number(line), value); };
  return ask(request, reading);
}

int HostPromptLoop::getDistance(const HostPromptRequest& request, double& value) {
  std::optional<OdGePoint3d> first;
  const auto take_point = [&](const OdGePoint3d& point) {
    if (request.base_point) value = point.distanceTo(*request.base_point);
    if (!request.base_point) first = point;
    return true;
  };
  HostReading reading = reading_of(request, u"A length is wanted here, such as 2.5, or a point.");
  reading.take_line = [&](std::u16string_view line) {
    const auto length = host::typed_distance(line, host::distance_format_of(m_document.database()).units);
    if (length) return *length >= 0 && *length <= host::kGreatestNumber && take(length, value);
    const auto point = typedPoint(line, request);
    return point && take_point(*point);
  };
  reading.take_press = take_point;
  const int answer = ask(request, reading);
  if (answer != kAnswerValue || !first) return answer;
  OdGePoint3d second;
  const int then = getPoint({.prompt = Supp_Translate(u"Specify second point"), .base_point = first}, second);
  if (then == kAnswerValue) value = second.distanceTo(*first);
  return then;
}

int HostPromptLoop::getAngle(const HostPromptRequest& request, double& radians) {
  const OdGePoint3d base = basePoint(request);
  const auto take_point = [&](const OdGePoint3d& point) {
    if (point.isEqualTo(base)) return false;
    const OdGePoint2d way = OdGePlane(base, request.normal).paramOf(point);
    radians = std::atan2(way.y, way.x);
    return true;
  };
  HostReading reading = reading_of(request, u"An angle in degrees is wanted here, or a point.");
  reading.take_line = [&](std::u16string_view line) {
    if (const auto degrees = host::typed_angle(line)) return take(degrees, radians);
    const auto point = typedPoint(line, request);
    return point && take_point(*point);
  };
  reading.take_press = take_point;
  return ask(request, reading);
}

int HostPromptLoop::getKeyword(const HostPromptRequest& request) {
  const std::u16string wanted = Supp_Translate(u"One of these is wanted here:") + u" " +
                                HostKeywordList(request.keywords).shown() + u".";
  HostReading reading = reading_of(request, wanted);
  reading.take_line = [](std::u16string_view) { return false; };
  return ask(request, reading);
}
