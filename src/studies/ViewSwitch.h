// Four buttons of which one is on: totals, per game, per minute, per 40 minutes.
#pragma once

#include "season/SeasonColumns.h"
#include "studies/ChoiceSwitch.h"

namespace hooptab {

class ViewSwitch : public ChoiceSwitch {
  Q_OBJECT

 public:
  explicit ViewSwitch(QWidget* parent = nullptr);
  SeasonView view() const { return static_cast<SeasonView>(choice()); }

 signals:
  void viewChosen(SeasonView view);
};

} // namespace hooptab
