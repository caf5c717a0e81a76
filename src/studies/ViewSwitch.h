// Four buttons of which one is on: totals, per game, per minute, per 40 minutes.
#pragma once

#include "season/SeasonColumns.h"

#include <QWidget>

class QButtonGroup;

namespace hooptab {

class ViewSwitch : public QWidget {
  Q_OBJECT

 public:
  explicit ViewSwitch(QWidget* parent = nullptr);
  SeasonView view() const;

 signals:
  void viewChosen(SeasonView view);

 private:
  QButtonGroup* m_buttons;
};

} // namespace hooptab
