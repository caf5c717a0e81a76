// The leaders as cards, as many beside each other as there is room for: one for each statistic, with the
// first five. Who they are is LeaderBoards' work (season).
#pragma once

#include "season/LeaderBoards.h"

#include <QScrollArea>

#include <memory>
#include <vector>

class QGridLayout;
class QLabel;

namespace hooptab {

class Card;
class RowList;

class LeaderCards : public QScrollArea {
  Q_OBJECT

 public:
  LeaderCards(const Settings& settings, const Texts& texts, QWidget* parent = nullptr);

  void showLeaders(std::shared_ptr<const Season> season, SeasonView view); // null: none yet

 signals:
  void personAsked(const SeasonRow& row);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Shown {
    Card* card = nullptr;
    QLabel* title = nullptr;
    QLabel* unit = nullptr;
    RowList* list = nullptr;
  };
  void addCard();
  void showBoard(std::size_t place);
  void ask(std::size_t place, int row);
  void layOut();
  int columns() const;

  const Settings& m_settings;
  const Texts& m_texts;
  std::shared_ptr<const Season> m_season; // whose rows the boards refer to
  std::vector<LeaderBoard> m_boards;
  std::vector<Shown> m_cards; // some hidden, where there are fewer boards
  QGridLayout* m_grid;
  int m_columns = 0; // as they are laid out
};

} // namespace hooptab
