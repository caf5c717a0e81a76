#include "scorecard/TableText.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QTableView>
#include <algorithm>

namespace hooptab {

namespace {

QString cellText(const QVariant& value) {
  QString text = value.toString();
  for (QChar& letter : text) {
    if (letter == u'\t' || letter == u'\n' || letter == u'\r')
      letter = u' ';
  }
  return text;
}

} // namespace

QString tableText(const QTableView& view) {
  const QAbstractItemModel& model = *view.model();
  QList<int> columns;
  for (int place = 0; place < model.columnCount(); ++place) {
    const int column = view.horizontalHeader()->logicalIndex(place);
    if (!view.isColumnHidden(column))
      columns << column;
  }
  const QModelIndexList selected = view.selectionModel()->selectedRows();
  QList<int> rows;
  for (const QModelIndex& row : selected)
    rows << row.row();
  std::ranges::sort(rows);
  if (rows.size() < 2) {
    rows.clear();
    for (int row = 0; row < model.rowCount(); ++row)
      rows << row;
  }

  QStringList lines;
  QStringList cells;
  for (const int column : columns)
    cells << cellText(model.headerData(column, Qt::Horizontal));
  lines << cells.join(u'\t');
  for (const int row : rows) {
    cells.clear();
    for (const int column : columns)
      cells << cellText(model.index(row, column).data());
    lines << cells.join(u'\t');
  }
  return lines.join(u'\n') + u'\n';
}

void copyTable(const QTableView& view) {
  QApplication::clipboard()->setText(tableText(view));
}

} // namespace hooptab
