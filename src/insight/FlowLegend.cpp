#include "insight/FlowLegend.h"

#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "insight/FlowPalette.h"
#include "insight/MarginPainter.h"

#include <QPainter>

namespace hooptab {

namespace {

// Words and signs beside each other, each where the one before ends.
class Line {
 public:
  Line(QPainter& painter, const FlowType& type, QRectF box)
      : m_painter(painter), m_type(type), m_box(box), m_at(box.left()) {}

  void words(const QString& text) {
    m_painter.setPen(Theme::look().muted);
    m_painter.setFont(m_type.text);
    m_painter.drawText(QRectF(m_at, m_box.top(), m_box.right() - m_at, m_box.height()),
                       Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
    m_at += m_type.metrics().horizontalAdvance(text) + gap();
  }
  // Of that width; the middle of its place.
  QPointF sign(double width) {
    const QPointF middle(m_at + width / 2, m_box.center().y());
    m_at += width + gap();
    return middle;
  }
  [[nodiscard]] bool hasRoomFor(double signWidth, const QString& text) const {
    return room() >= signWidth + gap() + m_type.metrics().horizontalAdvance(text);
  }
  void skip(double width) { m_at += width; }
  [[nodiscard]] double room() const { return m_box.right() - m_at; }
  [[nodiscard]] double gap() const { return 5 * m_type.pixel; }

 private:
  QPainter& m_painter;
  const FlowType& m_type;
  QRectF m_box;
  double m_at;
};

} // namespace

FlowLegend::FlowLegend(const Texts& texts, QWidget* parent) : QWidget(parent), m_texts(texts) {
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize FlowLegend::sizeHint() const {
  const Measure& m = Theme::measure();
  return {m(600), m(22, 28)};
}

void FlowLegend::showChances(bool areShown) {
  m_showsChances = areShown;
  update();
}

void FlowLegend::paintEvent(QPaintEvent*) {
  const Measure& m = Theme::measure();
  const double pixel = m(10, 12) / 10.0;
  const FlowType type{Theme::font(Type::Small), Theme::font(Type::Small, QFont::Bold), pixel};
  const FlowPalette palette(Theme::look(), {});
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  Line line(painter, type, rect());
  const auto text = [&](Text which) { return toQt(m_texts.text(which)); };
  line.words(text(Text::RotationLegend));
  line.words(QStringLiteral("−%1").arg(kFullPlusMinus));
  for (const int plusMinus : {-10, -6, -3, 0, 3, 6, 10}) {
    const QPointF middle = line.sign(18 * pixel);
    painter.setBrush(palette.stay(plusMinus));
    painter.setPen(palette.look.line);
    painter.drawRoundedRect(QRectF(middle.x() - 9 * pixel, middle.y() - 5 * pixel, 18 * pixel, 10 * pixel), 2,
                            2);
  }
  line.words(QStringLiteral("+%1").arg(kFullPlusMinus));
  line.skip(14 * pixel);
  const auto explain = [&](double width, const QString& words, const auto& paintSign) {
    if (!line.hasRoomFor(width * pixel, words))
      return;
    paintSign(line.sign(width * pixel));
    line.words(words);
  };
  explain(8, text(Text::LegendLeadChange),
          [&](QPointF at) { paintLeadChange(painter, at, palette.look, pixel); });
  explain(12, text(Text::LegendTimeOut),
          [&](QPointF at) { paintTimeOut(painter, at, palette.look.raised, palette.look.desk, type); });
  explain(12, toQt(m_texts.withPlaceholder(Text::LegendRun, std::to_string(MarginFlow::kShownRun))),
          [&](QPointF at) {
            painter.setPen(QPen(palette.look.muted, 2 * pixel, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
            painter.setBrush(Qt::NoBrush);
            const QPointF corners[] = {at + QPointF(-6, 4) * pixel, at + QPointF(-6, -3) * pixel,
                                       at + QPointF(6, -3) * pixel, at + QPointF(6, 4) * pixel};
            painter.drawPolyline(std::data(corners), std::size(corners));
          });
  const QString hint = text(m_showsChances ? Text::WinProbabilityNote : Text::StretchHint);
  if (line.hasRoomFor(0, hint)) {
    line.skip(line.room() - type.metrics().horizontalAdvance(hint));
    line.words(hint);
  }
}

} // namespace hooptab
