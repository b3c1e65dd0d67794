#include "benchmarks/memory_in_use.h"
#include "benchmarks/texts.h"
#include "mtext/decode.h"
#include "mtext/dispose.h"
#include "mtext/entity/mtext_size_finder.h"
#include "mtext/flatten.h"
#include "mtext/parse.h"
#include "mtext/serialize.h"
#include "mtext/to_geom.h"
#include "od/db/OdDbDatabase.h"

namespace benchmarks {
namespace {

constexpr double height = 2.5;

mtext::format::string base_format() { return {.font = u"Liberation Sans", .pitch = 34}; }

/// A finder that has measured nothing yet, as one has when a drawing is opened.
mtext::mtext_size_finder new_finder() {
  static const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  return mtext::mtext_size_finder(database);
}

double line_width() {
  double width = 0;
  for (const auto& each : to_geom(sample_line, base_format(), height, new_finder()).parts) {
    width += each.size.advance;
  }
  return width;
}

mtext::convert_info frame() {
  mtext::convert_info info;
  info.height = height;
  info.columns.width = line_width();
  return info;
}

mtext::multitext read(const sample_text& text) {
  mtext::multitext logical;
  mtext::parse(text.codes, base_format(), logical, {});
  return logical;
}

mtext::geom_multitext laid_out(const sample_text& text) {
  return decode(text.codes, base_format(), frame(), new_finder(), {});
}

void reads(benchmark::State& state) {
  const sample_text text = text_of(state);
  for (auto _ : state) benchmark::DoNotOptimize(read(text));
}

void writes(benchmark::State& state) {
  const mtext::multitext text = read(text_of(state));
  for (auto _ : state) benchmark::DoNotOptimize(serialize(text, base_format(), height));
}

void measures(benchmark::State& state) {
  const mtext::multitext text = read(text_of(state));
  for (auto _ : state) benchmark::DoNotOptimize(to_geom(text, height, new_finder()));
}

void lays_out(benchmark::State& state) {
  mtext::geom_multitext text = laid_out(text_of(state));
  for (auto _ : state) dispose(text);
}

void measures_and_lays_out(benchmark::State& state) {
  const mtext::multitext text = read(text_of(state));
  const mtext::convert_info info = frame();
  std::size_t lines = 0;
  for (auto _ : state) {
    mtext::geom_multitext made = to_geom(text, height, new_finder());
    made.info = info;
    dispose(made);
    lines = made.lines.size();
  }
  state.counters["lines"] = static_cast<double>(lines);
}

void finds_positions(benchmark::State& state) {
  const mtext::geom_multitext text = laid_out(text_of(state));
  const double step = text.info.columns.width / 7;
  double x = 0;
  std::size_t line = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(text.position_at(x, text.lines[line].y));
    x = x < text.info.columns.width ? x + step : 0;
    line = (line + 101) % text.lines.size();
  }
}

/// A key and the next that takes its letter away again, each with the layout that follows, as the editor asks
/// for it: told what the key left alone.
void inserts(benchmark::State& state) {
  mtext::geom_multitext text = laid_out(text_of(state));
  const mtext::mtext_size_finder finder = new_finder();
  const std::size_t middle = text.parts.size() / 2;
  const mtext::text_edit edit{
      .before = middle, .behind = text.parts.size() - middle, .paragraph_ends = false};
  const mtext::format::string format = text.parts[middle].part().format;
  bool typed = false;
  for (auto _ : state) {
    if (typed) {
      text.erase(middle, 1, /*drop_empty=*/true);
    } else {
      text.insert(middle, to_geom(u'x', format, height, finder));
    }
    dispose(text, edit);
    typed = !typed;
  }
}

void copies(benchmark::State& state) {
  const mtext::geom_multitext text = laid_out(text_of(state));
  for (auto _ : state) benchmark::DoNotOptimize(mtext::geom_multitext(text));
}

void takes_memory(benchmark::State& state) {
  const sample_text text = text_of(state);
  laid_out(text);  // what stays behind in the fonts is no part of the text
  std::size_t bytes = 0;
  for (auto _ : state) bytes = bytes_of([&] { return laid_out(text); });
  state.counters["bytes"] = static_cast<double>(bytes);
}

}  // namespace

void register_scribe() {
  add_timed("read/scribe", reads);
  add_timed("write/scribe", writes);
  add_timed("measure/scribe", measures);
  add_timed("lay out/scribe", lays_out);
  add_timed("measure and lay out/scribe", measures_and_lays_out);
  add_timed("find a position/scribe", finds_positions);
  add_timed("insert a character and lay out/scribe", inserts);
  add_timed("copy for undo/scribe", copies);
  add_counted("memory/scribe", takes_memory);
}

}  // namespace benchmarks
