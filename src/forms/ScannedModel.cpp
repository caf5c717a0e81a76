#include "forms/ScannedModel.h"

#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "totals/CounterWords.h"

#include <QFont>

namespace hooptab {

namespace {

constexpr int kCounts = static_cast<int>(kManualColumns.size());
constexpr int kPoints = ScannedModel::kFirstCount + kCounts; // the last column

const ManualColumn& counted(int column) {
  return kManualColumns[static_cast<std::size_t>(column - ScannedModel::kFirstCount)];
}
bool isCount(int column) {
  return column >= ScannedModel::kFirstCount && column < kPoints;
}

QString blankIfNone(int count) {
  return count == 0 ? QString() : QString::number(count);
}

} // namespace

ScannedModel::ScannedModel(const ManualGame& game, ScannedTotals& scanned, const Settings& settings,
                           const Texts& texts, QObject* parent)
    : QAbstractTableModel(parent), m_game(game), m_scanned(scanned), m_settings(settings), m_texts(texts) {}

int ScannedModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : FormLayout::kPlayers * kLines;
}

int ScannedModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kPoints + 1;
}

QString ScannedModel::words(int column) const {
  return isCount(column)     ? toQt(counterWords(counted(column), m_game.details(), m_settings, m_texts))
         : column == kPoints ? caption(m_texts, Text::PointsScored)
                             : QString();
}

QString ScannedModel::countText(int player, Line line, int column) const {
  const int slot = m_scanned.slot(player);
  if (line == GameTotal) {
    if (slot == ScannedTotals::kNobody)
      return {};
    const Counters counts = m_game.totals.slot(m_scanned.team(), slot).counts();
    return blankIfNone(column == kPoints ? pointsOf(counts) : counts[counted(column).counter]);
  }
  if (column == kPoints)
    return blankIfNone(pointsOf(m_scanned.sheet.counts(player)));
  const CheckedSheet::Count count = m_scanned.sheet.count(player, counted(column).counter);
  if (count.isOpen)
    return QString::number(count.value) + u'?';
  return count.isCorrected ? QString::number(count.value) + u'*' : blankIfNone(count.value);
}

QVariant ScannedModel::data(const QModelIndex& index, int role) const {
  const int player = playerOf(index.row());
  const Line line = lineOf(index.row());
  const int column = index.column();
  const bool isForm = line == FormTotal;
  if (line == Heading || m_scanned.sheet.cellCount() == 0)
    return {};
  switch (role) {
  case Qt::DisplayRole:
    return column < kFirstCount ? caption(m_texts, isForm ? Text::FormTotal : Text::GameTotal)
                                : countText(player, line, column);
  case Qt::EditRole:
    return isForm && isCount(column)
               ? QString::number(m_scanned.sheet.count(player, counted(column).counter).value)
               : QString();
  case Qt::TextAlignmentRole:
    return QVariant(column < kFirstCount ? Qt::AlignLeft | Qt::AlignVCenter : Qt::Alignment(Qt::AlignCenter));
  case Qt::ToolTipRole:
  case Qt::StatusTipRole: return words(column);
  case Qt::AccessibleTextRole:
    return QStringLiteral("%1, %2: %3")
        .arg(caption(m_texts, isForm ? Text::FormTotal : Text::GameTotal), words(column),
             column < kFirstCount ? QString() : countText(player, line, column));
  case Qt::FontRole:
    return column < kFirstCount ? QVariant() : Theme::font(Type::Body, isForm ? QFont::Bold : QFont::Normal);
  case Qt::ForegroundRole:
    return isForm && isCount(column) && m_scanned.sheet.count(player, counted(column).counter).isOpen
               ? QVariant(Theme::missed())
               : QVariant();
  default: return {};
  }
}

QVariant ScannedModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < kFirstCount)
    return {};
  if (role == Qt::ToolTipRole)
    return words(section);
  if (role != Qt::DisplayRole)
    return QAbstractTableModel::headerData(section, orientation, role);
  if (section == kPoints)
    return QStringLiteral("PTS\n");
  const EventKind& kind = *kindOf(counted(section).code);
  const QString second =
      !kind.isShot ? QString()
                   : toQt(m_texts.text(counted(section).isMade ? Text::MadeShort : Text::AttemptedShort));
  return QString(toQt(kind.shortName) + u'\n' + second);
}

Qt::ItemFlags ScannedModel::flags(const QModelIndex& index) const {
  const Line line = lineOf(index.row());
  if (line == Heading)
    return Qt::ItemIsEnabled;
  const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  return line == FormTotal && isCount(index.column()) ? flags | Qt::ItemIsEditable : flags;
}

bool ScannedModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || (flags(index) & Qt::ItemIsEditable) == 0)
    return false;
  const int player = playerOf(index.row());
  const ManualColumn& column = counted(index.column());
  const QString text = value.toString().trimmed();
  bool isNumber = text.isEmpty();
  const int count = isNumber ? 0 : text.toInt(&isNumber);
  if (isNumber && count == m_scanned.sheet.count(player, column.counter).value)
    return false;
  const bool isInRange = isNumber && count >= 0 && count <= ManualTotals::kLargestCount;
  if (!isInRange || !m_scanned.sheet.typeCount(player, column.counter, count)) {
    const int made = m_scanned.sheet.count(player, kindOf(column.code)->counter).value;
    emit refused(
        toQt(m_texts.withPlaceholder(isInRange ? Text::UnderMade : Text::CountRange,
                                     std::to_string(isInRange ? made : ManualTotals::kLargestCount))));
    return false;
  }
  showCounts();
  emit typed();
  return true;
}

void ScannedModel::showCounts() {
  emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void ScannedModel::relabel() {
  emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
  showCounts();
}

} // namespace hooptab
