// The rows of a compact box for a view: starter's mark, number and name, then the chosen columns. Takes the
// rows of a game read anew without a reset, so that selection and sort survive. Computes nothing.
#pragma once

#include "appearance/TableContent.h"
#include "review/CompactBox.h"

#include <QAbstractTableModel>

#include <vector>

namespace hooptab {

class CompactBoxModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { Starter, Number, Name, FirstCell };
  enum Role { EmphasisRole = kTableKindRole + 1, PositionRole, DidNotPlayRole };

  // The texts must outlive it.
  explicit CompactBoxModel(const Texts& texts, QObject* parent = nullptr)
      : QAbstractTableModel(parent), m_texts(texts) {}

  // `head` stands over the names.
  void showRows(const QString& head, std::vector<CompactRow> rows, const CompactChoice& choice);
  // Over the column of the user's own rating, and what it is; shown with the next rows.
  void setOwnRating(const QString& head, const QString& toolTip);
  // What stands over a column.
  [[nodiscard]] QString headAt(int column) const;
  const CompactChoice& choice() const { return m_choice; }
  // Of a column of cells.
  const CompactColumn& columnAt(int column) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QVariant cellData(const CompactRow& row, int column, int role) const;
  QVariant nameData(const CompactRow& row, int column, int role) const;
  QString toolTip(int section) const;

  const Texts& m_texts;
  QString m_head;
  QString m_ownHead;
  QString m_ownTip;
  std::vector<CompactRow> m_rows;
  CompactChoice m_choice;
};

} // namespace hooptab
