#include "shell/MDI.h"

#include "appearance/ChildWindow.h"
#include "appearance/Dialogs.h"
#include "appearance/GameHold.h"
#include "appearance/Icons.h"
#include "appearance/PlainLabel.h"
#include "appearance/PlainText.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "court/frmCOULEURS.h"
#include "keypad/frmConfiguration.h"
#include "live/frmLIVE.h"
#include "manual/frmMANUAL.h"
#include "printing/ReportOutput.h"
#include "printing/WindowExports.h"
#include "printing/frmprint.h"
#include "scorecard/frmVIEW.h"
#include "season/frmSTATS.h"
#include "setup/frmNEWGAME.h"
#include "shell/CommandBar.h"
#include "shell/GameMenu.h"
#include "shell/MainMenu.h"
#include "shell/PrintOffers.h"
#include "shell/Refusals.h"
#include "shell/SharedFiles.h"
#include "shell/WelcomePage.h"
#include "shell/WindowArea.h"
#include "shell/WindowMemory.h"
#include "shell/frmABOUT.h"
#include "teams/frmEQUIPES.h"

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

constexpr auto kRetryInterval = 2s;
constexpr auto kMessageTime = 8s;
constexpr QSize kFirstSize(1366, 860);
constexpr std::string_view kLayoutName = "MDI";

constexpr std::pair<const char*, frmVIEW::RefreshMode> kRefreshModes[] = {
    {"VwREFSEC00", frmVIEW::RefreshMode::Manual},
    {"VwREFSEC10", frmVIEW::RefreshMode::Every10},
    {"VwREFSEC30", frmVIEW::RefreshMode::Every30},
    {"VwREFSEC60", frmVIEW::RefreshMode::Every60},
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
      {m_commands->action("LIVENew"), m_commands->action("VwOPEN"), m_commands->action("STATS"),
       m_commands->action("gEQUIPE"), m_commands->action("AidHELP"), m_commands->action("tbLANGUE"),
       *samples},
      [this] { return m_workshop.memory.rememberedFiles(); }, m_workshop.store.files(), m_workshop.texts,
      this);
  m_pages->addWidget(m_welcome);
  m_pages->addWidget(m_area);
  setCentralWidget(m_pages);

  m_unsaved = new PlainLabel(this);
  m_unsaved->setObjectName(QStringLiteral("lblUNSAVED"));
  m_unsaved->hide();
  statusBar()->addPermanentWidget(m_output);
  statusBar()->addPermanentWidget(m_unsaved);
  // Its room is always taken: a hint that comes and goes must not move what is being pressed.
  statusBar()->setMinimumHeight(statusBar()->fontMetrics().height() + kStatusMargin);
  m_retryOfWrites.setInterval(kRetryInterval);

  connect(m_commands, &CommandBar::asked, this, &MDI::carryOut);
  connect(m_menu, &MainMenu::coloursChosen, this, &MDI::switchColours);
  connect(m_menu, &MainMenu::zoomChosen, this, &MDI::switchZoom);
  connect(recent, &GameMenu::chosen, this, &MDI::openGame);
  connect(samples, &GameMenu::chosen, this, &MDI::openGame);
  connect(m_welcome, &WelcomePage::gameAsked, this, &MDI::openGame);
  connect(m_welcome, &WelcomePage::inputAsked, this, &MDI::openForInput);
  connect(m_welcome, &WelcomePage::folderAsked, this, &MDI::openFolder);
  connect(m_menu, &MainMenu::fileMenuShown, this, [this, tables] {
    m_exports->fill(*tables, m_area->front());
    tables->setEnabled(!tables->isEmpty());
  });
  connect(m_output, &ReportOutput::reported, this, &MDI::showMessage);
  connect(m_exports, &WindowExports::reported, this, &MDI::showMessage);
  connect(m_area, &QMdiArea::subWindowActivated, this, &MDI::showCommands);
  connect(m_area, &WindowArea::changed, this, &MDI::showCommands);
  connect(m_area, &WindowArea::added, this, [this](ChildWindow& child) {
    connect(&child, &ChildWindow::reported, this, [this](const QString& message) {
      showMessage(message);
      showWhatIsUnsaved();
    });
    m_exports->serve(child);
    child.relabelWindow(); // it did not know yet which letters are the menus'
    m_pages->setCurrentWidget(m_area);
  });
  connect(&m_retryOfWrites, &QTimer::timeout, this, [this] {
    m_workshop.settings.retry();
    showWhatIsUnsaved();
  });

  m_keypad.keys = KeypadAssignment(m_workshop.settings.keypadKeyTexts);
  m_keypad.take(m_workshop.memory.keyChoices());
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
      m_commands->action("gEQUIPE").shortcut() != QKeySequence(key->keyCombination()))
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

void MDI::carryOut(const QString& key) {
  if (key == u"VwOPEN")
    return chooseGame();
  if (key == u"LIVENew")
    return makeGame();
  if (key == u"LIVEOpen")
    return chooseGameForInput();
  if (key == u"saveCOPY")
    return saveCopy();
  if (key == u"LIVEMouse") {
    m_workshop.settings.saveAsksRebounds(!m_workshop.settings.asksRebounds);
    showWhatIsUnsaved();
    return showCommands();
  }
  if (key == u"LIVEKpad")
    return switchKeypad();
  if (frmLIVE* window = live()) {
    if (key == u"SWITCH")
      return window->switchSides();
    if (key == u"GAMEOVER")
      return window->gameOver();
    if (key == u"livePRINT")
      return preview(gameReports(window->game(), window->state(), ScorecardView(m_workshop.texts),
                                 m_workshop.settings, m_workshop.texts));
    if (key == u"CLOSELIVEMANUAL") {
      window->parentWidget()->close();
      return;
    }
  }
  if (frmMANUAL* window = manual()) {
    if (key == u"openFORM") {
      m_area->bringToFront(*window);
      return window->openForms();
    }
    if (key == u"saveMANUAL")
      return window->save();
    if (key == u"CLOSELIVEMANUAL") {
      window->parentWidget()->close();
      return;
    }
  }
  if (key == u"gEQUIPE")
    return openTeams();
  if (key == u"STATS")
    return openSeason();
  if (frmSTATS* window = season()) {
    if (key == u"stCLOSE") {
      window->parentWidget()->close();
      return;
    }
    const auto report = std::ranges::find(seasonReports(), fromQt(key), &SeasonReportName::command);
    if (report != seasonReports().end())
      m_seasonReport = report->report;
    else if (key == u"stPRINT")
      m_seasonReport =
          reportOfPage(window->shownPage(), window->shownLeaders(), window->chosenPerson().get());
    if (report != seasonReports().end() || key == u"stPRINT")
      return printSeason(*window);
  }
  if (key == u"blankPRINT")
    return preview(teamForms(m_teams, m_workshop.texts));
  if (key == u"viergePRINT")
    return preview(emptyForms(m_workshop.texts));
  if (key == u"tbTERRAIN")
    return openColours();
  if (key == u"tbKEYPAD")
    return openKeys();
  if (key == u"tbLANGUE")
    return switchLanguage();
  if (key == u"AidHELP")
    return m_help.openGuide(this);
  if (key == u"AidWEB")
    return m_help.openWebPage(this);
  if (key == u"AidABOUT") {
    frmABOUT(m_workshop.texts, this).exec();
    return;
  }

  frmVIEW* view = scorecard();
  if (view == nullptr)
    return;
  if (key == u"VwREFRESH")
    view->refresh();
  else if (key == u"VwLIGNE")
    view->setByLine(!view->isByLine());
  else if (key == u"VwMA")
    view->setHidesMadeAttempted(!view->hidesMadeAttempted());
  else if (key == u"vwPRINT")
    preview(gameReports(view->card().game(), view->card().state(), view->choice(), m_workshop.settings,
                        m_workshop.texts));
  else if (key == u"VwCLOSE")
    m_area->closeActiveSubWindow();
  for (const auto& [modeKey, mode] : kRefreshModes) {
    if (key == QLatin1String(modeKey)) {
      view->setRefreshMode(mode);
      m_workshop.memory.rememberRefreshSeconds(static_cast<int>(mode));
    }
  }
  showCommands();
}

QString MDI::askForGame(Text title) {
  const Texts& texts = m_workshop.texts;
  return m_workshop.dialogs.chooseFile(this, toQt(texts.text(title)),
                                       toQt(m_workshop.settings.lastGameFolder),
                                       fileFilter(toQt(texts.text(Text::GameFilter))));
}

void MDI::chooseGame() {
  if (const QString path = askForGame(Text::OpenAGame); !path.isEmpty())
    openGame(path);
}

void MDI::chooseGameForInput() {
  if (const QString path = askForGame(Text::OpenAnExistingGame); !path.isEmpty())
    openForInput(path);
}

void MDI::openForInput(const QString& path) {
  if (manualAgreesToClose())
    replaceInput(path);
}

// What is not saved of the totals that are open is asked for before another game takes their place.
bool MDI::manualAgreesToClose() {
  frmMANUAL* window = manual();
  if (window == nullptr)
    return true;
  const bool agrees = window->agreesToClose();
  window->stay(); // should it not come to that, closing it asks again
  return agrees;
}

void MDI::replaceInput(const QString& path, GameLock lock) {
  GameDetails details;
  if (const GameFileProblem problem = GameFile(m_workshop.store, fromQt(path)).readDetails(details);
      problem != GameFileProblem::None)
    return refuse(problem, path);
  if (details.inputType == 0)
    openLive(path, std::move(lock));
  else
    openManual(path, std::move(lock));
}

// The window for the other kind of input makes room; at once, so that it gives up the lock on its game.
void MDI::closeInput(ChildWindow* window) {
  if (window != nullptr)
    delete window->parentWidget();
}

void MDI::openLive(const QString& path, GameLock lock) {
  if (manual() != nullptr && QFileInfo(manual()->path()) == QFileInfo(path)) // it was made anew
    closeInput(manual());
  frmLIVE* open = live();
  std::unique_ptr<frmLIVE> fresh;
  if (open == nullptr) {
    fresh = std::make_unique<frmLIVE>(m_workshop.store, m_workshop.settings, m_workshop.texts,
                                      m_workshop.dialogs, m_workshop.time);
    fresh->setKeypad(m_keypad);
    connect(fresh.get(), &frmLIVE::commandStateChanged, this, &MDI::showCommands);
  }
  frmLIVE& window = open == nullptr ? *fresh : *open;
  switch (window.open(path, std::move(lock))) {
  case frmLIVE::Opening::Opened: break;
  case frmLIVE::Opening::Refused: return;
  case frmLIVE::Opening::Problem: return refuse(window.problem(), path);
  }
  closeInput(manual());
  showInput(path, window, std::move(fresh));
}

void MDI::openManual(const QString& path, GameLock lock) {
  if (frmLIVE* other = live()) {
    const bool agrees = other->agreesToClose();
    other->stay();
    if (!agrees)
      return;
    if (QFileInfo(other->path()) == QFileInfo(path)) // it was made anew
      closeInput(other);
  }
  frmMANUAL* open = manual();
  std::unique_ptr<frmMANUAL> fresh;
  if (open == nullptr) {
    fresh = std::make_unique<frmMANUAL>(m_workshop.store, m_workshop.settings, m_workshop.texts,
                                        m_workshop.dialogs);
    connect(fresh.get(), &frmMANUAL::saved, this, [this, window = fresh.get()] {
      if (frmVIEW* view = m_area->scorecardOf(window->path()))
        view->refresh();
    });
    connect(fresh.get(), &frmMANUAL::scanReportAsked, this,
            [this, window = fresh.get()](const ScannedTotals& scanned, const QString& source) {
              preview(scanReports(scanned, window->details(), fromQt(source), m_workshop.settings,
                                  m_workshop.texts));
            });
  }
  frmMANUAL& window = open == nullptr ? *fresh : *open;
  if (!window.open(path, std::move(lock)))
    return refuse(window.problem(), path);
  closeInput(live());
  showInput(path, window, std::move(fresh));
}

// `fresh` owns the window where it is not in the area yet.
void MDI::showInput(const QString& path, ChildWindow& window, std::unique_ptr<ChildWindow> fresh) {
  rememberPlace(path);
  if (fresh == nullptr)
    return m_area->bringToFront(window);
  m_area->add(*fresh.release());
}

void MDI::openGame(const QString& path) {
  if (const GameFileProblem problem = showGame(path); problem != GameFileProblem::None)
    refuse(problem, path);
}

GameFileProblem MDI::showGame(const QString& path) {
  if (frmVIEW* open = m_area->scorecardOf(path)) {
    m_area->bringToFront(*open);
    rememberPlace(path);
    return GameFileProblem::None;
  }
  auto view = std::make_unique<frmVIEW>(m_workshop.store, m_workshop.settings, m_workshop.texts);
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
      live()->tell(refusal(problem, game));
    else if (problem != GameFileProblem::None)
      refuse(problem, game);
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

void MDI::makeGame() {
  if (!manualAgreesToClose())
    return;
  m_workshop.settings.settle();
  GameLock lock; // of the file that the game goes to; the window that records it gets it
  const auto claim = [this, &lock](const QString& path) -> QString {
    const auto isOpenIn = [&path](const auto* window) {
      return window != nullptr && QFileInfo(window->path()) == QFileInfo(path);
    };
    if (isOpenIn(live()) || isOpenIn(manual()) ||
        lock.acquire(m_workshop.store.files(), fromQt(path)) != GameLock::Outcome::HeldElsewhere)
      return {};
    return GameHold::ownerWords(lock, m_workshop.texts);
  };
  frmNEWGAME window(m_teams, m_workshop.settings, m_workshop.texts, m_workshop.dialogs, claim,
                    m_workshop.memory.lastGame(), this);
  connect(&window, &frmNEWGAME::languageAsked, this, [this, &window] {
    switchLanguage();
    window.relabelWindow();
  });
  watchInput(false); // the new game may take the place of the one that is open
  const bool isMade = window.exec() == QDialog::Accepted;
  showWhatIsUnsaved();
  const auto isReplaced = [&](const QString& path) {
    return isMade && QFileInfo(path) == QFileInfo(window.path());
  };
  if (!(live() != nullptr && isReplaced(live()->path())) &&
      !(manual() != nullptr && isReplaced(manual()->path())))
    watchInput(true);
  if (!isMade)
    return;
  m_workshop.memory.rememberLastGame(window.choices());
  if (frmVIEW* old = m_area->scorecardOf(window.path())) // of the game that was written over
    old->refresh();
  replaceInput(window.path(), std::move(lock));
}

void MDI::watchInput(bool isOn) {
  if (frmLIVE* window = live())
    window->setWatching(isOn);
  if (frmMANUAL* window = manual())
    window->setWatching(isOn);
}

void MDI::saveCopy() {
  const auto save = [this](auto& window) {
    const Texts& texts = m_workshop.texts;
    const QFileInfo game(window.path());
    const QString error = toQt(texts.text(Text::ErrorTitle));
    const QString path = m_workshop.dialogs.chooseFileToSave(
        this, caption(texts, Text::SaveCopy),
        game.dir().filePath(game.completeBaseName() + QStringLiteral(" 2.GAM")),
        fileFilter(toQt(texts.text(Text::GameFilter))), QStringLiteral("GAM"));
    if (path.isEmpty())
      return;
    if (QFileInfo(path) == game)
      return m_workshop.dialogs.warn(this, error, toQt(texts.withPlaceholder(Text::OwnFile, fromQt(path))));
    if (QFileInfo::exists(path) &&
        !m_workshop.dialogs.ask(this, toQt(texts.text(Text::WarningTitle)),
                                toQt(texts.withPlaceholder(Text::ReplaceFile, fromQt(path)))))
      return;
    if (!window.writeCopy(path))
      return m_workshop.dialogs.complain(this, error,
                                         toQt(texts.withPlaceholder(Text::CopyFailed, fromQt(path))));
    showMessage(toQt(texts.withPlaceholder(Text::CopySaved, fromQt(QDir::toNativeSeparators(path)))));
  };
  if (frmLIVE* window = live())
    save(*window);
  else if (frmMANUAL* entry = manual())
    save(*entry);
}

void MDI::tellFailure(const QString& what) {
  if (frmLIVE* window = live())
    window->writePending();
  if (frmMANUAL* window = manual())
    window->writePending();
  (void)m_workshop.settings.retry();
  m_workshop.dialogs.complain(this, toQt(m_workshop.texts.text(Text::ErrorTitle)),
                              toQt(m_workshop.texts.withPlaceholder(Text::InternalFailure, fromQt(what))));
}

void MDI::openTeams() {
  m_workshop.settings.settle();
  showWhatIsUnsaved();
  for (ChildWindow* child : m_area->windows()) {
    if (qobject_cast<frmEQUIPES*>(child) != nullptr)
      return m_area->bringToFront(*child);
  }
  auto* window = new frmEQUIPES(m_teams, m_workshop.texts, m_workshop.dialogs);
  connect(window, &frmEQUIPES::printAsked, this,
          [this](const TeamRecord& team, const std::vector<TeamPlayer>& players) {
            preview(teamReports(team, players, m_workshop.texts));
          });
  m_area->add(*window);
}

void MDI::preview(std::vector<ReportOffer> offers) {
  if (offers.empty())
    return m_workshop.dialogs.warn(this, toQt(m_workshop.texts.text(Text::WarningTitle)),
                                   toQt(m_workshop.texts.text(Text::SelectTeamFirst)));
  if (qobject_cast<frmprint*>(m_area->front()) == nullptr)
    m_previewedFrom = m_area->currentSubWindow();
  for (ChildWindow* child : m_area->windows()) {
    if (auto* open = qobject_cast<frmprint*>(child)) {
      open->offer(std::move(offers));
      return m_area->bringToFront(*open);
    }
  }
  auto* window = new frmprint(m_workshop.texts, m_workshop.dialogs, m_workshop.printers, *m_output);
  window->offer(std::move(offers));
  m_area->add(*window);
  // Later: closing, the area chooses a window of its own.
  connect(
      window, &QObject::destroyed, this,
      [this] {
        if (m_previewedFrom != nullptr)
          m_area->setActiveSubWindow(m_previewedFrom);
      },
      Qt::QueuedConnection);
}

void MDI::openSeason() {
  if (frmSTATS* open = season())
    return m_area->bringToFront(*open);
  auto* window =
      new frmSTATS(m_workshop.store.files(), m_workshop.settings, m_workshop.texts, m_workshop.dialogs);
  connect(window, &frmSTATS::gameAsked, this, &MDI::openGame);
  m_area->add(*window);
  window->readFolder();
}

void MDI::printSeason(frmSTATS& window) {
  SeasonOffer offer{window.statistics(), window.chosenTeam(), window.chosenPerson()};
  const auto question = [this](Text text) { return toQt(m_workshop.texts.text(text)); };
  if (const Text missing = missingFor(m_seasonReport, offer); missing != Text::None)
    return m_workshop.dialogs.inform(this, question(Text::ReportOption), question(missing));
  if (offer.person && canHighlight(m_seasonReport, *offer.person))
    offer.highlightsPerson =
        m_workshop.dialogs.ask(this, question(Text::ReportOption), question(Text::Highlight));
  preview(seasonOffers(offer, m_seasonReport, m_workshop.settings, m_workshop.texts));
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

void MDI::openKeys() {
  frmConfiguration window(m_keypad, m_workshop.settings, m_workshop.texts, m_workshop.dialogs, this);
  connect(&window, &frmConfiguration::languageAsked, this, [this, &window] {
    switchLanguage();
    window.relabelWindow();
  });
  connect(&window, &frmConfiguration::applied, this, [this, &window] {
    m_keypad = window.saved();
    m_workshop.memory.rememberKeyChoices(m_keypad.choices());
    if (frmLIVE* recording = live())
      recording->setKeypad(m_keypad);
    showWhatIsUnsaved();
  });
  window.exec();
}

void MDI::switchKeypad() {
  m_workshop.settings.saveKeypadIsActive(!m_workshop.settings.keypadIsActive);
  if (frmLIVE* recording = live())
    recording->keypadSwitched();
  showWhatIsUnsaved();
  showCommands();
}

void MDI::addScorecard(frmVIEW* view) {
  view->setRefreshMode(static_cast<frmVIEW::RefreshMode>(m_workshop.memory.refreshSeconds()));
  connect(view, &frmVIEW::commandStateChanged, this, &MDI::showCommands);
  m_area->add(*view);
}

void MDI::refuse(GameFileProblem problem, const QString& path) {
  m_workshop.dialogs.warn(this, toQt(m_workshop.texts.text(Text::ErrorTitle)), refusal(problem, path));
}

QString MDI::refusal(GameFileProblem problem, const QString& path) const {
  return toQt(m_workshop.texts.withPlaceholder(refusalText(problem), fromQt(QDir::toNativeSeparators(path))));
}

void MDI::showMessage(const QString& message) {
  if (groupInFront() == CommandGroup::Live)
    return live()->tell(message);
  statusBar()->showMessage(message, static_cast<int>(std::chrono::milliseconds(kMessageTime).count()));
}

frmLIVE* MDI::live() const {
  return m_area->first<frmLIVE>();
}

frmMANUAL* MDI::manual() const {
  return m_area->first<frmMANUAL>();
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
// is being written.
void MDI::showStatusBar() {
  const bool isLive = groupInFront() == CommandGroup::Live;
  statusBar()->setVisible(!isLive || !m_output->isHidden());
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
  if (const frmLIVE* window = live())
    modes.live = window->isRunning() ? LiveClock::Running : LiveClock::Stopped;
  modes.hasManual = manual() != nullptr;
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
  texts.setLanguage(texts.language() == Language::French ? Language::English : Language::French);
  relabelEverything();
  m_workshop.settings.saveLanguage(texts.language());
  showWhatIsUnsaved();
}

void MDI::relabelEverything() {
  m_dialogLanguage.set(m_workshop.texts.language());
  relabel(*this, m_workshop.texts);
  m_menu->giveLetters();
  showRoom();
  m_welcome->relabelPage();
  for (ChildWindow* child : m_area->windows())
    child->relabelWindow();
  showWhatIsUnsaved();
  showCommands();
}

void MDI::switchColours(ColourScheme scheme) {
  Theme::apply(*qApp, scheme);
  m_workshop.memory.rememberColourScheme(scheme);
  applyLook();
}

void MDI::report(Settings::Preparation preparation) {
  const Texts& texts = m_workshop.texts;
  if (preparation == Settings::Preparation::FirstRunKeptOld)
    m_workshop.dialogs.warn(this, toQt(texts.text(Text::WarningTitle)),
                            toQt(texts.withPlaceholder(Text::OldSettingsKept, m_workshop.settings.keptAs())));
  if (preparation == Settings::Preparation::CannotBeRead)
    m_workshop.dialogs.warn(
        this, toQt(texts.text(Text::WarningTitle)),
        toQt(texts.withPlaceholder(Text::SettingsUnreadable, m_workshop.settings.path())));
  showWhatIsUnsaved();
}

void MDI::showWhatIsUnsaved() {
  if (const auto restored = m_workshop.settings.takeRestored()) {
    std::string words(m_workshop.texts.text(Text::SettingsRestored));
    if (!restored->keptAs.empty())
      words += ' ' + m_workshop.texts.withPlaceholder(Text::SettingsKeptAs, restored->keptAs);
    if (groupInFront() == CommandGroup::Live)
      live()->tell(toQt(words));
    else
      statusBar()->showMessage(toQt(words)); // until it is read: something else takes its place
  }
  const bool isUnsaved = !m_workshop.settings.isOnDisk();
  if (isUnsaved && m_unsaved->isHidden() && groupInFront() == CommandGroup::Live)
    live()->tell(notSaved());
  m_unsaved->setText(notSaved());
  m_unsaved->setVisible(isUnsaved);
  showStatusBar();
  if (!isUnsaved)
    m_retryOfWrites.stop();
  else if (!m_retryOfWrites.isActive())
    m_retryOfWrites.start();
}

QString MDI::notSaved() const {
  return toQt(m_workshop.texts.withPlaceholder(Text::NotSaved, m_workshop.settings.path()));
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
  if (!std::ranges::all_of(windows, &ChildWindow::agreesToClose) || !mayLeaveSettings()) {
    for (ChildWindow* child : windows)
      child->stay();
    event->ignore();
    return;
  }
  m_area->closeAllSubWindows();
  m_workshop.memory.rememberLayout(kLayoutName, saveGeometry().toBase64().toStdString());
  event->accept();
}

// They are on disk, or the user lets them go.
bool MDI::mayLeaveSettings() {
  if (m_workshop.settings.saveLastFolders())
    return true;
  const Texts& texts = m_workshop.texts;
  do {
    switch (m_workshop.dialogs.askToSave(
        this, toQt(texts.text(Text::ErrorTitle)),
        toQt(texts.withPlaceholder(Text::SettingsNotSaved, m_workshop.settings.path())))) {
    case SaveChoice::Save: break;
    case SaveChoice::Discard: return true;
    case SaveChoice::Stay: showWhatIsUnsaved(); return false;
    }
  } while (!m_workshop.settings.retry());
  return true;
}

void MDI::dragEnterEvent(QDragEnterEvent* event) {
  if (!localFiles(*event->mimeData()).isEmpty())
    event->acceptProposedAction();
}

void MDI::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  // Later, so that a message does not hold up the program that the files were dragged from.
  QTimer::singleShot(0, this, [this, files = localFiles(*event->mimeData())] {
    for (const QString& file : files)
      openGame(file);
  });
}

} // namespace hooptab
