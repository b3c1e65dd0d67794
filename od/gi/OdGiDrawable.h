#pragma once

#include "od/base/OdRxObject.h"
#include "od/gi/OdGiViewportDraw.h"
#include "od/gi/OdGiWorldDraw.h"

/// What a view remembers of a drawable.
class OdGsCache {
 public:
  virtual ~OdGsCache() = default;
};

/// Something that can draw itself.
class OdGiDrawable : public OdRxObject {
  ODRX_DECLARE_MEMBERS(OdGiDrawable)

 public:
  /// Writes the colour, layer and so on of the drawable as a whole. Returns flag bits, 0 for none.
  virtual unsigned setAttributes(OdGiDrawableTraits& traits);
  /// Draws what is the same in all views. False asks for `viewportDraw` in each view.
  virtual bool worldDraw(OdGiWorldDraw& draw);
  /// Draws what depends on the view.
  virtual void viewportDraw(OdGiViewportDraw& draw);

  /// True for what lives in a database.
  virtual bool isPersistent() const { return false; }
  /// The view's memory of this drawable, which the view owns; null for none.
  virtual void setGsNode(OdGsCache*) {}
  virtual OdGsCache* gsNode() const { return nullptr; }
};

using OdGiDrawablePtr = OdSmartPtr<OdGiDrawable>;

/// A drawable of class `Base` that keeps the view's memory of it.
template <typename Base = OdGiDrawable>
class OdGiDrawableImpl : public Base {
 public:
  void setGsNode(OdGsCache* node) override { m_node = node; }
  OdGsCache* gsNode() const override { return m_node; }

 private:
  OdGsCache* m_node = nullptr;
};
