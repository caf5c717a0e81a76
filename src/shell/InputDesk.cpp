#include "shell/InputDesk.h"

#include "appearance/Dialogs.h"
#include "appearance/GameHold.h"
#include "appearance/relabel.h"
#include "game/Rules.h"
#include "keypad/frmConfiguration.h"
#include "live/frmLIVE.h"
#include "manual/frmMANUAL.h"
#include "review/frmVIEW.h"
#include "settings/Settings.h"
#include "setup/frmNEWGAME.h"
#include "setup/frmSHEET.h"
#include "shell/CommandBar.h"
#include "shell/GameDialogs.h"
#include "shell/PreviewDesk.h"
#include "shell/PrintOffers.h"
#include "shell/WindowArea.h"
#include "shell/WindowMemory.h"

#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <utility>

namespace hooptab {

namespace {

template <class Window>
bool isOpenIn(const Window* window, const QString& path) {
  return window != nullptr && QFileInfo(window->path()) == QFileInfo(path);
}

} // namespace

InputDesk::InputDesk(const Workshop& workshop, TeamStore& teams, WindowArea& area, PreviewDesk& preview,
                     QWidget& window)
    : QObject(&window), m_workshop(workshop), m_teams(teams), m_area(area), m_preview(preview),
      m_window(window) {
  m_keypad.keys = KeypadAssignment(m_workshop.settings.keypadKeyTexts);
  m_keypad.take(m_workshop.memory.keyChoices());
}

void InputDesk::serve(CommandBar& commands) {
  commands.serve(CommandId::NewGame, this, [this] { makeGame(); });
  commands.serve(CommandId::OpenForInput, this, [this] {
    if (const QString path = askForGame(m_workshop, &m_window, Text::OpenAnExistingGame); !path.isEmpty())
      open(path);
  });
  commands.serve(CommandId::SaveCopy, this, [this] {
    if (frmLIVE* window = live())
      saveCopy(*window);
    else if (frmMANUAL* entry = manual())
      saveCopy(*entry);
  });
  commands.serve(CommandId::CloseInput, this, [this] {
    if (ChildWindow* window = live() != nullptr ? static_cast<ChildWindow*>(live()) : manual())
      window->parentWidget()->close();
  });
  const auto whileLive = [&](CommandId id, auto act) {
    commands.serve(id, this, [this, act] {
      if (frmLIVE* window = live())
        act(*window);
    });
  };
  whileLive(CommandId::SwitchSides, [](frmLIVE& window) { window.switchSides(); });
  whileLive(CommandId::GameSheet, [this](frmLIVE& window) { openSheet(window); });
  whileLive(CommandId::BenchView, [](frmLIVE& window) { window.switchBench(); });
  whileLive(CommandId::GameOver, [](frmLIVE& window) { window.gameOver(); });
  whileLive(CommandId::PrintGame, [this](const frmLIVE& window) {
    m_preview.show(gameOffers(std::make_shared<const CountedGame>(CountedGame{window.game(), window.state()}),
                              ScorecardView(m_workshop.texts), m_workshop.settings, m_workshop.texts));
  });
  const auto whileManual = [&](CommandId id, auto act) {
    commands.serve(id, this, [this, act] {
      if (frmMANUAL* window = manual())
        act(*window);
    });
  };
  whileManual(CommandId::SaveTotals, [](frmMANUAL& window) { window.save(); });
  whileManual(CommandId::OpenForms, [this](frmMANUAL& window) {
    m_area.bringToFront(window);
    window.openForms();
  });
  commands.serve(CommandId::OpenKeys, this, [this] { openKeys(); });
  commands.serve(CommandId::Keypad, this, [this] {
    m_workshop.settings.saveKeypadIsActive(!m_workshop.settings.keypadIsActive);
    if (frmLIVE* window = live())
      window->keypadSwitched();
    tellSaved();
  });
  commands.serve(CommandId::AskRebounds, this, [this] {
    m_workshop.settings.saveAsksRebounds(!m_workshop.settings.asksRebounds);
    tellSaved();
  });
}

void InputDesk::tellSaved() {
  emit settingsSaved();
  emit commandStateChanged();
}

frmLIVE* InputDesk::live() const {
  return m_area.first<frmLIVE>();
}

frmMANUAL* InputDesk::manual() const {
  return m_area.first<frmMANUAL>();
}

void InputDesk::open(const QString& path) {
  if (manualAgreesToClose())
    replace(path);
}

// What is not saved of the totals that are open is asked for before another game takes their place.
bool InputDesk::manualAgreesToClose() {
  frmMANUAL* window = manual();
  if (window == nullptr)
    return true;
  const bool agrees = window->agreesToClose();
  window->stay(); // should it not come to that, closing it asks again
  return agrees;
}

void InputDesk::replace(const QString& path, GameLock lock) {
  GameDetails details;
  if (const GameFileProblem problem = GameFile(m_workshop.store, fromQt(path)).readDetails(details);
      problem != GameFileProblem::None)
    return refuse(m_workshop, &m_window, problem, path);
  if (details.inputType == 0)
    openLive(path, std::move(lock));
  else
    openManual(path, std::move(lock));
}

// The window for the other kind of input makes room; at once, so that it gives up the lock on its game.
void InputDesk::makeRoom(ChildWindow* window) {
  if (window != nullptr)
    delete window->parentWidget();
}

void InputDesk::openLive(const QString& path, GameLock lock) {
  if (isOpenIn(manual(), path)) // it was made anew
    makeRoom(manual());
  frmLIVE* open = live();
  std::unique_ptr<frmLIVE> fresh;
  if (open == nullptr) {
    fresh = std::make_unique<frmLIVE>(m_workshop.store, m_workshop.settings, m_workshop.texts,
                                      m_workshop.dialogs, m_workshop.time);
    fresh->setKeypad(m_keypad);
    connect(fresh.get(), &frmLIVE::commandStateChanged, this, &InputDesk::commandStateChanged);
  }
  frmLIVE& window = open == nullptr ? *fresh : *open;
  switch (window.open(path, std::move(lock))) {
  case frmLIVE::Opening::Opened: break;
  case frmLIVE::Opening::Refused: return;
  case frmLIVE::Opening::Problem: return refuse(m_workshop, &m_window, window.problem(), path);
  }
  makeRoom(manual());
  show(path, window, std::move(fresh));
}

void InputDesk::openManual(const QString& path, GameLock lock) {
  if (frmLIVE* other = live()) {
    const bool agrees = other->agreesToClose();
    other->stay();
    if (!agrees)
      return;
    if (isOpenIn(other, path)) // it was made anew
      makeRoom(other);
  }
  frmMANUAL* open = manual();
  std::unique_ptr<frmMANUAL> fresh;
  if (open == nullptr) {
    fresh = std::make_unique<frmMANUAL>(m_workshop.store, m_workshop.settings, m_workshop.texts,
                                        m_workshop.dialogs);
    connect(fresh.get(), &frmMANUAL::saved, this, [this, window = fresh.get()] {
      if (frmVIEW* view = m_area.scorecardOf(window->path()))
        view->refresh();
    });
    connect(fresh.get(), &frmMANUAL::scanReportAsked, this,
            [this, window = fresh.get()](const ScannedTotals& scanned, const QString& source) {
              m_preview.show(scanReports(scanned, window->details(), fromQt(source), m_workshop.settings,
                                         m_workshop.texts));
            });
  }
  frmMANUAL& window = open == nullptr ? *fresh : *open;
  if (!window.open(path, std::move(lock)))
    return refuse(m_workshop, &m_window, window.problem(), path);
  makeRoom(live());
  show(path, window, std::move(fresh));
}

// `fresh` owns the window where it is not in the area yet.
void InputDesk::show(const QString& path, ChildWindow& window, std::unique_ptr<ChildWindow> fresh) {
  emit opened(path);
  if (fresh == nullptr)
    return m_area.bringToFront(window);
  m_area.add(*fresh.release());
}

void InputDesk::makeGame() {
  if (!manualAgreesToClose())
    return;
  m_workshop.settings.settle();
  GameLock lock; // of the file that the game goes to; the window that records it gets it
  const auto claim = [this, &lock](const QString& path) -> QString {
    if (isOpenIn(live(), path) || isOpenIn(manual(), path) ||
        lock.acquire(m_workshop.store.files(), fromQt(path)) != GameLock::Outcome::HeldElsewhere)
      return {};
    return GameHold::ownerWords(lock, m_workshop.texts);
  };
  frmNEWGAME window(m_teams, m_workshop.settings, m_workshop.texts, m_workshop.dialogs, claim,
                    m_workshop.memory.lastGame(), &m_window);
  connect(&window, &frmNEWGAME::languageAsked, this, [this, &window] {
    emit languageAsked();
    window.relabelWindow();
  });
  watch(false); // the new game may take the place of the one that is open
  const bool isMade = window.exec() == QDialog::Accepted;
  emit settingsSaved();
  if (!isMade || !(isOpenIn(live(), window.path()) || isOpenIn(manual(), window.path())))
    watch(true);
  if (!isMade)
    return;
  m_workshop.memory.rememberLastGame(window.choices());
  if (frmVIEW* old = m_area.scorecardOf(window.path())) // of the game that was written over
    old->refresh();
  replace(window.path(), std::move(lock));
}

void InputDesk::openSheet(frmLIVE& recording) {
  if (recording.session().game().phase() == LiveGame::Phase::ReadOnly)
    return m_workshop.dialogs.inform(&m_window, toQt(m_workshop.texts.text(Text::WarningTitle)),
                                     toQt(m_workshop.texts.text(Text::SheetForReading)));
  const GameSheet before = GameSheet::of(recording.game().details);
  const auto team = [&](Side side) {
    const Game& game = recording.game();
    const Roster& roster = game.roster[side];
    return frmSHEET::Team{game.details.name[side],
                          isTeamItself(roster) ? std::vector<RosterPlayer>() : roster.players()};
  };
  frmSHEET sheet(before, {team(Side::Visitor), team(Side::Home)}, frmSHEET::Asks::WithRules, m_workshop.texts,
                 &m_window);
  const QPointer<frmLIVE> still(&recording);
  if (sheet.exec() != QDialog::Accepted || still == nullptr)
    return;
  // The game can have become somebody else's meanwhile.
  if (const GameSheet::KeysAndValues changes = sheet.sheet().changedFrom(before);
      !changes.empty() && !recording.session().change()->setDetails(changes))
    m_workshop.dialogs.inform(&m_window, toQt(m_workshop.texts.text(Text::WarningTitle)),
                              toQt(m_workshop.texts.text(Text::SheetForReading)));
}

void InputDesk::watch(bool isOn) {
  if (frmLIVE* window = live())
    window->setWatching(isOn);
  if (frmMANUAL* window = manual())
    window->setWatching(isOn);
}

template <class Window>
void InputDesk::saveCopy(Window& window) {
  const Texts& texts = m_workshop.texts;
  Dialogs& dialogs = m_workshop.dialogs;
  const QFileInfo game(window.path());
  const QString error = toQt(texts.text(Text::ErrorTitle));
  const QString path =
      dialogs.chooseFileToSave(&m_window, caption(texts, Text::SaveCopy),
                               game.dir().filePath(game.completeBaseName() + QStringLiteral(" 2.GAM")),
                               fileFilter(toQt(texts.text(Text::GameFilter))), QStringLiteral("GAM"));
  if (path.isEmpty())
    return;
  if (QFileInfo(path) == game)
    return dialogs.warn(&m_window, error, toQt(texts.withPlaceholder(Text::OwnFile, fromQt(path))));
  if (QFileInfo::exists(path) && !dialogs.ask(&m_window, toQt(texts.text(Text::WarningTitle)),
                                              toQt(texts.withPlaceholder(Text::ReplaceFile, fromQt(path)))))
    return;
  if (!window.writeCopy(path))
    return dialogs.complain(&m_window, error, toQt(texts.withPlaceholder(Text::CopyFailed, fromQt(path))));
  emit reported(toQt(texts.withPlaceholder(Text::CopySaved, fromQt(QDir::toNativeSeparators(path)))));
}

void InputDesk::writePending() {
  if (frmLIVE* window = live())
    window->writePending();
  if (frmMANUAL* window = manual())
    window->writePending();
}

void InputDesk::openKeys() {
  frmConfiguration window(m_keypad, m_workshop.settings, m_workshop.texts, m_workshop.dialogs, &m_window);
  connect(&window, &frmConfiguration::languageAsked, this, [this, &window] {
    emit languageAsked();
    window.relabelWindow();
  });
  connect(&window, &frmConfiguration::applied, this, [this, &window] {
    m_keypad = window.saved();
    m_workshop.memory.rememberKeyChoices(m_keypad.choices());
    if (frmLIVE* recording = live())
      recording->setKeypad(m_keypad);
    emit settingsSaved();
  });
  window.exec();
}

} // namespace hooptab
