// Asks how long an overtime lasts and whether the team fouls of the last period go on counting. Begins
// nothing itself; Esc leaves the game as it is.
#pragma once

#include <QDialog>

class QCheckBox;
class QSpinBox;

namespace hooptab {

struct GameDetails;
class Texts;

class frmOVERTIME : public QDialog {
  Q_OBJECT
 public:
  frmOVERTIME(const GameDetails& details, const Texts& texts, QWidget* parent = nullptr);

  int minutes() const;
  bool keepsFouls() const;

 private:
  QSpinBox* m_minutes;
  QCheckBox* m_keepsFouls;
};

} // namespace hooptab
