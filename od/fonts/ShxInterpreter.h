#pragma once

#include <functional>

#include "od/fonts/OdFontGlyph.h"
#include "od/fonts/ShxFile.h"

/// Runs the instructions of one shape and gives the pen's lines and its way.
///
/// Shapes call each other. The calls wait in a list of frames, not on the stack; those deeper than
/// `kMaxDepth` are passed over, and a shape ends after `kMaxBytes` of instructions or `kMaxPoints`, so a file
/// whose shapes call themselves is drawn in part and does no harm.
class ShxInterpreter {
 public:
  static constexpr std::size_t kMaxDepth = 32;
  static constexpr int kMaxBytes = 100000;
  static constexpr std::size_t kMaxPoints = 200000;

  /// Gives the glyph that stands for a shape that a big font calls and does not have, in this file's units;
  /// null for none.
  using ForeignGlyph = std::function<const OdFontGlyph*(unsigned)>;

  /// `tolerance` is how far a polyline may stray from an arc, in font units. `file` outlives the interpreter.
  ShxInterpreter(const ShxFile& file, double tolerance, ForeignGlyph foreign = {})
      : m_file(file), m_tolerance(tolerance), m_foreign(std::move(foreign)) {}

  /// The shape, or a glyph without lines and way where the file lacks it. The advance is the pen's end; of a
  /// horizontal shape its x, of a vertical its y.
  OdFontGlyph run(unsigned number, bool vertical);

  /// Where the pen was left by the last run.
  const OdGePoint2d& penEnd() const { return m_position; }

 private:
  /// A running shape and, for a part that is drawn into a box of its own, what holds again after it.
  struct Frame {
    std::string_view code;
    std::size_t at = 0;
    bool isBoxed = false;
    OdGePoint2d position{};
    OdGeVector2d scale{};
  };

  void enter(unsigned number);
  void leave();
  void step();
  void execute(unsigned char code);
  void skipInstruction();

  void setScale(unsigned char code);
  void push();
  void pop();
  void callShape();
  void callPart();
  void callForeign(unsigned number);
  void octantArc();
  void fractionalArc();
  void arc(double radius, double startDegrees, double sweepDegrees);
  void bulge(OdGeVector2d chord, int byte);
  void manyVectors(bool withBulge);

  void move(OdGeVector2d by);
  void penLine(const std::vector<OdGePoint2d>& unscaled, OdGeVector2d way);
  void jumpTo(const OdGePoint2d& position);
  double localTolerance() const;

  unsigned char next();
  int nextSigned();
  bool atEnd() const;

  const ShxFile& m_file;
  double m_tolerance;
  ForeignGlyph m_foreign;
  OdFontGlyph m_glyph;
  std::vector<Frame> m_frames;
  std::vector<OdGePoint2d> m_stack;
  OdGePoint2d m_position;
  OdGeVector2d m_scale;
  bool m_penDown = true;
  bool m_lineIsOpen = false;  ///< the last contour ends at the position and may go on
  bool m_vertical = false;
  int m_bytesRead = 0;
  std::size_t m_pointCount = 0;
};
