#include <gtest/gtest.h>

#include <set>

#include "editor/key_table.h"
#include "host/key_code.h"
#include "host/message_filter.h"
#include "tests/editor/edited_text.h"
#include "tests/editor/flat_view.h"

namespace {

/// What a key does to an undo run of the kind 6 that stands before it.
enum run : int { kKept = 6, kEnded = 0, kDelete = 1, kType = 2, kFormat = 4 };

/// What a key has painted anew.
enum painted { kAll, kGadgetsAlone };

/// One row of the key table at work. The clipboard holds "pq" as plain text.
struct row {
  const char* key;
  const char* before;
  const char* after;
  run undo_run;
  painted layers;
  const char* ended = "";
};

constexpr row kMultiLine[] = {
    {"Backspace*2", "abc|", "a|", kDelete, kAll},
    {"Ctrl+Backspace*2", "ab cd ef|", "ab |", kDelete, kAll},
    {"Shift+Enter*2", "a|b", "a↵↵|b", kType, kAll},
    {"Ctrl+Shift+Enter", "a|b", "a↵|b", kType, kAll},
    {"Ctrl+Enter*2", "a|b", "a|b", kType, kAll, "accept"},
    {"Enter*2", "a|b", "a¶¶|b", kType, kAll},
    {"Ctrl+Alt+Enter", "a|b", "a¶|b", kType, kAll},
    {"Esc", "[a]b[c]", "[a]bc", kKept, kAll},
    {"Esc", "[a]bc", "[a]bc", kKept, kAll, "cancel"},
    {"Ctrl+Shift+Space*2", "a|b", "a~|b", kDelete, kAll},
    {"PageUp*2", "a¶b|c", "|a¶bc", kEnded, kGadgetsAlone},
    {"Shift+PageUp", "a¶b|c", "{a¶b}c", kEnded, kGadgetsAlone},
    {"PageDown", "a|b¶c", "ab¶c|", kEnded, kGadgetsAlone},
    {"Shift+PageDown", "a|b¶c", "a[b¶c]", kEnded, kGadgetsAlone},
    {"End", "a|b¶c", "ab|¶c", kEnded, kGadgetsAlone},
    {"Shift+End", "a|b¶c", "a[b]¶c", kEnded, kGadgetsAlone},
    {"Home", "a¶b|c", "a¶|bc", kEnded, kGadgetsAlone},
    {"Shift+Home", "a¶b|c", "a¶{b}c", kEnded, kGadgetsAlone},
    {"Left*2", "abc|", "a|bc", kEnded, kGadgetsAlone},
    {"Ctrl+Left*2", "a b c|", "a |b c", kEnded, kGadgetsAlone},
    {"Shift+Left*2", "abc|", "a{bc}", kEnded, kGadgetsAlone},
    {"Up*2", "ab¶cd¶e|f", "a|b¶cd¶ef", kEnded, kGadgetsAlone},
    {"Shift+Up", "ab¶c|d", "a{b¶c}d", kEnded, kGadgetsAlone},
    {"Ctrl+Alt+Up*2", "ab¶cd¶e|f", "a|b¶c|d¶e|f", kEnded, kGadgetsAlone},
    {"Right*2", "|abc", "ab|c", kEnded, kGadgetsAlone},
    {"Ctrl+Right*2", "|a b c", "a b |c", kEnded, kGadgetsAlone},
    {"Shift+Right*2", "|abc", "[ab]c", kEnded, kGadgetsAlone},
    {"Down*2", "a|b¶cd¶ef", "ab¶cd¶e|f", kEnded, kGadgetsAlone},
    {"Shift+Down", "a|b¶cd", "a[b¶c]d", kEnded, kGadgetsAlone},
    {"Ctrl+Alt+Down*2", "a|b¶cd¶ef", "a|b¶c|d¶e|f", kEnded, kGadgetsAlone},
    {"Ctrl+Insert", "a[b]c", "a[b]c", kKept, kAll},
    {"Shift+Insert*2", "a[b]c", "apq|c", kDelete, kAll},
    {"Shift+Delete", "a[b]c", "a|c", kDelete, kAll},
    {"Delete*2", "a|bcd", "a|d", kDelete, kAll},
    {"Ctrl+a", "a|b", "[ab]", kKept, kAll},
    {"Ctrl+b*2", "a[b]c", "a[b]c", kFormat, kAll},
    {"Ctrl+c", "a[b]c", "a[b]c", kKept, kAll},
    {"Ctrl+i*2", "a[b]c", "a[b]c", kFormat, kAll},
    {"Ctrl+o*2", "a[b]c", "a[b]c", kFormat, kAll},
    {"Ctrl+t*2", "a|b", "a‖|b", kKept, kAll},
    {"Ctrl+u*2", "a[b]c", "a[b]c", kFormat, kAll},
    {"Ctrl+v*2", "a|b", "apq|b", kDelete, kAll},
    {"Ctrl+x", "a[b]c", "a|c", kDelete, kAll},
    {"Ctrl+y", "a|b", "a|b", kEnded, kAll},
    {"Ctrl+z", "a|b", "a|b", kEnded, kAll},
};

/// Keys that are not handled: the character comes through behind the step of the key.
constexpr row kPassed[] = {
    {"Space*2", "a|b", "a  |b", kType, kAll},    {"Shift+Space", "a|b", "a |b", kType, kAll},
    {"Ctrl+Space", "a|b", "a|b", kDelete, kAll}, {"v*2", "a|b", "avv|b", kType, kAll},
    {"x*2", "a|b", "axx|b", kType, kAll},        {"Insert", "a|b", "a|b", kKept, kAll},
    {"Ctrl+q", "a|b", "a|b", kKept, kAll},
};

/// In a single-line text that had letters when it was opened.
constexpr row kExistingLine[] = {
    {"Enter", "a|b", "a|b", kType, kAll, "accept"},
    {"Shift+Enter", "a|b", "a|b", kType, kAll, "accept"},
    {"Ctrl+Enter", "a|b", "a|b", kType, kAll, "accept"},
};

/// In a single-line text that is new.
constexpr row kNewLine[] = {
    {"Enter", "|", "|", kType, kAll, "accept"},     {"Enter", "a|", "a¶|", kType, kAll},
    {"Enter", "a¶|", "a¶|", kType, kAll, "accept"}, {"Enter", "a|¶", "a¶|¶", kType, kAll},
    {"Enter", "a|¶|", "a¶|¶¶|", kType, kAll},
};

std::string named(const row& row) { return std::string(row.key) + " in " + row.before; }

/// An application that asks nobody to paint, so that what is out of date stays so.
struct unpainting_application : WindowlessApplication {
  explicit unpainting_application(WindowlessApplication& around)
      : WindowlessApplication(&around.document().database()), inner(around) {
    lay_flat(*this);
  }
  HostHeldKeys& keyState() override { return inner.keyState(); }
  HostMemoryClipboard& clipboard() override { return inner.clipboard(); }
  void updateNow() override {}
  WindowlessApplication& inner;
};

void expect_at_work(const row& row, edited_text& text) {
  text.application().clipboard().empty();
  text.application().clipboard().set(CF_UNICODETEXT, u"pq");
  const unpainting_application unpainting(text.application());
  text.session().onChanged();
  text.session().repaint(redraw_request::kText);
  text.session().pushUndoStep(kKept);
  auto& overlay = text.application().document().view().overlay();
  overlay.setPainted();
  text.keys(row.key);
  EXPECT_EQ(text.drawn(), row.after) << named(row);
  EXPECT_EQ(text.ended(), row.ended) << named(row);
  EXPECT_EQ(text.session().undo().run_kind(), row.undo_run) << named(row);
  EXPECT_TRUE(overlay.isInvalid(text.session().layers().gadgets())) << named(row);
  EXPECT_EQ(overlay.isInvalid(text.session().layers().text()), row.layers == kAll) << named(row);
}

}  // namespace

TEST(KeyRows, do_what_they_say_with_their_condition_their_undo_run_their_repeats_and_their_repaint) {
  for (const row& row : kMultiLine) {
    edited_text text(row.before);
    if (row.undo_run == kEnded && row.layers == kAll) continue;  // undo and redo change the stacks themselves
    expect_at_work(row, text);
  }
}

TEST(KeyRows, a_key_that_is_not_handled_lets_its_character_through) {
  for (const row& row : kPassed) {
    edited_text text(row.before);
    expect_at_work(row, text);
  }
}

TEST(KeyRows, enter_in_a_single_line_text_with_letters_accepts_whatever_is_held) {
  for (const row& row : kExistingLine) {
    edited_text text(row.before);
    text.session().beginPlain(/*single_line=*/true, /*had_text=*/true);
    expect_at_work(row, text);
  }
}

TEST(KeyRows, enter_in_a_new_single_line_text_accepts_with_all_carets_behind_an_empty_last_line) {
  for (const row& row : kNewLine) {
    edited_text text(row.before);
    text.session().beginPlain(/*single_line=*/true, /*had_text=*/false);
    expect_at_work(row, text);
  }
}

TEST(KeyRows, edits_push_one_step_and_moves_none) {
  for (const row& row : kMultiLine) {
    edited_text text(row.before);
    text.keys(row.key);
    const bool pushes = row.undo_run == kDelete || row.undo_run == kType || row.undo_run == kFormat;
    EXPECT_EQ(text.session().undo().undo_count(), pushes ? 1U : 0U) << named(row);
  }
}

namespace {

/// Notes the row of the table that each key meets.
struct row_watch : HostEdMessageFilter {
  bool filterMessage(const HostWindowMessage& message, const OdGePoint3d&) override {
    if (message.number == WM_KEYDOWN)
      seen.insert(editing::find_key(message.code, keys_held(message), *session));
    return false;
  }
  smart_edit* session = nullptr;
  std::set<const editing::key_row*> seen;
};

}  // namespace

TEST(KeyRows, every_row_of_the_table_is_at_work_here) {
  row_watch watch;
  const auto see = [&](const row& row, bool single_line, bool had_text) {
    edited_text text(row.before);
    text.session().beginPlain(single_line, had_text);
    watch.session = &text.session();
    text.application().document().messages().pushFilter(watch, 3);
    text.keys(row.key);
    text.application().document().messages().popFilter(watch);
  };
  for (const row& row : kMultiLine) see(row, false, false);
  for (const row& row : kPassed) see(row, false, false);
  for (const row& row : kExistingLine) see(row, true, true);
  for (const row& row : kNewLine) see(row, true, false);
  for (const editing::key_row& row : editing::key_table())
    EXPECT_TRUE(watch.seen.contains(&row)) << row.key << " " << &row - editing::key_table().data();
}

TEST(KeyRows, ctrl_z_and_ctrl_y_paint_all_when_they_change_something_and_end_the_run) {
  edited_text text("a|");
  text.keys("x");
  const unpainting_application unpainting(text.application());
  auto& overlay = text.application().document().view().overlay();
  for (const char* key : {"Ctrl+z", "Ctrl+y"}) {
    overlay.setPainted();
    text.keys(key);
    EXPECT_TRUE(overlay.isInvalid(text.session().layers().text())) << key;
    EXPECT_TRUE(overlay.isInvalid(text.session().layers().gadgets())) << key;
    EXPECT_EQ(text.session().undo().run_kind(), 0) << key;
  }
}

namespace {

/// A keyboard whose Shift is let go when it was asked for a number of times.
struct tired_shift : HostHeldKeys {
  bool shift() const override { return asked++ < holds; }
  int holds = 0;
  mutable int asked = 0;
};

struct application_with_tired_shift : WindowlessApplication {
  using WindowlessApplication::WindowlessApplication;
  HostHeldKeys& keyState() override { return held; }
  tired_shift held;
};

}  // namespace

TEST(KeyRows, of_a_repeated_key_ask_what_is_held_once_per_repeat) {
  edited_text text("abcd|");
  application_with_tired_shift application(&text.application().document().database());
  application.held.holds = 3;  // the search for the row, then two of three repeats
  text.send({.number = WM_KEYDOWN, .code = VK_LEFT, .repeat = 3});
  EXPECT_EQ(text.drawn(), "ab|cd");
}
