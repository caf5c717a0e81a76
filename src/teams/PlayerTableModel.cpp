#include "teams/PlayerTableModel.h"

#include "appearance/LanguageLocale.h"
#include "appearance/TableContent.h"
#include "appearance/relabel.h"
#include "storage/NameOrder.h"

#include <QCollator>
#include <QLocale>

namespace hooptab {

namespace {

// By PlayerColumn.
constexpr Text kHeaders[kPlayerColumns] = {Text::Number, Text::PlayerName, Text::Position, Text::Position,
                                           Text::Height, Text::Weight,     Text::Age,      Text::Grade};

bool isFigure(PlayerColumn column) {
  using enum PlayerColumn;
  return column == Number || column == Height || column == Weight || column == Age;
}

} // namespace

PlayerTableModel::PlayerTableModel(TeamSheet& sheet, const Texts& texts, QObject* parent)
    : QAbstractTableModel(parent), m_sheet(sheet), m_texts(texts) {}

void PlayerTableModel::changed() {
  beginResetModel();
  endResetModel();
  emit headerDataChanged(Qt::Horizontal, 0, kPlayerColumns - 1);
}

int PlayerTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_sheet.players().size());
}

int PlayerTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kPlayerColumns;
}

QVariant PlayerTableModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid))
    return {};
  const auto column = static_cast<PlayerColumn>(index.column());
  if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
    return toQt(m_sheet.text(index.row(), column, m_texts));
  if (role == Qt::TextAlignmentRole && isFigure(column))
    return int(Qt::AlignRight | Qt::AlignVCenter);
  // Figures are typed freely: "187", "1.87", or in feet and inches. A jersey is a name: "00" is not 0.
  const bool isNumber = isFigure(column) && column != PlayerColumn::Number;
  bool isPlain = false;
  const double number = isNumber ? toQt(m_sheet.text(index.row(), column, m_texts)).toDouble(&isPlain) : 0.0;
  if (role == kTableKindRole && isPlain)
    return static_cast<int>(TableKind::Number);
  return role == kTableSortRole && isPlain ? QVariant(number) : QVariant();
}

QVariant PlayerTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= kPlayerColumns)
    return {};
  if (role == Qt::TextAlignmentRole && isFigure(static_cast<PlayerColumn>(section)))
    return int(Qt::AlignRight | Qt::AlignVCenter);
  if (role != Qt::DisplayRole)
    return {};
  return caption(m_texts, kHeaders[section]);
}

void PlayerTableModel::sort(int column, Qt::SortOrder order) {
  if (column < 0 || column >= kPlayerColumns)
    return;
  // Of a language, whatever the system's is: without one there are no numbers in texts.
  QCollator collator{localeOf(m_texts.language())};
  collator.setNumericMode(true);
  collator.setCaseSensitivity(Qt::CaseInsensitive);
  emit layoutAboutToBeChanged();
  m_sheet.sort(static_cast<PlayerColumn>(column), m_texts,
               [&](const std::string& left, const std::string& right) {
                 const int difference = column == static_cast<int>(PlayerColumn::Name)
                                            ? nameOrderKey(left).compare(nameOrderKey(right))
                                            : collator.compare(toQt(left), toQt(right));
                 return order == Qt::AscendingOrder ? difference < 0 : difference > 0;
               });
  emit layoutChanged();
}

} // namespace hooptab
