#include <map>

#include "host/input.h"
#include "tests/conformance/session_subject.h"

// The steps that a user's hands make: keys, characters and the mouse.

namespace conformance {
namespace {

void send(session_subject& subject, const HostWindowMessage& message) {
  session_filter filter(subject.session());
  filter.filterMessage(message, message.point);
}

json press_key(session_subject& subject, const json& in) {
  subject.hold_keys(in);
  send(subject, {.number = WM_KEYDOWN, .code = in.at("vk"), .repeat = member_or(in, "repeat", 1)});
  send(subject, {.number = WM_KEYUP, .code = in.at("vk")});
  return nullptr;
}

json type_character(session_subject& subject, const json& in) {
  subject.hold_keys(in);
  const std::u16string text = text_member(in, "ch");
  send(subject, {.number = WM_CHAR, .code = text.at(0), .repeat = member_or(in, "repeat", 1)});
  return nullptr;
}

OdGePoint2d point_of(const json& in) { return {in.at("x"), in.at("y")}; }

json press(session_subject& subject, const json& in) {
  subject.session().mouse().press(point_of(in), member_or(in, "shift", false), member_or(in, "ctrl", false));
  return nullptr;
}

json drag(session_subject& subject, const json& in) {
  subject.session().mouse().drag(point_of(in));
  return nullptr;
}

json release(session_subject& subject, const json&) {
  subject.session().mouse().release();
  return nullptr;
}

json double_click(session_subject& subject, const json& in) {
  subject.text().selectWordAt(point_of(in));
  return nullptr;
}

json undo(session_subject& subject, const json&) {
  subject.session().undoStep();
  return nullptr;
}

json redo(session_subject& subject, const json&) {
  subject.session().redoStep();
  return nullptr;
}

}  // namespace

session_step find_input_step(const std::string& name) {
  static const std::map<std::string, session_step> steps{
      {"key", press_key},   {"char", type_character},       {"press", press}, {"drag", drag},
      {"release", release}, {"double_click", double_click}, {"undo", undo},   {"redo", redo}};
  const auto found = steps.find(name);
  return found == steps.end() ? nullptr : found->second;
}

}  // namespace conformance
