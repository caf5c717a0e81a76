// The window for what a league's sheet says of a game beside its events. Only asks: what of it is new is told
// by GameSheet, and written by the caller.
#pragma once

#include "game/Side.h"
#include "settings/Texts.h"
#include "setup/GameSheet.h"

#include <QDialog>

#include <cstdint>
#include <string>
#include <vector>

class QComboBox;
class QGridLayout;
class QLineEdit;

namespace hooptab {

class frmSHEET : public QDialog {
  Q_OBJECT
 public:
  struct Team {
    std::string name;
    std::vector<RosterPlayer> players; // among whom the captain is
  };
  // Rules and level are asked for of a game that is there already; a new one has them in its own window.
  enum class Asks : std::uint8_t { WithRules, WithoutRules };

  // Texts must outlive it.
  frmSHEET(const GameSheet& sheet, const PerSide<Team>& teams, Asks asks, const Texts& texts,
           QWidget* parent = nullptr);

  [[nodiscard]] const GameSheet& sheet() const { return m_sheet; } // as it stands in the fields

 private:
  void addRow(Text text, QWidget& field, Text toolTip);
  void addWideRow(Text text, QWidget& field);
  void addTeams(const PerSide<Team>& teams);
  void addRules();
  void addAnswers();
  [[nodiscard]] QLineEdit* makeField(const QString& name, std::string& target);
  [[nodiscard]] QComboBox* makeChoice(const QString& name);
  [[nodiscard]] QComboBox* makeCaptain(Side side, const std::vector<RosterPlayer>& players);

  const Texts& m_texts;
  GameSheet m_sheet;
  std::vector<std::pair<QWidget*, QString>> m_namesOfTeams;
  QGridLayout* m_layout;
};

} // namespace hooptab
