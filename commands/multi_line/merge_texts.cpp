#include "commands/multi_line/merge_texts.h"

#include <algorithm>
#include <cmath>

#include "mtext/entity/entity_format.h"
#include "mtext/serialize.h"
#include "od/db/OdDbTextStyleTableRecord.h"

namespace {

namespace format = mtext::format;

/// Heights nearer to zero than this are none.
constexpr double kNoHeight = 1e-10;
/// How much of two heights the baselines of one line may differ by.
constexpr double kSameLine = 0.1;

/// Where one text stands, read once: sorting asks for it many times.
struct placed_text {
  OdDbTextPtr text;
  OdGePoint3d position;
  double height;
};

bool stands_before(const placed_text& a, const placed_text& b) {
  const double tolerance = kSameLine * (a.height + b.height);
  if (a.position.y - b.position.y > tolerance) return true;
  if (b.position.y - a.position.y > tolerance) return false;
  return a.position.x < b.position.x;
}

/// What makes an order of any texts; being on one line does not, since it does not pass on from text to text.
bool stands_higher(const placed_text& a, const placed_text& b) {
  if (a.position.y != b.position.y) return a.position.y > b.position.y;
  return a.position.x < b.position.x;
}

/// The edges of a text's box, by the x of its lower corners.
struct edges {
  double left, right;
};

OdArray<OdGePoint3d> corners_of(const OdDbText& text) {
  OdArray<OdGePoint3d> corners;
  text.getBoundingPoints(corners);
  return corners;
}

edges edges_of(const OdDbText& text) {
  const OdArray<OdGePoint3d> corners = corners_of(text);
  return {corners[2].x, corners[3].x};
}

/// The format that the style of a text gives; a style with a height of its own wins over the text's.
format::string style_format_of(const OdDbText& text) {
  const auto style = odCastOrThrow<OdDbTextStyleTableRecord>(text.textStyle().openObject());
  format::string result = mtext::style_format(text.textStyle(), /*database=*/nullptr);
  result.height = std::abs(style->textSize()) <= kNoHeight ? text.height() : style->textSize();
  return result;
}

void take_color(format::text_color& color, const OdCmEntityColor& own) {
  if (own.isByColor()) {
    color = {.kind = 1, .top = 0, .red = own.red(), .green = own.green(), .blue = own.blue()};
  } else if (own.isByACI() || own.isByLayer() || own.isByBlock()) {
    color = {.kind = 0, .index = static_cast<std::uint16_t>(own.colorIndex())};
  }
}

format::string format_of(const OdDbText& text) {
  format::string result = style_format_of(text);
  result.width_factor = text.widthFactor();
  result.oblique = text.oblique();
  take_color(result.color, text.entityColor());
  return result;
}

/// The codes of all texts, one part each.
class merged_contents {
 public:
  explicit merged_contents(const format::string& base) : m_base(base), m_current(base) {
    mtext::serialize(m_out, m_base.height, m_paragraph, m_px_written);
  }

  void write(const OdDbText& text) {
    const mtext::string part(format_of(text), text.textString().str());
    mtext::serialize(m_out, m_base.height, m_paragraph, m_base, m_current, m_state, part, m_px_written,
                     /*plain_spaces=*/true);
  }

  void separate(char16_t separator) { m_out += separator; }

  std::u16string finished() {
    mtext::serialize(m_out, m_state);
    return std::move(m_out);
  }

 private:
  std::u16string m_out;
  format::paragraph m_paragraph{.relative = true};
  format::string m_base;
  format::string m_current;
  mtext::serialize_state m_state;
  bool m_px_written = false;
};

std::u16string contents_of(const std::vector<OdDbTextPtr>& texts, const format::string& base) {
  merged_contents contents(base);
  double right = edges_of(*texts.front()).right;
  contents.write(*texts.front());
  for (auto text = texts.begin() + 1; text != texts.end(); ++text) {
    const edges next = edges_of(**text);
    contents.separate(next.left >= right ? u' ' : u'\n');
    contents.write(**text);
    right = next.right;
  }
  return contents.finished();
}

/// Where the first text was attached horizontally, along the upper side of its box.
void place_as(const OdDbText& first, OdDbMText& merged) {
  const OdArray<OdGePoint3d> corners = corners_of(first);
  switch (first.horizontalMode()) {
    case OdDb::kTextCenter:
    case OdDb::kTextMid:
      merged.setLocation(corners[0] + (corners[1] - corners[0]) * 0.5);
      merged.setHorizontalMode(OdDb::kTextCenter);
      break;
    case OdDb::kTextRight:
      merged.setLocation(corners[1]);
      merged.setHorizontalMode(OdDb::kTextRight);
      break;
    default:
      merged.setLocation(corners[0]);
  }
}

}  // namespace

void sort_in_reading_order(std::vector<OdDbTextPtr>& texts) {
  std::vector<placed_text> placed;
  for (const OdDbTextPtr& text : texts) placed.push_back({text, text->position(), text->height()});
  std::stable_sort(placed.begin(), placed.end(), stands_higher);
  std::stable_sort(placed.begin(), placed.end(), stands_before);
  std::transform(placed.begin(), placed.end(), texts.begin(),
                 [](const placed_text& each) { return each.text; });
}

bool merge_texts(const std::vector<OdDbTextPtr>& texts, OdDbMText& merged) {
  if (texts.empty()) return false;
  const OdDbText& first = *texts.front();
  const format::string base = style_format_of(first);
  merged.setContents(contents_of(texts, base));
  merged.setTextStyle(first.textStyle());
  merged.setTextHeight(base.height);
  merged.setWidth(merged.actualWidth());
  merged.setHeight(merged.actualHeight());
  place_as(first, merged);
  merged.setRotation(first.rotation());
  return true;
}
