#include "mtext/entity/draw_parts.h"

#include <gtest/gtest.h>

#include "mtext/dispose.h"
#include "mtext/entity/mtext_size_finder.h"
#include "mtext/entity/text_style.h"
#include "mtext/to_geom.h"
#include "od/db/OdDbDatabase.h"
#include "od/gi/OdGiRecorder.h"

namespace {

const mtext::format::string kFormat{.height = 2.5, .height_kind = 0, .font = u"DejaVu Sans"};

struct DrawParts : testing::Test {
  OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  mtext::mtext_size_finder finder{database};

  mtext::geom_multitext laidOut(std::u16string_view letters) const {
    mtext::geom_multitext text = mtext::to_geom(letters, kFormat, kFormat.height, finder);
    mtext::dispose(text);
    return text;
  }
  std::string drawn(const mtext::geom_multitext& text) const {
    OdGiRecorder pen;
    mtext::draw_parts(text, pen, *database, {});
    return pen.describe();
  }
  /// The letters drawn at once, where the first part of `text` stands.
  std::string drawnAtOnce(std::u16string_view letters, const mtext::geom_multitext& text) const {
    OdGiRecorder pen;
    OdGiTextStyle style = mtext::text_style(kFormat, *database);
    style.setFlags(style.flags() & ~OdGiTextStyle::kShapeFile);
    pen.traits().setTrueColor(mtext::part_drawing{}.text_color);
    pen.text({text.parts[0].x, text.parts[0].y, 0}, OdGeVector3d::kZAxis, OdGeVector3d::kXAxis, letters,
             /*raw=*/true, style);
    return pen.describe();
  }
};

}  // namespace

TEST_F(DrawParts, an_emoji_is_one_glyph) {
  const auto text = laidOut(u"\U0001F600");
  EXPECT_EQ(drawn(text), drawnAtOnce(u"\U0001F600", text));
}

TEST_F(DrawParts, a_letter_beyond_the_basic_plane_that_no_font_has_is_one_sign_of_a_missing_glyph) {
  const auto text = laidOut(u"\U0010FFF0");
  EXPECT_EQ(drawn(text), drawnAtOnce(u"\U0010FFF0", text));
  EXPECT_FALSE(drawn(text).empty());
}

TEST_F(DrawParts, an_emoji_moves_what_follows_by_its_own_width) {
  const auto text = laidOut(u"\U0001F600x");
  EXPECT_EQ(text.parts[2].x, finder.measure(kFormat, u"\U0001F600").advance);
}
