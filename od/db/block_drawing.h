#pragma once

#include <cstdint>
#include <unordered_set>
#include <vector>

#include "od/db/OdDbBlockReference.h"
#include "od/db/OdDbBlockTableRecord.h"

/// Draws block references with all that is nested in them. Depth costs heap and never stack; a block that
/// leads to itself is left out and reported once, and so is what goes beyond a bound when blocks multiply.
class OdDbBlockDrawing {
 public:
  /// Entities and cells of arrays that one drawing of a reference comes to at most: a handful of blocks in
  /// each other, or one array, can stand for more than any machine can draw.
  static constexpr std::int64_t kMostSteps = 1'000'000;

  explicit OdDbBlockDrawing(OdGiWorldDraw& draw) : m_draw(draw) {}

  /// Draws `reference`, whose traits are in force.
  void draw(const OdDbBlockReference& reference);
  /// Draws the entities of `block` as they stand, with the traits in force as those of the reference.
  void drawBlock(OdDbObjectId block);

 private:
  /// One pass over the entities of a block.
  struct Frame {
    OdSmartPtr<OdDbBlockTableRecord> block;
    std::vector<OdDbObjectId> entities;
    std::size_t next = 0;
    OdSmartPtr<OdDbBlockReference> reference;  ///< null where the block is drawn as it stands
    std::int64_t cell = 0;                     ///< of the reference's array, row by row
    OdGiSubEntityTraits traitsOfReference;
    OdGiSubEntityTraits traitsOutside;
  };

  void enter(OdDbObjectId block, OdSmartPtr<OdDbBlockReference> reference,
             const OdGiSubEntityTraits& traitsOutside);
  void run();
  void step();
  void drawEntity(OdDbEntity& entity);
  void drawAttributes(const OdDbBlockReference& reference);
  void leave();
  void abandon();
  void report(const OdString& sentence) const;

  OdGiWorldDraw& m_draw;
  std::vector<Frame> m_frames;
  std::unordered_set<OdDbObjectId> m_open;  ///< the blocks of all frames
  std::int64_t m_steps = 0;                 ///< entities visited and blocks left
};
