#pragma once

/// Tolerances of geometric comparison: `equalPoint` for distances in drawing units, `equalVector` for
/// directions.
struct OdGeTol {
  double equalPoint = 1e-10;
  double equalVector = 1e-10;
};

/// The tolerance that is taken where none is given.
struct OdGeContext {
  static constexpr OdGeTol gTol{};
};
