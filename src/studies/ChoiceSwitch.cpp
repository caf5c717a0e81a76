#include "studies/ChoiceSwitch.h"

#include "appearance/relabel.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QToolButton>

namespace hooptab {

ChoiceSwitch::ChoiceSwitch(std::span<const Button> buttons, QWidget* parent)
    : QWidget(parent), m_buttons(new QButtonGroup(this)) {
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(2);
  int id = 0;
  for (const auto& [name, text] : buttons) {
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
      emit chosen(button);
  });
}

int ChoiceSwitch::choice() const {
  return m_buttons->checkedId();
}

void ChoiceSwitch::choose(int button) {
  m_buttons->button(button)->setChecked(true);
}

} // namespace hooptab
