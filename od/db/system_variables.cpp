#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDrawing.h"
#include "od/dxf/header_variables.h"

namespace {

/// The name as headers write it: upper case with a dollar sign.
std::string headerName(const OdString& name) {
  std::string result = name.toUtf8();
  for (char& c : result) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return result.starts_with('$') ? result : "$" + result;
}

/// The variable's first value in the header, or nothing.
struct HeaderValue {
  dxf::Record* record = nullptr;
  std::size_t index = 0;

  HeaderValue(OdDbDrawing& drawing, const std::string& name) {
    const dxf::HeaderVariables variables(drawing.file());
    const auto range = variables.find(name);
    if (!range || range->empty()) return;
    record = variables.record();
    index = range->begin;
  }
  explicit operator bool() const { return record != nullptr; }
  dxf::ValueType type() const { return (*record)[index].type(); }
};

OdString sessionKey(const std::string& name) { return odToUtf16(name); }

}  // namespace

std::optional<OdDbDatabase::SysVar> OdDbDatabase::getSysVar(const OdString& name) const {
  const std::string key = headerName(name);
  if (const HeaderValue value(*m_drawing, key); value) {
    if (value.type() == dxf::ValueType::real) return value.record->get_double(value.index).value_or(0);
    if (!dxf::is_integer(value.type())) return OdString(value.record->get_string(value.index));
    return static_cast<int>(value.record->get_int(value.index).value_or(0));
  }
  const auto own = m_sessionVariables.find(sessionKey(key));
  return own == m_sessionVariables.end() ? std::nullopt : std::optional(own->second);
}

double OdDbDatabase::getSysVarDouble(const OdString& name, double fallback) const {
  const std::string key = headerName(name);
  if (const HeaderValue value(*m_drawing, key); value)
    return value.record->get_double(value.index).value_or(fallback);
  const auto own = m_sessionVariables.find(sessionKey(key));
  if (own == m_sessionVariables.end()) return fallback;
  if (const auto* real = std::get_if<double>(&own->second)) return *real;
  if (const auto* integer = std::get_if<int>(&own->second)) return *integer;
  return fallback;
}

int OdDbDatabase::getSysVarInt(const OdString& name, int fallback) const {
  const std::string key = headerName(name);
  if (const HeaderValue value(*m_drawing, key); value)
    return static_cast<int>(value.record->get_int(value.index).value_or(fallback));
  const auto own = m_sessionVariables.find(sessionKey(key));
  const auto* integer = own == m_sessionVariables.end() ? nullptr : std::get_if<int>(&own->second);
  return integer ? *integer : fallback;
}

OdString OdDbDatabase::getSysVarString(const OdString& name, const OdString& fallback) const {
  const std::string key = headerName(name);
  if (const HeaderValue value(*m_drawing, key); value) return value.record->get_string(value.index);
  const auto own = m_sessionVariables.find(sessionKey(key));
  const auto* text = own == m_sessionVariables.end() ? nullptr : std::get_if<OdString>(&own->second);
  return text ? *text : fallback;
}

void OdDbDatabase::setSysVarDouble(const OdString& name, double value) {
  const std::string key = headerName(name);
  const HeaderValue old(*m_drawing, key);
  if (!old) {
    m_sessionVariables[sessionKey(key)] = value;
    return;
  }
  if (old.type() != dxf::ValueType::real) throw OdError(eInvalidInput);
  if (old.record->get_double(old.index) == value) return;
  old.record->set_double(old.index, value);
  m_modified = true;
}

void OdDbDatabase::setSysVarInt(const OdString& name, int value) {
  const std::string key = headerName(name);
  const HeaderValue old(*m_drawing, key);
  if (!old) {
    m_sessionVariables[sessionKey(key)] = value;
    return;
  }
  if (!dxf::is_integer(old.type())) throw OdError(eInvalidInput);
  if (old.record->get_int(old.index) == value) return;
  old.record->set_int(old.index, value);
  m_modified = true;
}

void OdDbDatabase::setSysVarString(const OdString& name, const OdString& value) {
  const std::string key = headerName(name);
  const HeaderValue old(*m_drawing, key);
  if (!old) {
    m_sessionVariables[sessionKey(key)] = value;
    return;
  }
  if (!dxf::is_text(old.type())) throw OdError(eInvalidInput);
  if (old.record->get_string(old.index) == value.str()) return;
  old.record->set_string(old.index, value.str());
  m_modified = true;
}
