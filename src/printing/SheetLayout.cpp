#include "printing/SheetLayout.h"

#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "printing/PageFormat.h"
#include "printing/ReportLayout.h"

#include <algorithm>

namespace hooptab {

namespace {

constexpr double kSideGap = 5 * kUnitsPerMillimetre;
constexpr double kRule = 10;
constexpr double kTagAir = 30; // beside a tag's letters
constexpr double kTitleGap = 18;

// From what is least to what is best.
struct Room {
  double least;
  double best;
  [[nodiscard]] double at(double ease) const { return least + (best - least) * ease; }
};
constexpr Room kAir = {2, 22};
constexpr Room kGap = {40, 120};
constexpr Room kFlow = {26 * kUnitsPerMillimetre, 50 * kUnitsPerMillimetre};

bool standsBeside(const ReportBlock& block) {
  if (const auto* table = std::get_if<ReportTable>(&block))
    return table->standsBeside;
  const auto* picture = std::get_if<ReportPicture>(&block);
  return picture != nullptr && picture->standsBeside;
}

bool isNote(const ReportBlock& block) {
  const auto* paragraph = std::get_if<ReportParagraph>(&block);
  return paragraph != nullptr && paragraph->style == ReportParagraph::Style::Note;
}

} // namespace

ReportPage SheetLayout::page() {
  constexpr int kSteps = 12;
  for (int step = kSteps;; --step) {
    const double ease = static_cast<double>(step) / kSteps;
    ReportPage page;
    const double bottom = lay(page, ease);
    if (bottom > m_body.bottom() && step > 0)
      continue;
    const auto isRuled = [](const ReportBlock& block) {
      return std::holds_alternative<ReportRuledLines>(block);
    };
    if (std::ranges::none_of(m_report.blocks, isRuled))
      return page;
    m_ruledHeight = std::max(0.0, m_ruledHeight + m_body.bottom() - bottom);
    ReportPage filled;
    lay(filled, ease);
    return filled;
  }
}

std::vector<SheetLayout::Band> SheetLayout::bands() const {
  std::vector<Band> bands;
  for (const ReportBlock& block : m_report.blocks) {
    const bool joins =
        !bands.empty() && (standsBeside(block) || (bands.size() == 1 && !isNote(block) &&
                                                   std::holds_alternative<ReportParagraph>(block)));
    if (joins)
      bands.back().push_back(&block);
    else
      bands.push_back({&block});
  }
  return bands;
}

double SheetLayout::lay(ReportPage& page, double ease) {
  m_ease = ease;
  double y = m_body.top();
  bool isFirst = true;
  for (const Band& band : bands()) {
    if (isFirst) {
      y += layHead(page, band) + kGap.at(ease) / 2;
      isFirst = false;
      continue;
    }
    const auto count = static_cast<double>(band.size());
    const double width = (m_body.width() - (count - 1) * kSideGap) / count;
    double height = 0;
    double x = m_body.left();
    for (const ReportBlock* block : band) {
      height = std::max(height, place(page, *block, QRectF(x, y, width, m_body.bottom() - y)));
      x += width + kSideGap;
    }
    y += height + kGap.at(ease);
  }
  return y - kGap.at(ease);
}

// The paragraphs at the left, the first one large; a table at the right edge; a rule below all.
double SheetLayout::layHead(ReportPage& page, const Band& blocks) {
  QRectF left = m_body;
  double bottom = m_body.top();
  for (const ReportBlock* block : blocks) {
    if (const auto* table = std::get_if<ReportTable>(block)) {
      TableLayout& layout = m_tables.at(table);
      const double width = std::min(layout.naturalWidth(), m_body.width() / 2);
      left.setRight(m_body.right() - width - kSideGap);
      layout.setAir(kAir.at(m_ease));
      layout.spread(width);
      QPointF at(m_body.right() - width, m_body.top());
      layout.placeHead(page, layout.parts().front(), at);
      at.ry() += layout.headHeight(layout.parts().front());
      for (std::size_t row = 0; row < table->rows.size(); ++row) {
        layout.placeRow(page, layout.parts().front(), row, at);
        at.ry() += layout.rowHeight(row);
      }
      bottom = std::max(bottom, at.y());
    }
  }
  for (const ReportBlock* block : blocks) {
    const auto* paragraph = std::get_if<ReportParagraph>(block);
    if (paragraph == nullptr)
      continue;
    const bool isHeading = paragraph->style == ReportParagraph::Style::Heading;
    QRectF room = left;
    if (!paragraph->beside.empty()) // which is never cut, beside text that can be wrapped
      room.setRight(placeBeside(page, *paragraph, left));
    left.setTop(left.top() +
                placeLines(page, isHeading ? PageFont::Title : PageFont::Body, paragraph->text, room, false));
  }
  bottom = std::max(bottom, left.top()) + kGap.least / 2;
  page.lines.push_back({{m_body.left(), bottom}, {m_body.right(), bottom}, kRule});
  return bottom - m_body.top();
}

// On the base line of the paragraph's first line; gives where the room for that ends.
double SheetLayout::placeBeside(ReportPage& page, const ReportParagraph& paragraph,
                                const QRectF& column) const {
  const bool isHeading = paragraph.style == ReportParagraph::Style::Heading;
  const PageFont font = isHeading ? PageFont::Heading : PageFont::Body;
  const PageFont first = isHeading ? PageFont::Title : PageFont::Body;
  const double taken = isHeading ? m_fonts.width(first, toQt(paragraph.text)) + kTagAir : 0;
  const QString words = m_fonts.elided(font, toQt(paragraph.beside), column.width() - taken);
  const double width = m_fonts.width(font, words);
  const double x = isHeading ? column.left() + taken : column.right() - width;
  page.texts.push_back({QRectF(x, column.top() + m_fonts.ascent(first) - m_fonts.ascent(font), width,
                               m_fonts.lineHeight(font)),
                        words, font});
  return isHeading ? column.right() : x - kSideGap;
}

double SheetLayout::place(ReportPage& page, const ReportBlock& block, const QRectF& column) {
  if (const auto* table = std::get_if<ReportTable>(&block))
    return table->areTiles ? placeTiles(page, *table, column) : placeTable(page, *table, column);
  if (const auto* sentences = std::get_if<ReportSentences>(&block))
    return placeSentences(page, *sentences, column);
  if (const auto* ruled = std::get_if<ReportRuledLines>(&block))
    return placeRuledLines(page, *ruled, column);
  if (const auto* picture = std::get_if<ReportPicture>(&block))
    return placePicture(page, *picture, column);
  if (const auto* paragraph = std::get_if<ReportParagraph>(&block))
    return placeLines(page, isNote(block) ? PageFont::Cell : PageFont::Body, paragraph->text, column,
                      isNote(block));
  return 0;
}

double SheetLayout::placeTable(ReportPage& page, const ReportTable& table, const QRectF& column) {
  TableLayout& layout = m_tables.at(&table);
  layout.setAir(kAir.at(m_ease));
  layout.spread(column.width());
  QPointF at = column.topLeft();
  at.ry() += placeTitle(page, table.tag, table.title, table.note, column);
  const TableLayout::Part& part = layout.parts().front();
  layout.placeHead(page, part, at);
  at.ry() += layout.headHeight(part);
  for (std::size_t row = 0; row < table.rows.size(); ++row) {
    layout.placeRow(page, part, row, at);
    at.ry() += layout.rowHeight(row);
  }
  return at.y() - column.top();
}

// Its values large in frames of equal widths, their heads below them; no title.
double SheetLayout::placeTiles(ReportPage& page, const ReportTable& table, const QRectF& column) const {
  constexpr double kTileGap = 2 * kUnitsPerMillimetre;
  constexpr double kTileAir = 1 * kUnitsPerMillimetre;
  const auto count = static_cast<double>(table.columns.size());
  const double width = (column.width() - (count - 1) * kTileGap) / count;
  const double value = m_fonts.lineHeight(PageFont::Title);
  double height = 0;
  QRectF tile(column.left(), column.top(), width, 0);
  for (std::size_t i = 0; i < table.columns.size(); ++i, tile.translate(width + kTileGap, 0)) {
    const QRectF inside = tile.adjusted(kTileAir, kTileAir / 2, -kTileAir, 0);
    placeLines(page, PageFont::Title, table.rows.front().cells[i].text, inside, true);
    height = std::max(height, value + kTileAir +
                                  placeLines(page, PageFont::Cell, table.columns[i].header,
                                             inside.adjusted(0, value, 0, 0), true));
    page.frames.push_back({tile});
  }
  for (PageFrame& frame : page.frames)
    frame.box.setHeight(height);
  return height;
}

// Each on a ground, behind a bar.
double SheetLayout::placeSentences(ReportPage& page, const ReportSentences& block,
                                   const QRectF& column) const {
  constexpr double kBar = 1 * kUnitsPerMillimetre;
  constexpr double kSentenceAir = 12;
  constexpr double kGround = 0.95;
  const QColor bar = lookOf(ColourScheme::Light).accent;
  const double line = m_fonts.lineHeight(PageFont::Body);
  double y = column.top() + placeTitle(page, {}, block.title, block.note, column);
  for (const auto& sentence : block.sentences) {
    PageFonts::Pieces pieces;
    for (const ReportSentences::Part& part : sentence)
      pieces.push_back({toQt(part.text), part.isStrong ? PageFont::BoldBody : PageFont::Body});
    const double top = y;
    y += kSentenceAir;
    for (const PageFonts::Pieces& words : m_fonts.wrapped(pieces, column.width() - 4 * kBar)) {
      double x = column.left() + 2 * kBar;
      for (const PageFonts::Piece& piece : words) {
        const double width = m_fonts.width(piece.font, piece.text);
        page.texts.push_back({QRectF(x, y, width, line), piece.text, piece.font});
        x += width;
      }
      y += line;
    }
    y += kSentenceAir;
    page.fills.push_back({QRectF(column.left(), top, column.width(), y - top), kGround});
    page.fills.push_back({QRectF(column.left(), top, kBar, y - top), 0, bar});
    y += kSentenceAir;
  }
  return y - kSentenceAir - column.top();
}

// As many as the page leaves room for; without room for one, no title either.
double SheetLayout::placeRuledLines(ReportPage& page, const ReportRuledLines& block,
                                    const QRectF& column) const {
  constexpr double kLineGap = 7 * kUnitsPerMillimetre;
  constexpr double kThinRule = 3;
  const double title = m_fonts.lineHeight(PageFont::BoldBody) + kTitleGap;
  if (m_ruledHeight >= title + kLineGap)
    placeTitle(page, {}, block.title, {}, column);
  for (double y = title + kLineGap; y <= m_ruledHeight; y += kLineGap)
    page.lines.push_back({column.topLeft() + QPointF(0, y), column.topRight() + QPointF(0, y), kThinRule});
  return m_ruledHeight;
}

double SheetLayout::placePicture(ReportPage& page, const ReportPicture& picture, const QRectF& column) {
  const double title =
      placeTitle(page, picture.tag, picture.tag ? std::string() : picture.title, picture.note, column);
  const auto* shots = std::get_if<ShotDrawing>(&picture.drawing);
  double height = kFlow.at(m_ease);
  if (shots != nullptr)
    height = column.width() * court::kLength / court::kWidth +
             (shots->hasLegend() ? legendHeight(column.width()) : 0);
  page.pictures.push_back({QRectF(column.left(), column.top() + title, column.width(), height), &picture});
  const double above = title + height + kTitleGap;
  return picture.caption.empty() ? above - kTitleGap
                                 : above + placeLines(page, PageFont::Cell, picture.caption,
                                                      column.adjusted(0, above, 0, 0), true);
}

// Tag, title and note on one line, the note cut where it has to be.
double SheetLayout::placeTitle(ReportPage& page, const std::optional<ReportTag>& tag,
                               const std::string& title, const std::string& note,
                               const QRectF& column) const {
  const double line = m_fonts.lineHeight(PageFont::BoldBody);
  double x = column.left();
  if (tag) {
    const QString words = toQt(tag->words);
    const double width = m_fonts.width(PageFont::BoldBody, words) + 2 * kTagAir;
    page.tags.push_back({QRectF(x, column.top(), width, line), words, colourOf(tag->colour)});
    x += width + kTagAir;
  }
  const auto add = [&](PageFont font, const std::string& text) {
    const QString shown = m_fonts.elided(font, toQt(text), column.right() - x);
    if (shown.isEmpty())
      return;
    const double width = m_fonts.width(font, shown);
    const double lower = m_fonts.ascent(PageFont::BoldBody) - m_fonts.ascent(font); // one base line
    page.texts.push_back({QRectF(x, column.top() + lower, width, m_fonts.lineHeight(font)), shown, font});
    x += width + kTagAir;
  };
  add(PageFont::BoldBody, title);
  add(PageFont::Cell, note);
  return line + kTitleGap;
}

double SheetLayout::placeLines(ReportPage& page, PageFont font, const std::string& text, const QRectF& column,
                               bool isCentred) const {
  const double height = m_fonts.lineHeight(font);
  double y = column.top();
  for (const QString& line : m_fonts.wrapped(font, toQt(text), column.width())) {
    const double width = m_fonts.width(font, line);
    const double x = isCentred ? column.left() + (column.width() - width) / 2 : column.left();
    page.texts.push_back({QRectF(x, y, width, height), line, font});
    y += height;
  }
  return y - column.top();
}

} // namespace hooptab
