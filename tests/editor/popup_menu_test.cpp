#include "editor/popup_menu.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "editor/menu_commands.h"
#include "editor/symbols.h"
#include "host/clipboard.h"
#include "host/field_service.h"
#include "host/regula_desk.h"
#include "host/sibling.h"
#include "od/base/unicode.h"
#include "tests/editor/edited_drawing.h"
#include "tests/editor/edited_text.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// The right button goes down and up at a point of the text.
void right_click(edited_text& text, const OdGePoint3d& at = {1, -1, 0}) {
  text.send({.number = WM_RBUTTONDOWN, .pixel = {7, 9}, .point = at});
  text.send({.number = WM_RBUTTONUP, .pixel = {7, 9}, .point = at});
}

void choose(edited_text& text, int command, const OdGePoint3d& at = {1, -1, 0}) {
  text.application().window().choose(command);
  right_click(text, at);
  EXPECT_THAT(text.application().window().refused(), IsEmpty()) << command;
}

/// The rows of the last menu as texts; those that cannot be chosen stand in parentheses.
std::vector<std::string> rows(edited_text& text) {
  std::vector<std::string> result;
  for (const HostMenuItem* row : host::all_rows(text.application().window().lastMenu()))
    result.push_back(row->enabled ? odToUtf8(row->text) : "(" + odToUtf8(row->text) + ")");
  return result;
}

bool can_choose(edited_text& text, int command) {
  right_click(text);
  for (const HostMenuItem* row : host::all_rows(text.application().window().lastMenu()))
    if (row->command == command) return row->enabled;
  return false;
}

/// A text with a field whose value nobody knows: it shows as "----", 4 parts from position 1.
edited_text with_field() { return edited_text::on_codes(u"a%<\\AcVar Date>%b"); }
constexpr double kLetter = 2.5;

/// The reference product, as a test plays it.
class fake_desk : public CKrUnknownImpl<IRegulaDesk> {
 public:
  int showMenu(HostWindow* owner, const char16_t* words, const HostMenu& menu, int x, int y,
               int position) override {
    has_owner = owner != nullptr;
    selected = words ? odToUtf8(words) : "none";
    row_count = host::all_rows(menu).size();
    place = {x, y, position};
    return answer;
  }
  void search(HostWindow*, const char16_t*, int, int) override {}

  int answer = 0;
  bool has_owner = false;
  std::string selected;
  std::size_t row_count = 0;
  std::vector<int> place;
};

}  // namespace

TEST(PopupMenu, the_right_button_opens_it_when_it_is_let_go) {
  edited_text text("ab|");
  text.send({.number = WM_RBUTTONDOWN, .pixel = {7, 9}, .point = {1, -1, 0}});
  EXPECT_TRUE(text.application().window().lastMenu().empty());
  text.send({.number = WM_RBUTTONUP, .pixel = {7, 9}, .point = {1, -1, 0}});
  EXPECT_EQ(text.application().window().lastMenuPlace().x, 7);
  EXPECT_EQ(text.application().window().lastMenuPlace().y, 9);
  EXPECT_THAT(rows(text), ElementsAre("(Undo)", "(Redo)", "", "(Cut)", "(Copy)", "(Paste)", "", "Select all",
                                      "", "Symbol", "Degree", "Plus/minus", "Diameter", "", "(Insert field)"));
}

TEST(PopupMenu, the_cursor_over_it_is_an_arrow) {
  edited_text text("ab|");
  text.application().window().setCursor(IDC_IBEAM);
  right_click(text);
  EXPECT_EQ(text.application().window().cursor(), IDC_ARROW);
}

TEST(PopupMenu, it_leaves_the_carets_and_the_undo_stack_when_nothing_is_chosen) {
  edited_text text("a|b[cd]");
  right_click(text, {100, 100, 0});
  EXPECT_EQ(text.drawn(), "a|b[cd]");
  EXPECT_EQ(text.session().undo().undo_count(), 0u);
  EXPECT_EQ(text.ended(), "");
}

TEST(PopupMenu, every_row_of_both_menus_that_is_shown_has_a_command_behind_it) {
  for (const bool compact : {false, true}) {
    edited_drawing drawing;
    drawing.begin({.compact = compact});
    drawing.send({.number = WM_RBUTTONUP, .point = drawing.text->location()});
    const auto shown = host::all_rows(drawing.application.window().lastMenu());
    EXPECT_EQ(shown.size(), 15u);
    for (const HostMenuItem* row : shown) {
      const bool served = editing::is_offered(row->command, {drawing.session.value(), {}});
      EXPECT_TRUE(row->command == 0 || served) << row->command;
    }
    drawing.end();
  }
}

TEST(PopupMenu, every_command_of_the_table_has_an_action_and_a_number_of_its_own) {
  std::set<int> numbers;
  for (const editing::menu_command& row : editing::menu_command_table()) {
    EXPECT_TRUE(numbers.insert(row.command).second) << row.command;
    EXPECT_FALSE(editing::symbol_of(row.command)) << row.command;
    EXPECT_NE(row.action, nullptr) << row.command;
  }
}

TEST(PopupMenu, cut_and_copy_need_a_selection) {
  for (const char* drawn : {"ab|", "|a|b", "[ab]", "|a[b]"}) {
    edited_text text(drawn);
    const bool selected = std::string(drawn).find('[') != std::string::npos;
    EXPECT_EQ(can_choose(text, 1002), selected) << drawn;
    EXPECT_EQ(can_choose(text, 1003), selected) << drawn;
  }
}

TEST(PopupMenu, undo_and_redo_need_a_step) {
  edited_text text("|");
  EXPECT_FALSE(can_choose(text, 1005));
  text.keys("a");
  EXPECT_TRUE(can_choose(text, 1005));
  EXPECT_FALSE(can_choose(text, 1006));
  text.keys("Ctrl+Z");
  EXPECT_FALSE(can_choose(text, 1005));
  EXPECT_TRUE(can_choose(text, 1006));
}

TEST(PopupMenu, paste_needs_plain_text_or_the_private_format) {
  edited_text text("ab|");
  HostMemoryClipboard& board = text.application().clipboard();
  EXPECT_FALSE(can_choose(text, 1004));
  board.set(board.registerFormat(u"MText"), u"x");
  EXPECT_TRUE(can_choose(text, 1004));
  board.empty();
  board.set(board.registerFormat(u"Picture"), u"x");
  EXPECT_FALSE(can_choose(text, 1004));
  board.set(CF_UNICODETEXT, u"x");
  EXPECT_TRUE(can_choose(text, 1004));
}

TEST(PopupMenu, select_all_selects_all_and_stores_no_step) {
  edited_text text("a|b¶c");
  choose(text, 1001);
  EXPECT_EQ(text.drawn(), "[ab¶c]");
  EXPECT_EQ(text.session().undo().undo_count(), 0u);
}

TEST(PopupMenu, what_is_cut_comes_back_by_paste_and_by_undo) {
  edited_text text("a[bc]d");
  choose(text, 1002);
  EXPECT_EQ(text.drawn(), "a|d");
  choose(text, 1005);
  EXPECT_EQ(text.drawn(), "a[bc]d");
  choose(text, 1006);
  text.keys("End");
  choose(text, 1004);
  EXPECT_EQ(text.drawn(), "adbc|");
  choose(text, 1005);
  EXPECT_EQ(text.drawn(), "ad|");
}

TEST(PopupMenu, copy_leaves_the_text_and_stores_no_step) {
  edited_text text("a[bc]d");
  choose(text, 1003);
  EXPECT_EQ(text.application().clipboard().get(CF_UNICODETEXT), u"bc");
  EXPECT_EQ(text.drawn(), "a[bc]d");
  EXPECT_EQ(text.session().undo().undo_count(), 0u);
}

TEST(PopupMenu, paste_keeps_lines_even_in_a_single_line_text) {
  edited_text text("ab|");
  text.session().beginPlain(/*single_line=*/true, /*had_text=*/true);
  text.application().clipboard().set(CF_UNICODETEXT, u"c\nd");
  choose(text, 1004);
  EXPECT_EQ(text.drawn(), "abc¶d|");
}

TEST(PopupMenu, each_symbol_replaces_every_selection_by_its_one_character) {
  for (const auto& row : editing::symbol_table().first(18)) {
    edited_text text("a|b[cd]");
    EXPECT_TRUE(editing::run_menu_command(row.command, {text.session(), {}}));
    const std::string character = odToUtf8({&row.character, 1});
    EXPECT_EQ(text.drawn(), "a" + character + "|b" + character + "|") << row.command;
  }
}

TEST(PopupMenu, the_first_three_symbols_stand_in_the_menu) {
  edited_text text("|");
  for (const char16_t* entry : {u"Degree", u"Plus/minus", u"Diameter"}) {
    text.application().window().choose(std::u16string_view(entry));
    right_click(text);
  }
  EXPECT_EQ(text.drawn(), "°±Ø|");
}

TEST(PopupMenu, a_symbol_is_undone_without_what_was_typed_before_and_behind) {
  edited_text text("|");
  text.keys("a b");
  choose(text, 1007);
  text.keys("c");
  EXPECT_EQ(text.drawn(), "ab°c|");
  for (const char* expected : {"ab°|", "ab|", "|"}) {
    text.keys("Ctrl+Z");
    EXPECT_EQ(text.drawn(), expected);
  }
}

TEST(PopupMenu, choices_one_after_the_other_are_one_step) {
  edited_text text("|");
  for (const int command : {1007, 1008, 1009}) choose(text, command);
  text.keys("Ctrl+Z");
  EXPECT_EQ(text.drawn(), "|");
}

TEST(PopupMenu, a_chosen_symbol_takes_the_format_of_the_place) {
  edited_text text = edited_text::on_codes(u"\\Lab\\l");
  text.keys("End");
  choose(text, 1007);
  EXPECT_EQ(text.codes(), "{\\Lab%%d}");
}

TEST(PopupMenu, a_choice_ends_the_edit_so_that_all_is_laid_out_and_numbered) {
  edited_text text("1.→a¶2.→[b¶3.→]c");
  choose(text, 1002);
  EXPECT_EQ(text.drawn(), "1.→a¶2.→|c");
}

TEST(PopupMenu, a_menu_while_the_left_button_is_down_ends_the_drag) {
  edited_text text("|", wrapping(40));
  text.keys("a b c");
  text.send({.number = WM_LBUTTONDOWN, .point = {39, -1, 0}});
  choose(text, 1005);
  text.send({.number = WM_MOUSEMOVE, .point = {0.1, -1, 0}});
  EXPECT_EQ(text.drawn(), "|");
}

TEST(PopupMenu, a_text_without_letters_and_a_view_along_the_plane_have_a_menu_too) {
  edited_text text("|");
  text.application().document().view().gsView().setView({0, -10, 0}, {0, 0, 0}, {0, 0, 1}, 10, 10);
  choose(text, 1007, {100, 0, 100});
  EXPECT_EQ(text.drawn(), "°|");
}

TEST(PopupMenu, a_field_under_the_point_can_become_text) {
  edited_text text = with_field();
  ASSERT_TRUE(text.text().hasFields());
  right_click(text, {0.1, -1, 0});
  EXPECT_THAT(rows(text), testing::Not(testing::Contains("Convert field to text")));
  choose(text, 1056, {2 * kLetter, -1, 0});
  EXPECT_THAT(rows(text), testing::Contains("Convert field to text"));
  EXPECT_FALSE(text.text().hasFields());
  EXPECT_EQ(text.drawn(), "|a----b");
  EXPECT_EQ(text.codes(), "a----b");
}

TEST(PopupMenu, a_field_that_became_text_is_a_field_again_after_undo) {
  edited_text text = with_field();
  choose(text, 1056, {2 * kLetter, -1, 0});
  text.keys("Ctrl+Z");
  EXPECT_TRUE(text.text().hasFields());
  EXPECT_EQ(text.codes(), "a%<\\AcVar Date>%b");
}

TEST(PopupMenu, offers_to_insert_a_field_where_none_is_and_to_edit_one_where_it_is) {
  HostGivenFields fields;
  const host::OfferingFields offer(fields);
  edited_text text = with_field();
  right_click(text, {0.1, -1, 0});
  EXPECT_THAT(rows(text), testing::Contains("Insert field"));
  for (const char* row : {"Edit field", "Update field", "Convert field to text"})
    EXPECT_THAT(rows(text), testing::Not(testing::Contains(row)));
  right_click(text, {2 * kLetter, -1, 0});
  EXPECT_THAT(rows(text), testing::Not(testing::Contains("Insert field")));
  for (const char* row : {"Edit field", "Update field", "Convert field to text"})
    EXPECT_THAT(rows(text), testing::Contains(row));
}

TEST(PopupMenu, inserts_edits_and_updates_fields_each_as_a_step) {
  HostGivenFields fields;
  const host::OfferingFields offer(fields);
  edited_text text("|");
  fields.give(u"\\AcVar LUNITS");
  choose(text, 1049);
  EXPECT_EQ(text.codes(), "%<\\AcVar LUNITS>%");
  EXPECT_EQ(text.drawn(), "2|");
  fields.give(u"\\AcVar TEXTSTYLE");
  choose(text, 1052, {0.1, -1, 0});
  EXPECT_EQ(text.drawn(), "Standard|");
  choose(text, 1054, {0.1, -1, 0});
  EXPECT_EQ(text.drawn(), "Standard|");
  text.keys("Ctrl+Z");
  EXPECT_EQ(text.drawn(), "|");
}

TEST(PopupMenu, a_field_cannot_be_made_where_nobody_makes_fields) {
  edited_text text = with_field();
  right_click(text, {0.1, -1, 0});
  EXPECT_THAT(rows(text), testing::Contains("(Insert field)"));
  right_click(text, {2 * kLetter, -1, 0});
  EXPECT_THAT(rows(text), testing::Contains("(Edit field)"));
}

TEST(PopupMenu, an_entry_that_nothing_stands_behind_is_not_shown_and_does_nothing) {
  edited_text text = with_field();
  right_click(text, {2 * kLetter, -1, 0});
  EXPECT_FALSE(editing::run_menu_command(1025, {text.session(), {}}));
  EXPECT_FALSE(editing::run_menu_command(0, {text.session(), {}}));
  EXPECT_EQ(text.session().undo().undo_count(), 0u);
}

TEST(PopupMenu, the_reference_product_shows_the_menu_where_it_is_there) {
  fake_desk desk;
  const host::SiblingOffer offer(desk);
  desk.answer = 1010;
  edited_text text("[ab]c[d]");
  right_click(text);
  EXPECT_TRUE(desk.has_owner);
  EXPECT_EQ(desk.selected, "abd");
  EXPECT_EQ(desk.row_count, 15u);
  EXPECT_THAT(desk.place, ElementsAre(7, 9, -1));
  EXPECT_TRUE(text.application().window().lastMenu().empty());
  EXPECT_EQ(text.drawn(), "≈|c≈|");
  EXPECT_EQ(desk.references(), 1);
}

TEST(PopupMenu, without_a_selection_the_reference_product_gets_no_words_and_may_choose_nothing) {
  fake_desk desk;
  const host::SiblingOffer offer(desk);
  edited_text text("ab|");
  right_click(text);
  EXPECT_EQ(desk.selected, "none");
  EXPECT_EQ(text.drawn(), "ab|");
}

TEST(PopupMenu, with_no_reference_product_there_is_no_entry_in_the_popup) {
  edited_text text("[ab]");
  right_click(text);
  for (const std::string& row : rows(text)) EXPECT_EQ(row.find("Search"), row.npos);
  EXPECT_EQ(rows(text).size(), 15u);
}

TEST(PopupMenu, the_reference_product_cannot_choose_what_is_disabled) {
  fake_desk desk;
  const host::SiblingOffer offer(desk);
  edited_text text("ab|");
  for (const int command : {1002, 1004, 1005, 1056, 4711}) {
    desk.answer = command;
    right_click(text);
  }
  EXPECT_EQ(text.drawn(), "ab|");
  EXPECT_EQ(text.session().undo().undo_count(), 0u);
}
