#pragma once

/// Enumerations of the drawing database. Where a value stands in files the enumerator has its number.
namespace OdDb {

/// How an object is opened.
enum OpenMode { kNotOpen = -1, kForRead = 0, kForWrite = 1 };

enum Visibility { kVisible = 0, kInvisible = 1 };

/// Hundredths of a millimetre, or where the weight comes from.
enum LineWeight { kLnWtByLayer = -1, kLnWtByBlock = -2, kLnWtByLwDefault = -3, kLnWt000 = 0 };

/// Where a multi-line text's location lies in its box.
enum AttachmentPoint {
  kTopLeft = 1,
  kTopCenter,
  kTopRight,
  kMiddleLeft,
  kMiddleCenter,
  kMiddleRight,
  kBottomLeft,
  kBottomCenter,
  kBottomRight
};

/// How the lines of a multi-line text lie: never closer than the factor asks, or exactly so.
enum LineSpacingStyle { kAtLeast = 1, kExactly = 2 };

/// The direction in which the lines of a multi-line text run.
enum FlowDirection { kLtoR = 1, kTtoB = 3, kByStyle = 5 };

/// How a multi-line text is divided into columns.
enum ColumnType { kNoColumns = 0, kStaticColumns = 1, kDynamicColumns = 2 };

/// Where the alignment point of a single-line text lies along its baseline.
enum TextHorzMode {
  kTextLeft = 0,
  kTextCenter = 1,
  kTextRight = 2,
  kTextAlign = 3,  ///< from position to alignment point, the height follows
  kTextMid = 4,    ///< the middle of the text's box
  kTextFit = 5     ///< from position to alignment point, the width factor follows
};

/// Where the alignment point of a single-line text lies across its baseline.
enum TextVertMode { kTextBase = 0, kTextBottom = 1, kTextVertMid = 2, kTextTop = 3 };

}  // namespace OdDb
