// The head of the team editor: abbreviation and full name on the team's colour.
#pragma once

#include "appearance/ColourBand.h"

class QBoxLayout;

namespace hooptab {

class ElidedLabel;

class TeamBand : public ColourBand {
  Q_OBJECT
 public:
  explicit TeamBand(QWidget* parent = nullptr);

  void showTeam(const QString& abbreviation, const QString& name);
  void applyMeasure();
  void addButton(QWidget& button); // at the right

 private:
  ElidedLabel* m_abbreviation;
  ElidedLabel* m_name;
  QBoxLayout* m_layout;
};

} // namespace hooptab
