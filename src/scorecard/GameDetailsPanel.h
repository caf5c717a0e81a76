// The details of the game, to be read and copied: type, date, place, rules and notes.
#pragma once

#include "game/GameFile.h"
#include "settings/Texts.h"

#include <QWidget>

class QGridLayout;
class QLineEdit;
class QPlainTextEdit;

namespace hooptab {

class GameDetailsPanel : public QWidget {
  Q_OBJECT

 public:
  explicit GameDetailsPanel(QWidget* parent = nullptr);

  void showDetails(const GameDetails& details, const Texts& texts);

 private:
  QLineEdit* addField(const char* name, Text text, int row, int column);

  QGridLayout* m_layout;
  QLineEdit* m_type;
  QLineEdit* m_date;
  QLineEdit* m_place;
  QLineEdit* m_statistician;
  QLineEdit* m_periods;
  QLineEdit* m_minutes;
  QLineEdit* m_bonus;
  QLineEdit* m_personalFouls;
  QLineEdit* m_technicalFouls;
  QPlainTextEdit* m_notes;
};

} // namespace hooptab
