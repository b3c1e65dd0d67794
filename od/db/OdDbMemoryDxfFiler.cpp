#include "od/db/OdDbMemoryDxfFiler.h"

#include "od/base/OdError.h"

int OdDbMemoryDxfFiler::nextItem() {
  if (atEndOfObject()) throw OdError(eInvalidContext);
  return m_groups[m_next++].code;
}

bool OdDbMemoryDxfFiler::atSubclassData(const OdString& subclass) {
  if (atEndOfObject() || m_groups[m_next].code != 100) return false;
  const auto* marker = std::get_if<OdString>(&m_groups[m_next].value);
  if (!marker || !(*marker == subclass)) return false;
  ++m_next;
  return true;
}

template <typename T>
T OdDbMemoryDxfFiler::current() const {
  if (m_next == 0) throw OdError(eInvalidContext);
  const T* value = std::get_if<T>(&m_groups[m_next - 1].value);
  if (!value) throw OdError(eInvalidContext);
  return *value;
}

template OdString OdDbMemoryDxfFiler::current<OdString>() const;
template double OdDbMemoryDxfFiler::current<double>() const;
template int OdDbMemoryDxfFiler::current<int>() const;
