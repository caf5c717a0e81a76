#include "exchange/frmIMPORT.h"

#include "appearance/Card.h"
#include "appearance/Dialogs.h"
#include "appearance/ElidedLabel.h"
#include "appearance/Fields.h"
#include "appearance/Mnemonics.h"
#include "appearance/NoticeStrip.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "exchange/ImportDetails.h"
#include "exchange/NamesPanel.h"
#include "exchange/RowTable.h"
#include "settings/StorageWords.h"
#include "storage/CalendarDay.h"
#include "storage/Placeholders.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QDataStream>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <algorithm>
#include <memory>
#include <utility>

namespace hooptab {

namespace {

constexpr int kMargin = 8;
constexpr int kGap = 6;
constexpr int kBarWidth = 160;
constexpr int kDateLetters = 12;
constexpr int kGamesShare = 600; // of the height
constexpr int kDetailsShare = 330;
enum GameColumn { kFiles, kFormat, kDate, kVisitors, kHome, kScore, kOfficial, kState };

QPushButton& button(QWidget& window, const char* name) {
  return *window.findChild<QPushButton*>(QLatin1String(name));
}

} // namespace

frmIMPORT::frmIMPORT(FileSystem& files, const Settings& settings, const Texts& texts, Dialogs& dialogs,
                     QWidget* parent)
    : ChildWindow(parent), m_files(files), m_texts(texts), m_dialogs(dialogs) {
  setObjectName(QStringLiteral("frmIMPORT"));
  m_notice = new NoticeStrip("stpNOTICE", this);
  auto* splitter = new QSplitter(Qt::Vertical, this);
  splitter->setObjectName(QStringLiteral("splIMPORT"));
  splitter->setChildrenCollapsible(false);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->setSpacing(kGap);
  layout->addWidget(makeSources());
  layout->addWidget(m_notice);
  layout->addWidget(splitter, 1);
  splitter->addWidget(makeGames());
  m_tabs = new QTabWidget(splitter);
  m_tabs->setObjectName(QStringLiteral("tabs"));
  m_details = new ImportDetails(m_texts, m_tabs);
  m_names = new NamesPanel(m_texts, m_tabs);
  m_tabs->addTab(m_details, QString());
  m_tabs->addTab(m_names, QString());
  setTabTextNumber(*m_details, Text::GameCard);
  setTabTextNumber(*m_names, Text::NamesTab);
  splitter->addWidget(m_tabs);
  splitter->setStretchFactor(0, 2);
  splitter->setStretchFactor(1, 1);
  splitter->setSizes({kGamesShare, kDetailsShare});
  layout->addWidget(makeButtons());
  m_folder->setText(toQt(settings.lastGameFolder));
  m_lookedFolder = settings.lastGameFolder;
  connectEverything();
  selectOnFocus(*this);
  relabelWindow();
  applyColours();
  endWork();
}

// --- Its parts

QWidget* frmIMPORT::makeSources() {
  auto* card = new Card(this);
  auto* layout = new QVBoxLayout(card);
  layout->setSpacing(kGap);
  auto* first = new QHBoxLayout;
  first->setSpacing(kGap);
  first->addWidget(iconButton("cmdADDFILES", Text::AddSourceFiles, Text::AddSourceFilesTip, "add", card));
  first->addWidget(
      iconButton("cmdADDFOLDER", Text::AddSourceFolder, Text::AddSourceFolderTip, "vwopen", card));
  first->addStretch();
  first->addWidget(makeProgress());
  layout->addLayout(first);
  layout->addWidget(makeTarget());
  return card;
}

QWidget* frmIMPORT::makeProgress() {
  auto* whole = new QWidget(this);
  m_progressLabel = new PlainLabel(whole);
  m_progressLabel->setObjectName(QStringLiteral("lblPROGRESS"));
  m_progress = new QProgressBar(whole);
  m_progress->setObjectName(QStringLiteral("progress"));
  m_progress->setFixedWidth(kBarWidth);
  m_progress->setTextVisible(false);
  m_cancel = iconButton("cmdSTOP", Text::Cancel, Text::StopImportTip, "closelivemanual", whole);
  auto* row = new QHBoxLayout(whole);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kGap);
  row->addWidget(m_progressLabel);
  row->addWidget(m_progress);
  row->addWidget(m_cancel);
  for (QWidget* part : {static_cast<QWidget*>(m_progressLabel), static_cast<QWidget*>(m_progress),
                        static_cast<QWidget*>(m_cancel)}) { // nothing moves when work begins and ends
    QSizePolicy policy = part->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    part->setSizePolicy(policy);
  }
  return whole;
}

QWidget* frmIMPORT::makeTarget() {
  auto* whole = new QWidget(this);
  m_folder = new QLineEdit(whole);
  m_folder->setObjectName(QStringLiteral("txtFOLDER"));
  limitField(*m_folder, m_texts);
  m_date = new QLineEdit(whole);
  m_date->setObjectName(QStringLiteral("txtDATE"));
  limitField(*m_date, m_texts, kDateLetters);
  m_date->setFixedWidth((kDateLetters + 3) * m_date->fontMetrics().averageCharWidth());
  m_replaces = new QCheckBox(whole);
  m_replaces->setObjectName(QStringLiteral("chkREPLACE"));
  setTextNumber(*m_replaces, Text::ReplaceThere);
  setToolTipNumber(*m_replaces, Text::ReplaceThereTip);
  auto* row = new QHBoxLayout(whole);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kGap);
  row->addWidget(captionFor(*m_folder, Text::ImportInto));
  row->addWidget(m_folder, 1);
  row->addWidget(iconButton("cmdBROWSE", Text::BrowseFolders, Text::BrowseImportTip, "vwopen", whole));
  row->addSpacing(kMargin);
  row->addWidget(captionFor(*m_date, Text::DateForNone));
  row->addWidget(m_date);
  row->addSpacing(kMargin);
  row->addWidget(m_replaces);
  setToolTipNumber(*m_folder, Text::ImportIntoTip);
  setToolTipNumber(*m_date, Text::DateForNoneTip);
  return whole;
}

QWidget* frmIMPORT::makeGames() {
  m_table = new RowTable("tblGAMES", Text::GamesTitle,
                         {{Text::FilesColumn, 36},
                          {Text::FormatColumn, 13},
                          {Text::Date, 11},
                          {Text::Visitor, 24},
                          {Text::Home, 24},
                          {Text::Score, 10},
                          {Text::OfficialColumn, 25},
                          {Text::StateColumn, 28, false, false, true}},
                         m_texts, this);
  return m_table;
}

QWidget* frmIMPORT::makeButtons() {
  auto* whole = new QWidget(this);
  m_all = new QCheckBox(whole);
  m_all->setObjectName(QStringLiteral("chkALL"));
  setTextNumber(*m_all, Text::CheckAllGames);
  setToolTipNumber(*m_all, Text::CheckAllGamesTip);
  m_counts = new ElidedLabel(whole);
  m_counts->setObjectName(QStringLiteral("lblCOUNTS"));
  m_counts->setForegroundRole(QPalette::PlaceholderText);
  auto* row = new QHBoxLayout(whole);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kGap);
  row->addWidget(m_all);
  row->addSpacing(kMargin);
  row->addWidget(m_counts, 1);
  row->addWidget(iconButton("cmdOPEN", Text::OpenImported, Text::OpenImportedTip, "view", whole));
  row->addWidget(iconButton("cmdTEAMS", Text::TakeTeams, Text::TakeTeamsTip, "gequipe", whole));
  row->addWidget(iconButton("cmdIMPORT", Text::ImportChecked, Text::ImportCheckedTip, "import", whole));
  return whole;
}

void frmIMPORT::connectEverything() {
  const auto onClick = [this](const char* name, auto act) {
    connect(&button(*this, name), &QPushButton::clicked, this, act);
  };
  onClick("cmdADDFILES", [this] { addFiles(); });
  onClick("cmdADDFOLDER", [this] { addFolder(); });
  onClick("cmdBROWSE", [this] { browse(); });
  onClick("cmdSTOP", [this] { m_task.cancel(); });
  onClick("cmdOPEN", [this] { open(m_table->currentRow()); });
  onClick("cmdTEAMS", [this] { takeTeams(); });
  onClick("cmdIMPORT", [this] { importChecked(); });
  connect(m_folder, &QLineEdit::editingFinished, this, &frmIMPORT::lookAgain);
  connect(m_date, &QLineEdit::editingFinished, this, &frmIMPORT::lookAgain);
  connect(m_replaces, &QCheckBox::toggled, this, &frmIMPORT::showState);
  connect(m_all, &QCheckBox::clicked, this, &frmIMPORT::checkAll);
  connect(m_table, &RowTable::rowAsked, this, &frmIMPORT::open);
  connect(m_table, &RowTable::currentRowChanged, this, &frmIMPORT::showCurrent);
  connect(m_details, &ImportDetails::fileChosen, this, &frmIMPORT::chooseFile);
  connect(m_names, &NamesPanel::saveAsked, this, &frmIMPORT::saveNames);
  m_stateLater.setSingleShot(true);
  connect(&m_stateLater, &QTimer::timeout, this, &frmIMPORT::showState);
  connect(&m_task, &Task::progressed, this, &frmIMPORT::showProgress);
  connect(&m_task, &Task::failed, this, [this] { tell(caption(m_texts, Text::NoMemoryForImport)); });
  connect(&m_task, &Task::finished, this, &frmIMPORT::endWork);
  auto* escape =
      new QShortcut(QKeySequence(Qt::Key_Escape), this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
  connect(escape, &QShortcut::activated, &m_task, &Task::cancel);
}

// --- Finding games

void frmIMPORT::addFiles() {
  const QString folder = m_paths.empty() ? m_folder->text() : QFileInfo(toQt(m_paths.back())).absolutePath();
  add(m_dialogs.chooseFiles(this, caption(m_texts, Text::AddSourceFiles), folder,
                            fileFilter(toQt(m_texts.text(Text::SourceFilter)))));
}

void frmIMPORT::addFolder() {
  const QString folder = m_dialogs.chooseFolder(this, caption(m_texts, Text::AddSourceFolder),
                                                m_paths.empty() ? m_folder->text() : toQt(m_paths.back()));
  if (!folder.isEmpty())
    add({folder});
}

void frmIMPORT::add(const QStringList& paths) {
  for (const QString& path : paths) {
    const std::string given = fromQt(QDir::cleanPath(path));
    if (std::ranges::find(m_paths, given) == m_paths.end())
      m_paths.push_back(given);
  }
  if (paths.isEmpty())
    return;
  m_hasMore = isBusy();
  if (!m_hasMore)
    lookAtPaths();
}

void frmIMPORT::browse() {
  const QString folder =
      m_dialogs.chooseFolder(this, caption(m_texts, Text::BrowseFolders), m_folder->text());
  if (folder.isEmpty())
    return;
  m_folder->setText(folder);
  lookAgain();
}

std::optional<ImportRequest> frmIMPORT::request() {
  const std::string date = fromQt(m_date->text().trimmed());
  if (!date.empty() && !calendarDay(date)) {
    tell(toQt(m_texts.withPlaceholder(Text::NoSuchDate, date)));
    return std::nullopt;
  }
  ImportRequest request;
  request.folder = fromQt(QDir::cleanPath(m_folder->text()));
  request.date = date;
  request.replacesExisting = m_replaces->isChecked();
  return request;
}

void frmIMPORT::lookAtPaths() {
  m_notice->hide();
  ImportRequest look = request().value_or(ImportRequest{fromQt(m_folder->text())});
  startWork(Text::ReadingFiles,
            [this, &files = m_files, paths = m_paths, choices = m_choices,
             look](const TaskWatch& watch) -> Task::Delivery {
              auto looked = std::make_shared<LookedAt>(lookAtFiles(files, paths, choices, look, watch));
              return [this, looked] { takeLooked(std::move(*looked)); };
            });
}

void frmIMPORT::lookAgain() {
  const std::optional<ImportRequest> look = request();
  if (isBusy() || m_games.empty() || !look || (look->folder == m_lookedFolder && look->date == m_lookedDate))
    return;
  m_notice->hide();
  std::vector<SourceGroup> groups;
  for (const ImportedGame& game : m_games)
    groups.push_back(game.group);
  startWork(Text::ReadingFiles,
            [this, &files = m_files, groups, look = *look](const TaskWatch& watch) -> Task::Delivery {
              auto looked = std::make_shared<LookedAt>(lookAtGroups(files, groups, look, watch));
              return [this, looked] { takeLooked(std::move(*looked)); };
            });
}

void frmIMPORT::takeLooked(LookedAt looked) {
  if (!looked.isWhole && looked.games.empty())
    return tell(caption(m_texts, Text::ReadingCancelled));
  const ImportedGame* before = currentGame();
  const std::string front = before == nullptr ? std::string() : before->group.files.front();
  m_games = std::move(looked.games);
  looked.games.clear();
  m_looked = std::move(looked);
  if (!m_looked.isWhole)
    tell(caption(m_texts, Text::ReadingStopped));
  else if (m_games.empty())
    tell(caption(m_texts, Text::NoSourceFile));
  showGames();
  const auto still = std::ranges::find_if(
      m_games, [&](const ImportedGame& game) { return game.group.files.front() == front; });
  if (!m_games.empty())
    m_table->selectRow(still == m_games.end() ? 0 : static_cast<int>(still - m_games.begin()));
  m_names->show(m_looked.joins, m_looked.names);
  showNames();
}

void frmIMPORT::chooseFile(const QString& file) {
  const ImportedGame* game = currentGame();
  if (game == nullptr || isBusy())
    return;
  m_choices[game->group.files.front()].push_back(fromQt(file));
  lookAtPaths();
}

void frmIMPORT::saveNames() {
  ProfileStore store(m_files);
  const WriteResult written = m_names->chosen().save(store, fromQt(QDir::cleanPath(m_folder->text())));
  if (!written.isOnDisk())
    return m_dialogs.complain(this, toQt(m_texts.text(Text::ErrorTitle)),
                              toQt(storageWords(written.error(), m_texts)));
  m_lookedFolder.clear(); // the same folder, with other names
  lookAgain();
}

// --- Taking them in

bool frmIMPORT::isChecked(const ImportedGame& game) const {
  const auto chosen = m_checks.find(game.group.files.front());
  return chosen == m_checks.end() ? stateOf(game) == ImportState::New
                                  : chosen->second && isReadable(stateOf(game));
}

void frmIMPORT::checkAll(bool isOn) {
  for (const ImportedGame& game : m_games)
    m_checks[game.group.files.front()] = isOn;
  m_table->refresh();
  showState();
}

std::vector<std::size_t> frmIMPORT::checkedThat(bool (*fits)(ImportState state, bool replaces)) const {
  std::vector<std::size_t> places;
  for (std::size_t place = 0; place < m_games.size(); ++place) {
    if (isChecked(m_games[place]) && fits(stateOf(m_games[place]), m_replaces->isChecked()))
      places.push_back(place);
  }
  return places;
}

void frmIMPORT::importChecked() {
  const std::vector<std::size_t> places = checkedThat(canBeImported);
  const std::optional<ImportRequest> wanted = request();
  if (isBusy() || places.empty() || !wanted)
    return;
  m_notice->hide();
  if (!QFileInfo(toQt(wanted->folder)).isDir())
    return tell(toQt(
        m_texts.withPlaceholder(Text::NoSuchFolder, fromQt(QDir::toNativeSeparators(m_folder->text())))));
  const auto replaced = std::ranges::count_if(
      places, [this](std::size_t place) { return stateOf(m_games[place]) == ImportState::OtherThere; });
  if (replaced > 0 &&
      !m_dialogs.ask(this, toQt(m_texts.text(Text::WarningTitle)),
                     toQt(m_texts.withPlaceholder(Text::ReplaceGames, std::to_string(replaced)))))
    return;
  std::vector<SourceGroup> groups;
  for (const std::size_t place : places) {
    groups.push_back(m_games[place].group);
    m_checks[m_games[place].group.files.front()] = true;
  }
  startWork(
      Text::ImportingGames,
      [this, &files = m_files, groups, places, wanted = *wanted](const TaskWatch& watch) -> Task::Delivery {
        return [this, places, games = importGroups(files, groups, wanted, watch)] {
          takeImported(places, games);
        };
      });
}

void frmIMPORT::takeImported(const std::vector<std::size_t>& places, std::vector<ImportedGame> games) {
  const auto written = std::ranges::count(games, true, &ImportedGame::isWritten);
  const auto left = static_cast<std::ptrdiff_t>(places.size()) - written;
  for (std::size_t i = 0; i < games.size(); ++i)
    m_games[places[i]] = std::move(games[i]);
  const QString words = toQt(
      withPlaceholders(m_texts.text(m_task.isCancelled() ? Text::ImportingStopped : Text::ImportedCounts),
                       std::to_string(written), std::to_string(left)));
  tell(words);
  emit reported(words);
  m_table->refresh();
  showCurrent();
}

void frmIMPORT::takeTeams() {
  const std::vector<std::size_t> places =
      checkedThat([](ImportState state, bool) { return isInFolder(state); });
  if (isBusy() || places.empty())
    return;
  m_notice->hide();
  std::vector<std::string> paths;
  for (const std::size_t place : places)
    paths.push_back(m_games[place].path);
  startWork(Text::ReadingFiles, [this, &files = m_files, paths](const TaskWatch& watch) -> Task::Delivery {
    ProfileStore store(files);
    TeamsOfGames teams;
    for (std::size_t i = 0; i < paths.size() && !watch.isCancelled(); ++i) {
      Game game;
      if (GameFile(store, paths[i]).read(game) == GameFileProblem::None)
        teams.add(game);
      watch.progress(i + 1, paths.size());
    }
    return [this, teams] {
      if (m_task.isCancelled())
        return;
      // Later: whoever hears it asks the user, and the work is to be over by then.
      QTimer::singleShot(0, this, [this, teams] { emit teamsAsked(teams); });
    };
  });
}

void frmIMPORT::open(int row) {
  if (row < 0 || isBusy())
    return;
  const ImportedGame& game = m_games[static_cast<std::size_t>(row)];
  if (isInFolder(stateOf(game)))
    emit gameAsked(toQt(game.path));
}

// --- What is shown

const ImportedGame* frmIMPORT::currentGame() const {
  const int row = m_table->currentRow();
  return row < 0 ? nullptr : &m_games[static_cast<std::size_t>(row)];
}

void frmIMPORT::tell(const QString& text) {
  m_notice->tell(text);
}

void frmIMPORT::startWork(Text progress, Task::Work work) {
  m_progressText = progress;
  m_lookedFolder = fromQt(QDir::cleanPath(m_folder->text()));
  m_lookedDate = fromQt(m_date->text().trimmed());
  if (QWidget* focused = QApplication::focusWidget(); focused != nullptr && isAncestorOf(focused))
    m_table->setFocus(); // where it was may be disabled now
  m_task.start(std::move(work));
  showProgress();
  showState();
}

void frmIMPORT::showProgress() {
  const auto [done, total] = m_task.progress();
  m_progressLabel->setText(
      toQt(withPlaceholders(m_texts.text(m_progressText), std::to_string(done), std::to_string(total))));
  m_progress->setRange(0, total);
  m_progress->setValue(done);
  for (QWidget* part : {static_cast<QWidget*>(m_progressLabel), static_cast<QWidget*>(m_progress),
                        static_cast<QWidget*>(m_cancel)})
    part->show();
}

void frmIMPORT::endWork() {
  for (QWidget* part : {static_cast<QWidget*>(m_progressLabel), static_cast<QWidget*>(m_progress),
                        static_cast<QWidget*>(m_cancel)})
    part->hide();
  showState();
  if (std::exchange(m_hasMore, false))
    lookAtPaths();
}

QString frmIMPORT::cell(const ImportedGame& game, int column) const {
  switch (column) {
  case kFiles: return toQt(fileNames(game));
  case kFormat: return game.group.format ? toQt(formatName(*game.group.format)) : QString();
  case kDate: return toQt(game.date);
  case kVisitors: return toQt(teamWords(game, Side::Visitor));
  case kHome: return toQt(teamWords(game, Side::Home));
  case kScore: return toQt(scoreWords(game));
  case kOfficial: return toQt(numbersWords(game, m_texts));
  default: return toQt(stateWords(game, m_texts));
  }
}

void frmIMPORT::showGames() {
  const auto game = [this](int row) -> const ImportedGame& { return m_games[static_cast<std::size_t>(row)]; };
  RowSource rows;
  rows.count = static_cast<int>(m_games.size());
  rows.text = [this, game](int row, int column) { return cell(game(row), column); };
  rows.toolTip = [game](int row) {
    QStringList files;
    for (const std::string& file : game(row).group.files)
      files << QDir::toNativeSeparators(toQt(file));
    return files.join(u'\n');
  };
  rows.isChecked = [this, game](int row) -> std::optional<bool> {
    return isReadable(stateOf(game(row))) ? std::optional(isChecked(game(row))) : std::nullopt;
  };
  rows.check = [this, game](int row, bool isOn) {
    m_checks[game(row).group.files.front()] = isOn;
    m_stateLater.start();
  };
  rows.isMuted = [game](int row) { return !isReadable(stateOf(game(row))); };
  m_table->show(std::move(rows));
  showCurrent();
}

void frmIMPORT::showCurrent() {
  m_details->show(currentGame());
  showState();
}

void frmIMPORT::showState() {
  const auto checked = std::ranges::count_if(m_games, [this](const auto& game) { return isChecked(game); });
  const auto readable =
      std::ranges::count_if(m_games, [](const auto& game) { return isReadable(stateOf(game)); });
  m_counts->setText(toQt(withPlaceholders(m_texts.text(Text::ImportCounts), std::to_string(m_games.size()),
                                          std::to_string(checked))));
  m_all->setEnabled(readable > 0);
  m_all->setChecked(readable > 0 && checked == readable);
  const bool isIdle = !isBusy();
  for (const char* name : {"cmdADDFILES", "cmdADDFOLDER", "cmdBROWSE"})
    button(*this, name).setEnabled(isIdle);
  for (QWidget* field :
       {static_cast<QWidget*>(m_folder), static_cast<QWidget*>(m_date), static_cast<QWidget*>(m_replaces)})
    field->setEnabled(isIdle);
  button(*this, "cmdIMPORT").setEnabled(isIdle && !checkedThat(canBeImported).empty());
  button(*this, "cmdTEAMS").setEnabled(isIdle && !checkedThat([](ImportState state, bool) {
                                                    return isInFolder(state);
                                                  }).empty());
  const ImportedGame* game = currentGame();
  button(*this, "cmdOPEN").setEnabled(isIdle && game != nullptr && isInFolder(stateOf(*game)));
  m_details->setChoosing(isIdle);
  m_names->setSaving(isIdle);
}

void frmIMPORT::relabelWindow() {
  relabel(*this, m_texts);
  setWindowTitle(caption(m_texts, Text::ImportGames));
  m_table->refresh();
  m_details->relabelPanel();
  m_names->relabelPanel();
  showState();
  if (isBusy())
    showProgress();
  giveMnemonics(*this);
  m_namesTab = m_tabs->tabText(m_tabs->indexOf(m_names));
  showNames();
}

void frmIMPORT::showNames() {
  const QString count = m_names->count() == 0 ? QString() : QStringLiteral(" (%1)").arg(m_names->count());
  m_tabs->setTabText(m_tabs->indexOf(m_names), m_namesTab + count);
}

void frmIMPORT::applyColours() {
  m_notice->applyColours();
  m_table->fitToFont();
  m_details->fitToFont();
  m_names->fitToFont();
}

QByteArray frmIMPORT::arrangement() const {
  QByteArray state;
  QDataStream stream(&state, QIODevice::WriteOnly);
  for (const char* name : {"splIMPORT", "splDETAILS"})
    stream << findChild<QSplitter*>(QLatin1String(name))->saveState();
  stream << m_table->widths();
  return state;
}

void frmIMPORT::restoreArrangement(const QByteArray& state) {
  QDataStream stream(state);
  QByteArray part;
  for (const char* name : {"splIMPORT", "splDETAILS"}) {
    stream >> part;
    if (stream.status() == QDataStream::Ok)
      findChild<QSplitter*>(QLatin1String(name))->restoreState(part);
  }
  stream >> part;
  if (stream.status() == QDataStream::Ok)
    m_table->restoreWidths(part);
}

} // namespace hooptab
