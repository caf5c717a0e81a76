// Rows of values for a table: columns and cells come from outside as functions, so that games, differences
// and names are one class. Rows may have check marks, and one column may be typed in. Knows nothing of games.
#pragma once

#include "settings/Texts.h"

#include <QAbstractTableModel>

#include <functional>
#include <optional>
#include <vector>

namespace hooptab {

struct RowColumn {
  Text header = Text::None;
  int letters = 10;      // that a cell has room for at first
  bool isNumber = false; // stands at the right, sorts by its value
  bool isTyped = false;  // takes another text
  bool isWide = false;   // takes the room that is left
};

// By the row's place from 0. What a function refers to must live as long as the model shows it.
struct RowSource {
  int count = 0;
  std::function<QString(int row, int column)> text;
  std::function<QString(int row)> toolTip = {};               // in front of the cell's own text
  std::function<std::optional<bool>(int row)> isChecked = {}; // nothing: it has no check mark
  std::function<void(int row, bool isOn)> check = {};
  std::function<void(int row, const QString& text)> type = {}; // of the column that is typed in
  std::function<bool(int row)> isMuted = {};
};

class RowModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  RowModel(std::vector<RowColumn> columns, const Texts& texts, QObject* parent); // texts must outlive it

  const std::vector<RowColumn>& columns() const { return m_columns; }
  void show(RowSource rows);
  void refresh(); // the same rows, which say something else now

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  [[nodiscard]] std::optional<bool> checkOf(const QModelIndex& index) const;
  [[nodiscard]] QString toolTip(const QModelIndex& index) const;

  const std::vector<RowColumn> m_columns;
  const Texts& m_texts;
  RowSource m_rows;
};

} // namespace hooptab
