#include "appearance/TableContent.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QTableView>
#include <algorithm>

namespace hooptab {

namespace {

constexpr const char* kTitle = "hooptabExportTitle";

QString oneLine(QString text) {
  for (QChar& letter : text) {
    if (letter == u'\t' || letter == u'\n' || letter == u'\r')
      letter = u' ';
  }
  return text;
}

QList<int> shownColumns(const QTableView& view) {
  const QHeaderView& header = *view.horizontalHeader();
  QList<int> columns;
  for (int place = 0; place < view.model()->columnCount(); ++place) {
    const int column = header.logicalIndex(place);
    if (header.isHidden() || !view.isColumnHidden(column))
      columns << column;
  }
  return columns;
}

QList<int> rowsOf(const QTableView& view, TableExtent extent) {
  QList<int> rows;
  if (extent == TableExtent::Selected) {
    for (const QModelIndex& row : view.selectionModel()->selectedRows())
      rows << row.row();
    std::ranges::sort(rows);
  }
  if (rows.size() < 2) {
    rows.clear();
    for (int row = 0; row < view.model()->rowCount(); ++row)
      rows << row;
  }
  return rows;
}

TableContent::Column columnOf(const QAbstractItemModel& model, int column) {
  const auto header = [&](int role) { return model.headerData(column, Qt::Horizontal, role); };
  TableContent::Column shown;
  shown.header = header(Qt::DisplayRole).toString();
  shown.name = header(kTableNameRole).toString();
  if (shown.name.isEmpty())
    shown.name = shown.header;
  shown.words = header(Qt::ToolTipRole).toString();
  const QVariant alignment = model.rowCount() > 0 ? model.index(0, column).data(Qt::TextAlignmentRole)
                                                  : header(Qt::TextAlignmentRole);
  // Without a say in it, a text stands at the left.
  shown.isLeftAligned = !alignment.isValid() || (alignment.toInt() & Qt::AlignLeft) != 0;
  return shown;
}

// What stands where there is no number.
bool isBlank(const QString& text) {
  return std::ranges::all_of(text,
                             [](QChar letter) { return letter == u'-' || letter == u'–' || letter == u'—'; });
}

TableContent::Cell cellOf(const QModelIndex& index) {
  TableContent::Cell cell{index.data().toString()};
  const QVariant kind = index.data(kTableKindRole);
  if (!kind.isValid() || isBlank(cell.text))
    return cell;
  const QVariant value = index.data(kTableSortRole);
  if (value.typeId() != QMetaType::Double)
    return cell;
  cell.kind = static_cast<TableKind>(kind.toInt());
  cell.value = value.toDouble();
  if (cell.kind == TableKind::Percent)
    cell.value = std::max(cell.value, 0.0); // without attempts it sorts below 0 %
  return cell;
}

} // namespace

TableContent tableContent(const QTableView& view, TableExtent extent) {
  const QAbstractItemModel& model = *view.model();
  TableContent content;
  content.title = exportTitle(view);
  const QList<int> columns = shownColumns(view);
  for (const int column : columns)
    content.columns.push_back(columnOf(model, column));
  for (const int row : rowsOf(view, extent)) {
    TableContent::Row& line = content.rows.emplace_back();
    for (const int column : columns) {
      const QModelIndex index = model.index(row, column);
      line.cells.push_back(cellOf(index));
      line.isTotal = line.isTotal || index.data(kTableTotalRole).toBool();
    }
  }
  return content;
}

std::optional<TableContent> contentOf(const QWidget& widget, TableExtent extent) {
  if (const auto* view = qobject_cast<const QTableView*>(&widget))
    return tableContent(*view, extent);
  const auto* table = dynamic_cast<const ShownTable*>(&widget);
  if (table == nullptr)
    return std::nullopt;
  TableContent content = table->tableContent();
  if (content.title.isEmpty())
    content.title = exportTitle(widget);
  return content;
}

void setExportTitle(QWidget& widget, const QString& title) {
  widget.setProperty(kTitle, title);
}

QString exportTitle(const QWidget& widget) {
  const QString title = widget.property(kTitle).toString();
  return title.isEmpty() ? widget.accessibleName() : title;
}

QString tableText(const TableContent& content) {
  QStringList lines;
  QStringList cells;
  for (const TableContent::Column& column : content.columns)
    cells << oneLine(column.header);
  lines << cells.join(u'\t');
  for (const TableContent::Row& row : content.rows) {
    cells.clear();
    for (const TableContent::Cell& cell : row.cells)
      cells << oneLine(cell.text);
    lines << cells.join(u'\t');
  }
  return lines.join(u'\n') + u'\n';
}

void copyTable(const QWidget& table) {
  if (const auto content = contentOf(table, TableExtent::Selected))
    QApplication::clipboard()->setText(tableText(*content));
}

} // namespace hooptab
