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
  // A sign that French puts behind a blank does not begin a line.
  QString unbroken = text;
  for (const char16_t sign : {u':', u';', u'?', u'!', u'%', u'»'})
    unbroken.replace(QString(u' ') + QChar(sign), QString(QChar::Nbsp) + QChar(sign));
  for (const QString& paragraph : unbroken.split(u'\n')) {
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

QString PageFonts::elided(PageFont which, const QString& text, double width) const {
  return at(which).metrics.elidedText(text, Qt::ElideRight, width);
}

} // namespace hooptab
