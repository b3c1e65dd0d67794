#include "desk/window/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QUrl>
#include <QtEndian>
#include <algorithm>

#include "desk/window/qt_text.h"

namespace {

constexpr unsigned kFirstPrivateFormat = 0xC000;

QString mimeType(const std::u16string& name) {
  return "application/x-scribe-" + QString::fromLatin1(QUrl::toPercentEncoding(toQt(name))).toLower();
}

QByteArray toBytes(std::u16string_view text) {
  QByteArray bytes(static_cast<qsizetype>(text.size() * 2), Qt::Uninitialized);
  qToLittleEndian<char16_t>(text.data(), static_cast<qsizetype>(text.size()), bytes.data());
  return bytes;
}

std::u16string fromBytes(const QByteArray& bytes) {
  std::u16string text(static_cast<std::size_t>(bytes.size() / 2), u'\0');
  qFromLittleEndian<char16_t>(bytes.data(), static_cast<qsizetype>(text.size()), text.data());
  return text;
}

}  // namespace

unsigned QtClipboard::registerFormat(std::u16string_view name) {
  const auto known = std::find_if(m_names.begin(), m_names.end(),
                                  [name](const auto& entry) { return entry.second == name; });
  if (known != m_names.end()) return known->first;
  const unsigned number = kFirstPrivateFormat + static_cast<unsigned>(m_names.size());
  m_names.emplace(number, name);
  return number;
}

bool QtClipboard::empty() {
  m_texts.clear();
  QGuiApplication::clipboard()->clear();
  return true;
}

bool QtClipboard::set(unsigned format, std::u16string_view text) {
  m_texts[format] = text;
  auto* data = new QMimeData;  // the clipboard becomes its owner
  for (const auto& [number, content] : m_texts) putInto(*data, number, content);
  QGuiApplication::clipboard()->setMimeData(data);
  return true;
}

void QtClipboard::putInto(QMimeData& data, unsigned format, const std::u16string& text) const {
  if (format == CF_UNICODETEXT) return data.setText(toQt(text));
  if (const auto name = m_names.find(format); name != m_names.end())
    data.setData(mimeType(name->second), toBytes(text));
}

bool QtClipboard::has(unsigned format) const {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  if (!data) return false;
  if (format == CF_UNICODETEXT) return data->hasText();
  const auto name = m_names.find(format);
  return name != m_names.end() && data->hasFormat(mimeType(name->second));
}

std::optional<std::u16string> QtClipboard::get(unsigned format) const {
  if (!has(format)) return std::nullopt;
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  if (format == CF_UNICODETEXT) return fromQt(data->text());
  return fromBytes(data->data(mimeType(m_names.at(format))));
}
