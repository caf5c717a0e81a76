#include "studies/frmSTATS.h"

#include "appearance/Dialogs.h"
#include "appearance/Fields.h"
#include "appearance/Icons.h"
#include "appearance/Mnemonics.h"
#include "appearance/TableContent.h"
#include "appearance/relabel.h"
#include "season/FilterRow.h"
#include "season/SeasonTables.h"
#include "settings/CountWords.h"
#include "storage/Module1.h"
#include "storage/Placeholders.h"
#include "studies/AveragesPanel.h"
#include "studies/CriteriaPanel.h"
#include "studies/FolderPanel.h"
#include "studies/LeadersPanel.h"
#include "studies/PersonPanel.h"
#include "studies/SavedViews.h"
#include "studies/SearchPanel.h"
#include "studies/StandingsPanel.h"
#include "studies/TeamPanel.h"

#include <QBoxLayout>
#include <QDataStream>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QToolButton>
#include <algorithm>
#include <iterator>

namespace hooptab {

namespace {

constexpr int kMargin = 8;
constexpr int kSearchWidth = 220;

} // namespace

frmSTATS::frmSTATS(FileSystem& files, const Settings& settings, const Texts& texts, Dialogs& dialogs,
                   QWidget* parent)
    : ChildWindow(parent), m_files(files), m_settings(settings), m_texts(texts), m_dialogs(dialogs),
      m_folder(new FolderPanel(texts, this)), m_search(new QLineEdit(this)), m_notice(noticeLabel(this)),
      m_tabs(new QTabWidget(this)), m_standings(new StandingsPanel(settings, texts, m_tabs)),
      m_notRead(new SeasonTableView(QStringLiteral("lvwNOTREAD"), 0, m_tabs)),
      m_players(new AveragesPanel(SeasonTable::Players, settings, texts, m_tabs)),
      m_lines(new AveragesPanel(SeasonTable::Lines, settings, texts, m_tabs)),
      m_leaders(new LeadersPanel(settings, texts, m_tabs)),
      m_person(new PersonPanel(settings, texts, m_tabs)), m_team(new TeamPanel(texts, m_tabs)),
      m_found(new SearchPanel(texts, m_tabs)) {
  setObjectName(QStringLiteral("frmSTATS"));
  m_tabs->setObjectName(QStringLiteral("tabs"));
  m_folder->showFolder(toQt(settings.lastGameFolder), false);
  const std::pair<QWidget*, Text> pages[] = {{m_standings, Text::StandingsTab},
                                             {makeGames(), Text::GamesTitle},
                                             {m_players, Text::Players},
                                             {m_lines, Text::Lines},
                                             {m_leaders, Text::LeadersTab},
                                             {m_person, Text::PersonTab},
                                             {m_team, Text::Team},
                                             {m_found, Text::SearchTab},
                                             {m_notRead, Text::NotReadTab}};
  for (const auto& [page, text] : pages) {
    m_tabs->addTab(page, QString());
    setTabTextNumber(*page, text);
  }
  setAccessibleNumber(*m_notRead, Text::NotReadTab);
  m_tabs->setTabVisible(m_tabs->indexOf(m_notRead), false);
  m_tabs->setCornerWidget(makeTools());

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->setSpacing(6);
  m_search->setObjectName(QStringLiteral("txtSEARCHEVENTS"));
  m_search->setMinimumWidth(kSearchWidth);
  m_search->setClearButtonEnabled(true);
  setPlaceholderNumber(*m_search, Text::SearchAllEvents);
  setAccessibleNumber(*m_search, Text::SearchAllEvents);
  setToolTipNumber(*m_search, Text::SearchEventsHint);
  auto* head = new QHBoxLayout;
  head->setSpacing(kMargin);
  head->addWidget(m_folder, 1);
  head->addWidget(m_search, 0, Qt::AlignTop);
  layout->addLayout(head);
  layout->addWidget(m_notice);
  layout->addWidget(m_tabs, 1);

  connect(&m_task, &Task::progressed, this, &frmSTATS::showProgress);
  connect(&m_task, &Task::failed, this, [this] { m_problem = Text::NoMemoryForSeason; });
  connect(&m_task, &Task::finished, this, &frmSTATS::endWork);
  connect(m_folder, &FolderPanel::browseAsked, this, &frmSTATS::browse);
  connect(m_folder, &FolderPanel::readAsked, this, qOverload<>(&frmSTATS::readFolder));
  connect(m_folder, &FolderPanel::cancelAsked, &m_task, &Task::cancel);
  auto* escape =
      new QShortcut(QKeySequence(Qt::Key_Escape), this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
  connect(escape, &QShortcut::activated, &m_task, &Task::cancel);
  connect(m_folder, &FolderPanel::notReadAsked, this, [this] { m_tabs->setCurrentWidget(m_notRead); });
  connect(m_players, &AveragesPanel::personAsked, this,
          [this](const SeasonRow& row) { showPerson(row, false); });
  connect(m_leaders, &LeadersPanel::personAsked, this,
          [this](const SeasonRow& row) { showPerson(row, false); });
  connect(m_lines, &AveragesPanel::personAsked, this,
          [this](const SeasonRow& row) { showPerson(row, true); });
  connect(m_search, &QLineEdit::returnPressed, this, &frmSTATS::search);
  connect(m_found, &SearchPanel::gameAsked, this, &frmSTATS::openGame);
  connect(m_standings, &StandingsPanel::gameAsked, this, &frmSTATS::openGame);
  connect(m_standings, &StandingsPanel::teamAsked, this, &frmSTATS::showTeam);
  connect(m_standings, &StandingsPanel::personAsked, this,
          [this](const SeasonRow& row) { showPerson(row, false); });
  connect(m_leaders, &LeadersPanel::minimumChosen, this, &frmSTATS::chooseMinimum);
  connect(m_person, &PersonPanel::gameAsked, this, &frmSTATS::openGame);
  connect(m_team, &TeamPanel::gameAsked, this, &frmSTATS::openGame);
  connect(m_team, &TeamPanel::scoutAsked, this, &frmSTATS::scoutAsked);
  for (SeasonTableView* table : findChildren<SeasonTableView*>()) {
    connect(table, &SeasonTableView::copied, this,
            [this] { emit reported(caption(m_texts, Text::TableCopied)); });
    connect(table, &SeasonTableView::focused, this, [this, table] { m_lastTable = table; });
  }
  relabelWindow();
}

QWidget* frmSTATS::makeTools() {
  auto* tools = new QWidget(m_tabs);
  auto* layout = new QHBoxLayout(tools);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(2);
  const auto add = [&](QToolButton* button, const char* name, const char* iconName, Text text) {
    button->setObjectName(QLatin1String(name));
    button->setAutoRaise(true);
    button->setIcon(icon(QLatin1String(iconName)));
    setToolTipNumber(*button, text);
    setAccessibleNumber(*button, text);
    layout->addWidget(button);
    return button;
  };
  m_filters = add(new QToolButton(tools), "cmdFILTERS", "filter", Text::ShowFilters);
  m_filters->setCheckable(true);
  m_views = new SavedViews(m_texts, tools);
  add(m_views, "cmdVIEWS", "sheet", Text::SavedViews);
  const QToolButton* toFile = add(new QToolButton(tools), "cmdGAMESTOFILE", "stgames", Text::WeekendCommand);
  connect(toFile, &QToolButton::clicked, this, &frmSTATS::gamesToFileAsked);
  const QToolButton* copy = add(new QToolButton(tools), "cmdCOPY", "copy", Text::CopyTable);
  connect(m_filters, &QToolButton::toggled, this, &frmSTATS::showFilters);
  connect(m_views, &SavedViews::keepAsked, this,
          [this](const QString& name) { m_views->keep(name, view()); });
  connect(m_views, &SavedViews::viewAsked, this, &frmSTATS::showView);
  connect(copy, &QToolButton::clicked, this, &frmSTATS::copyShownTable);
  return tools;
}

QWidget* frmSTATS::makeGames() {
  auto* page = new QWidget(m_tabs);
  m_criteria = new CriteriaPanel(m_texts, page);
  m_games = new SeasonTableView(QStringLiteral("lvwGAMES"), 0, page);
  setAccessibleNumber(*m_games, Text::GamesTitle);
  auto* layout = new QVBoxLayout(page);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->setSpacing(6);
  layout->addWidget(m_criteria);
  layout->addWidget(withFilters(*m_games, 0, m_texts, page), 1);
  connect(m_criteria, &CriteriaPanel::changed, this,
          [this] { m_criteria->showWhatIsOffered(m_desk, isBusy()); });
  connect(m_criteria, &CriteriaPanel::applyAsked, this, &frmSTATS::apply);
  connect(m_criteria, &CriteriaPanel::generateAsked, this, [this] { generate(*m_players); });
  connect(m_games, &SeasonTableView::rowAsked, this,
          [this](int row) { openGame(m_desk.listed()[static_cast<std::size_t>(row)]); });
  return page;
}

void frmSTATS::browse() {
  const QString folder =
      m_dialogs.chooseFolder(this, caption(m_texts, Text::BrowseFolders), m_folder->folder());
  if (!folder.isEmpty())
    readFolder(folder, m_folder->withSubfolders());
}

void frmSTATS::readFolder(const QString& folder, bool withSubfolders) {
  m_folder->showFolder(folder, withSubfolders);
  readFolder();
}

void frmSTATS::readFolder() {
  if (isBusy())
    return;
  ScanRequest request;
  request.folder = fromQt(QDir::cleanPath(m_folder->folder()));
  request.withSubfolders = m_folder->withSubfolders();
  request.cacheFolder = m_cacheFolder;
  startWork(Text::LoadingOneGame, Text::LoadingGames,
            [this, &files = m_files, request](const TaskWatch& watch) -> Task::Delivery {
              auto catalogue = std::make_shared<GameCatalogue>(files);
              const ScanOutcome outcome = catalogue->scan(request, watch);
              return [this, outcome, catalogue] { takeScan(outcome, catalogue); };
            });
}

void frmSTATS::takeScan(ScanOutcome outcome, std::shared_ptr<const GameCatalogue> catalogue) {
  switch (outcome) {
  case ScanOutcome::Done: break;
  case ScanOutcome::Cancelled: m_problem = Text::ReadingCancelled; return;
  case ScanOutcome::FolderMissing: m_problem = Text::NoSuchFolder; return;
  case ScanOutcome::FolderUnreadable: m_problem = Text::FolderCannotBeRead; return;
  }
  if (catalogue->games().empty())
    m_problem = Text::NoFinishedGame;
  m_countedWrong.clear();
  m_desk.takeCatalogue(std::move(catalogue));
  m_found->clear();
  showCatalogue();
  showSeason();
}

void frmSTATS::apply() {
  m_desk.apply(m_criteria->choice());
  showList();
}

void frmSTATS::generate(QWidget& page) {
  if (isBusy() || !mayCountWrong())
    return;
  m_progressCount = m_desk.listed().size();
  startWork(Text::GeneratingOfOne, Text::GeneratingStatistics,
            [this, &page, order = m_desk.order(), // texts of its own: the user may change the language
             texts = m_texts](const TaskWatch& watch) -> Task::Delivery {
              auto season = order.carryOut(texts, watch);
              return [this, &page, order, season] {
                if (season == nullptr || m_task.isCancelled()) {
                  m_problem = Text::ReadingCancelled;
                  return;
                }
                m_desk.takeSeason(season, order, m_texts);
                showSeason();
                m_tabs->setCurrentWidget(&page);
              };
            });
}

void frmSTATS::search() {
  if (isBusy() || !m_desk.hasCatalogue() || m_search->text().trimmed().isEmpty())
    return;
  const std::shared_ptr<const GameCatalogue> catalogue = m_desk.catalogue();
  const EventQuery query = parseEventQuery(fromQt(m_search->text()), catalogue->teams());
  m_tabs->setCurrentWidget(m_found);
  if (query.isEmpty())
    return m_found->showUnknown(query);
  m_progressCount = m_desk.listed().size();
  startWork(Text::SearchingGames, Text::SearchingGames,
            [this, &files = m_files, catalogue, games = m_desk.listed(), query,
             texts = m_texts](const TaskWatch& watch) -> Task::Delivery {
              FoundEvents found = searchEvents(files, *catalogue, games, query.criteria, texts, watch);
              return [this, catalogue, query, found = std::move(found)] {
                if (m_task.isCancelled())
                  m_problem = Text::ReadingCancelled;
                else
                  m_found->showFound(catalogue, query, found);
              };
            });
}

// Games that cannot be right enter the totals only when the user has been told of them, once for each choice
// of games; else they are left out. False where no game remains.
bool frmSTATS::mayCountWrong() {
  constexpr std::size_t kToldGames = 5;
  const GameCatalogue& catalogue = *m_desk.catalogue();
  std::vector<std::size_t> wrong;
  std::ranges::copy_if(m_desk.listed(), std::back_inserter(wrong),
                       [&](std::size_t place) { return catalogue.games()[place].wrongCount > 0; });
  if (wrong.empty() || wrong == m_countedWrong)
    return true;
  QString text = toQt(m_texts.withPlaceholder(Text::CountWrongToo, std::to_string(wrong.size())));
  for (std::size_t i = 0; i < std::min(wrong.size(), kToldGames); ++i) {
    const ListedGame& game = catalogue.games()[wrong[i]];
    text += u'\n' + QFileInfo(toQt(game.path)).fileName() + u'\n' + QStringLiteral("    ") +
            toQt(catalogue.whyWrong(game, m_texts));
  }
  if (wrong.size() > kToldGames)
    text += QStringLiteral("\n…");
  if (m_dialogs.ask(this, caption(m_texts, Text::SeasonTitle), text)) {
    m_countedWrong = std::move(wrong);
    return true;
  }
  m_criteria->leaveOutWrong();
  SeasonChoice choice = m_desk.choice(); // not what else has been chosen and not applied
  choice.games.leavesOutWrong = true;
  m_desk.apply(choice);
  showList();
  return m_desk.canGenerate();
}

void frmSTATS::showPerson(const SeasonRow& row, bool isLine) {
  if (isBusy())
    return;
  m_progressCount = static_cast<std::size_t>(row.games);
  startWork(Text::LoadingOneOfPerson, Text::LoadingPerson,
            [this, season = m_desk.season(), row, isLine,
             texts = m_texts](const TaskWatch& watch) -> Task::Delivery {
              auto person = std::make_shared<const SeasonPerson>(season, row, isLine, texts, watch);
              return [this, person] {
                if (m_task.isCancelled())
                  return;
                m_person->showPerson(person);
                m_tabs->setCurrentWidget(m_person);
              };
            });
}

void frmSTATS::showTeam(SeasonId team) {
  m_team->chooseTeam(team);
  m_tabs->setCurrentWidget(m_team);
}

void frmSTATS::chooseMinimum(const Qualification& minimum) {
  m_desk.setMinimum(minimum, m_texts);
  showRanking();
}

void frmSTATS::setFormulaReader(FormulaReader reader) {
  m_readFormula = std::move(reader);
  takeOwnRating();
}

void frmSTATS::takeOwnRating() {
  SeasonRating rating = SeasonRating::of(m_settings.ownRating, m_readFormula);
  if (rating.isSameAs(m_desk.ownRating()))
    return;
  m_desk.setOwnRating(std::move(rating), m_texts);
  showRanking();
  m_lines->showSeason(m_desk.season());
  if (m_person->person() == nullptr)
    return;
  auto person = std::make_shared<SeasonPerson>(*m_person->person());
  person->season = m_desk.season();
  m_person->showPerson(person);
}

// What minimum and rating decide: marks, columns and leaders.
void frmSTATS::showRanking() {
  m_players->showSeason(m_desk.season());
  m_leaders->showMinimum(m_desk.minimum(), m_desk.season());
  m_standings->showSeason(m_desk.season());
}

std::shared_ptr<const SeasonPerson> frmSTATS::chosenPerson() const {
  return m_person->person();
}

std::optional<SeasonId> frmSTATS::shownTeam() const {
  return m_team->team();
}

std::optional<SeasonId> frmSTATS::readingTeam() const {
  return m_team->reader();
}

frmSTATS::Page frmSTATS::shownPage() const {
  return static_cast<Page>(m_tabs->currentIndex()); // pages stand in that order
}

SeasonView frmSTATS::shownLeaders() const {
  return m_leaders->view();
}

std::vector<const ListedGame*> frmSTATS::chosenGames() const {
  std::vector<const ListedGame*> games;
  if (m_desk.hasCatalogue()) {
    for (const int row : m_games->chosenRows())
      games.push_back(&m_desk.catalogue()->games()[m_desk.listed()[static_cast<std::size_t>(row)]]);
  }
  return games;
}

void frmSTATS::openGame(std::size_t game) {
  emit gameAsked(toQt(m_desk.catalogue()->games()[game].path));
}

void frmSTATS::startWork(Text one, Text text, Task::Work work) {
  m_problem = Text::None;
  m_progressOne = one;
  m_progressText = text;
  m_task.start(std::move(work));
  showProgress();
  showNotice();
  m_criteria->showWhatIsOffered(m_desk, isBusy());
}

void frmSTATS::showProgress() {
  const auto [done, total] = m_task.progress();
  const auto games = m_progressText == Text::LoadingGames ? static_cast<std::size_t>(total) : m_progressCount;
  m_folder->showProgress(
      toQt(m_texts.withPlaceholder(games == 1 ? m_progressOne : m_progressText, std::to_string(games))), done,
      total);
}

void frmSTATS::endWork() {
  m_folder->endProgress();
  m_criteria->showWhatIsOffered(m_desk, isBusy());
  showNotice();
}

void frmSTATS::showCatalogue() {
  m_criteria->showDesk(m_desk);
  m_notRead->showRows(skippedRows(m_desk.catalogue(), m_texts));
  m_tabs->setTabVisible(m_tabs->indexOf(m_notRead), !m_desk.catalogue()->skipped().empty());
  showList();
}

void frmSTATS::showList() {
  m_games->showRows(gameListRows(m_desk.catalogue(), m_desk.listed(), m_desk.chosenTeam(), m_texts));
  m_standings->showGames(m_desk.catalogue(), m_desk.listed());
  const GameCatalogue& catalogue = *m_desk.catalogue();
  const Text listedText = catalogue.games().size() == 1 ? Text::ListedOfOne : Text::ListedGames;
  const std::string listed =
      withPlaceholders(m_texts.text(listedText), std::to_string(m_desk.listed().size()),
                       std::to_string(catalogue.games().size()));
  // A game that is being played is not one that could not be read.
  const auto unfinished = static_cast<std::size_t>(
      std::ranges::count(catalogue.skipped(), SkipReason::NotFinished, &SkippedFile::reason));
  QStringList leftOut;
  if (unfinished > 0)
    leftOut << toQt(countWords(unfinished, Text::OneGameNotFinished, Text::GamesNotFinished, m_texts));
  if (const std::size_t unread = catalogue.skipped().size() - unfinished; unread > 0)
    leftOut << toQt(countWords(unread, Text::OneFileNotRead, Text::FilesNotRead, m_texts));
  m_folder->showCounts(toQt(listed), leftOut.join(QStringLiteral("  ·  ")));
  m_criteria->showWhatIsOffered(m_desk, isBusy());
  showNotice();
}

void frmSTATS::showSeason() {
  m_standings->showSeason(m_desk.season());
  m_players->showSeason(m_desk.season());
  m_lines->showSeason(m_desk.season());
  m_leaders->showSeason(m_desk.season());
  m_team->showSeason(m_desk.season());
  m_person->showPerson(nullptr);
}

void frmSTATS::showNotice() {
  QString notice;
  if (m_problem != Text::None)
    notice = toQt(m_texts.withPlaceholder(m_problem, fromQt(m_folder->folder())));
  else if (m_desk.hasCatalogue() && m_desk.isOutdated())
    notice = toQt(countWords(m_desk.season()->statistics().games().size(), Text::OutdatedOfOne,
                             Text::CriteriaChanged, m_texts));
  m_notice->setText(notice);
  m_notice->setVisible(!notice.isEmpty());
}

// The one that the user was in, else the first of the page.
void frmSTATS::copyShownTable() {
  const SeasonTableView* shown = nullptr;
  for (const SeasonTableView* table : findChildren<SeasonTableView*>()) {
    if (table->isVisibleTo(this) && (shown == nullptr || table == m_lastTable))
      shown = table;
  }
  if (shown == nullptr)
    return;
  copyTable(*shown);
  emit reported(caption(m_texts, Text::TableCopied));
}

void frmSTATS::showFilters(bool areShown) {
  for (FilterRow* row : findChildren<FilterRow*>())
    row->showFields(areShown);
}

QByteArray frmSTATS::view() const {
  QMap<QString, QStringList> filters;
  for (const FilterRow* row : findChildren<FilterRow*>())
    filters[row->objectName()] = row->typed();
  QMap<QString, QByteArray> columns;
  for (const SeasonTableView* table : findChildren<SeasonTableView*>())
    columns[table->objectName()] = table->horizontalHeader()->saveState();
  QByteArray state;
  QDataStream stream(&state, QIODevice::WriteOnly);
  stream << qint32(m_tabs->currentIndex()) << m_criteria->kept() << m_filters->isChecked() << filters
         << columns;
  return qCompress(state); // the columns of many tables are much alike
}

void frmSTATS::showView(const QByteArray& view) {
  qint32 index = 0;
  QByteArray criteria;
  bool hasFilters = false;
  QMap<QString, QStringList> filters;
  QMap<QString, QByteArray> columns;
  const QByteArray state = qUncompress(view);
  QDataStream stream(state);
  stream >> index >> criteria >> hasFilters >> filters >> columns;
  QWidget* page = m_tabs->widget(index);
  if (stream.status() != QDataStream::Ok || page == nullptr || isBusy())
    return;
  m_criteria->restore(criteria);
  for (FilterRow* row : findChildren<FilterRow*>())
    row->setTyped(filters[row->objectName()]);
  m_filters->setChecked(hasFilters);
  for (SeasonTableView* table : findChildren<SeasonTableView*>()) {
    if (const QByteArray header = columns[table->objectName()]; !header.isEmpty())
      table->horizontalHeader()->restoreState(header);
  }
  m_tabs->setCurrentWidget(page);
  if (!m_desk.hasCatalogue())
    return;
  apply();
  const bool showsFigures = page == m_players || page == m_lines || page == m_leaders || page == m_team;
  if (showsFigures && m_desk.canGenerate() && (m_desk.season() == nullptr || m_desk.isOutdated()))
    generate(*page);
}

void frmSTATS::relabelWindow() {
  relabel(*this, m_texts);
  setWindowTitle(caption(m_texts, Text::SeasonTitle));
  takeOwnRating();
  m_criteria->relabelPanel();
  m_games->showColumns(gameListColumns(m_texts));
  m_notRead->showColumns(skippedColumns(m_texts));
  m_standings->relabelPanel();
  m_players->relabelPanel();
  m_lines->relabelPanel();
  m_leaders->relabelPanel();
  m_person->relabelPanel();
  m_team->relabelPanel();
  m_found->relabelPanel();
  if (m_desk.hasCatalogue()) {
    m_criteria->showDesk(m_desk);
    showList();
  }
  if (isBusy())
    showProgress();
  giveMnemonics(*this);
}

void frmSTATS::applyColours() {
  for (const auto& [name, iconName] : {std::pair("cmdCOPY", "copy"),
                                       {"cmdFILTERS", "filter"},
                                       {"cmdVIEWS", "sheet"},
                                       {"cmdGAMESTOFILE", "stgames"}})
    findChild<QToolButton*>(QLatin1String(name))->setIcon(icon(QLatin1String(iconName)));
  m_person->applyColours();
  m_team->applyColours();
  relabelWindow(); // tool tips name the user's statistics
}

// Parts by name: their order among the children changes as pages come to the front.
QByteArray frmSTATS::arrangement() const {
  QMap<QString, QByteArray> parts;
  for (const QSplitter* splitter : findChildren<QSplitter*>())
    parts[splitter->objectName()] = splitter->saveState();
  for (const SeasonTableView* table : findChildren<SeasonTableView*>())
    parts[table->objectName()] = table->widths();
  QByteArray state;
  QDataStream stream(&state, QIODevice::WriteOnly);
  const Qualification& minimum = m_desk.minimum();
  stream << m_folder->folder() << m_folder->withSubfolders() << parts << qint32(minimum.gamesPercent)
         << qint32(minimum.minutes) << qint32(minimum.attempts) << m_views->views()
         << m_standings->countsPractice() << m_leaders->areCards();
  return state;
}

void frmSTATS::restoreArrangement(const QByteArray& state) {
  QDataStream stream(state);
  QString folder;
  bool withSubfolders = false;
  QMap<QString, QByteArray> parts;
  stream >> folder >> withSubfolders >> parts;
  if (stream.status() != QDataStream::Ok)
    return; // the first time, or of another version
  m_folder->showFolder(folder, withSubfolders);
  for (QSplitter* splitter : findChildren<QSplitter*>())
    splitter->restoreState(parts[splitter->objectName()]);
  for (SeasonTableView* table : findChildren<SeasonTableView*>())
    table->restoreWidths(parts[table->objectName()]);
  qint32 games = 0;
  qint32 minutes = 0;
  qint32 attempts = 0;
  stream >> games >> minutes >> attempts;
  if (stream.status() == QDataStream::Ok) // an older version kept no minimum
    chooseMinimum({std::clamp(games, 0, Qualification::kMostPercent),
                   std::clamp(minutes, 0, Qualification::kMostMinutes),
                   std::clamp(attempts, 0, Qualification::kMostAttempts)});
  SavedViews::Views views;
  stream >> views;
  if (stream.status() == QDataStream::Ok)
    m_views->setViews(std::move(views));
  bool countsPractice = false;
  bool areCards = true;
  stream >> countsPractice >> areCards;
  if (stream.status() != QDataStream::Ok)
    return;
  m_standings->countPractice(countsPractice);
  m_leaders->showAsCards(areCards);
}

} // namespace hooptab
