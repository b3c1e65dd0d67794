#include "commands/paste/paste_text.h"

#include <gtest/gtest.h>

#include "commands/paste/paste_tracker.h"
#include "host/clipboard.h"
#include "mtext/entity/mtext_layout.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbTextStyleTableRecord.h"
#include "od/gi/OdGiRecorder.h"
#include "tests/commands/command_run.h"

namespace {

struct paste_run : command_run {
  void clip(std::u16string_view plain) { application.clipboard().set(CF_UNICODETEXT, plain); }
  void clip_codes(std::u16string_view codes) {
    application.clipboard().set(application.clipboard().registerFormat(u"MText"), codes);
  }
  /// Pastes and drops the text at a point that is typed.
  bool paste_at(const std::u16string& point) {
    application.input().line(point);
    return PasteText(/*check_only=*/false);
  }
  template <typename T>
  OdSmartPtr<T> pasted() {
    const auto all = entities();
    return all.size() == 1 ? odOpen<T>(all[0]) : OdSmartPtr<T>();
  }
};

}  // namespace

TEST(PasteText, of_a_plain_line_gives_a_single_line_text) {
  paste_run run;
  run.clip(u"Hall {1}");
  EXPECT_TRUE(run.paste_at(u"3,4"));
  const auto text = run.pasted<OdDbText>();
  ASSERT_TRUE(text);
  EXPECT_EQ(text->textString(), OdString(u"Hall {1}"));
  EXPECT_EQ(text->position(), OdGePoint3d(3, 4, 0));
  EXPECT_EQ(text->rotation(), 0);
}

TEST(PasteText, of_two_plain_lines_gives_a_multi_line_text_of_paragraphs) {
  paste_run run;
  run.clip(u"a\r\nb");
  run.paste_at(u"3,4");
  const auto text = run.pasted<OdDbMText>();
  ASSERT_TRUE(text);
  EXPECT_EQ(text->contents(), OdString(u"a\\Pb"));
  EXPECT_EQ(text->location(), OdGePoint3d(3, 4, 0));
}

TEST(PasteText, takes_codes_in_plain_text_as_letters_and_those_of_the_own_format_as_codes) {
  paste_run plain;
  plain.clip(u"\\C1;{a}\nb");
  plain.paste_at(u"0,0");
  EXPECT_EQ(plain.pasted<OdDbMText>()->contents(), OdString(u"\\\\C1;\\{a\\}\\Pb"));
  paste_run own;
  own.clip(u"a");
  own.clip_codes(u"{\\C1;a}");
  own.paste_at(u"0,0");
  EXPECT_EQ(own.pasted<OdDbMText>()->contents(), OdString(u"{\\C1;a}"));
}

TEST(PasteText, whose_point_is_cancelled_leaves_the_drawing_unchanged) {
  paste_run run;
  run.clip(u"Hall");
  const std::string before = run.database->writeBytes();
  run.application.input().cancel();
  EXPECT_TRUE(PasteText(/*check_only=*/false));
  EXPECT_EQ(run.database->writeBytes(), before);
}

TEST(PasteText, without_a_text_on_the_clipboard_does_nothing) {
  paste_run run;
  EXPECT_FALSE(PasteText(/*check_only=*/true));
  EXPECT_FALSE(PasteText(/*check_only=*/false));
  EXPECT_TRUE(run.entities().empty());
}

namespace {

/// A clipboard that has a text and may not be opened.
class sealed_clipboard : public HostMemoryClipboard {
 public:
  bool empty() override { return touched(); }
  bool set(unsigned, std::u16string_view) override { return touched(); }
  bool has(unsigned format) const override { return format == CF_UNICODETEXT; }
  std::optional<std::u16string> get(unsigned) const override {
    touched();
    return {};
  }

 private:
  static bool touched() {
    ADD_FAILURE() << "the clipboard was opened";
    return false;
  }
};

/// The application of a test with another clipboard.
class with_clipboard : public WindowlessApplication {
 public:
  with_clipboard(OdDbDatabasePtr database, HostMemoryClipboard& clipboard)
      : WindowlessApplication(std::move(database)), m_own(clipboard) {}
  HostMemoryClipboard& clipboard() override { return m_own; }

 private:
  HostMemoryClipboard& m_own;
};

}  // namespace

TEST(PasteText, that_only_checks_never_touches_the_clipboard_s_content_and_does_not_open_it) {
  sealed_clipboard sealed;
  const with_clipboard application(OdDbDatabase::createEmpty(), sealed);
  EXPECT_TRUE(PasteText(/*check_only=*/true));
}

TEST(PasteText, has_the_size_of_the_style_or_else_textsize) {
  paste_run run;
  run.clip(u"a");
  run.database->setSysVarDouble(u"TEXTSIZE", 7);
  run.paste_at(u"0,0");
  EXPECT_EQ(run.pasted<OdDbText>()->height(), 7);
  paste_run fixed;
  fixed.clip(u"a");
  odOpen<OdDbTextStyleTableRecord>(fixed.database->getTEXTSTYLE(), OdDb::kForWrite)->setTextSize(4);
  fixed.paste_at(u"0,0");
  EXPECT_EQ(fixed.pasted<OdDbText>()->height(), 4);
}

TEST(PasteText, asks_for_a_corner_or_an_origin) {
  paste_run run;
  run.clip(u"a");
  run.paste_at(u"0,0");
  EXPECT_NE(run.said().find(u"Input origin of text"), std::u16string::npos);
  run.clip(u"a\nb");
  run.paste_at(u"0,0");
  EXPECT_NE(run.said().find(u"Specify first corner"), std::u16string::npos);
}

TEST(PasteText, shows_the_text_under_the_cursor_while_it_asks) {
  for (const bool is_line : {true, false}) {
    const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
    auto text = odNew<OdDbMText>();
    text->setDatabaseDefaults(database.get());
    text->setContents(u"a");
    auto line = odNew<OdDbText>();
    line->setTextString(u"a");
    PasteTracker tracker(is_line ? OdDbMTextPtr() : text, is_line ? line : OdDbTextPtr(),
                         OdGeVector3d::kZAxis, *database);
    database->setTextLayout(std::make_shared<mtext::mtext_layout>());
    tracker.setPoint({30, 40, 7});
    ASSERT_EQ(tracker.drawables().size(), 1U);
    OdGiRecorder recorder;
    recorder.record(*tracker.drawables()[0]);
    ASSERT_TRUE(recorder.extents().isValidExtents());
    EXPECT_NEAR(recorder.extents().minPoint().x, 30, 2);
    EXPECT_NEAR(recorder.extents().minPoint().y, is_line ? 40 : 37.5, 2);
  }
}

TEST(PasteText, lies_in_the_plane_of_new_texts_under_the_point) {
  paste_run run;
  run.clip_codes(u"a");
  run.paste_at(u"3,4,5");
  EXPECT_EQ(run.pasted<OdDbMText>()->location(), OdGePoint3d(3, 4, 0));
}
