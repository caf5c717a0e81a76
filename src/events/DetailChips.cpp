#include "events/DetailChips.h"

#include "appearance/PlainText.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"

#include <QGridLayout>
#include <QPushButton>

namespace hooptab {

namespace {

constexpr int kGap = 3;

} // namespace

DetailChips::DetailChips(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("DetailChips"));
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(kGap);
}

void DetailChips::offer(const std::vector<DetailChip>& chips, int columns, int width) {
  setVisible(!chips.empty());
  if (chips != m_chips) {
    qDeleteAll(m_buttons);
    m_buttons.clear();
    m_chips = chips;
    auto* grid = static_cast<QGridLayout*>(layout());
    for (std::size_t place = 0; place < m_chips.size(); ++place) {
      auto* button = new QPushButton(this);
      button->setObjectName(QStringLiteral("cmdKIND(%1)").arg(toQt(m_chips[place].value)));
      button->setCheckable(true);
      button->setFocusPolicy(Qt::NoFocus);
      button->setToolTip(m_chips[place].words);
      button->setAccessibleName(m_chips[place].words);
      connect(button, &QPushButton::pressed, this, [this, button, place] {
        button->setDown(false); // what it asks for may close what it stands on
        press(place);
      });
      grid->addWidget(button, static_cast<int>(place) / columns, static_cast<int>(place) % columns);
      m_buttons.push_back(button);
    }
  }
  const int each = (width - (columns - 1) * kGap) / columns;
  for (std::size_t place = 0; place < m_buttons.size(); ++place) {
    QPushButton& button = *m_buttons[place];
    Theme::setType(button, Type::Small);
    button.setFixedSize(each, Theme::measure()(27, 34));
    button.setText(withoutMnemonic(
        button.fontMetrics().elidedText(m_chips[place].caption, Qt::ElideRight, each - Theme::measure()(8))));
    button.setChecked(false);
  }
}

void DetailChips::choose(std::string_view key, std::string_view value) {
  for (std::size_t place = 0; place < m_chips.size(); ++place) {
    if (m_chips[place].key == key)
      m_buttons[place]->setChecked(m_chips[place].value == value);
  }
}

void DetailChips::press(std::size_t chip) {
  const DetailChip chosenChip = m_chips[chip];
  const bool wasChosen = m_buttons[chip]->isChecked();
  const std::string value = wasChosen ? std::string() : chosenChip.value;
  choose(chosenChip.key, value);
  emit chosen(chosenChip.key, value);
}

} // namespace hooptab
