// The chosen player or line: records, the games one by one, a statistic as a picture, and a player's season
// shot chart.
#pragma once

#include "season/Season.h"
#include "season/SeasonTableView.h"
#include "settings/Settings.h"

#include <memory>

class QComboBox;
class QLabel;

namespace hooptab {

class SeriesView;
class ZoneChart;

class PersonPanel : public QWidget {
  Q_OBJECT

 public:
  PersonPanel(const Settings& settings, const Texts& texts, QWidget* parent = nullptr);

  void showPerson(std::shared_ptr<const SeasonPerson> person); // null: nobody is chosen
  const std::shared_ptr<const SeasonPerson>& person() const { return m_person; }
  void relabelPanel();
  void applyColours();
  SeasonTableView& records() const { return *m_records; }
  SeasonTableView& results() const { return *m_results; }

 signals:
  void gameAsked(std::size_t game); // its place in the catalogue

 private:
  QWidget* makeRecords();
  QWidget* makePictures();
  void showStatistics();
  void showTexts();
  void showPicture();
  void showShots();

  const Settings& m_settings;
  const Texts& m_texts;
  std::shared_ptr<const SeasonPerson> m_person;
  QLabel* m_number;
  QLabel* m_name;
  QLabel* m_games;
  QLabel* m_recordTitle;
  SeasonTableView* m_records;
  SeasonTableView* m_results;
  QComboBox* m_statistic;
  SeriesView* m_picture;
  ZoneChart* m_shots;
};

} // namespace hooptab
