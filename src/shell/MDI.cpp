#include "shell/MDI.h"

#include "appearance/ChildWindow.h"
#include "appearance/Dialogs.h"
#include "appearance/Icons.h"
#include "appearance/PlainText.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "court/frmCOULEURS.h"
#include "formula/frmRATING.h"
#include "live/frmLIVE.h"
#include "manual/frmMANUAL.h"
#include "printing/ReportOutput.h"
#include "printing/WindowExports.h"
#include "review/frmVIEW.h"
#include "shell/CommandBar.h"
#include "shell/ExchangeDesk.h"
#include "shell/GameDialogs.h"
#include "shell/GameMenu.h"
#include "shell/InputDesk.h"
#include "shell/MainMenu.h"
#include "shell/PreviewDesk.h"
#include "shell/PrintOffers.h"
#include "shell/ShareDesk.h"
#include "shell/SharedFiles.h"
#include "shell/UnsavedSettings.h"
#include "shell/WindowArea.h"
#include "shell/WindowMemory.h"
#include "shell/frmABOUT.h"
#include "studies/frmSTATS.h"
#include "teams/frmEQUIPES.h"
#include "welcome/WelcomePage.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QStackedWidget>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QUrl>
#include <algorithm>
#include <chrono>
#include <memory>
#include <utility>

namespace hooptab {

namespace {

using namespace std::chrono_literals;

constexpr int kStatusMargin = 8;
constexpr int kTopMargin = 6;

constexpr auto kMessageTime = 8s;
constexpr QSize kFirstSize(1366, 860);
constexpr std::string_view kLayoutName = "MDI";

constexpr std::pair<CommandId, frmVIEW::RefreshMode> kRefreshModes[] = {
    {CommandId::RefreshByHand, frmVIEW::RefreshMode::Manual},
    {CommandId::Refresh10, frmVIEW::RefreshMode::Every10},
    {CommandId::Refresh30, frmVIEW::RefreshMode::Every30},
    {CommandId::Refresh60, frmVIEW::RefreshMode::Every60},
};

QStringList localFiles(const QMimeData& data) {
  QStringList files;
  for (const QUrl& url : data.urls()) {
    if (url.isLocalFile())
      files << url.toLocalFile();
  }
  return files;
}

} // namespace

MDI::MDI(const Workshop& workshop)
    : m_workshop(workshop), m_teams(workshop.store, workshop.settings),
      m_help(workshop.dialogs, workshop.files, workshop.settings, workshop.texts) {
  setObjectName(QStringLiteral("MDI"));
  setAcceptDrops(true);
  setWindowTitle(QStringLiteral("HOOPTAB Basketball"));

  m_area = new WindowArea(m_workshop.memory, this);
  m_area->setObjectName(QStringLiteral("area"));
  auto* recent = new GameMenu([this] { return recentGames(m_workshop.memory); }, m_workshop.texts, this);
  recent->menuAction()->setObjectName(QStringLiteral("recentGames"));
  recent->setIcon(icon(QStringLiteral("recent")));
  setTextNumber(*recent->menuAction(), Text::RecentGames);
  auto* samples = new GameMenu([this] { return sampleGames(m_workshop.files, m_workshop.store); },
                               m_workshop.texts, this);
  samples->menuAction()->setObjectName(QStringLiteral("sampleGames"));
  samples->setIcon(icon(QStringLiteral("samples")));
  setTextNumber(*samples->menuAction(), Text::SampleGames);
  m_commands = new CommandBar(*this);
  m_output = new ReportOutput(m_workshop.texts, m_workshop.dialogs, m_workshop.store.files(), this);
  m_output->proposeFolder(toQt(m_workshop.memory.exportFolder()));
  connect(m_output, &ReportOutput::folderChosen, this,
          [this](const QString& folder) { m_workshop.memory.rememberExportFolder(fromQt(folder)); });
  m_previews = new PreviewDesk(m_workshop, m_teams, *m_area, *m_output, *this);
  m_input = new InputDesk(m_workshop, m_teams, *m_area, *m_previews, *this);
  m_exchange = new ExchangeDesk(m_workshop, m_teams, *m_area, *this);
  m_share = new ShareDesk(m_workshop, *m_area, *this);
  m_exports = new WindowExports(*m_output, m_workshop.texts, this);
  auto* tables = new QMenu(this);
  auto* bar = new QMenuBar;
  m_bar = bar;
  bar->setObjectName(QStringLiteral("menuBar"));
  m_menu = new MainMenu(*this, *bar, *m_area, *m_commands, *recent, *samples, *tables);
  m_menu->showColours(Theme::current());
  m_menu->showZoom(m_workshop.memory.zoom());
  Theme::setCourtStrength(m_workshop.memory.courtIsCalm() ? CourtStrength::Calm : CourtStrength::AsSet);
  setMenuWidget(makeTop(*bar));

  m_pages = new QStackedWidget(this);
  m_welcome = new WelcomePage(
      {m_commands->action(CommandId::NewGame), m_commands->action(CommandId::OpenScorecard),
       m_commands->action(CommandId::OpenSeason), m_commands->action(CommandId::OpenTeams),
       m_commands->action(CommandId::Guide), m_commands->action(CommandId::Language), *samples},
      [this] { return m_workshop.memory.rememberedFiles(); }, m_workshop.store.files(), m_workshop.texts,
      this);
  m_pages->addWidget(m_welcome);
  m_pages->addWidget(m_area);
  setCentralWidget(m_pages);

  m_unsaved = new UnsavedSettings(m_workshop, this);
  statusBar()->addPermanentWidget(m_share->sign());
  statusBar()->addPermanentWidget(m_output);
  statusBar()->addPermanentWidget(m_unsaved);
  // Its room is always taken: a hint that comes and goes must not move what is being pressed.
  statusBar()->setMinimumHeight(statusBar()->fontMetrics().height() + kStatusMargin);

  serveCommands();
  connect(m_menu, &MainMenu::coloursChosen, this, &MDI::switchColours);
  connect(m_menu, &MainMenu::zoomChosen, this, &MDI::switchZoom);
  connect(recent, &GameMenu::chosen, this, &MDI::openGame);
  connect(samples, &GameMenu::chosen, this, &MDI::openGame);
  connect(m_welcome, &WelcomePage::gameAsked, this, &MDI::openGame);
  connect(m_welcome, &WelcomePage::inputAsked, m_input, &InputDesk::open);
  connect(m_welcome, &WelcomePage::folderAsked, this, &MDI::openFolder);
  connect(m_menu, &MainMenu::fileMenuShown, this, [this, tables] {
    m_exports->fill(*tables, m_area->front());
    tables->setEnabled(!tables->isEmpty());
  });
  connect(m_input, &InputDesk::opened, this, &MDI::rememberPlace);
  connect(m_input, &InputDesk::reported, this, &MDI::showMessage);
  connect(m_input, &InputDesk::languageAsked, this, &MDI::switchLanguage);
  connect(m_input, &InputDesk::commandStateChanged, this, &MDI::showCommands);
  connect(m_input, &InputDesk::settingsSaved, m_unsaved, &UnsavedSettings::refresh);
  connect(m_exchange, &ExchangeDesk::gameAsked, this, &MDI::openGame);
  connect(m_exchange, &ExchangeDesk::teamsChanged, this, &MDI::openTeams);
  connect(m_exchange, &ExchangeDesk::reported, this, &MDI::showMessage);
  connect(m_share, &ShareDesk::changed, this, &MDI::showStatusBar);
  connect(m_previews, &PreviewDesk::reported, this, &MDI::showMessage);
  connect(m_unsaved, &UnsavedSettings::refreshed, this, &MDI::showStatusBar);
  connect(m_unsaved, &UnsavedSettings::restored, this, [this](const QString& words) {
    if (groupInFront() == CommandGroup::Live)
      m_input->live()->tell(words);
    else
      statusBar()->showMessage(words); // until it is read: something else takes its place
  });
  connect(m_unsaved, &UnsavedSettings::waits, this, [this](const QString& words) {
    if (groupInFront() == CommandGroup::Live)
      m_input->live()->tell(words);
  });
  connect(m_output, &ReportOutput::reported, this, &MDI::showMessage);
  connect(m_exports, &WindowExports::reported, this, &MDI::showMessage);
  connect(m_area, &QMdiArea::subWindowActivated, this, &MDI::showCommands);
  connect(m_area, &QMdiArea::subWindowActivated, this, [this] {
    if (frmVIEW* view = scorecard())
      view->lookAtSeason();
  });
  connect(m_area, &WindowArea::changed, this, &MDI::showCommands);
  connect(m_area, &WindowArea::added, this, [this](ChildWindow& child) {
    connect(&child, &ChildWindow::reported, this, [this](const QString& message) {
      showMessage(message);
      m_unsaved->refresh();
    });
    m_exports->serve(child);
    child.relabelWindow(); // it did not know yet which letters are the menus'
    m_pages->setCurrentWidget(m_area);
  });

  relabelEverything();
  restorePlace();
  qApp->installEventFilter(this);
}

// Menu and tools in one row, which leaves a line more to what is recorded.
QWidget* MDI::makeTop(QMenuBar& bar) {
  auto* top = new QWidget(this);
  top->setObjectName(QStringLiteral("top"));
  top->setAutoFillBackground(true);
  top->setBackgroundRole(QPalette::AlternateBase);
  bar.setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred); // the tools have a menu for what has no room
  auto* row = new QHBoxLayout(top);
  row->setContentsMargins(kTopMargin, 0, kTopMargin, 0);
  row->setSpacing(kTopMargin);
  row->addWidget(&bar, 0, Qt::AlignVCenter);
  row->addStretch();
  row->addWidget(&m_commands->toolBar(), 0, Qt::AlignVCenter);
  return top;
}

void MDI::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  applyMeasure();
  showRoom();
}

// A text field would take the key of the teams for a move to the end of its line.
bool MDI::eventFilter(QObject* object, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride)
    return QMainWindow::eventFilter(object, event);
  const auto* widget = qobject_cast<const QWidget*>(object);
  const auto* key = static_cast<const QKeyEvent*>(event);
  if (widget == nullptr || widget->window() != this ||
      m_commands->action(CommandId::OpenTeams).shortcut() != QKeySequence(key->keyCombination()))
    return false;
  event->ignore();
  return true;
}

void MDI::showRoom() {
  m_commands->setRoom(width() - m_bar->sizeHint().width() - 3 * kTopMargin);
}

void MDI::applyMeasure() {
  const bool isWide = width() >= Measure::kWideWidth && height() >= Measure::kWideHeight;
  const Measure measure(isWide, m_workshop.memory.zoom());
  if (measure == Theme::measure())
    return;
  Theme::setMeasure(*qApp, measure);
  const int icons = style()->pixelMetric(QStyle::PM_ToolBarIconSize, nullptr, this); // which it asks for once
  m_commands->toolBar().setIconSize({icons, icons});
  applyLook();
}

void MDI::applyLook() {
  m_welcome->applyLook();
  for (ChildWindow* child : m_area->windows())
    child->applyColours();
}

void MDI::switchZoom(int percent) {
  m_workshop.memory.rememberZoom(percent);
  m_menu->showZoom(percent);
  applyMeasure();
  showRoom();
}

// Of the window in front, when it fills the area and has no title of its own.
void MDI::showTitle() {
  const QString name = QStringLiteral("HOOPTAB Basketball");
  const QMdiSubWindow* front = m_area->currentSubWindow();
  const bool hasNoTitle = front != nullptr && front->isMaximized();
  setWindowTitle(hasNoTitle ? asTitle(QStringLiteral("%1 - [%2]").arg(name, shownTitle(*front))) : name);
}

// The area still activates and deactivates its windows while it goes, when this is no longer there to listen.
MDI::~MDI() {
  m_area->disconnect(this);
}

void MDI::serveCommands() {
  m_input->serve(*m_commands);
  m_previews->serve(*m_commands);
  m_exchange->serve(*m_commands);
  m_share->serve(*m_commands);
  m_commands->serve(CommandId::OpenScorecard, this, [this] {
    if (const QString path = askForGame(m_workshop, this, Text::OpenAGame); !path.isEmpty())
      openGame(path);
  });
  m_commands->serve(CommandId::OpenTeams, this, [this] { openTeams(); });
  m_commands->serve(CommandId::OpenSeason, this, [this] { openSeason(); });
  m_commands->serve(CommandId::CloseSeason, this, [this] {
    if (frmSTATS* window = season())
      window->parentWidget()->close();
  });
  m_commands->serve(CommandId::CourtColours, this, [this] { openColours(); });
  m_commands->serve(CommandId::OpenRating, this, [this] { openRating(); });
  m_commands->serve(CommandId::Language, this, [this] { switchLanguage(); });
  m_commands->serve(CommandId::Guide, this, [this] { m_help.openGuide(this); });
  m_commands->serve(CommandId::WebSite, this, [this] { m_help.openWebPage(this); });
  m_commands->serve(CommandId::About, this, [this] { frmABOUT(m_workshop.texts, this).exec(); });

  const auto ofScorecard = [this](CommandId id, auto act) {
    m_commands->serve(id, this, [this, act] {
      if (frmVIEW* view = scorecard())
        act(*view);
      showCommands();
    });
  };
  ofScorecard(CommandId::Refresh, [](frmVIEW& view) { view.refresh(); });
  ofScorecard(CommandId::ByLine, [](frmVIEW& view) { view.setByLine(!view.isByLine()); });
  ofScorecard(CommandId::MadeAttempted,
              [](frmVIEW& view) { view.setHidesMadeAttempted(!view.hidesMadeAttempted()); });
  ofScorecard(CommandId::CloseScorecard, [this](const frmVIEW&) { m_area->closeActiveSubWindow(); });
  for (const auto& [id, mode] : kRefreshModes) {
    ofScorecard(id, [this, mode = mode](frmVIEW& view) {
      view.setRefreshMode(mode);
      m_workshop.memory.rememberRefreshSeconds(static_cast<int>(mode));
    });
  }
}

void MDI::openGame(const QString& path) {
  if (const GameFileProblem problem = showGame(path); problem != GameFileProblem::None)
    refuse(m_workshop, this, problem, path);
}

GameFileProblem MDI::showGame(const QString& path) {
  if (frmVIEW* open = m_area->scorecardOf(path)) {
    m_area->bringToFront(*open);
    rememberPlace(path);
    return GameFileProblem::None;
  }
  auto view = std::make_unique<frmVIEW>(m_workshop.store, m_workshop.settings, m_workshop.texts);
  view->setFormulaReader(m_workshop.readFormula);
  view->setSeasonShots([this](const GameDetails& game, std::optional<Side> team) {
    const frmSTATS* window = season();
    return window == nullptr ? std::nullopt : window->shotsBeside(game, team);
  });
  if (const GameFileProblem problem = view->open(path); problem != GameFileProblem::None)
    return problem;
  addScorecard(view.release());
  rememberPlace(path);
  return GameFileProblem::None;
}

// Of a game that was opened. The folder of the samples is no place for games of one's own.
void MDI::rememberPlace(const QString& path) {
  m_workshop.memory.rememberFile(fromQt(QFileInfo(path).absoluteFilePath()));
  const std::string folder = fromQt(QFileInfo(path).absolutePath());
  const std::optional<std::string> samples = m_workshop.files.find("samples");
  if (!samples || QFileInfo(toQt(*samples)) != QFileInfo(toQt(folder)))
    m_workshop.settings.lastGameFolder = folder;
}

void MDI::openFromElsewhere(const QStringList& games) {
  QMdiSubWindow* const front = groupInFront() == CommandGroup::Live ? m_area->currentSubWindow() : nullptr;
  const QPointer<QWidget> focused = focusWidget();
  for (const QString& game : games) {
    const GameFileProblem problem = showGame(game);
    if (problem != GameFileProblem::None && front != nullptr)
      m_input->live()->tell(refusal(m_workshop, problem, game));
    else if (problem != GameFileProblem::None)
      refuse(m_workshop, this, problem, game);
  }
  if (front != nullptr) {
    m_area->setActiveSubWindow(front);
    if (focused != nullptr)
      focused->setFocus();
  }
  setWindowState(windowState() & ~Qt::WindowMinimized);
  raise();
  activateWindow();
}

void MDI::tellFailure(const QString& what) {
  m_input->writePending();
  (void)m_workshop.settings.retry();
  m_workshop.dialogs.complain(this, toQt(m_workshop.texts.text(Text::ErrorTitle)),
                              toQt(m_workshop.texts.withPlaceholder(Text::InternalFailure, fromQt(what))));
}

void MDI::openTeams() {
  m_workshop.settings.settle();
  m_unsaved->refresh();
  for (ChildWindow* child : m_area->windows()) {
    if (qobject_cast<frmEQUIPES*>(child) != nullptr)
      return m_area->bringToFront(*child);
  }
  auto* window = new frmEQUIPES(m_teams, m_workshop.texts, m_workshop.dialogs);
  connect(window, &frmEQUIPES::printAsked, this,
          [this](const TeamRecord& team, const std::vector<TeamPlayer>& players) {
            m_previews->show(teamReports(team, players, m_workshop.texts));
          });
  m_area->add(*window);
}

void MDI::openSeason() {
  if (frmSTATS* open = season())
    return m_area->bringToFront(*open);
  auto* window =
      new frmSTATS(m_workshop.store.files(), m_workshop.settings, m_workshop.texts, m_workshop.dialogs);
  window->setFormulaReader(m_workshop.readFormula);
  connect(window, &frmSTATS::gameAsked, this, &MDI::openGame);
  connect(window, &frmSTATS::gamesToFileAsked, this, [this, window] { m_previews->saveGames(*window); });
  connect(window, &frmSTATS::scoutAsked, this,
          [this, window] { m_previews->printSeason(*window, SeasonReport::Scout); });
  window->keepSummariesIn(m_workshop.cacheFolder);
  m_area->add(*window);
  window->readFolder();
}

void MDI::openFolder(const QString& path) {
  const QString folder = QFileInfo(path).absolutePath();
  if (!m_workshop.dialogs.openDocument(QUrl::fromLocalFile(folder)))
    m_workshop.dialogs.warn(this, toQt(m_workshop.texts.text(Text::ErrorTitle)),
                            toQt(m_workshop.texts.withPlaceholder(Text::FolderNotOpened,
                                                                  fromQt(QDir::toNativeSeparators(folder)))));
}

void MDI::openColours() {
  frmCOULEURS window(m_workshop.settings, m_workshop.texts, m_workshop.dialogs, this);
  connect(&window, &frmCOULEURS::languageAsked, this, [this, &window] {
    switchLanguage();
    window.relabelWindow();
  });
  connect(&window, &frmCOULEURS::applied, this, [this, &window] {
    m_workshop.memory.rememberCourtIsCalm(window.strength() == CourtStrength::Calm);
    for (ChildWindow* child : m_area->windows())
      child->applyColours();
    m_workshop.texts.showNumbers(m_workshop.settings.asksForTextNumbers());
    relabelEverything();
  });
  window.exec();
}

void MDI::openRating() {
  frmRATING window(m_workshop.settings, m_workshop.readFormula, m_workshop.texts, m_workshop.dialogs, this);
  connect(&window, &frmRATING::languageAsked, this, [this, &window] {
    switchLanguage();
    window.relabelWindow();
  });
  if (window.exec() == QDialog::Accepted)
    relabelEverything(); // tool tips tell the formula
}

void MDI::addScorecard(frmVIEW* view) {
  view->setRefreshMode(static_cast<frmVIEW::RefreshMode>(m_workshop.memory.refreshSeconds()));
  connect(view, &frmVIEW::commandStateChanged, this, &MDI::showCommands);
  m_area->add(*view);
}

void MDI::showMessage(const QString& message) {
  if (groupInFront() == CommandGroup::Live)
    return m_input->live()->tell(message);
  statusBar()->showMessage(message, static_cast<int>(std::chrono::milliseconds(kMessageTime).count()));
}

frmSTATS* MDI::season() const {
  return m_area->first<frmSTATS>();
}

frmVIEW* MDI::scorecard() const {
  return qobject_cast<frmVIEW*>(m_area->front());
}

CommandGroup MDI::groupInFront() const {
  ChildWindow* front = m_area->front();
  if (qobject_cast<frmVIEW*>(front) != nullptr)
    return CommandGroup::Scorecard;
  if (qobject_cast<frmLIVE*>(front) != nullptr)
    return CommandGroup::Live;
  if (qobject_cast<frmMANUAL*>(front) != nullptr)
    return CommandGroup::Manual;
  return qobject_cast<frmSTATS*>(front) != nullptr ? CommandGroup::Season : CommandGroup::Always;
}

// The live window has a strip of its own for what there is to say: its room is the panels', unless a report
// is being written, or the game is shared.
void MDI::showStatusBar() {
  const bool isLive = groupInFront() == CommandGroup::Live;
  statusBar()->setVisible(!isLive || !m_output->isHidden() || m_share->isSharing());
}

void MDI::showCommands() {
  showTitle();
  showStatusBar();
  Modes modes;
  if (const frmVIEW* view = scorecard()) {
    modes.hasScorecard = true;
    modes.scorecardByLine = view->isByLine();
    modes.scorecardHidesMadeAttempted = view->hidesMadeAttempted();
    modes.refreshSeconds = static_cast<int>(view->refreshMode());
  }
  if (const frmLIVE* window = m_input->live())
    modes.live = window->isRunning() ? LiveClock::Running : LiveClock::Stopped;
  modes.hasManual = m_input->manual() != nullptr;
  modes.inFront = groupInFront();
  modes.hasSeason = season() != nullptr;
  modes.asksRebounds = m_workshop.settings.asksRebounds;
  modes.keypadIsActive = m_workshop.settings.keypadIsActive;
  m_commands->show(modes, m_workshop.texts);
  m_menu->showFront(m_area->currentSubWindow() != nullptr, modes.hasScorecard);
  if (m_area->subWindowList().isEmpty())
    m_pages->setCurrentIndex(0);
}

void MDI::switchLanguage() {
  Texts& texts = m_workshop.texts;
  texts.setLanguage(nextLanguage(texts.language()));
  relabelEverything();
  m_workshop.settings.saveLanguage(texts.language());
  m_unsaved->refresh();
}

void MDI::relabelEverything() {
  m_dialogLanguage.set(m_workshop.texts.language());
  relabel(*this, m_workshop.texts);
  m_share->relabelDesk();
  m_menu->giveLetters();
  showRoom();
  m_welcome->relabelPage();
  for (ChildWindow* child : m_area->windows())
    child->relabelWindow();
  m_unsaved->refresh();
  showCommands();
}

void MDI::switchColours(ColourScheme scheme) {
  Theme::apply(*qApp, scheme);
  m_workshop.memory.rememberColourScheme(scheme);
  applyLook();
}

void MDI::report(Settings::Preparation preparation) {
  m_unsaved->report(preparation);
}

void MDI::restorePlace() {
  const std::string layout = m_workshop.memory.layout(kLayoutName);
  const QSize most = screen()->availableSize();
  if (restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(layout)))) {
    if (width() > most.width() || height() > most.height()) // it was left on a larger screen
      resize(size().boundedTo(most));
    return;
  }
  resize(kFirstSize.boundedTo(most));
  setWindowState(
      Qt::WindowMaximized); // a first start takes the whole screen: a table's columns want the room
}

void MDI::closeEvent(QCloseEvent* event) {
  // All are asked before the first one closes.
  const QList<ChildWindow*> windows = m_area->windows();
  if (!std::ranges::all_of(windows, &ChildWindow::agreesToClose) || !m_unsaved->mayLeave()) {
    for (ChildWindow* child : windows)
      child->stay();
    event->ignore();
    return;
  }
  m_area->closeAllSubWindows();
  m_workshop.memory.rememberLayout(kLayoutName, saveGeometry().toBase64().toStdString());
  event->accept();
}

void MDI::dragEnterEvent(QDragEnterEvent* event) {
  if (!localFiles(*event->mimeData()).isEmpty())
    event->acceptProposedAction();
}

void MDI::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  // Later, so that a message does not hold up the program that the files were dragged from.
  QTimer::singleShot(0, this, [this, files = localFiles(*event->mimeData())] {
    for (const QString& file : m_exchange->takeForeign(files))
      openGame(file);
  });
}

} // namespace hooptab
