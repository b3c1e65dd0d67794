#pragma once

#include "od/base/OdString.h"
#include "od/cm/OdCmEntityColor.h"
#include "od/ge/OdGePoint3d.h"

class OdGiTextStyle;

/// What drawing needs to know of the drawing around a drawable.
class OdGiContext {
 public:
  virtual ~OdGiContext() = default;

  /// The colour of a layer; index 7 for a name that there is not.
  virtual OdCmEntityColor layerColor(const OdString& layer) const = 0;
  /// False when what lies on the layer is not to be shown (off or frozen). True for an unknown name.
  virtual bool layerIsVisible(const OdString& layer) const = 0;

  /// The colour that a device shows for `color` on `layer`: by layer asks the layer, by block and foreground
  /// give index 7, all others stay.
  OdCmEntityColor shownColor(const OdCmEntityColor& color, const OdString& layer) const;
};

/// Bits of `textExtentsBox`.
enum OdGiTextExtentsFlags : unsigned {
  kOdGiIncludeScores = 2,  ///< underline, overline and strike-through count as ink
  kOdGiRawText = 4         ///< `%%` and `\U+` sequences are characters like others
};

/// A context without a drawing: every layer is shown, in colour 7.
class OdGiDefaultContext : public OdGiContext {
 public:
  OdCmEntityColor layerColor(const OdString& layer) const override;
  bool layerIsVisible(const OdString& layer) const override;

  /// Measures `length` units of `text` (all up to the zero unit when negative) drawn from the origin along X
  /// with `style`, whose font has to be loaded. All in drawing units:
  /// `minimum` and `maximum` are the corners of the ink (both the origin when there is none), `end` is where
  /// the next character would start. Flags as in `OdGiTextExtentsFlags`; 0 reads `%%` sequences.
  void textExtentsBox(const OdGiTextStyle& style, const char16_t* text, int length, unsigned flags,
                      OdGePoint3d& minimum, OdGePoint3d& maximum, OdGePoint3d& end) const;
};
