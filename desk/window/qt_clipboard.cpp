#include "desk/window/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QtEndian>
#include <algorithm>

#include "desk/window/qt_text.h"

namespace {

constexpr unsigned kFirstPrivateFormat = 0xC000;

/// How the texts of a format travel.
enum class Coding {
  html,   ///< the toolkit knows it
  bytes,  ///< a unit is a byte
  utf16   ///< little-endian
};

struct Format {
  QString mime;
  Coding coding;
};

/// The names by which the toolkit knows a format; the first is written. A private format bears the MIME type
/// that becomes the registered format of that name where formats are registered.
QList<Format> formatsOf(const std::u16string& name) {
  if (name == kHtmlFormat) return {{"text/html", Coding::html}};
  if (name == kRtfFormat) return {{"text/rtf", Coding::bytes}, {"application/rtf", Coding::bytes}};
  return {{QString("application/x-qt-windows-mime;value=\"%1\"").arg(toQt(name)), Coding::utf16}};
}

QByteArray toBytes(std::u16string_view text) {
  QByteArray bytes(static_cast<qsizetype>(text.size() * 2), Qt::Uninitialized);
  qToLittleEndian<char16_t>(text.data(), static_cast<qsizetype>(text.size()), bytes.data());
  return bytes;
}

/// Without the end mark that formats of Windows have.
std::u16string fromBytes(const QByteArray& bytes) {
  std::u16string text(static_cast<std::size_t>(bytes.size() / 2), u'\0');
  qFromLittleEndian<char16_t>(bytes.data(), static_cast<qsizetype>(text.size()), text.data());
  text.resize(std::min(text.size(), text.find(u'\0')));
  return text;
}

std::u16string textOf(const QMimeData& data, const Format& format) {
  if (format.coding == Coding::html) return fromQt(data.html());
  const QByteArray bytes = data.data(format.mime);
  return format.coding == Coding::utf16 ? fromBytes(bytes) : fromQt(QString::fromLatin1(bytes));
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
  const auto name = m_names.find(format);
  if (name == m_names.end()) return;
  const Format own = formatsOf(name->second).first();
  if (own.coding == Coding::html) return data.setHtml(toQt(text));
  data.setData(own.mime, own.coding == Coding::utf16 ? toBytes(text) : toQt(text).toLatin1());
}

bool QtClipboard::has(unsigned format) const {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  if (!data) return false;
  if (format == CF_UNICODETEXT) return data->hasText();
  const auto name = m_names.find(format);
  if (name == m_names.end()) return false;
  const QList<Format> formats = formatsOf(name->second);
  return std::any_of(formats.begin(), formats.end(),
                     [data](const Format& each) { return data->hasFormat(each.mime); });
}

std::optional<std::u16string> QtClipboard::get(unsigned format) const {
  if (!has(format)) return std::nullopt;
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  if (format == CF_UNICODETEXT) return fromQt(data->text());
  for (const Format& each : formatsOf(m_names.at(format)))
    if (data->hasFormat(each.mime)) return textOf(*data, each);
  return std::nullopt;
}
