#include "live/SideSwitch.h"

#include "appearance/Icons.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "recording/LiveGame.h"

#include <QAction>
#include <QBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>

namespace hooptab {

namespace {

constexpr int kGap = 4;

} // namespace

// Both halves, each in the colour of the team that stands there.
class SideSwitch::Court : public QWidget {
 public:
  using QWidget::QWidget;

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

SideSwitch::SideSwitch(const Texts& texts, QWidget* parent)
    : QWidget(parent), m_texts(texts), m_court(new Court(this)), m_button(new QToolButton(this)),
      m_name(new PlainLabel(this)), m_rowsStay(new QAction(this)) {
  m_court->setObjectName(QStringLiteral("picSWITCH"));
  m_button->setObjectName(QStringLiteral("cmdSWITCH"));
  m_name->setObjectName(QStringLiteral("lblSWITCH"));
  m_name->hide(); // rosters and plates say it with their arrows; here it is for whoever asks
  m_button->setIcon(icon(QStringLiteral("switch")));
  m_button->setFocusPolicy(Qt::TabFocus);
  m_button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
  connect(m_button, &QToolButton::clicked, this, &SideSwitch::asked);
  m_rowsStay->setObjectName(QStringLiteral("cmdROWSSTAY"));
  m_rowsStay->setCheckable(true);
  setTextNumber(*m_rowsStay, Text::RowsStay);
  addAction(m_rowsStay);
  setContextMenuPolicy(Qt::ActionsContextMenu);
  connect(m_rowsStay, &QAction::triggered, this, &SideSwitch::rowsStayAsked);

  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  layout->addWidget(m_court);
  layout->addWidget(m_button);
  applyColours();
}

void SideSwitch::applyColours() {
  const Measure& measure = Theme::measure();
  m_court->setFixedSize(measure(24, 30), measure(16, 20));
  m_button->setFixedWidth(measure(28, 36));
  m_button->setIconSize({measure(18, 22), measure(18, 22)});
}

void SideSwitch::begin() {
  m_game = nullptr;
  m_team0PlaysRight = false;
  m_isHalfTimeOver = false;
}

void SideSwitch::setSides(bool team0PlaysRight, bool rowsStay) {
  m_isHalfTimeOver = m_isHalfTimeOver || team0PlaysRight != m_team0PlaysRight;
  m_team0PlaysRight = team0PlaysRight;
  m_rowsStay->setChecked(rowsStay);
  if (m_game != nullptr)
    showGame(*m_game);
}

void SideSwitch::showGame(const LiveGame& game) {
  m_game = &game;
  m_isHalfTimeOver = m_isHalfTimeOver && game.isHalfTime();
  const bool isOffered = game.isHalfTime() && !m_isHalfTimeOver;
  const Side left = m_team0PlaysRight ? Side::Home : Side::Visitor;
  const GameDetails& details = game.game().details;
  m_court->showColours({colourOf(details.teamColour[left]), colourOf(details.teamColour[otherSide(left)])});
  m_name->setText(QStringLiteral("◂") + toQt(details.abbreviation[left]));
  const QString hint = caption(m_texts, isOffered ? Text::HalfTime : Text::SwitchSides) + u'\n' +
                       toQt(m_texts.withPlaceholder(Text::PlaysLeft, details.abbreviation[left]));
  for (QWidget* part :
       {static_cast<QWidget*>(m_court), static_cast<QWidget*>(m_name), static_cast<QWidget*>(m_button)}) {
    part->setToolTip(hint);
    part->setAccessibleName(hint);
  }
  QPalette colours;
  if (isOffered)
    colours.setColor(QPalette::Button, Theme::look().warningGround);
  m_button->setPalette(colours);
}

// The court and the name take no presses of their own.
void SideSwitch::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton)
    emit asked();
}

} // namespace hooptab
