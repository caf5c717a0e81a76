#include "forms/ScannedTable.h"

#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "totals/ManualColumns.h"

#include <QAbstractItemView>
#include <QBoxLayout>
#include <QComboBox>
#include <QHeaderView>
#include <QSignalBlocker>

#include <algorithm>

namespace hooptab {

namespace {

constexpr int kGap = 6;
constexpr int kRowHeight = 22; // the smallest; where there is room, more
constexpr int kLargestRow = 32;
constexpr int kSmallestCount = 27; // width of a column
constexpr int kNameLetters = 26;   // that a list of players shows; a longer name is whole when it is opened

} // namespace

ScannedTable::ScannedTable(const ManualGame& game, ScannedTotals& scanned, const Settings& settings,
                           const Texts& texts, QWidget* parent)
    : QTableView(parent), m_scanned(scanned), m_texts(texts),
      m_model(new ScannedModel(game, scanned, settings, texts, this)) {
  setObjectName(QStringLiteral("tblSCAN"));
  setModel(m_model);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                  QAbstractItemView::AnyKeyPressed);
  setAccessibleNumber(*this, Text::ScanResults);
  verticalHeader()->hide();
  verticalHeader()->setDefaultSectionSize(kRowHeight);
  verticalHeader()->setMinimumSectionSize(kRowHeight);
  QHeaderView* header = horizontalHeader();
  header->setMinimumSectionSize(kSmallestCount);
  header->setSectionResizeMode(QHeaderView::Stretch);
  header->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  header->setSectionsClickable(false);
  header->setStyleSheet(QStringLiteral("QHeaderView::section { padding: 2px 0; }")); // for "PTS"
  for (int player = 0; player < FormLayout::kPlayers; ++player)
    addHeading(player);

  connect(m_model, &ScannedModel::typed, this, &ScannedTable::typed);
  connect(m_model, &ScannedModel::refused, this, &ScannedTable::refused);
  connect(selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& index) { chooseCells(index); });
}

void ScannedTable::addHeading(int player) {
  const int row = player * ScannedModel::kLines;
  setSpan(row, 0, 1, m_model->columnCount());
  auto* line = new QWidget;
  line->setAutoFillBackground(true);
  line->setBackgroundRole(QPalette::Button);
  Heading& heading = m_headings[static_cast<std::size_t>(player)];
  heading.caption = new PlainLabel(line);
  setTextNumber(*heading.caption, Text::StatisticsFor);
  heading.player = new QComboBox(line);
  heading.player->setObjectName(QStringLiteral("cmbSCANNED(%1)").arg(player));
  heading.player->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  heading.player->setMinimumContentsLength(kNameLetters);
  heading.player->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
  heading.caption->setBuddy(heading.player);
  setAccessibleNumber(*heading.player, Text::PlayerOfCounts);
  setToolTipNumber(*heading.player, Text::PlayerOfCounts);
  heading.number = new PlainLabel(line);
  heading.number->setObjectName(QStringLiteral("lblSCANNED(%1)").arg(player));
  QFont bold = heading.number->font();
  bold.setBold(true);
  heading.number->setFont(bold);
  auto* layout = new QHBoxLayout(line);
  layout->setContentsMargins(4, 0, 4, 0);
  layout->setSpacing(kGap);
  layout->addWidget(heading.caption);
  layout->addWidget(heading.player);
  layout->addWidget(heading.number, 1);
  setIndexWidget(m_model->index(row, 0), line);
  connect(heading.player, &QComboBox::activated, this,
          [this, player](int choice) { emit assigned(player, choice); });
}

void ScannedTable::resizeEvent(QResizeEvent* event) {
  verticalHeader()->setDefaultSectionSize(
      std::clamp(viewport()->height() / m_model->rowCount(), kRowHeight, kLargestRow));
  QTableView::resizeEvent(event);
}

void ScannedTable::showTotals() {
  for (int player = 0; player < FormLayout::kPlayers; ++player)
    showPlayer(player);
  m_model->showCounts();
}

void ScannedTable::showPlayer(int player) {
  const Heading& heading = m_headings[static_cast<std::size_t>(player)];
  const QSignalBlocker quiet(heading.player);
  heading.player->clear();
  heading.player->addItem(caption(m_texts, Text::LeftOutInBrackets));
  const std::vector<RosterPlayer>& players = m_scanned.roster().players();
  for (std::size_t slot = 0; slot < std::min<std::size_t>(players.size(), ManualTotals::kSlots); ++slot)
    heading.player->addItem(
        QStringLiteral("%1  %2").arg(toQt(players[slot].jersey), toQt(players[slot].name)));
  heading.player->setCurrentIndex(m_scanned.slot(player)); // the first item is nobody
  heading.player->view()->setMinimumWidth(heading.player->view()->sizeHintForColumn(0) + kLargestRow);

  const CheckedSheet::Jersey jersey = m_scanned.sheet.jersey(player);
  using Read = CheckedSheet::Jersey::State;
  QString words;
  if (jersey.state == Read::Unreadable)
    words = caption(m_texts, Text::NotReadable);
  else if (jersey.state == Read::None && m_scanned.sheet.hasCounts(player))
    words = caption(m_texts, Text::NoNumber);
  else if (jersey.state == Read::Readable && m_scanned.roster().entryOf(jersey.number) == 0)
    words = toQt(m_texts.withPlaceholder(Text::NotInRoster, jersey.number));
  heading.number->setText((words.isEmpty() ? words : u"⚠ " + words) + (jersey.isOpen ? u" ?" : u""));
  QPalette colours;
  colours.setColor(QPalette::WindowText, Theme::missed());
  heading.number->setPalette(colours);
}

void ScannedTable::chooseCells(const QModelIndex& index) {
  std::vector<std::size_t> cells;
  const int column = index.column() - ScannedModel::kFirstCount;
  if (index.isValid() && column >= 0 && column < static_cast<int>(kManualColumns.size())) {
    const Counter counter = kManualColumns[static_cast<std::size_t>(column)].counter;
    for (std::size_t cell = 0; cell < m_scanned.sheet.cellCount(); ++cell) {
      if (m_scanned.sheet.cell(cell).player == ScannedModel::playerOf(index.row()) &&
          m_scanned.sheet.countsFor(cell, counter))
        cells.push_back(cell);
    }
  }
  emit cellsChosen(cells);
}

void ScannedTable::relabelTable() {
  m_model->relabel();
}

} // namespace hooptab
