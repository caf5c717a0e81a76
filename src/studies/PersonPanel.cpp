#include "studies/PersonPanel.h"

#include "appearance/ElidedLabel.h"
#include "appearance/PlainLabel.h"
#include "appearance/relabel.h"
#include "season/GamePictures.h"
#include "season/SeasonTables.h"
#include "season/SeriesView.h"
#include "season/ZoneChart.h"
#include "settings/CountWords.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QSignalBlocker>
#include <QSplitter>

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
    : QWidget(parent), m_settings(settings), m_texts(texts), m_number(inBold(new PlainLabel(this), "lblNO")),
      m_name(inBold(new ElidedLabel(this), "lblNom")), m_games(new ElidedLabel(this)) {
  m_games->setObjectName(QStringLiteral("jGAME"));
  m_games->setForegroundRole(QPalette::PlaceholderText);
  auto* head = new QHBoxLayout;
  head->addWidget(m_number);
  head->addWidget(m_name);
  head->addWidget(m_games);
  head->addStretch();

  auto* resultTitle = inBold(new PlainLabel(this), "lblRESULTS");
  setTextNumber(*resultTitle, Text::ResultsByGame);
  m_results = new SeasonTableView(QStringLiteral("lvwRESULTS"), kFrozen, this);
  setAccessibleNumber(*m_results, Text::ResultsByGame);
  auto* results = new QWidget(this);
  auto* resultRoom = new QVBoxLayout(results);
  resultRoom->setContentsMargins(0, 0, 0, 0);
  resultRoom->setSpacing(2);
  resultRoom->addWidget(resultTitle);
  resultRoom->addWidget(m_results, 1);

  auto* right = new QSplitter(Qt::Vertical, this);
  right->setObjectName(QStringLiteral("personRight"));
  right->addWidget(results);
  right->addWidget(makePictures());
  right->setChildrenCollapsible(false);
  right->setSizes({240, 260});
  auto* parts = new QSplitter(Qt::Horizontal, this);
  parts->setObjectName(QStringLiteral("personParts"));
  parts->addWidget(makeRecords());
  parts->addWidget(right);
  parts->setStretchFactor(1, 1);
  parts->setChildrenCollapsible(false);
  parts->setSizes({400, 930});
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->setSpacing(4);
  layout->addLayout(head);
  layout->addWidget(parts, 1);

  connect(m_results, &SeasonTableView::rowAsked, this,
          [this](int row) { emit gameAsked(m_person->results[static_cast<std::size_t>(row)].game); });
  connect(m_picture, &SeriesView::valueAsked, this,
          [this](int value) { emit gameAsked(m_person->results[static_cast<std::size_t>(value)].game); });
  connect(m_statistic, &QComboBox::currentIndexChanged, this, &PersonPanel::showPicture);
}

QWidget* PersonPanel::makeRecords() {
  auto* part = new QWidget(this);
  m_recordTitle = inBold(new PlainLabel(part), "lblRECORDS");
  m_records = new SeasonTableView(QStringLiteral("lvwRECORD"), 0, part);
  auto* layout = new QVBoxLayout(part);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(2);
  layout->addWidget(m_recordTitle);
  layout->addWidget(m_records, 1);
  return part;
}

QWidget* PersonPanel::makePictures() {
  auto* part = new QSplitter(Qt::Horizontal, this);
  part->setObjectName(QStringLiteral("personPictures"));
  part->setChildrenCollapsible(false);
  auto* games = new QWidget(part);
  m_statistic = new QComboBox(games);
  m_statistic->setObjectName(QStringLiteral("lstSTATISTIC"));
  setAccessibleNumber(*m_statistic, Text::ShownStatistic);
  setToolTipNumber(*m_statistic, Text::ShownStatistic);
  m_picture = new SeriesView(QStringLiteral("picGAMES"), games);
  auto* layout = new QVBoxLayout(games);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(2);
  layout->addWidget(m_statistic, 0, Qt::AlignLeft);
  layout->addWidget(m_picture, 1);
  m_shots = new ZoneChart(QStringLiteral("picSHOTS"), m_texts, part);
  part->addWidget(games);
  part->addWidget(m_shots);
  part->setStretchFactor(0, 2);
  part->setStretchFactor(1, 1);
  part->setSizes({640, 360});
  return part;
}

void PersonPanel::showPerson(std::shared_ptr<const SeasonPerson> person) {
  m_person = std::move(person);
  showStatistics();
  m_records->showRows(m_person == nullptr ? TableRows() : recordRows(m_person));
  m_results->showRows(m_person == nullptr ? TableRows() : resultRows(m_person, m_texts));
  showTexts();
  showPicture();
  showShots();
}

void PersonPanel::relabelPanel() {
  m_records->showColumns(recordColumns());
  showStatistics();
  showTexts();
  showPicture();
  showShots();
}

// What the user's own statistics are called depends on the games.
void PersonPanel::showStatistics() {
  const OwnLabels labels = m_person == nullptr ? OwnLabels() : m_person->season->statistics().labels();
  m_results->showColumns(resultColumns(m_settings, m_texts, labels));
  const QSignalBlocker quiet(m_statistic);
  const QVariant chosen = m_statistic->count() == 0 ? seasonColumn("PTS").index : m_statistic->currentData();
  m_statistic->clear();
  for (const Statistic& statistic : statistics())
    m_statistic->addItem(statisticName(statistic.seasonColumn, m_settings, m_texts, labels),
                         statistic.seasonColumn);
  m_statistic->setCurrentIndex(m_statistic->findData(chosen));
}

void PersonPanel::applyColours() {
  m_shots->applyColours();
  m_picture->update();
}

void PersonPanel::showTexts() {
  const bool isLine = m_person != nullptr && m_person->isLine;
  m_recordTitle->setText(caption(m_texts, isLine ? Text::LineRecords : Text::PersonalRecords));
  m_records->setAccessibleName(m_recordTitle->text());
  m_number->setText(m_person == nullptr ? QString() : toQt(m_person->row.number));
  m_name->setText(m_person == nullptr
                      ? caption(m_texts, Text::ChooseSomebody)
                      : toQt(m_person->row.players.empty() ? m_person->row.name : m_person->row.players));
  if (m_person == nullptr)
    return m_games->clear();
  const SeasonTeam& team = m_person->season->catalogue().teams()[m_person->row.team];
  m_games->setText(
      toQt(team.key) + QStringLiteral("  ·  ") +
      toQt(countWords(m_person->results.size(), Text::OneGamePlayed, Text::GamesPlayed, m_texts)));
  const QString who = m_number->text() + u' ' + m_name->text();
  for (const auto& [widget, title] : {std::pair<QWidget*, QString>(m_records, m_recordTitle->text()),
                                      {m_results, caption(m_texts, Text::ResultsByGame)},
                                      {m_picture, {}},
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
  if (m_person == nullptr)
    m_shots->showShots({}, {});
  else if (m_person->shots)
    m_shots->showShots(*m_person->shots, m_person->season->shots());
  else
    m_shots->showReason(caption(m_texts, Text::NoShotsByLine));
}

} // namespace hooptab
