#include "desk/text_json/format_json.h"

namespace text_json {

namespace {

using mtext::format::string;
using mtext::format::string_partial;
using mtext::format::text_color;

text_color read_color(const json& value) {
  text_color color;
  color.kind = member_or(value, "kind", color.kind);
  color.index = member_or(value, "index", color.index);
  color.top = member_or(value, "top", color.top);
  color.red = member_or(value, "red", color.red);
  color.green = member_or(value, "green", color.green);
  color.blue = member_or(value, "blue", color.blue);
  return color;
}

json write_color(const text_color& color) {
  if (color.kind == 0) return {{"kind", 0}, {"index", color.index}};
  return {{"kind", color.kind},
          {"top", color.top},
          {"red", color.red},
          {"green", color.green},
          {"blue", color.blue}};
}

void read(const json& object, const char* name, boost::logic::tribool& target) {
  auto found = object.find(name);
  if (found != object.end()) target = found->get<bool>();
}

void write(json& object, const char* name, boost::logic::tribool value) {
  if (!indeterminate(value)) object[name] = static_cast<bool>(value);
}

}  // namespace

string read_format(const json& value) {
  string format;
  format.height = member_or(value, "height", format.height);
  format.height_kind = member_or(value, "height_kind", format.height_kind);
  format.font = text_member(value, "font");
  format.pitch = member_or(value, "pitch", format.pitch);
  format.flags = member_or(value, "flags", format.flags);
  format.charset = member_or(value, "charset", format.charset);
  format.is_shx = member_or(value, "is_shx", format.is_shx);
  format.color = read_color(object_member(value, "color"));
  format.width_factor = member_or(value, "width_factor", format.width_factor);
  format.oblique = member_or(value, "oblique", format.oblique);
  format.tracking = member_or(value, "tracking", format.tracking);
  format.align = member_or(value, "align", format.align);
  return format;
}

json write_format(const string& format) {
  return {{"height", format.height},
          {"height_kind", format.height_kind},
          {"font", write_text(format.font)},
          {"pitch", format.pitch},
          {"flags", format.flags},
          {"charset", format.charset},
          {"is_shx", format.is_shx},
          {"color", write_color(format.color)},
          {"width_factor", format.width_factor},
          {"oblique", format.oblique},
          {"tracking", format.tracking},
          {"align", format.align}};
}

string_partial read_string_partial(const json& value) {
  string_partial partial;
  if (value.contains("height")) {
    partial.height = std::pair(value["height"][0].get<double>(), value["height"][1].get<std::uint32_t>());
  }
  if (value.contains("font")) partial.font = read_text(value["font"]);
  read(value, "pitch", partial.pitch);
  read(value, "charset", partial.charset);
  read(value, "is_shx", partial.is_shx);
  read(value, "bold", partial.bold);
  read(value, "italic", partial.italic);
  read(value, "underline", partial.underline);
  read(value, "overline", partial.overline);
  if (value.contains("color")) partial.color = read_color(value["color"]);
  read(value, "width_factor", partial.width_factor);
  read(value, "oblique", partial.oblique);
  read(value, "tracking", partial.tracking);
  read(value, "align", partial.align);
  return partial;
}

json write_format(const string_partial& partial) {
  json value = json::object();
  if (partial.height) value["height"] = {partial.height->first, partial.height->second};
  if (partial.font) value["font"] = write_text(*partial.font);
  write(value, "pitch", partial.pitch);
  write(value, "charset", partial.charset);
  write(value, "is_shx", partial.is_shx);
  write(value, "bold", partial.bold);
  write(value, "italic", partial.italic);
  write(value, "underline", partial.underline);
  write(value, "overline", partial.overline);
  if (partial.color) value["color"] = write_color(*partial.color);
  write(value, "width_factor", partial.width_factor);
  write(value, "oblique", partial.oblique);
  write(value, "tracking", partial.tracking);
  write(value, "align", partial.align);
  return value;
}

}  // namespace text_json
