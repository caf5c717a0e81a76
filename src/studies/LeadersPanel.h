// The leaders, as cards of many statistics, or as tables: at the left the first of every statistic, at the
// right the ten of the one that is chosen.
#pragma once

#include "season/Season.h"
#include "season/SeasonTableView.h"
#include "settings/Settings.h"

class QLabel;
class QSplitter;

namespace hooptab {

class ChoiceSwitch;
class LeaderCards;
class MinimumBox;
class ViewSwitch;

class LeadersPanel : public QWidget {
  Q_OBJECT

 public:
  LeadersPanel(const Settings& settings, const Texts& texts, QWidget* parent = nullptr);

  void showSeason(std::shared_ptr<const Season> season); // null: none yet
  // The same season under another minimum: the statistic that is shown stays.
  void showMinimum(const Qualification& minimum, std::shared_ptr<const Season> season);
  void relabelPanel();
  SeasonView view() const;
  bool areCards() const;
  void showAsCards(bool areCards);
  SeasonTableView& firstLeaders() const { return *m_first; }
  SeasonTableView& leaders() const { return *m_leaders; }

 signals:
  void personAsked(const SeasonRow& row);
  void minimumChosen(const Qualification& minimum);

 private:
  void showAll();
  void showForm();
  void showFirst();
  void showLeaders();
  void showTitle();
  std::size_t statistic() const; // the place of what is shown in the view's list

  const Settings& m_settings;
  const Texts& m_texts;
  std::shared_ptr<const Season> m_season;
  ChoiceSwitch* m_form;
  ViewSwitch* m_switch;
  MinimumBox* m_minimum;
  QLabel* m_rule; // the minimum of the view that is shown, in words
  QLabel* m_title;
  LeaderCards* m_cards;
  QSplitter* m_tables;
  SeasonTableView* m_first;
  SeasonTableView* m_leaders;
  int m_column; // of the statistic that is chosen: the views do not list the same ones
};

} // namespace hooptab
