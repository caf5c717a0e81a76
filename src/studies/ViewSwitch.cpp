#include "studies/ViewSwitch.h"

#include "appearance/relabel.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QToolButton>

namespace hooptab {

ViewSwitch::ViewSwitch(QWidget* parent) : QWidget(parent), m_buttons(new QButtonGroup(this)) {
  constexpr std::pair<const char*, Text> kButtons[] = {{"cmdTOTALS", Text::Totals},
                                                       {"cmdPERGAME", Text::PerGame},
                                                       {"cmdPERMINUTE", Text::PerMinute},
                                                       {"cmdPERFORTY", Text::PerForty}};
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(2);
  int id = 0;
  for (const auto& [name, text] : kButtons) {
    auto* button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setCheckable(true);
    button->setChecked(id == 0);
    setTextNumber(*button, text);
    m_buttons->addButton(button, id++);
    layout->addWidget(button);
  }
  // Of these switches the one that is on must be seen at a glance, in the dark look too.
  setStyleSheet(QStringLiteral(
      "QToolButton { border: 1px solid palette(mid); border-radius: 4px; padding: 3px 8px; }"
      "QToolButton:checked { background: palette(highlight); color: palette(highlighted-text); }"));
  connect(m_buttons, &QButtonGroup::idToggled, this, [this](int button, bool isOn) {
    if (isOn)
      emit viewChosen(static_cast<SeasonView>(button));
  });
}

SeasonView ViewSwitch::view() const {
  return static_cast<SeasonView>(m_buttons->checkedId());
}

} // namespace hooptab
