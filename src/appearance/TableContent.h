// What a table shows, as values: the columns that are shown, in the order in which they are shown, and the
// rows in the order of its sort. For the clipboard, and for whoever writes it into a file; knows no format.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

class QTableView;
class QWidget;

namespace hooptab {

// What the table models of the program tell beyond Qt's own roles.
enum TableRole {
  kTableSortRole = Qt::UserRole, // of a cell: the exact number behind its text, or a text
  kTableTotalRole,               // of a cell: whether its row sums up the others
  kTableNameRole,                // of a header: a name that is unique in its table, for files
  kTableKindRole,                // of a cell: a TableKind; a text where it tells none
};

// What a cell holds, so that a spreadsheet calculates with it.
enum class TableKind { Text, Number, Percent, Time };

struct TableContent {
  struct Column {
    QString header;
    QString name;  // of kTableNameRole, or the header
    QString words; // its tool tip
    bool isLeftAligned = false;
  };
  struct Cell {
    QString text;
    TableKind kind = TableKind::Text;
    double value = 0; // exactly; of a percentage a part of 1, of a time its seconds
  };
  struct Row {
    std::vector<Cell> cells;
    bool isTotal = false;
  };

  QString title;
  std::vector<Column> columns;
  std::vector<Row> rows;
};

// A widget that shows a table and is no view of a model.
class ShownTable {
 public:
  virtual ~ShownTable() = default;
  [[nodiscard]] virtual TableContent tableContent() const = 0;
};

enum class TableExtent { All, Selected }; // the selected rows where there are several, else all

// A list without a header has left columns out for want of room: here it has all.
[[nodiscard]] TableContent tableContent(const QTableView& view, TableExtent extent = TableExtent::All);
// The same for a ShownTable; nothing for any other widget.
[[nodiscard]] std::optional<TableContent> contentOf(const QWidget& widget,
                                                    TableExtent extent = TableExtent::All);

// What a table or picture is about, as a file of it says; without one, its accessible name.
void setExportTitle(QWidget& widget, const QString& title);
[[nodiscard]] QString exportTitle(const QWidget& widget);

// With its headers, cells separated by tabs, so that a spreadsheet takes it as it is.
[[nodiscard]] QString tableText(const TableContent& content);
// The selected rows where there are several, else all.
void copyTable(const QWidget& table);

} // namespace hooptab
