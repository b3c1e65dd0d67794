#include "od/db/database_field_source.h"

#include <chrono>
#include <cmath>
#include <ctime>

#include "od/db/OdDbEntity.h"
#include "od/db/drawing_properties.h"
#include "od/db/object_properties.h"

namespace {

using Value = std::optional<OdFieldValue>;

constexpr double kMostDays = 5'000'000;

/// The moment of a day number with its fraction, as headers keep them; nothing for a number that is none.
Value dateOfDays(double days) {
  using namespace std::chrono;
  constexpr int kFirstOf1970 = 2'440'588;
  if (!(days > 1) || days > kMostDays) return {};
  const double whole = std::floor(days);
  const sys_days day{std::chrono::days{static_cast<int>(whole) - kFirstOf1970}};
  const year_month_day date(day);
  const hh_mm_ss time(milliseconds(static_cast<std::int64_t>((days - whole) * 86'400'000)));
  return OdFieldDate{.year = static_cast<int>(date.year()),
                     .month = static_cast<int>(static_cast<unsigned>(date.month())),
                     .weekday = static_cast<int>(weekday(day).c_encoding()),
                     .day = static_cast<int>(static_cast<unsigned>(date.day())),
                     .hour = static_cast<int>(time.hours().count()),
                     .minute = static_cast<int>(time.minutes().count()),
                     .second = static_cast<int>(time.seconds().count()),
                     .millisecond = static_cast<int>(time.subseconds().count())};
}

OdFieldValue sizeOf(const std::filesystem::path& file) {
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(file, error);
  if (error) return {};
  if (size > INT32_MAX) return static_cast<double>(size);
  return static_cast<std::int32_t>(size);
}

OdFieldValue textOf(const std::filesystem::path& path) { return OdString(odToUtf16(path.string())); }

/// A new drawing has no file, and nothing to say of it, which is no fault.
Value ofFile(OdDbDatabase& database, std::u16string_view name) {
  struct Part {
    std::u16string_view name;
    OdFieldValue (*read)(const std::filesystem::path&);
  };
  constexpr Part kParts[] = {
      {u"Filename", [](const auto& path) { return textOf(std::filesystem::absolute(path)); }},
      {u"DwgName", [](const auto& path) { return textOf(path.filename()); }},
      {u"DwgPrefix",
       [](const auto& path) { return textOf(std::filesystem::absolute(path).parent_path() / ""); }},
      {u"Filesize", sizeOf},
  };
  for (const Part& part : kParts)
    if (odEqualNoCase(part.name, name))
      return database.path().empty() ? OdFieldValue() : part.read(database.path());
  return {};
}

Value ofHeader(OdDbDatabase& database, std::u16string_view name) {
  const auto value = database.getSysVar(OdString(name));
  if (!value) return {};
  if (const auto* real = std::get_if<double>(&*value)) return *real;
  if (const auto* text = std::get_if<OdString>(&*value)) return *text;
  return std::int32_t{std::get<int>(*value)};
}

}  // namespace

OdFieldDate odLocalTime() {
  const std::time_t now = std::time(nullptr);
  std::tm parts{};
  localtime_r(&now, &parts);
  return {.year = parts.tm_year + 1900,
          .month = parts.tm_mon + 1,
          .weekday = parts.tm_wday,
          .day = parts.tm_mday,
          .hour = parts.tm_hour,
          .minute = parts.tm_min,
          .second = parts.tm_sec};
}

std::optional<OdFieldValue> OdDbFieldSource::variable(std::u16string_view name) const {
  if (odEqualNoCase(name, u"Date")) return m_now;
  if (odEqualNoCase(name, u"CreateDate")) return dateOfDays(m_database.getSysVarDouble(u"TDCREATE", 0));
  if (odEqualNoCase(name, u"SaveDate")) return dateOfDays(m_database.getSysVarDouble(u"TDUPDATE", 0));
  if (const Value found = ofFile(m_database, name)) return found;
  if (const auto found = odDrawingProperty(m_database, name)) return *found;
  return ofHeader(m_database, name);
}

std::optional<OdFieldValue> OdDbFieldSource::property(std::uint64_t handle, std::u16string_view name) const {
  const OdDbObjectId id = m_database.getOdDbObjectId(OdDbHandle(handle));
  const auto entity = id.isNull() || id.isErased() ? OdDbEntityPtr() : odCast<OdDbEntity>(id.openObject());
  return entity ? odObjectProperty(*entity, name) : std::nullopt;
}

OdFieldUnits OdDbFieldSource::units() const {
  OdFieldUnits units;
  units.length = m_database.getSysVarInt(u"LUNITS", units.length);
  units.length_precision = m_database.getSysVarInt(u"LUPREC", units.length_precision);
  units.angle = m_database.getSysVarInt(u"AUNITS", units.angle);
  units.angle_precision = m_database.getSysVarInt(u"AUPREC", units.angle_precision);
  return units;
}
