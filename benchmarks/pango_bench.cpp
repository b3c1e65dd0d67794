#include <pango/pangoft2.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "benchmarks/memory_in_use.h"
#include "benchmarks/texts.h"

namespace benchmarks {
namespace {

constexpr int pixel_size = 16;

struct unreference {
  void operator()(gpointer object) const { g_object_unref(object); }
};
template <class Object>
using owned = std::unique_ptr<Object, unreference>;

struct free_description {
  void operator()(PangoFontDescription* font) const { pango_font_description_free(font); }
};

struct release_attributes {
  void operator()(PangoAttrList* list) const { pango_attr_list_unref(list); }
};
using attributes = std::unique_ptr<PangoAttrList, release_attributes>;

/// One context for the whole run, as a program has, so that its fonts are open.
PangoContext* context() {
  static const owned<PangoFontMap> fonts(pango_ft2_font_map_new());
  static const owned<PangoContext> made(pango_font_map_create_context(fonts.get()));
  pango_context_set_round_glyph_positions(made.get(), FALSE);
  return made.get();
}

owned<PangoLayout> empty_layout() {
  owned<PangoLayout> layout(pango_layout_new(context()));
  const std::unique_ptr<PangoFontDescription, free_description> font(
      pango_font_description_from_string("Liberation Sans"));
  pango_font_description_set_absolute_size(font.get(), pixel_size * PANGO_SCALE);
  pango_layout_set_font_description(layout.get(), font.get());
  return layout;
}

/// The letters of the samples are ASCII, so that a position in UTF-8 is a position in UTF-16.
std::string bytes(std::u16string_view text) { return {text.begin(), text.end()}; }

int width_of(std::u16string_view text) {
  const auto layout = empty_layout();
  pango_layout_set_text(layout.get(), bytes(text).c_str(), -1);
  int width = 0;
  pango_layout_get_size(layout.get(), &width, nullptr);
  return width;
}

int line_width() {
  static const int width = width_of(sample_line);
  return width;
}

PangoAttribute* attribute_of(look shown) {
  switch (shown) {
    case look::red:
      return pango_attr_foreground_new(0xFFFF, 0, 0);
    case look::bold:
      return pango_attr_weight_new(PANGO_WEIGHT_BOLD);
    default:
      return pango_attr_scale_new(higher_factor);
  }
}

/// The looks of the letters from `begin` to `end`.
attributes attributes_of(const sample_text& text, std::size_t begin, std::size_t end) {
  attributes list(pango_attr_list_new());
  const auto first = std::partition_point(text.runs.begin(), text.runs.end(),
                                          [&](const look_run& run) { return run.end <= begin; });
  for (auto run = first; run != text.runs.end() && run->begin < end; ++run) {
    PangoAttribute* attribute = attribute_of(run->shown);
    attribute->start_index = static_cast<guint>(std::max(run->begin, begin) - begin);
    attribute->end_index = static_cast<guint>(std::min(run->end, end) - begin);
    pango_attr_list_insert(list.get(), attribute);
  }
  return list;
}

owned<PangoLayout> layout_of(const sample_text& text, std::size_t begin, std::size_t end) {
  auto layout = empty_layout();
  pango_layout_set_width(layout.get(), line_width());
  pango_layout_set_text(layout.get(),
                        bytes(std::u16string_view(text.letters).substr(begin, end - begin)).c_str(), -1);
  pango_layout_set_attributes(layout.get(), attributes_of(text, begin, end).get());
  return layout;
}

/// One layout a paragraph, as the text views that are built on Pango keep them. A single one for all would
/// take far longer.
using layouts = std::vector<owned<PangoLayout>>;

layouts layouts_of(const sample_text& text) {
  layouts made;
  std::size_t begin = 0;
  while (begin <= text.letters.size()) {
    const std::size_t end = std::min(text.letters.find(u'\n', begin), text.letters.size());
    made.push_back(layout_of(text, begin, end));
    begin = end + 1;
  }
  return made;
}

/// Reaches the end of the layouts, which are otherwise put off. Returns the number of lines.
int lay_out_fully(const layouts& text) {
  int lines = 0;
  for (const auto& each : text) lines += pango_layout_get_line_count(each.get());
  return lines;
}

layouts laid_out(const sample_text& text) {
  layouts made = layouts_of(text);
  lay_out_fully(made);
  return made;
}

void measures_and_lays_out(benchmark::State& state) {
  const layouts text = laid_out(text_of(state));
  int lines = 0;
  for (auto _ : state) {
    for (const auto& each : text) pango_layout_context_changed(each.get());
    lines = lay_out_fully(text);
  }
  state.counters["lines"] = lines;
}

/// Where each layout ends, one below the other.
std::vector<int> bottoms_of(const layouts& text) {
  std::vector<int> bottoms;
  for (const auto& each : text) {
    int height = 0;
    pango_layout_get_size(each.get(), nullptr, &height);
    bottoms.push_back(height + (bottoms.empty() ? 0 : bottoms.back()));
  }
  return bottoms;
}

void finds_positions(benchmark::State& state) {
  const layouts text = laid_out(text_of(state));
  const std::vector<int> bottoms = bottoms_of(text);
  const int width = line_width();
  int x = 0;
  int y = 0;
  for (auto _ : state) {
    const auto found = std::upper_bound(bottoms.begin(), bottoms.end() - 1, y);
    const int top = found == bottoms.begin() ? 0 : found[-1];
    int index = 0;
    int trailing = 0;
    pango_layout_xy_to_index(text[found - bottoms.begin()].get(), x, y - top, &index, &trailing);
    benchmark::DoNotOptimize(index);
    x = x < width ? x + width / 7 : 0;
    y = y < bottoms.back() ? y + bottoms.back() / 101 : 0;
  }
}

/// A layout is not edited but given another text, and other attributes with it. Only one paragraph is
/// changed.
void inserts(benchmark::State& state) {
  const sample_text text = text_of(state);
  const layouts all = laid_out(text);
  PangoLayout* layout = all[all.size() / 2].get();
  const attributes before(pango_attr_list_copy(pango_layout_get_attributes(layout)));
  const attributes after(pango_attr_list_copy(before.get()));
  std::string letters = pango_layout_get_text(layout);
  const std::size_t middle = letters.size() / 2;
  pango_attr_list_update(after.get(), static_cast<int>(middle), 0, 1);
  bool typed = false;
  for (auto _ : state) {
    if (typed) {
      letters.erase(middle, 1);
    } else {
      letters.insert(middle, 1, 'x');
    }
    typed = !typed;
    pango_layout_set_text(layout, letters.c_str(), static_cast<int>(letters.size()));
    pango_layout_set_attributes(layout, typed ? after.get() : before.get());
    benchmark::DoNotOptimize(pango_layout_get_line_count(layout));
  }
}

void takes_memory(benchmark::State& state) {
  const sample_text text = text_of(state);
  laid_out(text);
  std::size_t taken = 0;
  for (auto _ : state) taken = bytes_of([&] { return laid_out(text); });
  state.counters["bytes"] = static_cast<double>(taken);
}

}  // namespace

void register_pango() {
  add_timed("measure and lay out/Pango", measures_and_lays_out);
  add_timed("find a position/Pango", finds_positions);
  add_timed("insert a character and lay out/Pango", inserts);
  add_counted("memory/Pango", takes_memory);
}

}  // namespace benchmarks
