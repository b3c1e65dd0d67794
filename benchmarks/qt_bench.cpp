#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <memory>

#include "benchmarks/memory_in_use.h"
#include "benchmarks/texts.h"

namespace benchmarks {
namespace {

constexpr int pixel_size = 16;

QFont base_font() {
  QFont font(QStringLiteral("Liberation Sans"));
  font.setPixelSize(pixel_size);
  return font;
}

QString string_of(std::u16string_view text) {
  return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

double line_width() { return QFontMetricsF(base_font()).horizontalAdvance(string_of(sample_line)); }

QTextCharFormat format_of(look shown) {
  QTextCharFormat format;
  QFont font = base_font();
  if (shown == look::red) format.setForeground(Qt::red);
  if (shown == look::bold) font.setBold(true);
  if (shown == look::higher) font.setPixelSize(static_cast<int>(pixel_size * higher_factor));
  if (shown == look::bold || shown == look::higher) format.setFont(font);
  return format;
}

/// Reaches the end of the layout, which is otherwise put off until something is shown.
void lay_out_fully(const QTextDocument& text) { benchmark::DoNotOptimize(text.size()); }

/// A document that lays out nothing before it is asked for its size. It keeps no undo steps.
std::unique_ptr<QTextDocument> document_of(const sample_text& text) {
  auto document = std::make_unique<QTextDocument>();
  document->setUndoRedoEnabled(false);
  document->setDocumentMargin(0);
  document->setDefaultFont(base_font());
  document->setTextWidth(line_width());
  document->setPlainText(string_of(text.letters));
  QTextCursor cursor(document.get());
  cursor.beginEditBlock();
  for (const look_run& run : text.runs) {
    cursor.setPosition(static_cast<int>(run.begin));
    cursor.setPosition(static_cast<int>(run.end), QTextCursor::KeepAnchor);
    cursor.setCharFormat(format_of(run.shown));
  }
  cursor.endEditBlock();
  return document;
}

std::unique_ptr<QTextDocument> laid_out(const sample_text& text) {
  auto document = document_of(text);
  lay_out_fully(*document);
  return document;
}

double line_count(const QTextDocument& text) {
  int lines = 0;
  for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
    lines += block.layout()->lineCount();
  }
  return lines;
}

/// Everything is measured and broken anew when the width changes; the two widths break alike.
void measures_and_lays_out(benchmark::State& state) {
  const auto text = laid_out(text_of(state));
  const double width = text->textWidth();
  bool wider = false;
  for (auto _ : state) {
    wider = !wider;
    text->setTextWidth(wider ? width + 0.001 : width);
    lay_out_fully(*text);
  }
  state.counters["lines"] = line_count(*text);
}

void finds_positions(benchmark::State& state) {
  const auto text = laid_out(text_of(state));
  const QSizeF size = text->size();
  double x = 0;
  double y = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(text->documentLayout()->hitTest({x, y}, Qt::FuzzyHit));
    x = x < size.width() ? x + size.width() / 7 : 0;
    y = y < size.height() ? y + size.height() / 101 : 0;
  }
}

void inserts(benchmark::State& state) {
  const auto text = laid_out(text_of(state));
  QTextCursor cursor(text.get());
  cursor.setPosition(static_cast<int>(state.range(0) / 2));
  bool typed = false;
  for (auto _ : state) {
    if (typed) {
      cursor.deletePreviousChar();
    } else {
      cursor.insertText(QStringLiteral("x"));
    }
    lay_out_fully(*text);
    typed = !typed;
  }
}

void takes_memory(benchmark::State& state) {
  const sample_text text = text_of(state);
  laid_out(text);
  std::size_t bytes = 0;
  for (auto _ : state) bytes = bytes_of([&] { return laid_out(text); });
  state.counters["bytes"] = static_cast<double>(bytes);
}

}  // namespace

void register_qt() {
  add_timed("measure and lay out/QTextDocument", measures_and_lays_out);
  add_timed("find a position/QTextDocument", finds_positions);
  add_timed("insert a character and lay out/QTextDocument", inserts);
  add_counted("memory/QTextDocument", takes_memory);
}

}  // namespace benchmarks
