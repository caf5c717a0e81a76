// One page of a report, laid out: what stands where, in units of PageFormat. Whoever paints it decides
// nothing any more.
#pragma once

#include "report/Report.h"

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QRectF>
#include <QString>
#include <QStringList>

#include <array>
#include <vector>

namespace hooptab {

enum class PageFont { Title, Heading, Body, BoldBody, Cell, BoldCell };

// The fonts of a page, their sizes in units, and the widths of texts in them.
class PageFonts {
 public:
  PageFonts();

  const QFont& font(PageFont which) const { return at(which).font; }
  double ascent(PageFont which) const { return at(which).metrics.ascent(); }
  double lineHeight(PageFont which) const { return at(which).metrics.height(); }
  double width(PageFont which, const QString& text) const;
  // The text in lines of at most that width; words that are longer are broken.
  QStringList wrapped(PageFont which, const QString& text, double width) const;
  // The same of a text of several fonts.
  struct Piece {
    QString text;
    PageFont font;
  };
  using Pieces = std::vector<Piece>;
  std::vector<Pieces> wrapped(const Pieces& text, double width) const;
  // Cut, with an ellipsis, where it is longer.
  QString elided(PageFont which, const QString& text, double width) const;

 private:
  struct Entry {
    QFont font;
    QFontMetricsF metrics;
    mutable QHash<QString, double> widths = {}; // numbers come again and again
  };
  const Entry& at(PageFont which) const { return m_entries[static_cast<std::size_t>(which)]; }

  std::vector<Entry> m_entries;
};

struct PageText {
  QRectF box; // as wide as the text
  QString text;
  PageFont font = PageFont::Cell;
  bool isPale = false;
};
struct PageTag { // a team's abbreviation on its colour
  QRectF box;
  QString text;
  QColor colour;
};
struct PageFill {
  QRectF box;
  double grey = 1;    // 0 black, 1 white
  QColor colour = {}; // valid: in place of the grey
};
struct PageFrame { // with round corners, around what stands in it
  QRectF box;
};
struct PageLine {
  QPointF from, to;
  double width = 5;
};
struct PagePicture {
  QRectF box;
  const ReportPicture* picture = nullptr;
};

struct ReportPage {
  std::vector<PageFill> fills;
  std::vector<PageFrame> frames;
  std::vector<PageLine> lines;
  std::vector<PageText> texts;
  std::vector<PageTag> tags;
  std::vector<PagePicture> pictures;
  const FormSheet* form = nullptr; // fills the page: no head, no foot

  [[nodiscard]] bool isEmpty() const { return texts.empty() && pictures.empty() && form == nullptr; }
};

} // namespace hooptab
