#include "studies/AveragesPanel.h"

#include "appearance/PlainLabel.h"
#include "appearance/relabel.h"
#include "season/FilterRow.h"
#include "season/SeasonTables.h"
#include "settings/CountWords.h"
#include "studies/ViewSwitch.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QStackedWidget>
#include <algorithm>

namespace hooptab {

AveragesPanel::AveragesPanel(SeasonTable kind, const Settings& settings, const Texts& texts, QWidget* parent)
    : QWidget(parent), m_kind(kind), m_settings(settings), m_texts(texts), m_switch(new ViewSwitch(this)),
      m_scope(new PlainLabel(this)), m_warning(new PlainLabel(this)), m_stack(new QStackedWidget(this)) {
  constexpr int kFrozen = 2; // number and name
  auto* title = new PlainLabel(this);
  setTextNumber(*title, kind == SeasonTable::Lines ? Text::LineStatistics : Text::PlayerTitle);
  QFont bold = title->font();
  bold.setBold(true);
  title->setFont(bold);
  m_scope->setObjectName(QStringLiteral("lblSCOPE"));
  m_scope->setForegroundRole(QPalette::PlaceholderText);
  m_warning->setObjectName(QStringLiteral("lblMINWarning"));
  m_warning->hide();
  for (std::size_t i = 0; i < m_tables.size(); ++i) {
    const QString name = kind == SeasonTable::Lines ? QStringLiteral("lvwSTATlignes(%1)")
                                                    : QStringLiteral("lvwSTATjoueurs(%1)");
    m_tables[i] = new SeasonTableView(name.arg(i), kFrozen, m_stack);
    setAccessibleNumber(*m_tables[i], kind == SeasonTable::Lines ? Text::LineStatistics : Text::PlayerTitle);
    m_stack->addWidget(withFilters(*m_tables[i], kFrozen, texts, m_stack));
    connect(m_tables[i], &SeasonTableView::rowAsked, this, [this](int row) {
      const SeasonStatistics& statistics = m_season->statistics();
      emit personAsked((m_kind == SeasonTable::Lines ? statistics.lines()
                                                     : statistics.players())[static_cast<std::size_t>(row)]);
    });
  }
  auto* head = new QHBoxLayout;
  head->addWidget(title);
  head->addWidget(m_scope);
  head->addStretch();
  head->addWidget(m_warning);
  head->addWidget(m_switch);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->setSpacing(4);
  layout->addLayout(head);
  layout->addWidget(m_stack, 1);
  connect(m_switch, &ViewSwitch::viewChosen, this, &AveragesPanel::showView);
}

SeasonTableView& AveragesPanel::table() const {
  return *m_tables[static_cast<std::size_t>(m_switch->view())];
}

void AveragesPanel::showSeason(std::shared_ptr<const Season> season) {
  m_season = std::move(season);
  for (const SeasonView view : kSeasonViews)
    m_tables[static_cast<std::size_t>(view)]->showRows(
        m_season == nullptr ? TableRows() : seasonTableRows(m_season, m_kind, view, m_texts));
  showColumns(); // teams and labels are the season's
  showTexts();
}

void AveragesPanel::showColumns() {
  constexpr int kTeamPlace = 2;      // behind the name
  constexpr int kPlusMinusPlace = 5; // behind the games
  for (const SeasonView view : kSeasonViews) {
    SeasonTableView& table = *m_tables[static_cast<std::size_t>(view)];
    table.showColumns(seasonTableColumns(m_kind, view, m_season.get(), m_settings, m_texts));
    QHeaderView& header = *table.horizontalHeader();
    const auto& columns = columnsOfTable(m_kind);
    const int team = static_cast<int>(columns.size()) + 1;
    if (header.visualIndex(team) == team) {
      header.moveSection(team, kTeamPlace);
      header.moveSection(header.visualIndex(team - 1), kPlusMinusPlace);
      const auto rating = std::ranges::find(columns, seasonColumn("rating").index);
      header.moveSection(header.visualIndex(team + 1),
                         header.visualIndex(static_cast<int>(rating - columns.begin())) + 1);
    }
  }
}

void AveragesPanel::relabelPanel() {
  showColumns();
  constexpr Text kViews[] = {Text::Totals, Text::PerGame, Text::PerMinute, Text::PerForty};
  for (std::size_t i = 0; i < m_tables.size(); ++i)
    setExportTitle(*m_tables[i],
                   caption(m_texts, m_kind == SeasonTable::Lines ? Text::LineStatistics : Text::PlayerTitle) +
                       QStringLiteral(" – ") + caption(m_texts, kViews[i]));
  showTexts();
}

void AveragesPanel::showView(SeasonView view) {
  const int row = m_tables[static_cast<std::size_t>(m_stack->currentIndex())]->currentRow();
  m_stack->setCurrentIndex(static_cast<int>(view));
  if (row >= 0)
    table().setCurrentIndex(table().content().index(table().content().shownRow(row), 0)); // none: filtered
  showTexts();
}

void AveragesPanel::showTexts() {
  m_scope->setText(m_season == nullptr ? caption(m_texts, Text::NotGenerated)
                                       : toQt(countWords(m_season->statistics().games().size(),
                                                         Text::OfOneGame, Text::OfGames, m_texts)));
  if (m_season != nullptr)
    m_warning->setText(toQt(markWords(m_season->minimum(), m_kind, m_switch->view(), m_texts)));
  m_warning->setVisible(m_season != nullptr && !m_warning->text().isEmpty());
}

} // namespace hooptab
