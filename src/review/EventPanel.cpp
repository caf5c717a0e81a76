#include "review/EventPanel.h"

#include "appearance/TableContent.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "scorecard/BoxHeader.h"

#include <QBoxLayout>
#include <QEvent>
#include <QIcon>
#include <QLineEdit>
#include <QScrollBar>
#include <QShortcut>
#include <QTableView>

namespace hooptab {

namespace {

constexpr int kRowHeight = 20;
constexpr int kColourWidth = 5; // the stripe of the team's colour before the words
constexpr int kPadding = 16;
constexpr int kSearchWidth = 240;

} // namespace

void EventPanel::Found::setStretch(const std::optional<Stretch>& stretch) {
  if (stretch == m_stretch)
    return;
  m_stretch = stretch;
  invalidateFilter();
}

bool EventPanel::Found::filterAcceptsRow(int row, const QModelIndex& parent) const {
  const GameEvent& event = m_events.game().events[static_cast<std::size_t>(row)];
  return (!m_stretch || m_stretch->holds(event.period, event.clockSeconds)) &&
         QSortFilterProxyModel::filterAcceptsRow(row, parent);
}

EventPanel::EventPanel(const Texts& texts, QWidget* parent)
    : QWidget(parent), m_model(texts), m_search(new QLineEdit(this)), m_list(new QTableView(this)) {
  m_search->setObjectName(QStringLiteral("txtSEARCH"));
  m_search->setClearButtonEnabled(true);
  m_search->setFixedWidth(kSearchWidth);
  setAccessibleNumber(*m_search, Text::SearchEvents);
  setPlaceholderNumber(*m_search, Text::SearchEvents);

  m_found.setSourceModel(&m_model);
  m_found.setFilterKeyColumn(EventListModel::Action);
  m_found.setFilterCaseSensitivity(Qt::CaseInsensitive);
  m_list->setObjectName(QStringLiteral("lvwEVENT"));
  setAccessibleNumber(*m_list, Text::Events);
  m_list->setModel(&m_found);
  m_list->setHorizontalHeader(new BoxHeader(m_list));
  m_list->horizontalHeader()->setSectionsClickable(false);
  m_list->horizontalHeader()->moveSection(EventListModel::Period, 0);
  m_list->horizontalHeader()->moveSection(m_list->horizontalHeader()->visualIndex(EventListModel::Score), 2);
  m_list->horizontalHeader()->setStretchLastSection(true);
  m_list->verticalHeader()->hide();
  m_list->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  fitRows();
  m_list->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
  m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_list->setShowGrid(false);
  m_list->setWordWrap(false);
  m_list->setFrameShape(QFrame::NoFrame);
  m_list->setTabKeyNavigation(false);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(4);
  layout->addWidget(m_search, 0, Qt::AlignRight);
  layout->addWidget(m_list);

  auto* copy = new QShortcut(QKeySequence::Copy, m_list, nullptr, nullptr, Qt::WidgetShortcut);
  connect(copy, &QShortcut::activated, this, [this] {
    copyTable(*m_list);
    emit copied();
  });
  connect(m_search, &QLineEdit::textChanged, &m_found, &QSortFilterProxyModel::setFilterFixedString);
  connect(m_list->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &EventPanel::tellChosen);
}

void EventPanel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) {
    fitRows();
    fitColumns();
  }
}

void EventPanel::fitRows() {
  const int height = Theme::measure()(kRowHeight);
  m_list->verticalHeader()->setMinimumSectionSize(height);
  m_list->verticalHeader()->setDefaultSectionSize(height);
  m_list->setIconSize({kColourWidth, height - 4});
}

void EventPanel::tellChosen() {
  const QModelIndex event = m_found.mapToSource(m_list->currentIndex());
  emit eventChosen(event.isValid() ? std::optional(static_cast<std::uint32_t>(event.row())) : std::nullopt);
}

void EventPanel::showGame(const Game& game, bool isNew) {
  const QScrollBar* bar = m_list->verticalScrollBar();
  const bool wasAtEnd = bar->maximum() > 0 && bar->value() == bar->maximum();
  m_model.show(game);
  if (isNew) {
    fitColumns();
    m_list->clearSelection();
    m_list->setCurrentIndex({});
  }
  if (isNew ? !game.details.isFinished : wasAtEnd)
    m_list->scrollToBottom();
  else if (isNew)
    m_list->scrollToTop();
  tellChosen(); // others may have come before it
}

void EventPanel::showStretch(const std::optional<Stretch>& stretch) {
  m_found.setStretch(stretch);
}

void EventPanel::choose(std::size_t event) {
  const QModelIndex wanted = m_model.index(static_cast<int>(event), 0);
  if (!m_found.mapFromSource(wanted).isValid())
    m_search->clear();
  m_list->selectRow(m_found.mapFromSource(wanted).row());
  m_list->scrollTo(m_list->currentIndex(), QAbstractItemView::PositionAtCenter);
}

void EventPanel::relabel() {
  m_model.relabel();
  fitColumns();
}

void EventPanel::fitColumns() {
  const auto* header = static_cast<const BoxHeader*>(m_list->horizontalHeader());
  constexpr std::pair<int, const char16_t*> kLongest[] = {{EventListModel::Clock, u"00:00"},
                                                          {EventListModel::Period, u"OT10"},
                                                          {EventListModel::Score, u"000-000"}};
  for (const auto& [column, longest] : kLongest) {
    const QString caption = m_model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    const int width = std::max(header->textWidth(caption), header->textWidth(QString::fromUtf16(longest)));
    m_list->setColumnWidth(column, width + kPadding);
  }
}

} // namespace hooptab
