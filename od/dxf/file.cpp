#include "od/dxf/file.h"

#include "od/dxf/group_reader.h"
#include "od/dxf/number_text.h"
#include "od/dxf/record_builder.h"
#include "od/dxf/settle_manner.h"

namespace dxf {
namespace {

Error error_at(const std::string& name, const std::string& bytes, const Group& group,
               const std::string& reason) {
  if (group.line() > 0) return Error::at_line(name, group.line(), reason);
  return Error::at_offset(name, static_cast<std::size_t>(group.bytes().data() - bytes.data()), reason);
}

bool opens_a_drawing(const Group& group) {
  const std::string_view value = trim(group.value());
  return group.code() == 0 && (value == "SECTION" || value == "EOF");
}

// Only the mark behind the last section may be the last line without a line end: anything else was longer
// once.
bool is_cut_off(const Group& last, const Manner& manner) {
  const bool is_whole =
      manner.form == Form::binary || last.bytes().ends_with('\n') || last.bytes().ends_with('\r');
  return !is_whole && !(last.code() == 0 && trim(last.value()) == "ENDSEC");
}

// A text line needs its end as soon as another one follows it.
void append_group(const Group& group, const std::string& line_end, std::string& bytes) {
  if (!bytes.empty() && !line_end.empty() && bytes.back() != '\n') {
    if (bytes.back() == '\r') bytes.pop_back();
    bytes += line_end;
  }
  bytes += group.bytes();
}

}  // namespace

File File::read(std::string bytes, std::string name) {
  File file;
  file.name_ = std::move(name);
  file.bytes_ = std::make_unique<const std::string>(std::move(bytes));
  if (file.bytes_->empty()) throw Error(file.name_, "the file is empty");
  file.read_records();
  return file;
}

void File::read_records() {
  const auto manner = std::make_shared<Manner>();
  const std::string_view all = *bytes_;
  const auto reader = open_reader(all, name_, *manner);
  RecordBuilder builder(manner);
  std::optional<Group> last;
  while (!builder.at_end_mark()) {
    const auto group = reader->next();
    if (!group) break;
    if (builder.is_first(*group) && !opens_a_drawing(*group))
      throw error_at(name_, *bytes_, *group, "a drawing has to begin with the group 0 SECTION");
    builder.add(*group);
    last = group;
  }
  const bool ended = builder.at_end_mark();
  records_ = builder.finish();
  if (!last) throw Error(name_, "the file holds no drawing");
  if (!ended && !builder.open_section().empty())
    throw error_at(name_, *bytes_, *last, "the drawing ends in the middle of " + builder.open_section());
  if (!ended && is_cut_off(*last, *manner))
    throw error_at(name_, *bytes_, *last, "the drawing ends in the middle of a group");
  prefix_ = all.substr(0, reader->head_size());
  suffix_ = all.substr(reader->position());
  settle_manner(records_, *manner);
  if (const auto header = section("HEADER")) header_ = header->begin;
  manner_ = manner;
}

std::string File::write() const {
  const std::string line_end = form() == Form::ascii ? manner_->line_end : std::string();
  std::string groups;
  groups.reserve(bytes_->size());
  for (const Record& record : records_) {
    for (const Group& group : record) append_group(group, line_end, groups);
  }
  return std::string(prefix_) + groups + std::string(suffix_);
}

std::unique_ptr<Record> File::make_record(std::string_view type) const {
  return std::make_unique<Record>(manner_, type);
}

Record& File::insert_before(Record* place, std::string_view type) {
  return records_.insert_before(place, make_record(type));
}

Record& File::make_header() {
  if (header_) return *header_;
  Record* place = records_.first();
  // Remarks at the top of the file stay there.
  if (place && place->type().empty()) place = place->next();
  header_ = &insert_before(place, "SECTION");
  header_->insert_string(1, 2, u"HEADER");
  insert_before(place, "ENDSEC");
  return *header_;
}

std::vector<Section> File::sections() const {
  std::vector<Section> found;
  bool open = false;
  for (Record* record = records_.first(); record; record = record->next()) {
    if (record->is("SECTION")) {
      const auto name = record->find(2, record->whole());
      found.push_back({name ? std::string(trim((*record)[*name].value())) : "", record, nullptr});
      open = true;
    } else if (record->is("ENDSEC") && open) {
      found.back().end = record;
      open = false;
    }
  }
  return found;
}

std::optional<Section> File::section(std::string_view name) const {
  for (const Section& section : sections()) {
    if (section.name == name) return section;
  }
  return std::nullopt;
}

}  // namespace dxf
