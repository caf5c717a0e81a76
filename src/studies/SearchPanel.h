// What a search over all events found: how it was understood, and the events as a table.
#pragma once

#include "season/EventSearch.h"
#include "season/SeasonTableView.h"

#include <QWidget>

#include <memory>

class QLabel;

namespace hooptab {

class SearchPanel : public QWidget {
  Q_OBJECT

 public:
  explicit SearchPanel(const Texts& texts, QWidget* parent = nullptr);

  void showFound(std::shared_ptr<const GameCatalogue> catalogue, const EventQuery& query, FoundEvents found);
  void showUnknown(const EventQuery& query); // nothing can be searched for
  void clear();                              // other games than those that were searched are shown
  void relabelPanel();
  SeasonTableView& table() const { return *m_table; }

 signals:
  void gameAsked(std::size_t game); // its place in the catalogue

 private:
  void showTexts();

  const Texts& m_texts;
  std::shared_ptr<const GameCatalogue> m_catalogue;
  EventQuery m_query;
  std::shared_ptr<const FoundEvents> m_found; // null: nothing was searched for
  QLabel* m_understood;
  QLabel* m_count;
  SeasonTableView* m_table;
};

} // namespace hooptab
