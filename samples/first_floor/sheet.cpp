#include "samples/first_floor/sheet.h"

#include <utility>

#include "od/dxf/header_variables.h"
#include "od/dxf/new_drawing.h"
#include "samples/first_floor/groups.h"

namespace samples {
namespace {

constexpr double kSheetWidth = 21000;
constexpr double kSheetHeight = 14850;

std::u16string_view first_name(const dxf::Record& record, std::u16string& name) {
  return name = record.string_or(2, record.whole(), u"");
}

// The record of that type whose group 2 is `name`.
dxf::Record& find_record(dxf::File& file, std::string_view type, std::u16string_view name) {
  std::u16string found;
  for (dxf::Record& record : file.records()) {
    if (record.is(type) && first_name(record, found) == name) return record;
  }
  throw OdError("The drawing has no record " + std::string(type) + ".");
}

void show_whole_sheet(dxf::File& file) {
  dxf::Record& view = find_record(file, "VPORT", u"*Active");
  const dxf::Range all = view.whole();
  view.set_point(*view.find(12, all), all.end, {kSheetWidth / 2, kSheetHeight / 2, 0});
  view.set_double(*view.find(40, all), kSheetHeight * 1.05);
  view.set_double(*view.find(41, all), kSheetWidth / kSheetHeight);
}

}  // namespace

Sheet::Sheet() : file_(dxf::new_drawing(dxf::R2018)) {
  dxf::HeaderVariables header(file_);
  next_handle_ = header.handle_or("$HANDSEED", 0);
  header.set_point("$EXTMIN", 10, {0, 0, 0});
  header.set_point("$EXTMAX", 10, {kSheetWidth, kSheetHeight, 0});
  header.set_point("$LIMMAX", 10, {kSheetWidth, kSheetHeight, 0});
  header.set_double("$TEXTSIZE", 40, 125);
  header.set_int("$LUPREC", 70, 0);
  show_whole_sheet(file_);
  end_block();
}

dxf::Record& Sheet::record(std::string_view type, dxf::Handle owner) {
  dxf::Record& made = file_.insert_before(place_, type);
  Groups(made).handle(5, next_handle_++).handle(330, owner);
  return made;
}

dxf::Record& Sheet::entity(std::string_view type) {
  dxf::Record& made = record(type, owner_);
  Groups(made).mark(100, "AcDbEntity").mark(8, layer_);
  return made;
}

dxf::Record& Sheet::table_entry(std::string_view table, std::string_view marker, std::string_view name) {
  dxf::Record& head = find_record(file_, "TABLE", std::u16string(table.begin(), table.end()));
  const std::size_t count = *head.find(70, head.whole());
  head.set_int(count, head.get_int(count).value_or(0) + 1);
  dxf::Record* end = head.next();
  while (!end->is("ENDTAB")) end = end->next();
  dxf::Record* const place = place_;
  place_ = end;
  dxf::Record& made = record(table, head.handle());
  place_ = place;
  Groups(made).mark(100, "AcDbSymbolTableRecord").mark(100, marker).mark(2, name);
  return made;
}

void Sheet::add_layer(std::string_view name, int color, int line_weight) {
  dxf::Record& made = table_entry("LAYER", "AcDbLayerTableRecord", name);
  const dxf::Record& zero = find_record(file_, "LAYER", u"0");
  const dxf::Handle plot_style = zero.handle_or(390, zero.whole(), 0);
  Groups(made)
      .integer(70, 0)
      .integer(62, color)
      .mark(6, "Continuous")
      .integer(370, line_weight)
      .handle(390, plot_style);
}

void Sheet::add_style(std::string_view name, std::string_view file, std::u16string_view typeface, int flags) {
  Groups style(table_entry("STYLE", "AcDbTextStyleTableRecord", name));
  style.integer(70, 0).real(40, 0).real(41, 1).real(50, 0).integer(71, 0).real(42, 125).mark(3, file).mark(
      4, "");
  if (!typeface.empty()) style.mark(1001, "ACAD").string(1000, typeface).integer(1071, flags);
}

void Sheet::begin_block(std::string_view name) {
  owner_ = table_entry("BLOCK_RECORD", "AcDbBlockTableRecord", name).handle();
  dxf::Record& block_record = find_record(file_, "BLOCK_RECORD", std::u16string(name.begin(), name.end()));
  Groups(block_record).handle(340, 0).integer(70, 4).integer(280, 1).integer(281, 0);
  place_ = file_.section("BLOCKS")->end;
  const std::string layer = std::exchange(layer_, "0");
  dxf::Record& begin = entity("BLOCK");
  Groups(begin)
      .mark(100, "AcDbBlockBegin")
      .mark(2, name)
      .integer(70, 0)
      .point(10, {})
      .mark(3, name)
      .mark(1, "");
  dxf::Record& end = entity("ENDBLK");
  Groups(end).mark(100, "AcDbBlockEnd");
  place_ = &end;
  layer_ = layer;
}

void Sheet::end_block() {
  owner_ = find_record(file_, "BLOCK_RECORD", u"*Model_Space").handle();
  place_ = file_.section("ENTITIES")->end;
}

std::string Sheet::finish() {
  dxf::HeaderVariables(file_).set_handle("$HANDSEED", 5, next_handle_);
  return file_.write();
}

}  // namespace samples
