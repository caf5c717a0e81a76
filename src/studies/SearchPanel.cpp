#include "studies/SearchPanel.h"

#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "season/FilterRow.h"
#include "storage/Placeholders.h"

#include <QBoxLayout>

namespace hooptab {

namespace {

enum Column { kDay, kTeams, kPeriod, kClock, kScore };

std::vector<TableColumn> foundColumns(const Texts& texts) {
  const auto column = [&texts](Text header, const char* name, bool isText) {
    TableColumn made;
    made.header = caption(texts, header);
    made.name = QLatin1String(name);
    made.isText = isText;
    made.isLeftAligned = isText;
    return made;
  };
  return {column(Text::Date, "Date", true),      column(Text::GameCard, "Game", true),
          column(Text::Period, "Period", false), column(Text::Clock, "Clock", false),
          column(Text::Score, "Score", false),   column(Text::Event, "Event", true)};
}

QString scoreText(const FoundEvent& event) {
  return QString::number(event.score[Side::Visitor]) + u'-' + QString::number(event.score[Side::Home]);
}

QString joined(const std::vector<std::string>& words) {
  QStringList list;
  for (const std::string& word : words)
    list << toQt(word);
  return list.join(QStringLiteral(", "));
}

} // namespace

SearchPanel::SearchPanel(const Texts& texts, QWidget* parent)
    : QWidget(parent), m_texts(texts), m_understood(new PlainLabel(this)), m_count(new PlainLabel(this)),
      m_table(new SeasonTableView(QStringLiteral("lvwFOUND"), 0, this)) {
  m_understood->setObjectName(QStringLiteral("lblUNDERSTOOD"));
  m_understood->setWordWrap(true);
  m_count->setObjectName(QStringLiteral("lblFOUND"));
  m_count->setForegroundRole(QPalette::PlaceholderText);
  setAccessibleNumber(*m_table, Text::SearchTab);
  m_table->setRowHeights(24, 30);
  m_table->fillWidth();
  auto* head = new QHBoxLayout;
  head->addWidget(m_understood, 1);
  head->addWidget(m_count);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->setSpacing(4);
  layout->addLayout(head);
  layout->addWidget(withFilters(*m_table, 0, m_texts, this), 1);
  connect(m_table, &SeasonTableView::rowAsked, this,
          [this](int row) { emit gameAsked(m_found->events[static_cast<std::size_t>(row)].game); });
}

void SearchPanel::showFound(std::shared_ptr<const GameCatalogue> catalogue, const EventQuery& query,
                            FoundEvents found) {
  m_catalogue = std::move(catalogue);
  m_query = query;
  m_found = std::make_shared<const FoundEvents>(std::move(found));
  TableRows rows;
  rows.count = static_cast<int>(m_found->events.size());
  const auto at = [all = m_found](int row) -> const FoundEvent& {
    return all->events[static_cast<std::size_t>(row)];
  };
  rows.text = [at, games = m_catalogue](int row, int column) -> QString {
    const FoundEvent& event = at(row);
    const ListedGame& game = games->games()[event.game];
    switch (column) {
    case kDay: return toQt(game.date);
    case kTeams:
      return toQt(games->teams()[game.team[Side::Visitor]].abbreviation + " – " +
                  games->teams()[game.team[Side::Home]].abbreviation);
    case kPeriod: return toQt(event.periodText);
    case kClock: return toQt(event.clock);
    case kScore: return scoreText(event);
    default: return toQt(event.words);
    }
  };
  rows.sortValue = [at](int row, int column) -> double {
    const FoundEvent& event = at(row);
    return column == kPeriod  ? event.period
           : column == kClock ? event.clockSeconds
                              : event.score[Side::Visitor] + event.score[Side::Home];
  };
  rows.toolTip = [this](int) { return caption(m_texts, Text::OpensGame); };
  m_table->showRows(std::move(rows));
  showTexts();
}

void SearchPanel::showUnknown(const EventQuery& query) {
  clear();
  m_query = query;
  showTexts();
}

void SearchPanel::clear() {
  m_query = {};
  m_found.reset();
  m_table->showRows({});
  showTexts();
}

void SearchPanel::relabelPanel() {
  m_table->showColumns(foundColumns(m_texts));
  showTexts();
}

void SearchPanel::showTexts() {
  QStringList understood;
  if (m_found != nullptr)
    understood << toQt(queryWords(m_query.criteria, *m_catalogue, m_texts));
  if (!m_query.unknown.empty())
    understood << toQt(m_texts.withPlaceholder(Text::SearchNotUnderstood, fromQt(joined(m_query.unknown))));
  m_understood->setText(understood.isEmpty() ? caption(m_texts, Text::SearchEventsHint)
                                             : understood.join(u'\n'));
  if (m_found == nullptr)
    return m_count->clear();
  if (m_found->events.empty())
    return m_count->setText(caption(m_texts, Text::SearchFoundNone));
  m_count->setText(toQt(withPlaceholders(m_texts.text(Text::SearchFound),
                                         std::to_string(m_found->events.size()) + (m_found->isCut ? "+" : ""),
                                         std::to_string(m_found->games))));
}

} // namespace hooptab
