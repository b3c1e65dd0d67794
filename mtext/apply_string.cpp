#include "mtext/format_string.h"

namespace mtext::format {

using boost::logic::indeterminate;
using boost::logic::tribool;

namespace {

template <typename Value>
void overwrite(Value& target, const std::optional<Value>& change) {
  if (change) target = *change;
}

template <typename Value>
void override_with(std::optional<Value>& target, const std::optional<Value>& change) {
  if (change) target = change;
}

void override_with(tribool& target, tribool change) {
  if (!indeterminate(change)) target = change;
}

void switch_flag(std::uint32_t& flags, std::uint32_t flag, tribool change) {
  if (indeterminate(change)) return;
  flags = change ? flags | flag : flags & ~flag;
}

}  // namespace

string& apply_to(string& s, const string_partial& p) {
  if (p.height) {
    s.height = p.height->first;
    s.height_kind = p.height->second;
  }
  overwrite(s.font, p.font);
  overwrite(s.pitch, p.pitch);
  overwrite(s.charset, p.charset);
  if (!indeterminate(p.is_shx)) s.is_shx = static_cast<bool>(p.is_shx);
  switch_flag(s.flags, flag_bold, p.bold);
  switch_flag(s.flags, flag_italic, p.italic);
  switch_flag(s.flags, flag_underline, p.underline);
  switch_flag(s.flags, flag_overline, p.overline);
  overwrite(s.color, p.color);
  overwrite(s.width_factor, p.width_factor);
  overwrite(s.oblique, p.oblique);
  overwrite(s.tracking, p.tracking);
  overwrite(s.align, p.align);
  return s;
}

string applied_to(const string& s, const string_partial& p) {
  string result = s;
  apply_to(result, p);
  return result;
}

string_partial& apply_to(string_partial& a, const string_partial& b) {
  override_with(a.height, b.height);
  override_with(a.font, b.font);
  override_with(a.pitch, b.pitch);
  override_with(a.charset, b.charset);
  override_with(a.is_shx, b.is_shx);
  override_with(a.bold, b.bold);
  override_with(a.italic, b.italic);
  override_with(a.underline, b.underline);
  override_with(a.overline, b.overline);
  override_with(a.color, b.color);
  override_with(a.width_factor, b.width_factor);
  override_with(a.oblique, b.oblique);
  override_with(a.tracking, b.tracking);
  override_with(a.align, b.align);
  return a;
}

string_partial applied_to(const string_partial& a, const string_partial& b) {
  string_partial result = a;
  apply_to(result, b);
  return result;
}

}  // namespace mtext::format
