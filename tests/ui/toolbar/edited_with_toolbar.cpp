#include "tests/ui/toolbar/edited_with_toolbar.h"

#include <gtest/gtest.h>

namespace {

std::vector<fonts::font_row> some_fonts() {
  return {{u"txt.shx", controls::kShapeFontWord},
          {u"Arial", controls::typeface_word(/*fixed_pitch=*/false, 0)},
          {u"Courier", controls::typeface_word(/*fixed_pitch=*/true, 204)}};
}

}  // namespace

edited_with_toolbar::edited_with_toolbar(std::string_view drawn, const mtext::convert_info& info)
    : edited_text(drawn, info) {
  text().endOfEdit(/*relayout=*/true);
  m_bar = std::make_unique<CMTextEdit>(session(), m_window, some_fonts());
}

void edited_with_toolbar::press(int id, int command) {
  auto& view = application().window();
  if (command != 0) view.choose(command);
  bar().press(id);
  EXPECT_EQ(view.choicesLeft(), 0U) << id;
  EXPECT_TRUE(view.refused().empty()) << id;
}

void edited_with_toolbar::enter(CEditEx& box, std::u16string_view text) {
  box.type(text);
  box.enter();
}

std::vector<int> edited_with_toolbar::steps() {
  std::vector<int> kinds;
  for (const UndoSnapshot& step : session().undo().undo_steps()) kinds.push_back(step.kind);
  return kinds;
}
