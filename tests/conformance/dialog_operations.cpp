#include <charconv>
#include <map>
#include <stdexcept>

#include "od/base/unicode.h"
#include "tests/conformance/operations.h"
#include "ui/dialogs/CMTextColumnsDlg.h"
#include "ui/dialogs/CParagraphDlg.h"

namespace conformance {

namespace {

/// Lengths as the protocol has them: plain decimal numbers with all their digits.
length_text plain_lengths() {
  return {.print =
              [](double length) {
                char text[32];
                return std::u16string(text, std::to_chars(text, text + sizeof text, length).ptr);
              },
          .read = [](std::u16string_view text) -> std::optional<double> {
            const std::string digits = odToUtf8(text);
            const char* const end = digits.data() + digits.size();
            double length = 0;
            const auto [behind, error] = std::from_chars(digits.data(), end, length);
            if (error != std::errc() || behind != end) return {};
            return length;
          }};
}

column_values read_columns(const json& in) {
  return {.type = in.at("type"),
          .auto_height = in.at("auto_height"),
          .count = in.at("count"),
          .height = in.at("height"),
          .column_width = in.at("column_width"),
          .gutter = in.at("gutter"),
          .total = in.at("total"),
          .text_height = in.at("text_height")};
}

json write_columns(const column_values& values) {
  return {{"type", values.type},     {"auto_height", values.auto_height},   {"count", values.count},
          {"height", values.height}, {"column_width", values.column_width}, {"gutter", values.gutter},
          {"total", values.total}};
}

CMTextColumnsDlg::field field_of(const std::string& name) {
  using field = CMTextColumnsDlg::field;
  static const std::map<std::string, field> fields = {{"count", field::count},
                                                      {"height", field::height},
                                                      {"column_width", field::column_width},
                                                      {"gutter", field::gutter},
                                                      {"total", field::total}};
  return fields.at(name);
}

json columns_dialog(const json& in) {
  CMTextColumnsDlg dialog(read_columns(in), plain_lengths());
  json accepted = json::array();
  for (const json& edit : in.at("edits"))
    accepted.push_back(dialog.leave(field_of(edit.at(0)), read_text(edit.at(1))));
  return {{"accepted", accepted}, {"values", write_columns(dialog.values())}};
}

CParagraphDlg paragraph_dialog_of(const json& in) {
  const json& spacing = in.at("spacing");
  if (spacing.is_null()) return {/*has_spacing=*/false, {}, in.at("text_height")};
  return {/*has_spacing=*/true, {spacing.at("style"), spacing.at("value")}, in.at("text_height")};
}

/// Whether the step was accepted.
bool paragraph_step(CParagraphDlg& dialog, const std::string& name, const json& value) {
  if (name == "value") return dialog.leaveValue(read_text(value));
  if (name == "enabled") {
    dialog.setEnabled(value);
  } else if (name == "style") {
    dialog.setStyle(value);
  } else {
    throw std::logic_error("step not available: " + name);
  }
  return true;
}

json paragraph_dialog(const json& in) {
  CParagraphDlg dialog = paragraph_dialog_of(in);
  json shown = json::array(), accepted = json::array(), limits = json::array();
  for (const json& step : in.at("steps")) {
    accepted.push_back(paragraph_step(dialog, step.at(0), step.at(1)));
    shown.push_back(write_text(dialog.valueText()));
    limits.push_back({dialog.valueLimits().low, dialog.valueLimits().high});
  }
  const auto [style, value] = dialog.result();
  return {{"shown", shown},
          {"accepted", accepted},
          {"limits", limits},
          {"result", {{"style", style}, {"value", value}}}};
}

}  // namespace

void add_dialog_operations(operation_table& table) {
  table["columns_dialog"] = columns_dialog;
  table["paragraph_dialog"] = paragraph_dialog;
}

}  // namespace conformance
