// The table of a scanned sheet's counts beside those of the game, with a list for each of its players from
// which the player of the game is chosen. What is counted and marked is its model's.
#pragma once

#include "forms/ScannedModel.h"

#include <QTableView>

#include <array>

class QComboBox;
class QLabel;

namespace hooptab {

class ScannedTable : public QTableView {
  Q_OBJECT

 public:
  // All must outlive it.
  ScannedTable(const ManualGame& game, ScannedTotals& scanned, const Settings& settings, const Texts& texts,
               QWidget* parent = nullptr);

  void showTotals(); // something has changed
  void relabelTable();

 signals:
  void assigned(int player, int slot);
  void typed();
  void refused(const QString& reason);
  void cellsChosen(const std::vector<std::size_t>& cells); // of the count that is selected

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void addHeading(int player);
  void showPlayer(int player);
  void chooseCells(const QModelIndex& index);

  struct Heading {
    QLabel* caption = nullptr;
    QComboBox* player = nullptr;
    QLabel* number = nullptr; // what is wrong with it
  };
  ScannedTotals& m_scanned;
  const Texts& m_texts;
  ScannedModel* m_model = nullptr;
  std::array<Heading, FormLayout::kPlayers> m_headings;
};

} // namespace hooptab
