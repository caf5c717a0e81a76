// The players of a sheet as a table. The owner tells when they have changed.
#pragma once

#include "teams/TeamSheet.h"

#include <QAbstractTableModel>

namespace hooptab {

class PlayerTableModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  // Sheet and texts must outlive it.
  PlayerTableModel(TeamSheet& sheet, const Texts& texts, QObject* parent = nullptr);

  void changed(); // rows or language

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  // Puts the sheet itself in order: what is seen is what is written. Numbers in texts count as numbers.
  void sort(int column, Qt::SortOrder order) override;

 private:
  TeamSheet& m_sheet;
  const Texts& m_texts;
};

} // namespace hooptab
