#include "live/SideSwitch.h"

#include "appearance/Icons.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"

#include <QBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>

namespace hooptab {

namespace {

constexpr int kWidth = 32;
constexpr int kCourtHeight = 18;
constexpr int kButtonHeight = 20;
constexpr int kNamePoints = 7;

} // namespace

// Both halves, each in the colour of the team that stands there.
class SideSwitch::Court : public QWidget {
 public:
  explicit Court(QWidget* parent) : QWidget(parent) { setFixedSize(kWidth, kCourtHeight); }

  void showColours(const std::array<QColor, 2>& colours) {
    if (colours == m_colours)
      return;
    m_colours = colours;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF whole = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
    const QPointF middle = whole.center();
    painter.fillRect(QRectF(whole.topLeft(), QPointF(middle.x(), whole.bottom())), m_colours[0]);
    painter.fillRect(QRectF(QPointF(middle.x(), whole.top()), whole.bottomRight()), m_colours[1]);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawRect(whole);
    painter.drawLine(QPointF(middle.x(), whole.top()), QPointF(middle.x(), whole.bottom()));
    painter.drawEllipse(middle, whole.height() / 4, whole.height() / 4);
  }

 private:
  std::array<QColor, 2> m_colours;
};

SideSwitch::SideSwitch(QToolButton* button, QWidget* parent)
    : QWidget(parent), m_court(new Court(this)), m_button(button), m_name(new PlainLabel(this)) {
  m_court->setObjectName(QStringLiteral("picSWITCH"));
  m_name->setObjectName(QStringLiteral("lblSWITCH"));
  QFont small = font();
  small.setPointSize(kNamePoints);
  m_name->setFont(small);
  m_name->setFixedWidth(kWidth);
  m_button->setIcon(icon(QStringLiteral("switch")));
  m_button->setText(QStringLiteral("⇄"));
  m_button->setFixedSize(kWidth, kButtonHeight);
  connect(m_button, &QToolButton::clicked, this, &SideSwitch::asked);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(m_court);
  layout->addWidget(m_name, 1);
  layout->addWidget(m_button);
}

void SideSwitch::showSides(const QString& left, const std::array<QColor, 2>& colours, const QString& hint) {
  m_court->showColours(colours);
  QString name = QStringLiteral("◂") + left;
  while (name.size() > 2 && m_name->fontMetrics().horizontalAdvance(name) > kWidth)
    name.chop(1); // the first letters tell the team better than one and dots
  m_name->setText(name);
  for (QWidget* part :
       {static_cast<QWidget*>(m_court), static_cast<QWidget*>(m_name), static_cast<QWidget*>(m_button)}) {
    part->setToolTip(hint);
    part->setAccessibleName(hint);
  }
}

// On that colour the icon, which is drawn for the window's own, would not be seen.
void SideSwitch::setOffered(bool isOffered) {
  QPalette colours;
  if (isOffered) {
    colours.setColor(QPalette::Button, Theme::accent());
    colours.setColor(QPalette::ButtonText, textOn(Theme::accent()));
  }
  m_button->setPalette(colours);
  m_button->setToolButtonStyle(isOffered ? Qt::ToolButtonTextOnly : Qt::ToolButtonIconOnly);
}

// The court and the name take no presses of their own.
void SideSwitch::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton)
    emit asked();
}

} // namespace hooptab
