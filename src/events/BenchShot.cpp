#include "events/BenchShot.h"

#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "events/MiniCourt.h"
#include "events/PassingMenu.h"
#include "events/StatButton.h"
#include "events/StatControls.h"
#include "settings/Settings.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QScreen>

namespace hooptab {

namespace {

constexpr int kGap = 4;

} // namespace

BenchShot::BenchShot(const Settings& settings, const Texts& texts, QWidget* parent)
    : QFrame(parent, Qt::Popup), m_settings(settings), m_player(new PlainLabel(this)),
      m_court(new MiniCourt(settings, this)) {
  setObjectName(QStringLiteral("picBENCHSHOT"));
  setFrameShape(QFrame::Box);
  m_court->setObjectName(QStringLiteral("CourtB"));
  setToolTipNumber(*m_court, Text::CourtTip);
  setAccessibleNumber(*m_court, Text::CourtTip);
  connect(m_court, &MiniCourt::pressed, this, [this](const QPointF& place, bool isMade) {
    hide();
    emit courtPressed(place, isMade);
  });
  auto* buttons = new QVBoxLayout;
  buttons->setSpacing(kGap);
  for (const ShotControls& controls : kShotControls) {
    if (controls.button == nullptr)
      continue;
    auto* const button =
        new StatButton(StatButton::Records::Shot, toQt(kindOf(controls.code)->shortName), {QString()}, this);
    button->setObjectName(QLatin1String(controls.button));
    setToolTipNumber(*button, controls.toolTip);
    setAccessibleNumber(*button, kindOf(controls.code)->wordsText);
    connect(button, &StatButton::recorded, this, [this, code = controls.code](bool isMade) {
      hide();
      emit shotPressed(code, isMade);
    });
    buttons->addWidget(button);
  }
  buttons->addStretch();
  auto* row = new QHBoxLayout;
  row->setSpacing(kGap);
  row->addWidget(m_court);
  row->addLayout(buttons);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kGap, kGap, kGap, kGap);
  layout->addWidget(m_player);
  layout->addLayout(row);
  relabel(*this, texts);
  applyColours();
}

void BenchShot::ask(const QString& player, bool playsRight, const QPoint& place) {
  m_player->setText(m_player->fontMetrics().elidedText(player, Qt::ElideRight,
                                                       m_court->width() + Theme::measure()(44, 55)));
  m_court->setPlaysRight(playsRight);
  adjustSize();
  const QRect room = screen()->availableGeometry();
  const int left = std::clamp(place.x(), room.left(), std::max(room.right() - width(), room.left()));
  const int top = place.y() + height() <= room.bottom() ? place.y() : place.y() - height();
  move(left, std::max(top, room.top()));
  show();
}

void BenchShot::applyColours() {
  const Measure& measure = Theme::measure();
  m_court->applyColours();
  m_court->setFixedSize(measure(126, 158), measure(200, 250));
  for (StatButton* button : findChildren<StatButton*>()) {
    button->setColour(colourOf(m_settings.buttonColour));
    button->setFixedSize(measure(44, 55), measure(36, 45));
  }
}

void BenchShot::keyPressEvent(QKeyEvent* event) {
  hide();
  if (event->key() != Qt::Key_Escape)
    handOn(*event, *parentWidget());
}

} // namespace hooptab
