#include "studies/PersonPanel.h"

#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "season/FilterRow.h"
#include "season/GamePictures.h"
#include "season/SeasonTables.h"
#include "season/SeriesView.h"
#include "season/ZoneChart.h"
#include "studies/HexagonChart.h"
#include "studies/PersonHead.h"
#include "studies/StudyTables.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTabWidget>

namespace hooptab {

namespace {

constexpr int kFrozen = 4; // date, where, result, opponent

QLabel* inBold(QLabel* label, const char* name) {
  label->setObjectName(QLatin1String(name));
  QFont bold = label->font();
  bold.setBold(true);
  label->setFont(bold);
  return label;
}

} // namespace

PersonPanel::PersonPanel(const Settings& settings, const Texts& texts, QWidget* parent)
    : QWidget(parent), m_settings(settings), m_texts(texts), m_head(new PersonHead(settings, texts, this)) {
  auto* right = new QSplitter(Qt::Vertical, this);
  right->setObjectName(QStringLiteral("personRight"));
  right->addWidget(makePicture());
  right->addWidget(makeParts());
  m_onOff = new SeasonTableView(QStringLiteral("lvwONOFF"), 0, right);
  setAccessibleNumber(*m_onOff, Text::OnOffTitle);
  m_onOff->fillWidth();
  right->addWidget(m_onOff);
  right->setChildrenCollapsible(false);
  right->setSizes({140, 190, 195});
  auto* parts = new QSplitter(Qt::Horizontal, this);
  parts->setObjectName(QStringLiteral("personParts"));
  parts->addWidget(makeResults());
  parts->addWidget(right);
  parts->setStretchFactor(0, 1);
  parts->setChildrenCollapsible(false);
  parts->setSizes({850, 490});
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->setSpacing(4);
  layout->addWidget(m_head);
  layout->addWidget(parts, 1);

  connect(m_results, &SeasonTableView::rowAsked, this,
          [this](int row) { emit gameAsked(m_person->results[static_cast<std::size_t>(row)].game); });
  connect(m_picture, &SeriesView::valueAsked, this,
          [this](int value) { emit gameAsked(m_person->results[static_cast<std::size_t>(value)].game); });
  connect(m_statistic, &QComboBox::currentIndexChanged, this, &PersonPanel::showPicture);
}

QWidget* PersonPanel::makeResults() {
  auto* part = new QWidget(this);
  auto* title = inBold(new PlainLabel(part), "lblRESULTS");
  setTextNumber(*title, Text::ResultsByGame);
  auto* high = new PlainLabel(part);
  high->setObjectName(QStringLiteral("lblHIGH"));
  setTextNumber(*high, Text::SeasonHigh);
  high->setAutoFillBackground(true);
  high->setContentsMargins(4, 0, 4, 0);
  m_results = new SeasonTableView(QStringLiteral("lvwRESULTS"), kFrozen, part);
  setAccessibleNumber(*m_results, Text::ResultsByGame);
  m_averages = new SeasonTableView(QStringLiteral("lvwAVERAGES"), 1, part);
  setAccessibleNumber(*m_averages, Text::PerGame);
  auto* split = new QSplitter(Qt::Vertical, part);
  split->setObjectName(QStringLiteral("personResults"));
  split->addWidget(withFilters(*m_results, kFrozen, m_texts, split));
  split->addWidget(m_averages);
  split->setChildrenCollapsible(false);
  split->setStretchFactor(0, 1);
  split->setSizes({420, 120});
  auto* head = new QHBoxLayout;
  head->addWidget(title);
  head->addStretch();
  head->addWidget(high);
  auto* layout = new QVBoxLayout(part);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(2);
  layout->addLayout(head);
  layout->addWidget(split, 1);
  return part;
}

QWidget* PersonPanel::makePicture() {
  auto* part = new QWidget(this);
  m_statistic = new QComboBox(part);
  m_statistic->setObjectName(QStringLiteral("lstSTATISTIC"));
  setAccessibleNumber(*m_statistic, Text::ShownStatistic);
  setToolTipNumber(*m_statistic, Text::ShownStatistic);
  m_picture = new SeriesView(QStringLiteral("picGAMES"), part);
  auto* layout = new QVBoxLayout(part);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(2);
  layout->addWidget(m_statistic, 0, Qt::AlignLeft);
  layout->addWidget(m_picture, 1);
  return part;
}

QWidget* PersonPanel::makeParts() {
  m_parts = new QTabWidget(this);
  m_parts->setObjectName(QStringLiteral("personTabs"));
  m_hexagons = new HexagonChart(QStringLiteral("picHEXAGONS"), m_texts, m_parts);
  m_shots = new ZoneChart(QStringLiteral("picSHOTS"), m_texts, m_parts);
  m_records = new SeasonTableView(QStringLiteral("lvwRECORD"), 0, m_parts);
  for (const auto& [page, text] : {std::pair<QWidget*, Text>(m_hexagons, Text::Shots),
                                   {m_shots, Text::ShotChart},
                                   {m_records, Text::PersonalRecords}}) {
    m_parts->addTab(page, QString());
    setTabTextNumber(*page, text);
  }
  return m_parts;
}

void PersonPanel::showPerson(std::shared_ptr<const SeasonPerson> person) {
  m_person = std::move(person);
  showStatistics();
  showTables();
  m_records->showRows(m_person == nullptr ? TableRows() : recordRows(m_person));
  m_results->showRows(m_person == nullptr ? TableRows() : resultRows(m_person, m_texts));
  showTexts();
  showPicture();
  showShots();
}

void PersonPanel::showTables() {
  StudyTable averages = averagesOf(m_person.get(), m_settings, m_texts);
  m_averages->showColumns(std::move(averages.columns));
  m_averages->showRows(std::move(averages.rows));
  StudyTable onOff = onOffTable(m_person.get(), m_texts);
  m_onOff->showColumns(std::move(onOff.columns));
  m_onOff->showRows(std::move(onOff.rows));
}

void PersonPanel::relabelPanel() {
  m_records->showColumns(recordColumns());
  showStatistics();
  showTables();
  showHigh();
  showTexts();
  showPicture();
  showShots();
}

// What the user's own statistics are called depends on the games.
void PersonPanel::showStatistics() {
  const OwnLabels labels = m_person == nullptr ? OwnLabels() : m_person->season->statistics().labels();
  constexpr int kPlusMinusPlace = 5; // behind the time
  m_results->showColumns(resultColumns(m_settings, m_texts, labels,
                                       m_person == nullptr ? SeasonRating() : m_person->season->ownRating()));
  QHeaderView& header = *m_results->horizontalHeader();
  const int plusMinus = resultColumnCount();
  if (header.visualIndex(plusMinus) == plusMinus) {
    header.moveSection(plusMinus, kPlusMinusPlace);
    int rating = kResultOpponentColumn;
    while (seasonColumnOfResult(rating + 1) != seasonColumn("rating").index)
      ++rating;
    header.moveSection(header.visualIndex(plusMinus + 1), header.visualIndex(rating) + 1);
  }
  const QSignalBlocker quiet(m_statistic);
  const QVariant chosen = m_statistic->count() == 0 ? seasonColumn("PTS").index : m_statistic->currentData();
  m_statistic->clear();
  for (const Statistic& statistic : statistics())
    m_statistic->addItem(statisticName(statistic.seasonColumn, m_settings, m_texts, labels),
                         statistic.seasonColumn);
  m_statistic->setCurrentIndex(m_statistic->findData(chosen));
}

// In the colour that marks one in the table.
void PersonPanel::showHigh() {
  auto* high = findChild<QLabel*>(QStringLiteral("lblHIGH"));
  QPalette palette = high->palette();
  palette.setColor(QPalette::Window, Theme::look().seasonHigh);
  high->setPalette(palette);
}

void PersonPanel::applyColours() {
  showHigh();
  m_hexagons->update();
  m_shots->applyColours();
  m_picture->update();
}

void PersonPanel::showTexts() {
  const bool isLine = m_person != nullptr && m_person->isLine;
  const QString records = caption(m_texts, isLine ? Text::LineRecords : Text::PersonalRecords);
  m_parts->setTabText(m_parts->indexOf(m_records), records);
  m_records->setAccessibleName(records);
  m_head->showPerson(m_person.get());
  if (m_person == nullptr)
    return;
  const QString who = m_head->who();
  for (const auto& [widget, title] : {std::pair<QWidget*, QString>(m_records, records),
                                      {m_results, caption(m_texts, Text::ResultsByGame)},
                                      {m_picture, {}},
                                      {m_hexagons, {}},
                                      {m_shots, {}}})
    setExportTitle(*widget, title.isEmpty() ? who : title + QStringLiteral(" – ") + who);
}

void PersonPanel::showPicture() {
  if (m_person == nullptr)
    return m_picture->show({}, {});
  SeriesWithToolTips picture =
      pictureOfStatistic(*m_person, m_statistic->currentData().toInt(), m_settings, m_texts);
  m_picture->show(std::move(picture.drawing), std::move(picture.toolTips));
}

void PersonPanel::showShots() {
  if (m_person == nullptr) {
    m_hexagons->showReason({});
    m_shots->showShots({}, {});
  } else if (m_person->shots) {
    const Season& season = *m_person->season;
    m_hexagons->showShots(
        hexagonsOfPlayer(season.catalogue(), m_person->results, m_person->row.id, season.shots()).hexagons());
    m_shots->showShots(*m_person->shots, season.shots());
  } else {
    m_hexagons->showReason(caption(m_texts, Text::NoShotsByLine));
    m_shots->showReason(caption(m_texts, Text::NoShotsByLine));
  }
}

} // namespace hooptab
