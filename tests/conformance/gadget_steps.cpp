#include <map>

#include "tests/conformance/gadget_subject.h"

// The steps that change something: the mouse, the carets, a repaint and a zoom.

namespace conformance {
namespace {

OdGePoint2d point_of(const json& in) { return {in.at("x"), in.at("y")}; }

json press(gadget_subject& subject, const json& in) {
  subject.session().gadgetMouse().press(point_of(in), member_or(in, "shift", false),
                                        member_or(in, "ctrl", false));
  return nullptr;
}

json drag(gadget_subject& subject, const json& in) {
  subject.session().gadgetMouse().drag(point_of(in));
  return nullptr;
}

json release(gadget_subject& subject, const json& in) {
  subject.session().gadgetMouse().release(point_of(in));
  return nullptr;
}

json select(gadget_subject& subject, const json& in) {
  json result = find_text_step("select")(subject.in_session(), in);
  subject.text().endOfEdit(/*relayout=*/true);
  return result;
}

json layout(gadget_subject& subject, const json&) {
  subject.session().gadgets().refreshed();
  return nullptr;
}

json scale(gadget_subject& subject, const json& in) {
  subject.draw_at(in.at("value"));
  return nullptr;
}

}  // namespace

gadget_step find_gadget_step(const std::string& name) {
  static const std::map<std::string, gadget_step> steps{{"press", press},     {"drag", drag},
                                                        {"release", release}, {"select", select},
                                                        {"layout", layout},   {"scale", scale}};
  const auto found = steps.find(name);
  return found == steps.end() ? nullptr : found->second;
}

}  // namespace conformance
