// The page of the shots: both teams' courts side by side, of everybody or of one player of each, shot by shot
// or by zone with points per shot against an average: the opponent's or the whole team's in this game, the
// team's own or everybody's in the season that is open.
#pragma once

#include "review/SeasonAverage.h"
#include "review/ShownGame.h"

#include <QWidget>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

class QComboBox;
class QLabel;
class QToolButton;

namespace hooptab {

class Settings;
class SignLegend;
class TeamCourt;

class ShotsPage : public QWidget {
  Q_OBJECT

 public:
  ShotsPage(const Settings& settings, const Texts& texts, QWidget* parent = nullptr);

  void setSeasonShots(SeasonShots shots) { m_seasonShots = std::move(shots); }
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
  // What is chosen; nothing where there is no season to take it from.
  [[nodiscard]] std::optional<ShotSums> averageFor(Side team) const;

  const Settings& m_settings;
  const Texts& m_texts;
  SeasonShots m_seasonShots;
  std::shared_ptr<const CountedGame> m_game;
  QToolButton* m_byShot;
  QToolButton* m_byZone;
  QComboBox* m_average;
  QLabel* m_against = nullptr; // its caption
  QLabel* m_noSeason;          // says how to get one
  SignLegend* m_legend;
  PerSide<QComboBox*> m_players = {};
  PerSide<TeamCourt*> m_courts = {};
};

} // namespace hooptab
