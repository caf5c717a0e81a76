#include "live/frmOVERTIME.h"

#include "appearance/Fields.h"
#include "appearance/Mnemonics.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "game/GameDetails.h"
#include "recording/GameClock.h"
#include "storage/Module1.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QPushButton>
#include <QSpinBox>

namespace hooptab {

namespace {

constexpr int kSecondsPerMinute = 60;
constexpr int kMargin = 16;
constexpr int kGap = 10;

} // namespace

frmOVERTIME::frmOVERTIME(const GameDetails& details, const Texts& texts, QWidget* parent)
    : QDialog(parent), m_minutes(new QSpinBox(this)), m_keepsFouls(new QCheckBox(this)) {
  setObjectName(QStringLiteral("frmOVERTIME"));
  setTextNumber(*this, Text::OvertimeTitle);
  setModal(true);
  m_minutes->setObjectName(QStringLiteral("UpDown1"));
  m_minutes->setRange(1, kMostMinutes);
  m_keepsFouls->setObjectName(QStringLiteral("Check1"));
  m_keepsFouls->setChecked(details.keepsBonus); // as in the overtime before
  setTextNumber(*m_keepsFouls, Text::KeepFouls);
  setToolTipNumber(*m_keepsFouls, Text::KeepFouls);
  auto* clock = new PlainLabel(this);
  clock->setObjectName(QStringLiteral("lblTEMPS"));
  Theme::setType(*clock, Type::Score);
  clock->setAlignment(Qt::AlignCenter);
  auto* accept = new QPushButton(this);
  accept->setObjectName(QStringLiteral("cmdOK"));
  accept->setDefault(true);
  setTextNumber(*accept, Text::Accept);
  setToolTipNumber(*accept, Text::Accept);

  auto* layout = new QGridLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->setSpacing(kGap);
  layout->addWidget(captionFor(*m_minutes, Text::MinutesOfOvertime), 0, 0);
  layout->addWidget(m_minutes, 0, 1);
  layout->addWidget(clock, 1, 0, 1, 2);
  layout->addWidget(m_keepsFouls, 2, 0, 1, 2);
  layout->addWidget(accept, 3, 1);
  layout->setColumnStretch(0, 1);
  layout->setSizeConstraint(QLayout::SetFixedSize);

  const auto showClock = [clock](int minutes) {
    clock->setText(toQt(Module1::clockText(minutes * kSecondsPerMinute)));
  };
  m_minutes->setValue(details.minutesPerPeriod);
  showClock(m_minutes->value());
  connect(m_minutes, &QSpinBox::valueChanged, clock, showClock);
  connect(accept, &QPushButton::clicked, this, &QDialog::accept);
  relabel(*this, texts);
  giveMnemonics(*this);
  m_minutes->setFocus();
  m_minutes->selectAll();
}

int frmOVERTIME::minutes() const {
  return m_minutes->value();
}

bool frmOVERTIME::keepsFouls() const {
  return m_keepsFouls->isChecked();
}

} // namespace hooptab
