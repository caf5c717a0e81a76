#include "printing/FormPainter.h"

#include "appearance/relabel.h"
#include "printing/PageFormat.h"

namespace hooptab {

namespace {

constexpr double kCellLine = 2.5;
constexpr double kBlockLine = 5;
constexpr double kTitlePart = 0.75;             // of its room, where the name of a team is long
constexpr double kBlanksGap = 8;                // millimetres behind the title
constexpr QColor kCellColour(0x80, 0x80, 0x80); // lighter than any pen, so that a reader tells line from tick

class FormPicture {
 public:
  FormPicture(QPainter& painter, const FormSheet& sheet, const PageFonts& fonts)
      : m_painter(painter), m_sheet(sheet), m_fonts(fonts) {}

  void paint() {
    paintMarks();
    paintHead();
    for (int player = 0; player < FormLayout::kPlayers; ++player)
      paintPlayer(player);
    for (const FormCell& cell : m_layout.cells())
      paintCell(cell);
    for (const FormLabel& label : m_layout.labels())
      paintLabel(label);
  }

 private:
  static QRectF units(const FormRect& rect) {
    return {rect.x * kUnitsPerMillimetre, rect.y * kUnitsPerMillimetre, rect.width * kUnitsPerMillimetre,
            rect.height * kUnitsPerMillimetre};
  }
  void fill(const FormRect& rect, const QColor& colour = Qt::black) {
    m_painter.fillRect(units(rect), colour);
  }
  void text(const FormRect& rect, PageFont font, const QString& words, Qt::Alignment alignment) {
    m_painter.setFont(m_fonts.font(font));
    m_painter.setPen(Qt::black);
    const QRectF box = units(rect);
    const QStringList lines = m_fonts.wrapped(font, words, box.width());
    const double line = m_fonts.lineHeight(font);
    double y = box.top();
    if (alignment & Qt::AlignVCenter)
      y += (box.height() - line * static_cast<double>(lines.size())) / 2;
    for (const QString& each : lines) {
      const double spare = box.width() - m_fonts.width(font, each);
      const double x = box.left() + (alignment & Qt::AlignHCenter ? spare / 2
                                     : alignment & Qt::AlignRight ? spare
                                                                  : 0);
      m_painter.drawText(QPointF(x, y + m_fonts.ascent(font)), each);
      y += line;
    }
  }

  void paintMarks() {
    for (const FormRect& mark : m_layout.marks())
      fill(mark);
    fill(m_layout.markHole(), Qt::white);
    const auto bits = m_sheet.identifier.bits();
    for (std::size_t bit = 0; bit < bits.size(); ++bit) {
      const FormRect& square = m_layout.identifier()[bit];
      if (bits[bit])
        fill(square);
      m_painter.setPen(QPen(Qt::black, kCellLine));
      m_painter.setBrush(Qt::NoBrush);
      m_painter.drawRect(units(square));
    }
  }
  void paintHead() {
    // A long name is cut: the lines for the pen, and the hint below, need their room.
    const FormRect title = m_layout.title();
    const QString words =
        m_fonts.elided(PageFont::Heading, toQt(m_sheet.title), units(title).width() * kTitlePart);
    text(title, PageFont::Heading, words, Qt::AlignLeft | Qt::AlignVCenter);
    FormRect blanks = title;
    blanks.x += m_fonts.width(PageFont::Heading, words) / kUnitsPerMillimetre + kBlanksGap;
    blanks.width = m_layout.sheetText().right() - blanks.x;
    text(blanks, PageFont::Body, toQt(m_sheet.blanks), Qt::AlignLeft | Qt::AlignVCenter);
    text(m_layout.sheetText(), PageFont::Body, toQt(m_sheet.sheet), Qt::AlignRight | Qt::AlignVCenter);
    text(m_layout.hint(), PageFont::Cell, toQt(m_sheet.hint), Qt::AlignLeft | Qt::AlignVCenter);
  }
  void paintPlayer(int player) {
    m_painter.setPen(QPen(Qt::black, kBlockLine));
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawRect(units(m_layout.block(player)));
    const std::string& name = m_sheet.names[static_cast<std::size_t>(player)];
    const FormRect place = m_layout.name(player);
    if (!name.empty())
      return text(place, PageFont::Body, toQt(name), Qt::AlignLeft);
    const QRectF box = units(place); // a line to write on
    m_painter.setPen(QPen(Qt::black, kCellLine));
    m_painter.drawLine(QPointF(box.left(), box.center().y()), QPointF(box.right(), box.center().y()));
  }
  void paintCell(const FormCell& cell) {
    if (FormLayout::isDigitOf(cell, m_sheet.jerseys[static_cast<std::size_t>(cell.player)]))
      return fill(cell.rect);
    m_painter.setPen(QPen(kCellColour, kCellLine));
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawRect(units(cell.rect));
  }
  void paintLabel(const FormLabel& label) {
    switch (label.kind) {
    case FormLabel::Kind::Digit:
      return text(label.rect, PageFont::Cell, QString::number(label.number), Qt::AlignCenter);
    case FormLabel::Kind::Place: {
      constexpr const char* kPlaces[] = {"100", "10", "1"};
      return text(label.rect, PageFont::Cell, QLatin1String(kPlaces[label.number]),
                  Qt::AlignLeft | Qt::AlignVCenter);
    }
    case FormLabel::Kind::Made:
      return text(label.rect, PageFont::BoldCell, toQt(m_sheet.made), Qt::AlignCenter);
    case FormLabel::Kind::Missed:
      return text(label.rect, PageFont::BoldCell, toQt(m_sheet.missed), Qt::AlignCenter);
    case FormLabel::Kind::Counter: break;
    }
    QString name = toQt(counterName(label.counter));
    for (const EventKind& kind : eventKinds()) {
      if (kind.counter == label.counter)
        name = toQt(kind.shortName);
    }
    text(label.rect, PageFont::BoldCell, name, Qt::AlignRight | Qt::AlignVCenter);
  }

  QPainter& m_painter;
  const FormSheet& m_sheet;
  const PageFonts& m_fonts;
  const FormLayout m_layout;
};

} // namespace

void paintForm(QPainter& painter, const FormSheet& sheet, QSizeF page, const PageFonts& fonts) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, false); // cells and marks keep sharp edges
  painter.translate((page.width() - FormLayout::kWidth * kUnitsPerMillimetre) / 2,
                    (page.height() - FormLayout::kHeight * kUnitsPerMillimetre) / 2);
  FormPicture(painter, sheet, fonts).paint();
  painter.restore();
}

} // namespace hooptab
