// The chosen player or line: the games one by one with their averages, a statistic as a picture, where a
// player shot from, the records, and what changes while he sits.
#pragma once

#include "season/Season.h"
#include "season/SeasonTableView.h"
#include "settings/Settings.h"

#include <memory>

class QComboBox;
class QTabWidget;

namespace hooptab {

class HexagonChart;
class PersonHead;
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
  QWidget* makeResults();
  QWidget* makePicture();
  QWidget* makeParts();
  void showTables();
  void showHigh();
  void showStatistics();
  void showTexts();
  void showPicture();
  void showShots();

  const Settings& m_settings;
  const Texts& m_texts;
  std::shared_ptr<const SeasonPerson> m_person;
  PersonHead* m_head;
  SeasonTableView* m_records;
  SeasonTableView* m_results;
  SeasonTableView* m_averages;
  SeasonTableView* m_onOff;
  QComboBox* m_statistic;
  SeriesView* m_picture;
  QTabWidget* m_parts;
  HexagonChart* m_hexagons;
  ZoneChart* m_shots;
};

} // namespace hooptab
