#include "od/db/drawing_classes.h"

#include "od/base/unicode.h"

namespace {

constexpr int kProxyFlags = 1152;

/// The record in front of which a class is entered; the section is made behind the header if need be.
dxf::Record& endOfClasses(dxf::File& file) {
  if (const auto classes = file.section("CLASSES"); classes && classes->end) return *classes->end;
  const auto header = file.section("HEADER");
  dxf::Record* place = header && header->end ? header->end->next() : file.records().first();
  file.insert_before(place, "SECTION").insert_string(1, 2, u"CLASSES");
  return file.insert_before(place, "ENDSEC");
}

bool hasClass(const dxf::Record& end, std::string_view name) {
  for (const dxf::Record* at = end.previous(); at && at->is("CLASS"); at = at->previous())
    if (at->string_or(1, at->body(), u"") == odToUtf16(name)) return true;
  return false;
}

}  // namespace

void odNeedClass(dxf::File& file, std::string_view record, std::string_view name) {
  dxf::Record& end = endOfClasses(file);
  if (hasClass(end, record)) return;
  dxf::Record& made = file.insert_before(&end, "CLASS");
  made.insert_string(made.size(), 1, odToUtf16(record));
  made.insert_string(made.size(), 2, odToUtf16(name));
  made.insert_string(made.size(), 3, u"ObjectDBX Classes");
  made.insert_int(made.size(), 90, kProxyFlags);
  if (file.version() >= dxf::R2004) made.insert_int(made.size(), 91, 0);
  made.insert_int(made.size(), 280, 0);
  made.insert_int(made.size(), 281, 0);
}
