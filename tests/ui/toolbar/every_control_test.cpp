// Walks all controls of both layouts: what each of them does to a text.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <set>

#include "host/field_service.h"
#include "tests/ui/toolbar/edited_with_toolbar.h"
#include "ui/dialogs/CSymbolDlg.h"
#include "ui/dialogs/dialog_display.h"
#include "ui/toolbar/button_table.h"
#include "ui/toolbar/control_table.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Every dialog is closed with OK as it came up; the symbol dialog with a sign chosen.
class agreeing_display : public DialogDisplay {
 public:
  bool show(CParagraphDlg&) override { return true; }
  bool show(CMTextColumnsDlg&) override { return true; }
  bool show(CSymbolDlg& dialog) override {
    dialog.select(U'\u00B0');
    return true;
  }
  bool show(CCaseDlg&) override { return true; }
};

/// What a user does with a control, and what becomes of the text.
struct use {
  int id;
  const char* before;
  std::function<void(edited_with_toolbar&)> action;
  const char* codes;  ///< afterwards
  int kind;           ///< of the one undo step; `kUndoNone`: there is none
};

void PrintTo(const use& each, std::ostream* out) { *out << "control " << each.id; }

std::function<void(edited_with_toolbar&)> press(int id, int command = 0) {
  return [id, command](edited_with_toolbar& text) { text.press(id, command); };
}

void choose_font(edited_with_toolbar& text) { text.bar().fonts().choose(1); }
void type_size(edited_with_toolbar& text) { text.enter(text.bar().sizes().edit(), u"5"); }
void choose_color(edited_with_toolbar& text) { text.bar().colors().choose(2); }
void type_oblique(edited_with_toolbar& text) { text.enter(text.bar().oblique().edit(), u"15"); }
void type_width(edited_with_toolbar& text) { text.enter(text.bar().widthFactor().edit(), u"0.8"); }

const use kUses[] = {
    {1001, "a[b]c", press(1001), "a{\\f|b1|i0|c0|p0;b}c", kUndoToolbar},
    {1002, "a[b]c", press(1002), "a{\\f|b0|i1|c0|p0;b}c", kUndoToolbar},
    {1003, "a[b]c", press(1003), "a{\\Lb}c", kUndoToolbar},
    {1004, "a[b]c", press(1004), "a{\\Ob}c", kUndoToolbar},
    {1005, "[ab]", press(1005), "\\pxql;ab", kUndoToolbar},
    {1006, "[ab]", press(1006), "\\pxqc;ab", kUndoToolbar},
    {1007, "[ab]", press(1007), "\\pxqr;ab", kUndoToolbar},
    {1010, "[ab]", press(1010), "\\pxqj;ab", kUndoToolbar},
    {1011, "[ab]", press(1011), "\\pxqd;ab", kUndoToolbar},
    {1014, "[1/2]", press(1014), "{\\H0.7x;\\S1/2;}", kUndoToolbar},
    {1051, "a[2]", press(1051), "a{\\H0.7x;\\S2^;}", kUndoToolbar},
    {1052, "a[2]", press(1052), "a{\\H0.7x;\\S^2;}", kUndoToolbar},
    {1032, "a[b]c", press(1032), "aBc", kUndoToolbar},
    {1039, "A[B]C", press(1039), "AbC", kUndoToolbar},
    {1047, "a|c", press(1047), "a%%dc", kUndoSymbol},
    {1048, "[ab]", press(1048, 1042), "\\pxsm2;ab", kUndoMenu},
    {1049, "a|b", press(1049, 1025), "\\pxi-3,l3,t3;1.\tab", kUndoMenu},
    {1050, "a|c", press(1050), "a%<\\AcVar Title>%c", kUndoField},
    {1053, "a|c", press(1053, 1078), "a\\Nc", kUndoMenu},
    {1009, "a[b]c", choose_font, "a{\\fArial|b0|i0|c0|p0;b}c", kUndoToolbar},
    {1008, "a[b]c", type_size, "a{\\H2x;b}c", kUndoNone},
    {1029, "a[b]c", choose_color, "a{\\C1;b}c", kUndoToolbar},
    {1040, "a[b]c", type_oblique, "a{\\Q15;b}c", kUndoToolbar},
    {1042, "a[b]c", type_width, "a{\\W0.8;b}c", kUndoToolbar},
};

/// Those that change no codes have tests of their own in this file.
const std::set<int> kOfTheirOwn = {1, 2, 1012, 1013, 1015, 1054};

}  // namespace

TEST(ControlTable, every_control_has_a_use_here) {
  std::set<int> tried = kOfTheirOwn;
  for (const use& each : kUses) tried.insert(each.id);
  std::set<int> all;
  for (const toolbar_control& control : toolbar::control_table()) all.insert(control.id);
  EXPECT_EQ(tried, all);
}

class EveryControl : public testing::TestWithParam<use> {
 protected:
  EveryControl() { fields.give(u"\\AcVar Title"); }

  agreeing_display display;
  dialogs::ShowingDialogs showing{display};
  HostGivenFields fields;
  host::OfferingFields offering{fields};
};

INSTANTIATE_TEST_SUITE_P(Walk, EveryControl, testing::ValuesIn(kUses),
                         [](const auto& each) { return "control_" + std::to_string(each.param.id); });

TEST_P(EveryControl, changes_the_text_as_its_operation_does) {
  edited_with_toolbar text(GetParam().before);
  GetParam().action(text);
  EXPECT_EQ(text.codes(), GetParam().codes);
}

TEST_P(EveryControl, opens_one_undo_step_of_its_kind_or_none) {
  edited_with_toolbar text(GetParam().before);
  GetParam().action(text);
  if (GetParam().kind == kUndoNone)
    EXPECT_THAT(text.steps(), IsEmpty());
  else
    EXPECT_THAT(text.steps(), ElementsAre(GetParam().kind));
}

TEST_P(EveryControl, gives_the_focus_back_to_the_view) {
  edited_with_toolbar text(GetParam().before);
  const int before = text.application().window().focusTaken();
  GetParam().action(text);
  EXPECT_GT(text.application().window().focusTaken(), before);
}

TEST_P(EveryControl, leaves_a_text_that_is_laid_out_and_a_step_back_to_the_text_before) {
  edited_with_toolbar text(GetParam().before);
  const std::string before = text.codes();
  GetParam().action(text);
  if (GetParam().kind == kUndoNone) return;
  text.press(1012);
  EXPECT_EQ(text.codes(), before);
  text.press(1013);
  EXPECT_EQ(text.codes(), GetParam().codes);
}

TEST(EveryControlOfItsOwn, ok_ends_the_session_by_acceptance) {
  edited_with_toolbar text("a|");
  text.press(1);
  EXPECT_EQ(text.ended(), "accept");
}

TEST(EveryControlOfItsOwn, closing_the_window_ends_it_by_cancelling) {
  edited_with_toolbar text("a|");
  text.bar().close();
  EXPECT_EQ(text.ended(), "cancel");
}

TEST(EveryControlOfItsOwn, undo_and_redo_open_no_step_of_their_own) {
  edited_with_toolbar text("a[b]c");
  text.press(1003);
  EXPECT_TRUE(text.isEnabled(1012));
  EXPECT_FALSE(text.isEnabled(1013));
  text.press(1012);
  EXPECT_EQ(text.codes(), "abc");
  EXPECT_FALSE(text.isChecked(1003));
  EXPECT_THAT(text.steps(), IsEmpty());
  EXPECT_TRUE(text.isEnabled(1013));
  text.press(1013);
  EXPECT_TRUE(text.isChecked(1003));
}

TEST(EveryControlOfItsOwn, the_attachment_moves_the_text_at_its_insertion_point) {
  edited_with_toolbar text("ab|");
  text.press(1054, 1118);
  EXPECT_EQ(text.text().attachment(), 4);
  EXPECT_THAT(text.steps(), ElementsAre(kUndoMenu));
  text.press(1012);
  EXPECT_EQ(text.text().attachment(), 0);
}

TEST(EveryControlOfItsOwn, a_style_gives_the_text_its_font) {
  edited_with_toolbar text("[ab]");
  auto& styles = text.bar().styles();
  ASSERT_FALSE(styles.rows().empty());
  styles.choose(0);
  EXPECT_EQ(text.text().styleId(), styles.rows()[0].item);
  EXPECT_EQ(styles.selected(), 0U);
  EXPECT_THAT(text.steps(), ElementsAre(kUndoToolbar));
}

TEST(ButtonTable, has_a_row_for_every_button_and_no_other) {
  std::set<int> buttons, actions;
  for (const toolbar_control& control : toolbar::control_table())
    if (toolbar::is_button(control)) buttons.insert(control.id);
  for (const toolbar::button_action& action : toolbar::button_table()) actions.insert(action.id);
  EXPECT_EQ(buttons, actions);
  EXPECT_THROW(toolbar::action_of(4711), std::invalid_argument);
}
