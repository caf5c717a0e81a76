// The counts of a scanned sheet as a table: for each of its players a heading, the game's total and the
// form's, which can be typed over. Decides what is marked; who the players are is the window's to show.
#pragma once

#include "forms/ScannedTotals.h"
#include "settings/Settings.h"
#include "settings/Texts.h"
#include "totals/ManualGame.h"

#include <QAbstractTableModel>

namespace hooptab {

class ScannedModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  // All must outlive it.
  ScannedModel(const ManualGame& game, ScannedTotals& scanned, const Settings& settings, const Texts& texts,
               QObject* parent = nullptr);

  enum Line { Heading, GameTotal, FormTotal };
  static constexpr int kLines = 3; // of each player
  static Line lineOf(int row) { return static_cast<Line>(row % kLines); }
  static int playerOf(int row) { return row / kLines; }
  static constexpr int kFirstCount = 1; // column; before it the names of the lines

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

  void showCounts(); // something has changed
  void relabel();

 signals:
  void typed();                        // a count was
  void refused(const QString& reason); // nothing was changed

 private:
  [[nodiscard]] QString countText(int player, Line line, int column) const;
  [[nodiscard]] QString words(int column) const;

  const ManualGame& m_game;
  ScannedTotals& m_scanned;
  const Settings& m_settings;
  const Texts& m_texts;
};

} // namespace hooptab
