#include "editor/rich_text/html_style.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

#include "editor/rich_text/css_color.h"
#include "od/base/trimmed.h"

namespace rich {

namespace {

constexpr double kUsualPoints = 12;
constexpr double kMostPoints = 10'000;

struct role_row {
  std::string_view element;
  html_role role;
};

constexpr role_row kRoles[] = {
    {"address", html_role::block},   {"article", html_role::block},   {"blockquote", html_role::block},
    {"br", html_role::line_break},   {"dd", html_role::block},        {"div", html_role::block},
    {"dl", html_role::block},        {"dt", html_role::block},        {"h1", html_role::block},
    {"h2", html_role::block},        {"h3", html_role::block},        {"h4", html_role::block},
    {"h5", html_role::block},        {"h6", html_role::block},        {"head", html_role::hidden},
    {"hr", html_role::block},        {"iframe", html_role::hidden},   {"li", html_role::item},
    {"object", html_role::hidden},   {"ol", html_role::ordered},      {"p", html_role::block},
    {"pre", html_role::block},       {"script", html_role::hidden},   {"section", html_role::block},
    {"style", html_role::hidden},    {"table", html_role::block},     {"td", html_role::cell},
    {"template", html_role::hidden}, {"textarea", html_role::hidden}, {"th", html_role::cell},
    {"title", html_role::hidden},    {"tr", html_role::block},        {"ul", html_role::unordered},
};

std::string_view trimmed(std::string_view text) { return odTrimmed(text, " \t\r\n\f"); }

std::string lower(std::string_view text) {
  std::string result(text);
  for (char& c : result)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return result;
}

double sound(double points, double otherwise) {
  return points > 0 && points <= kMostPoints ? points : otherwise;
}

/// A length of CSS in points; `around` is the size that relative ones refer to.
double points_of(std::string_view value, double around) {
  constexpr struct {
    std::string_view word;
    double points;
  } kWords[] = {{"xx-small", 7}, {"x-small", 7.5}, {"small", 10},   {"medium", 12},
                {"large", 13.5}, {"x-large", 18},  {"xx-large", 24}};
  for (const auto& each : kWords)
    if (value == each.word) return each.points;
  const double base = around > 0 ? around : kUsualPoints;
  if (value == "smaller") return base / 1.2;
  if (value == "larger") return base * 1.2;
  double number = 0;
  const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
  if (error != std::errc()) return around;
  const std::string_view unit = trimmed({end, static_cast<std::size_t>(value.data() + value.size() - end)});
  if (unit == "pt") return sound(number, around);
  if (unit == "px") return sound(number * 0.75, around);
  if (unit == "em" || unit == "rem") return sound(number * base, around);
  if (unit == "%") return sound(number * base / 100, around);
  return around;
}

bool is_bold(std::string_view value) {
  int weight = 0;
  std::from_chars(value.data(), value.data() + value.size(), weight);
  return value == "bold" || value == "bolder" || weight >= 600;
}

void declare(std::string_view property, const std::string& value, style& target) {
  if (property == "font-weight") target.bold = is_bold(value);
  if (property == "font-style") target.italic = value == "italic" || value == "oblique";
  if (property == "text-decoration" || property == "text-decoration-line")
    target.underline = value.find("underline") != value.npos;
  if (property == "font-size") target.size = points_of(value, target.size);
  if (property == "vertical-align" && value == "super") target.script = script::upper;
  if (property == "vertical-align" && value == "sub") target.script = script::lower;
  if (property == "vertical-align" && value == "baseline") target.script = script::none;
  if (property == "color") {
    if (const auto color = css_color(value)) target.color = color;
  }
}

}  // namespace

html_role role_of(std::string_view element) {
  const auto row = std::find_if(std::begin(kRoles), std::end(kRoles),
                                [element](const role_row& each) { return each.element == element; });
  return row == std::end(kRoles) ? html_role::none : row->role;
}

void apply_element(std::string_view element, style& target) {
  constexpr std::array<double, 6> kHeadings{24, 18, 14, 12, 10, 8};
  const bool heading = element.size() == 2 && element[0] == 'h' && element[1] >= '1' && element[1] <= '6';
  if (heading) target.size = kHeadings[static_cast<std::size_t>(element[1] - '1')];
  if (heading || element == "b" || element == "strong" || element == "th") target.bold = true;
  if (element == "i" || element == "em" || element == "cite" || element == "var") target.italic = true;
  if (element == "u" || element == "ins") target.underline = true;
  if (element == "sup") target.script = script::upper;
  if (element == "sub") target.script = script::lower;
  if (element == "big") target.size = points_of("larger", target.size);
  if (element == "small") target.size = points_of("smaller", target.size);
}

void apply_declarations(std::string_view css, style& target) {
  while (!css.empty()) {
    const std::size_t end = std::min(css.size(), css.find(';'));
    const std::string_view declaration = css.substr(0, end);
    const std::size_t colon = declaration.find(':');
    if (colon != declaration.npos)
      declare(lower(trimmed(declaration.substr(0, colon))), lower(trimmed(declaration.substr(colon + 1))),
              target);
    css.remove_prefix(std::min(css.size(), end + 1));
  }
}

void apply_font(std::string_view name, std::string_view value, style& target) {
  constexpr std::array<double, 7> kSizes{7.5, 10, 12, 13.5, 18, 24, 36};
  if (name == "color") {
    if (const auto color = css_color(lower(trimmed(value)))) target.color = color;
  }
  if (name != "size" || value.empty()) return;
  const bool relative = value[0] == '+' || value[0] == '-';
  int number = 0;
  std::from_chars(value.data() + (value[0] == '+' ? 1 : 0), value.data() + value.size(), number);
  const int step = std::clamp(relative ? 3 + std::clamp(number, -6, 6) : number, 1, 7);
  target.size = kSizes[static_cast<std::size_t>(step - 1)];
}

}  // namespace rich
