#include "desk/text_json/layout_json.h"

namespace text_json {

json write_line(const mtext::geom_line& line) {
  return {{"first", line.first},
          {"last", line.last},
          {"x", line.x},
          {"y", line.y},
          {"advance", line.size.advance},
          {"head", line.size.head},
          {"above", line.size.above},
          {"below", line.size.below},
          {"gap", line.size.gap}};
}

json write_lines(const mtext::geom_multitext& text) {
  json lines = json::array();
  for (const mtext::geom_line& each : text.lines) lines.push_back(write_line(each));
  return lines;
}

json write_column(const mtext::geom_column& column) {
  return {{"first", column.first}, {"last", column.last},   {"x", column.x},
          {"y", column.y},         {"width", column.width}, {"height", column.height}};
}

json write_columns(const mtext::geom_multitext& text) {
  json columns = json::array();
  for (const mtext::geom_column& each : text.columns) columns.push_back(write_column(each));
  return columns;
}

}  // namespace text_json
