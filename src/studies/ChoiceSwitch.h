// Some buttons in a row, of which one is on.
#pragma once

#include "settings/Text.h"

#include <QWidget>

#include <span>

class QButtonGroup;

namespace hooptab {

class ChoiceSwitch : public QWidget {
  Q_OBJECT

 public:
  struct Button {
    const char* name;
    Text text;
  };
  // The first one is on.
  ChoiceSwitch(std::span<const Button> buttons, QWidget* parent);

  int choice() const; // from 0
  void choose(int button);

 signals:
  void chosen(int button);

 private:
  QButtonGroup* m_buttons;
};

} // namespace hooptab
