#include "printing/ReportPage.h"

#include <QTextLayout>
#include <QTextOption>

namespace hooptab {

namespace {

constexpr struct {
  int size; // in units
  bool isBold;
} kFonts[] = {{170, true}, {105, true}, {88, false},
              {88, true},  {70, false}, {70, true}}; // in the order of PageFont

constexpr qsizetype kLongestCached = 8;

QFont pageFont(int size, bool isBold) {
  QFont font;
  font.setFamilies(
      {QStringLiteral("DejaVu Sans"), QStringLiteral("Noto Sans"), QStringLiteral("Liberation Sans")});
  font.setPixelSize(size);
  font.setBold(isBold);
  font.setHintingPreference(QFont::PreferNoHinting); // else widths would depend on the device
  return font;
}

// A sign that French puts behind a blank does not begin a line.
QString unbroken(QString text) {
  for (const char16_t sign : {u':', u';', u'?', u'!', u'%', u'»'})
    text.replace(QString(u' ') + QChar(sign), QString(QChar::Nbsp) + QChar(sign));
  return text;
}

// What stands between two blanks, of as many fonts as it has, with the blank behind it.
std::vector<PageFonts::Pieces> wordsOf(const PageFonts::Pieces& text) {
  std::vector<PageFonts::Pieces> words(1);
  for (const PageFonts::Piece& piece : text) {
    const QString shown = unbroken(piece.text);
    for (qsizetype from = 0; from < shown.size();) {
      const qsizetype blank = shown.indexOf(u' ', from);
      const qsizetype end = blank < 0 ? shown.size() : blank + 1;
      words.back().push_back({shown.mid(from, end - from), piece.font});
      if (blank >= 0)
        words.emplace_back();
      from = end;
    }
  }
  return words;
}

} // namespace

PageFonts::PageFonts() {
  for (const auto& [size, isBold] : kFonts) {
    const QFont font = pageFont(size, isBold);
    m_entries.push_back({font, QFontMetricsF(font)});
  }
}

double PageFonts::width(PageFont which, const QString& text) const {
  const Entry& entry = at(which);
  if (text.size() > kLongestCached)
    return entry.metrics.horizontalAdvance(text);
  const auto known = entry.widths.constFind(text);
  if (known != entry.widths.constEnd())
    return *known;
  return *entry.widths.insert(text, entry.metrics.horizontalAdvance(text));
}

QStringList PageFonts::wrapped(PageFont which, const QString& text, double width) const {
  QStringList lines;
  for (const QString& paragraph : unbroken(text).split(u'\n')) {
    if (this->width(which, paragraph) <= width) {
      lines << paragraph;
      continue;
    }
    QTextLayout layout(paragraph, font(which));
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
      line.setLineWidth(width);
      lines << paragraph.mid(line.textStart(), line.textLength()).trimmed();
    }
    layout.endLayout();
  }
  return lines;
}

std::vector<PageFonts::Pieces> PageFonts::wrapped(const Pieces& text, double width) const {
  std::vector<Pieces> lines(1);
  double taken = 0;
  for (const Pieces& word : wordsOf(text)) {
    double whole = 0;
    for (const Piece& piece : word)
      whole += this->width(piece.font, piece.text);
    const double shown = word.empty() ? 0
                                      : whole - this->width(word.back().font, word.back().text) +
                                            this->width(word.back().font, word.back().text.trimmed());
    if (taken > 0 && taken + shown > width) {
      lines.emplace_back();
      taken = 0;
    }
    taken += whole;
    lines.back().insert(lines.back().end(), word.begin(), word.end());
  }
  return lines;
}

QString PageFonts::elided(PageFont which, const QString& text, double width) const {
  return at(which).metrics.elidedText(text, Qt::ElideRight, width);
}

} // namespace hooptab
