#include <gtest/gtest.h>

#include <algorithm>

#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbTextStyleTableRecord.h"
#include "tests/editor/edited_text.h"
#include "tests/editor/random_keys.h"
#include "tests/editor/text_state.h"

// Laws that hold whatever is typed. Everything is random, and the same in every run.

namespace {

/// A second style, half as wide; it comes from a drawing of its own.
OdDbObjectId narrow_style(OdDbDatabase& other) {
  const auto style = odCast<OdDbTextStyleTableRecord>(other.getTEXTSTYLE().openObject(OdDb::kForWrite));
  style->setXScale(0.5);
  return other.getTEXTSTYLE();
}

/// A text in a style, as every session of an entity has one.
struct styled_text : edited_text {
  styled_text(std::string_view drawn, const mtext::convert_info& info) : edited_text(drawn, info) {
    styles = {application().document().database().getTEXTSTYLE(), narrow_style(*other)};
    text().setStyle(styles[0], /*keep_runs=*/true);
    text().setTextHeight(2.5, /*keep_runs=*/true);
    text().endOfEdit(/*relayout=*/true);
  }
  OdDbDatabasePtr other = OdDbDatabase::createEmpty();
  std::vector<OdDbObjectId> styles;
};

mtext::format::string_partial random_format(random_keys& random) {
  mtext::format::string_partial change;
  switch (random.below(4)) {
    case 0:
      change.color = mtext::format::text_color{.kind = 0, .index = 1};
      break;
    case 1:
      change.height = {2.0 + static_cast<double>(random.below(4)), 0};
      break;
    case 2:
      change.bold = true;
      break;
    default:
      change.width_factor = 0.7;
  }
  return change;
}

mtext::format::paragraph_partial random_paragraph(random_keys& random) {
  mtext::format::paragraph_partial change;
  if (random.below(2) == 0) change.alignment = 1 + random.below(5);
  if (random.below(2) == 0) change.left = static_cast<double>(random.below(4));
  return change;
}

/// What the toolbar and the gadgets do in a run of one kind.
void change_by_toolbar(styled_text& subject, random_keys& random) {
  ExMTextEditable& text = subject.text();
  switch (random.below(9)) {
    case 0:
      return text.applyFormat(random_format(random));
    case 1:
      return text.applyParagraph(random_paragraph(random));
    case 2:
      return text.setNumbering(static_cast<int>(random.below(5)) - 1);
    case 3:
      return text.stackSelection();
    case 4:
      return text.superscript();
    case 5:
      return text.setAttachment(static_cast<int>(random.below(9)));
    case 6:
      return text.setSize(5.0 + static_cast<double>(random.below(40)), 0);
    case 7:
      return text.setTextHeight(1.0 + static_cast<double>(random.below(4)), random.below(2) == 0);
    default: {
      // A style brings a height of its own, as it does when a session begins.
      const double height = text.textHeight();
      text.setStyle(subject.styles[random.below(2)], /*keep_runs=*/random.below(2) == 0);
      return text.setTextHeight(height, /*keep_runs=*/true);
    }
  }
}

/// A run of like edits, which is one step.
void random_run(styled_text& subject, random_keys& random) {
  const std::size_t length = 1 + random.below(5);
  const std::size_t kind = random.below(3);
  if (kind == 2) subject.session().pushUndoStep(kUndoToolbar);
  for (std::size_t i = 0; i < length; ++i) {
    if (kind == 0) {
      subject.keys(random.below(2) == 0 ? "Enter" : "x");
    } else if (kind == 1) {
      subject.keys(random.below(2) == 0 ? "Backspace" : "Delete");
    } else {
      change_by_toolbar(subject, random);
      subject.text().endOfEdit(/*relayout=*/true);
    }
  }
}

/// Selects at random, up to three stretches.
void select_somewhere(edited_text& subject, random_keys& random) {
  const std::size_t count = subject.text().text().parts.size();
  std::vector<mtext::marks::selection> selections;
  for (std::size_t i = 0; i <= random.below(3); ++i)
    selections.emplace_back(random.below(count + 1), random.below(count + 1));
  subject.text().setSelections(selections);
  subject.text().endOfEdit(/*relayout=*/true);
}

/// Carets at random places that a caret may stand at, from the first to the last.
std::vector<mtext::marks::selection> random_carets(edited_text& subject, random_keys& random) {
  std::vector<mtext::marks::selection> carets;
  const std::size_t count = subject.text().text().parts.size();
  for (std::size_t i = 0; i < 2 + random.below(3); ++i) carets.emplace_back(random.below(count + 1));
  subject.text().setSelections(carets);
  return subject.text().selections();
}

}  // namespace

TEST(EditLaws, undo_of_any_run_of_operations_restores_everything_and_redo_brings_it_back) {
  for (unsigned seed = 0; seed < 150; ++seed) {
    random_keys random(seed);
    styled_text subject(random.text(40) + "|", wrapping(5.0 + static_cast<double>(random.below(40))));
    for (int run = 0; run < 4; ++run) {
      select_somewhere(subject, random);
      subject.session().endUndoRun();
      const std::string before = state_of(subject.text());
      random_run(subject, random);
      const std::string after = state_of(subject.text());
      subject.session().undoStep();
      ASSERT_EQ(state_of(subject.text()), before) << "seed " << seed << " run " << run;
      subject.session().redoStep();
      ASSERT_EQ(state_of(subject.text()), after) << "seed " << seed << " run " << run;
    }
  }
}

TEST(EditLaws, undoing_all_steps_restores_the_text_as_it_was_opened) {
  for (unsigned seed = 0; seed < 20; ++seed) {
    random_keys random(seed);
    styled_text subject(random.text(40) + "|", wrapping(30));
    subject.keys("Left Right");
    const std::string before = state_of(subject.text());
    for (int run = 0; run < 20; ++run) {
      random_run(subject, random);
      subject.session().endUndoRun();
    }
    while (subject.session().hasChanges()) subject.session().undoStep();
    ASSERT_EQ(state_of(subject.text()), before) << "seed " << seed;
  }
}

TEST(EditLaws, several_carets_equal_one_caret_repeated_from_the_end) {
  for (unsigned seed = 0; seed < 400; ++seed) {
    random_keys random(seed);
    const std::string key = random.edit();
    // Of two carets in one list item, Enter at the first may end the list under the second.
    const std::string drawn = random.text(30, /*with_items=*/key != "Enter");
    edited_text together(drawn + "|", wrapping(30)), one(drawn + "|", wrapping(30));
    together.keys("Right");
    one.keys("Right");
    const auto carets = random_carets(together, random);
    together.keys(key);
    for (auto caret = carets.rbegin(); caret != carets.rend(); ++caret) {
      one.text().setSelections({mtext::marks::selection(caret->begin)});
      one.keys(key);
    }
    // Enter leaves the labels behind it at their numbers until the next counted edit.
    for (edited_text* each : {&together, &one}) each->keys("PageDown z Backspace");
    ASSERT_EQ(together.drawn(), one.drawn()) << "seed " << seed << ": " << key << " in " << drawn;
    ASSERT_EQ(together.codes(), one.codes()) << "seed " << seed << ": " << key << " in " << drawn;
  }
}

TEST(EditLaws, any_10000_random_keys_leave_a_sound_text) {
  random_keys random(4);
  edited_text subject("|", wrapping(30));
  for (int i = 1; i <= 10000; ++i) {
    const std::string key = random.key();
    subject.keys(key);
    if (subject.text().text().parts.size() > 250) subject.keys("Shift+PageDown Delete");
    if (i % 200 == 0) {
      expect_sound(subject.text());
      expect_same_codes_again(subject.text());
    }
    ASSERT_FALSE(testing::Test::HasFailure()) << "after key " << i << ", " << key;
  }
  EXPECT_GT(subject.session().undo().undo_count(), 1000U);
}
