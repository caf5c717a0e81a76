// The head of a player's or a line's page: number on the team's colour, name, and a few figures per game with
// the place that they have among all players.
#pragma once

#include "season/Season.h"
#include "settings/Settings.h"

#include <QWidget>

#include <array>

class QLabel;

namespace hooptab {

class PersonHead : public QWidget {
  Q_OBJECT

 public:
  PersonHead(const Settings& settings, const Texts& texts, QWidget* parent = nullptr);

  void showPerson(const SeasonPerson* person); // null: nobody is chosen
  QString who() const;                         // "4 Ann Able"

 private:
  static constexpr std::size_t kTiles = 6;
  struct Tile {
    QLabel* caption = nullptr;
    QLabel* value = nullptr;
    QLabel* place = nullptr;
  };
  void showTiles(const SeasonPerson* person);
  void showTile(std::size_t tile, const QString& caption, const QString& value, const QString& place = {});

  const Settings& m_settings;
  const Texts& m_texts;
  QLabel* m_number;
  QLabel* m_name;
  QLabel* m_games;
  std::array<Tile, kTiles> m_tiles;
};

} // namespace hooptab
