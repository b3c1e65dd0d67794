#include "od/fonts/ShxInterpreter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "od/fonts/flatten_curve.h"

namespace {

enum Code : unsigned char {
  kEnd = 0,
  kPenDown,
  kPenUp,
  kDivide,
  kMultiply,
  kPush,
  kPop,
  kCall,
  kVector,
  kVectors,
  kOctantArc,
  kFractionalArc,
  kBulge,
  kBulges,
  kVerticalOnly,
  kUnused
};

constexpr std::size_t kMaxStack = 64;
constexpr double kFarthest = 1e9;

/// The steps of the sixteen directions. Diagonals are longer than one: the larger coordinate is one.
constexpr std::array<OdGeVector2d, 16> kSteps{{{1, 0},
                                               {1, 0.5},
                                               {1, 1},
                                               {0.5, 1},
                                               {0, 1},
                                               {-0.5, 1},
                                               {-1, 1},
                                               {-1, 0.5},
                                               {-1, 0},
                                               {-1, -0.5},
                                               {-1, -1},
                                               {-0.5, -1},
                                               {0, -1},
                                               {0.5, -1},
                                               {1, -1},
                                               {1, -0.5}}};

/// The byte that says where an arc lies: bit 7 clockwise, then the first octant, then the number of octants.
struct OctantByte {
  explicit OctantByte(unsigned char byte)
      : sign(byte & 0x80 ? -1 : 1), first(byte >> 4 & 7), count(byte & 7 ? byte & 7 : 8) {}
  int sign, first, count;
};

}  // namespace

OdFontGlyph ShxInterpreter::run(unsigned number, bool vertical) {
  m_glyph = {};
  m_frames.clear();
  m_stack.clear();
  m_position = {};
  m_scale = {1, 1};
  m_lineIsOpen = false;
  m_vertical = vertical;
  m_bytesRead = 0;
  m_pointCount = 0;
  enter(number);
  while (!m_frames.empty()) step();
  m_glyph.advance = vertical ? OdGeVector2d{0, m_position.y} : OdGeVector2d{m_position.x, 0};
  return std::exchange(m_glyph, {});
}

void ShxInterpreter::enter(unsigned number) {
  if (m_frames.size() >= kMaxDepth || !m_file.hasShape(number)) return;
  Frame frame;
  frame.code = m_file.shape(number);
  m_frames.push_back(frame);
  m_penDown = true;
}

void ShxInterpreter::leave() {
  if (m_frames.empty()) return;
  Frame frame = m_frames.back();
  m_frames.pop_back();
  if (!frame.isBoxed) return;
  m_scale = frame.scale;
  m_penDown = false;
  jumpTo(frame.position);
}

void ShxInterpreter::step() {
  if (atEnd()) {
    leave();
    return;
  }
  unsigned char code = next();
  if (code == kEnd) {
    leave();
  } else if (code >= 0x10) {
    move(kSteps[code & 15] * (code >> 4));
  } else {
    execute(code);
  }
}

void ShxInterpreter::execute(unsigned char code) {
  switch (code) {
    case kPenDown:
      m_penDown = true;
      return;
    case kPenUp:
      m_penDown = m_lineIsOpen = false;
      return;
    case kDivide:
    case kMultiply:
      return setScale(code);
    case kPush:
      return push();
    case kPop:
      return pop();
    case kCall:
      return callShape();
    case kVector: {
      double dx = nextSigned();
      return move({dx, static_cast<double>(nextSigned())});
    }
    case kVectors:
    case kBulges:
      return manyVectors(code == kBulges);
    case kOctantArc:
      return octantArc();
    case kFractionalArc:
      return fractionalArc();
    case kBulge: {
      double dx = nextSigned();
      double dy = nextSigned();
      return bulge({dx, dy}, nextSigned());
    }
    case kVerticalOnly:
      if (!m_vertical || !m_file.hasVerticalMode()) skipInstruction();
      return;
    default:
      return;
  }
}

void ShxInterpreter::skipInstruction() {
  unsigned char code = next();
  while (code == kVerticalOnly) code = next();
  auto skip = [this](int count) {
    while (count-- > 0) next();
  };
  switch (code) {
    case kDivide:
    case kMultiply:
      return skip(1);
    case kVector:
    case kOctantArc:
      return skip(2);
    case kBulge:
      return skip(3);
    case kFractionalArc:
      return skip(5);
    case kCall:
      if (m_file.kind() == ShxFile::kUnifont) return skip(2);
      if (next() == 0 && m_file.kind() == ShxFile::kExtendedBigfont) skip(6);
      return;
    case kVectors:
    case kBulges:
      while (!atEnd()) {
        bool isEnd = next() == 0;
        isEnd = next() == 0 && isEnd;
        if (isEnd) return;
        if (code == kBulges) next();
      }
      return;
    default:
      return;
  }
}

void ShxInterpreter::setScale(unsigned char code) {
  unsigned factor = next();
  if (factor == 0) return;
  m_scale = m_scale * (code == kMultiply ? factor : 1.0 / factor);
}

void ShxInterpreter::push() {
  if (m_stack.size() < kMaxStack) m_stack.push_back(m_position);
}

void ShxInterpreter::pop() {
  // Fonts pair a push in one shape with a pop in another, and some pop without any push.
  if (m_stack.empty()) return;
  jumpTo(m_stack.back());
  m_stack.pop_back();
}

void ShxInterpreter::callShape() {
  unsigned number = next();
  if (m_file.kind() == ShxFile::kUnifont) number = number << 8 | next();
  if (number == 0 && m_file.kind() == ShxFile::kExtendedBigfont) return callPart();
  if (!m_file.hasShape(number) && m_file.isBigfont()) return callForeign(number);
  enter(number);
}

void ShxInterpreter::callPart() {
  unsigned number = next();
  number = number << 8 | next();
  double x = next(), y = next(), width = next(), height = next();
  if (m_frames.size() >= kMaxDepth || !m_file.hasShape(number)) return;
  OdGePoint2d position = m_position;
  OdGeVector2d scale = m_scale;
  jumpTo(position + OdGeVector2d{x * scale.x, y * scale.y});
  double boxWidth = std::max(m_file.characterWidth(), 1);
  double boxHeight = std::max(m_file.above(), 1);
  m_scale = {scale.x * width / boxWidth, scale.y * height / boxHeight};
  enter(number);
  m_frames.back().isBoxed = true;
  m_frames.back().position = position;
  m_frames.back().scale = scale;
}

void ShxInterpreter::callForeign(unsigned number) {
  const OdFontGlyph* glyph = m_foreign ? m_foreign(number) : nullptr;
  if (!glyph) return;
  auto scaled = [this](double x, double y) { return OdGeVector2d{x * m_scale.x, y * m_scale.y}; };
  for (const auto& contour : glyph->contours) {
    m_pointCount += contour.size();
    auto& line = m_glyph.contours.emplace_back();
    for (const OdGePoint2d& p : contour) line.push_back(m_position + scaled(p.x, p.y));
    if (glyph->filled) line.push_back(line.front());
  }
  jumpTo(m_position + scaled(glyph->advance.x, glyph->advance.y));
}

void ShxInterpreter::octantArc() {
  double radius = next();
  OctantByte octants(next());
  arc(radius, octants.first * 45.0, octants.sign * octants.count * 45.0);
}

void ShxInterpreter::fractionalArc() {
  int startOffset = next();
  int endOffset = next();
  double radius = next() * 256;
  radius += next();
  OctantByte octants(next());
  // An end offset of 0 means the far border of the last octant.
  double start = startOffset * 45.0 / 256;
  double end = (octants.count - 1) * 45.0 + (endOffset ? endOffset : 256) * 45.0 / 256;
  arc(radius, octants.first * 45.0 + octants.sign * start, octants.sign * (end - start));
}

void ShxInterpreter::arc(double radius, double startDegrees, double sweepDegrees) {
  if (radius == 0) return;
  double start = startDegrees * M_PI / 180;
  OdGePoint2d center{-radius * std::cos(start), -radius * std::sin(start)};
  OdFontLine line;
  odFlattenArc(line, center, radius, start, sweepDegrees * M_PI / 180, localTolerance());
  // Rounding leaves dust where the way is nothing, as after a full circle.
  bool isFull = std::abs(sweepDegrees) >= 360;
  if (isFull) line.back() = {};
  penLine(line, line.back() - OdGePoint2d{});
}

void ShxInterpreter::bulge(OdGeVector2d chord, int byte) {
  if (byte == 0 || chord.length() == 0) return move(chord);
  OdFontLine line;
  OdGePoint2d end = OdGePoint2d{} + chord;
  odFlattenBulge(line, {}, end, byte / 127.0, localTolerance());
  penLine(line, chord);
}

void ShxInterpreter::manyVectors(bool withBulge) {
  while (!atEnd()) {
    int dx = nextSigned();
    int dy = nextSigned();
    if (dx == 0 && dy == 0) return;
    OdGeVector2d way{static_cast<double>(dx), static_cast<double>(dy)};
    if (withBulge) {
      bulge(way, nextSigned());
    } else {
      move(way);
    }
  }
}

void ShxInterpreter::move(OdGeVector2d by) { penLine({OdGePoint2d{} + by}, by); }

/// Goes along points that are relative to the position and not yet scaled.
void ShxInterpreter::penLine(const std::vector<OdGePoint2d>& unscaled, OdGeVector2d way) {
  OdGePoint2d start = m_position;
  auto placed = [&](double x, double y) { return start + OdGeVector2d{x * m_scale.x, y * m_scale.y}; };
  OdGePoint2d end = placed(way.x, way.y);
  bool isFar = !(std::abs(end.x) < kFarthest && std::abs(end.y) < kFarthest);
  if (isFar || (m_pointCount += unscaled.size()) > kMaxPoints) {
    m_frames.clear();
    return;
  }
  if (m_penDown) {
    if (!m_lineIsOpen) m_glyph.contours.push_back({start});
    for (const OdGePoint2d& p : unscaled) m_glyph.contours.back().push_back(placed(p.x, p.y));
    m_lineIsOpen = true;
  }
  m_position = end;
}

void ShxInterpreter::jumpTo(const OdGePoint2d& position) {
  m_position = position;
  m_lineIsOpen = false;
}

double ShxInterpreter::localTolerance() const {
  double scale = std::max(std::abs(m_scale.x), std::abs(m_scale.y));
  return scale > 0 ? m_tolerance / scale : m_tolerance;
}

unsigned char ShxInterpreter::next() {
  if (++m_bytesRead > kMaxBytes) m_frames.clear();
  if (atEnd()) return 0;
  Frame& frame = m_frames.back();
  return static_cast<unsigned char>(frame.code[frame.at++]);
}

int ShxInterpreter::nextSigned() { return static_cast<signed char>(next()); }

bool ShxInterpreter::atEnd() const {
  return m_frames.empty() || m_frames.back().at >= m_frames.back().code.size();
}
