#include "teams/ColourSwatches.h"

#include "appearance/ArrowFocus.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOption>

namespace hooptab {

namespace {

constexpr int kRing = 3; // around the colour, for what is chosen or has the focus
constexpr double kRadius = 5;

constexpr struct {
  int red, green, blue;
  Text name;
} kColours[] = {
    {0x20, 0x7A, 0x8A, Text::Teal},   {0x1F, 0x91, 0xFF, Text::Blue},  {0x3D, 0x3D, 0x6B, Text::Navy},
    {0x6B, 0x3F, 0xA0, Text::Purple}, {0xD9, 0x26, 0x3D, Text::Red},   {0xE3, 0x57, 0x2B, Text::Orange},
    {0xF2, 0xA2, 0x7C, Text::Salmon}, {0xFF, 0xC0, 0x80, Text::Sand},  {0xF2, 0xD2, 0x4A, Text::Yellow},
    {0x6B, 0x8B, 0x22, Text::Green},  {0x8C, 0x5A, 0x2A, Text::Brown}, {0x0F, 0x16, 0x20, Text::Black},
    {0xFF, 0xFF, 0xFF, Text::White},
};

class Swatch : public QAbstractButton {
 public:
  Swatch(const QColor& colour, QWidget* parent) : QAbstractButton(parent), m_colour(colour) {
    setCheckable(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  }
  const QColor& colour() const { return m_colour; }
  QSize sizeHint() const override {
    const int side = Theme::measure()(24, 30) + 2 * kRing;
    return {side, side};
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    const Look& look = Theme::look();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF whole = QRectF(rect()).adjusted(1, 1, -1, -1);
    QStyleOption option;
    option.initFrom(this);
    const bool hasFocus = option.state.testFlag(QStyle::State_HasFocus) &&
                          option.state.testFlag(QStyle::State_KeyboardFocusChange);
    if (isChecked() || hasFocus) {
      painter.setPen(QPen(hasFocus ? look.accent : look.ink, 2));
      painter.drawRoundedRect(whole, kRadius + 1, kRadius + 1);
    }
    painter.setBrush(isEnabled() ? m_colour : mix(m_colour, look.surface, 0.4));
    painter.setPen(isEnabled() && underMouse() ? look.ink : look.edge);
    painter.drawRoundedRect(whole.adjusted(2.5, 2.5, -2.5, -2.5), kRadius - 1, kRadius - 1);
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
      return click();
    QAbstractButton::keyPressEvent(event);
  }
  void changeEvent(QEvent* event) override {
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::FontChange) // the measure is another
      updateGeometry();
  }

 private:
  QColor m_colour;
};

} // namespace

ColourSwatches::ColourSwatches(QWidget* parent) : QWidget(parent) {
  setAccessibleNumber(*this, Text::ColoursToChoose);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(1);
  for (const auto& [red, green, blue, name] : kColours) {
    auto* swatch = new Swatch(QColor(red, green, blue), this);
    swatch->setObjectName(QStringLiteral("swatch(%1)").arg(m_swatches.size()));
    swatch->setAttribute(Qt::WA_Hover);
    setAccessibleNumber(*swatch, name);
    setToolTipNumber(*swatch, name);
    connect(swatch, &QAbstractButton::clicked, this, [this, swatch] { emit chosen(swatch->colour()); });
    row->addWidget(swatch);
    m_swatches.push_back(swatch);
  }
  new ArrowFocus({m_swatches.begin(), m_swatches.end()}, this);
}

void ColourSwatches::showColour(const QColor& colour) {
  for (QAbstractButton* swatch : m_swatches)
    swatch->setChecked(static_cast<Swatch*>(swatch)->colour() == colour);
}

} // namespace hooptab
