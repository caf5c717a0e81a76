// The page of the shots: both teams' courts side by side, of everybody or of one player of each, shot by shot
// or by zone with points per shot against the opponent's or the whole team's.
#pragma once

#include "review/ShownGame.h"

#include <QWidget>

#include <memory>
#include <vector>

class QComboBox;
class QToolButton;

namespace hooptab {

class Settings;
class SignLegend;
class TeamCourt;

class ShotsPage : public QWidget {
  Q_OBJECT

 public:
  ShotsPage(const Settings& settings, const Texts& texts, QWidget* parent = nullptr);

  void showGame(std::shared_ptr<const CountedGame> game);
  void applyColours();

 private:
  QToolButton* addSwitch(const char* name, Text text, const char* iconName);
  QWidget* makeHalf(Side team);
  void fillPlayers(Side team);
  void showShots();
  void showZones(Side team);
  void showLegend(bool byZone);
  [[nodiscard]] std::vector<Shot> shotsOf(Side team, bool all) const;

  const Settings& m_settings;
  const Texts& m_texts;
  std::shared_ptr<const CountedGame> m_game;
  QToolButton* m_byShot;
  QToolButton* m_byZone;
  QComboBox* m_average;
  SignLegend* m_legend;
  PerSide<QComboBox*> m_players = {};
  PerSide<TeamCourt*> m_courts = {};
};

} // namespace hooptab
