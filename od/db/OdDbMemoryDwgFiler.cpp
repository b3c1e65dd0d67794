#include "od/db/OdDbMemoryDwgFiler.h"

#include "od/base/OdError.h"

template <typename T>
T OdDbMemoryDwgFiler::next() {
  const T* value = m_next < m_values.size() ? std::get_if<T>(&m_values[m_next]) : nullptr;
  if (!value) throw OdError(eInvalidContext);
  ++m_next;
  return *value;
}

template OdString OdDbMemoryDwgFiler::next<OdString>();
template double OdDbMemoryDwgFiler::next<double>();
template int OdDbMemoryDwgFiler::next<int>();
template bool OdDbMemoryDwgFiler::next<bool>();
