#pragma once

#include <exception>

#include "micui/nearly_equal.h"
#include "od/base/OdSmartPtr.h"

namespace micui {

/// How a layout reaches a child: it gives access to the child's fields, and when it goes, lays the child out
/// if the child's scale is not the parent's.
///
/// A change of the child's size alone deliberately lays nothing out: children that live across layouts keep
/// their inside until a zoom.
template <typename T>
class layout_handle {
 public:
  /// `scale` is the parent's; 0 for a handle that lays nothing out.
  layout_handle(OdSmartPtr<T> child, double scale) : m_child(std::move(child)), m_scale(scale) {}
  layout_handle(const layout_handle&) = delete;
  layout_handle& operator=(const layout_handle&) = delete;
  /// Throws what the child's layout throws, unless an exception is on its way already.
  ~layout_handle() noexcept(false) {
    if (std::uncaught_exceptions() == m_exceptions) let_go();
  }

  T* operator->() const { return m_child.get(); }
  T& operator*() const { return *m_child; }
  const OdSmartPtr<T>& get() const { return m_child; }

 private:
  void let_go() const {
    if (m_scale == 0 || nearly_equal(m_scale, m_child->scale)) return;
    m_child->scale = m_scale;
    m_child->layout();
  }

  OdSmartPtr<T> m_child;
  double m_scale;
  int m_exceptions = std::uncaught_exceptions();
};

}  // namespace micui
