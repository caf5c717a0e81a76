#include "shell/MDI.h"

#include "appearance/PlainText.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "court/CourtView.h"
#include "court/frmCOULEURS.h"
#include "events/frmSUBST.h"
#include "forms/ScannedTotals.h"
#include "keypad/frmConfiguration.h"
#include "live/frmLIVE.h"
#include "manual/frmMANUAL.h"
#include "printing/Printers.h"
#include "printing/ReportOutput.h"
#include "printing/frmprint.h"
#include "recording/TimeSource.h"
#include "scorecard/frmVIEW.h"
#include "season/frmSTATS.h"
#include "settings/Settings.h"
#include "setup/frmNEWGAME.h"
#include "shell/Commands.h"
#include "shell/InstanceLock.h"
#include "shell/SharedFiles.h"
#include "shell/WindowMemory.h"
#include "support/ScriptedDialogs.h"
#include "teams/frmEQUIPES.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLockFile>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QSet>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

namespace hooptab {
namespace {

namespace fs = std::filesystem;
using Kind = ScriptedDialogs::Kind;

// The main window on a program folder of its own, with an answering machine in place of the user's dialogs.
class MainWindowTest : public testing::Test {
 protected:
  void SetUp() override {
    Theme::apply(*qApp, ColourScheme::Light);
    start();
  }
  void TearDown() override {
    window.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  void start() {
    window.reset();
    settings = std::make_unique<Settings>(store, folder());
    preparation = settings->prepare(texts);
    texts.setLanguage(settings->language);
    texts.showNumbers(settings->asksForTextNumbers());
    memory = std::make_unique<WindowMemory>(store, folder());
    window =
        std::make_unique<MDI>(Workshop{store, *settings, texts, *memory, dialogs, shared, time, printers});
    window->setWindowState(Qt::WindowNoState); // the display of these tests is smaller than the screen meant
    window->resize(1366, 768);
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }

  std::string folder() const { return fromQt(programFolder.path()); }
  QString fileIn(const QTemporaryDir& place, const char* name) const {
    return place.filePath(QLatin1String(name));
  }

  // A game with one made shot, 3 : 0.
  QString makeGame(const char* name, const char* visitors = "LYNX") {
    const QString path = fileIn(games, name);
    GameDetails details;
    details.version = GameFile::kVersion;
    details.date = "2026-11-05";
    details.abbreviation[0] = visitors;
    details.abbreviation[1] = "PUMA";
    details.name[0] = "Basketball College";
    details.name[1] = "Very Small School";
    details.periods = 4;
    details.minutesPerPeriod = 10;
    GameFile file(store, fromQt(path));
    EXPECT_EQ(file.create(details, {{"4", 0, "Ann Able"}}, {{"5", 1, "Bea Baker"}}), GameFileProblem::None);
    EXPECT_EQ(file.append(1, 500, file.nextNumber(), {",GF3,0-4,60,80"}), GameFileProblem::None);
    return path;
  }
  QString makeWrongFile() {
    const QString path = fileIn(games, "WRONG.GAM");
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[DETAILS]\r\nVERSION=1.0\r\n");
    return path;
  }

  QAction& action(const char* key) {
    auto* found = window->findChild<QAction*>(QLatin1String(key));
    EXPECT_NE(found, nullptr) << key;
    return *found;
  }
  void click(const char* key) {
    auto* button = window->findChild<QToolButton*>(QLatin1String("button_") + QLatin1String(key));
    ASSERT_NE(button, nullptr) << key;
    QTest::mouseClick(button, Qt::LeftButton);
  }
  QMdiArea& area() { return *window->findChild<QMdiArea*>(); }
  QList<frmVIEW*> scorecards() { return area().findChildren<frmVIEW*>(); }
  QString text(Text which) { return toQt(texts.text(which)); }
  std::string setting(const char* key) {
    store.Path(settings->path());
    store.Section("CONFIGURATION");
    store.Key(key);
    return store.Value();
  }

  QTemporaryDir programFolder, games, installed;
  FileSystem files;
  cinifile store{files};
  Texts texts;
  ScriptedDialogs dialogs;
  SystemTime time;
  QtPrinters printers;
  SharedFiles shared{fromQt(installed.path())};
  Settings::Preparation preparation = Settings::Preparation::AlreadyThere;
  std::unique_ptr<Settings> settings;
  std::unique_ptr<WindowMemory> memory;
  std::unique_ptr<MDI> window;
};

// All actions that the menu bar leads to.
void collect(const QList<QAction*>& actions, std::set<QString>& names) {
  for (const QAction* action : actions) {
    names.insert(action->objectName());
    if (action->menu() != nullptr)
      collect(action->menu()->actions(), names);
  }
}

// "[*]" in a title is Qt's mark of what is not saved, "&" in a menu that of a key.
TEST_F(MainWindowTest, TitlesAndMenusShowNamesAsTheyAre) {
  dialogs.nextFile = makeGame("LIVE.GAM", "[*]&<b>");
  action("LIVEOpen").trigger();
  window->openGame(dialogs.nextFile);
  const QString score = QStringLiteral("[*]&<b> 3 - 0 PUMA");
  EXPECT_TRUE(window->windowTitle().contains(asTitle(score))) << fromQt(window->windowTitle());
  ASSERT_EQ(area().subWindowList().size(), 2);
  for (const QMdiSubWindow* each : area().subWindowList())
    EXPECT_TRUE(shownTitle(*each).endsWith(score)) << fromQt(each->windowTitle());
  QMenu* windows = action("windowNext").associatedObjects().isEmpty()
                       ? nullptr
                       : qobject_cast<QMenu*>(action("windowNext").associatedObjects().first());
  ASSERT_NE(windows, nullptr);
  emit windows->aboutToShow();
  EXPECT_TRUE(windows->actions().last()->text().endsWith(QStringLiteral("[*]&&<b> 3 - 0 PUMA")))
      << fromQt(windows->actions().last()->text());

  QWidget modified;
  modified.setWindowTitle(asTitle(QStringLiteral("A [*] - [*]")) + QStringLiteral("[*]"));
  EXPECT_EQ(shownTitle(modified), QStringLiteral("A [*] - [*]"));
}

// The menu stands on the table itself; the same table is what the File menu exports.
TEST_F(MainWindowTest, EveryTableOfEveryWindowIsExportedFromItsOwnPlace) {
  const auto exported = [&](QWidget& table) {
    dialogs.nextFileToSave = fileIn(programFolder, "table.csv");
    QFile::remove(dialogs.nextFileToSave);
    auto* csv = table.findChild<QAction*>(QStringLiteral("tableCSV"));
    EXPECT_NE(csv, nullptr) << fromQt(table.objectName());
    if (csv == nullptr)
      return QString();
    csv->trigger();
    QFile file(dialogs.nextFileToSave);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window->findChild<ReportOutput*>()->isBusy(); }));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll());
  };
  const auto everyTable = [&](QWidget& child, std::set<QString> names) {
    for (auto* table : child.findChildren<QTableView*>()) {
      if (table->objectName() == u"frozen" || table->objectName().startsWith(u"qt_"))
        continue;
      names.erase(table->objectName());
      EXPECT_GT(exported(*table).indexOf(u'\n'), 0) << fromQt(table->objectName());
    }
    EXPECT_TRUE(names.empty()) << fromQt(*names.begin());
  };
  const QString game = makeGame("A.GAM");
  window->openGame(game);
  frmVIEW& view = *scorecards().first();
  everyTable(view, {QStringLiteral("lvwSTAT(0)"), QStringLiteral("lvwSTAT(1)"), QStringLiteral("lvwEVENT")});
  const QString box = exported(*view.findChild<QTableView*>(QStringLiteral("lvwSTAT(0)")));
  EXPECT_TRUE(box.contains(QStringLiteral("FGM,FGA,FG%,FGPTS"))) << fromQt(box);
  EXPECT_TRUE(box.contains(QStringLiteral("Ann Able")));
  for (const char* picture : {"pictureCOPY", "picturePNG"})
    EXPECT_NE(view.findChild<QAction*>(QLatin1String(picture)), nullptr);

  auto* menu = action("exportTable").menu();
  emit qobject_cast<QMenu*>(action("QUIT").parent())->aboutToShow();
  ASSERT_TRUE(menu->isEnabled());
  menu->actions().first()->trigger();
  EXPECT_TRUE(QApplication::clipboard()->text().contains(QStringLiteral("Ann Able")));

  action("STATS").trigger();
  everyTable(*window->findChild<frmSTATS*>(),
             {QStringLiteral("lvwGAMES"), QStringLiteral("lvwSTATjoueurs(0)"),
              QStringLiteral("lvwSTATjoueurs(1)"), QStringLiteral("lvwSTATjoueurs(2)"),
              QStringLiteral("lvwSTATlignes(0)"), QStringLiteral("lvwLEADERS"), QStringLiteral("lvwFIRST"),
              QStringLiteral("lvwRECORD"), QStringLiteral("lvwRESULTS")});
  action("gEQUIPE").trigger();
  everyTable(*window->findChild<frmEQUIPES*>(), {QStringLiteral("lvwJOUEURS")});
  dialogs.nextFile = game;
  action("LIVEOpen").trigger();
  EXPECT_TRUE(exported(*window->findChild<frmLIVE*>()->findChild<QTableView*>(QStringLiteral("lvwEVENT")))
                  .contains(QStringLiteral("3-0")))
      << "the score is in the file, though the list has no room for it";

  GameDetails totals;
  totals.version = GameFile::kVersion;
  totals.inputType = 1;
  totals.abbreviation[0] = "LYNX";
  dialogs.nextFile = fileIn(games, "M.GAM");
  ASSERT_EQ(GameFile(store, fromQt(dialogs.nextFile)).create(totals, {{"00", 0, "=Ann"}}, {}),
            GameFileProblem::None);
  action("LIVEOpen").trigger();
  const QString manual = exported(*window->findChild<QWidget*>(QStringLiteral("tblTOTALS")));
  EXPECT_TRUE(manual.contains(QStringLiteral("\r\n00,'=Ann,0,"))) << fromQt(manual);
  emit qobject_cast<QMenu*>(action("QUIT").parent())->aboutToShow();
  EXPECT_TRUE(menu->isEnabled());
}

// Each print command leads to the one preview, with what it was asked from.
TEST_F(MainWindowTest, EveryPrintCommandLeadsToOnePreview) {
  const auto title = [&] {
    const QList<frmprint*> previews = area().findChildren<frmprint*>();
    EXPECT_EQ(previews.size(), 1);
    return previews.isEmpty() ? QString()
                              : previews.first()->findChild<QLineEdit*>(QStringLiteral("txtTITLE"))->text();
  };
  window->openGame(makeGame("one.GAM"));
  action("vwPRINT").trigger();
  EXPECT_EQ(title(), text(Text::Scorecard));
  action("viergePRINT").trigger();
  EXPECT_EQ(title(), text(Text::BlankForms));
  action("blankPRINT").trigger();
  EXPECT_EQ(title(), text(Text::PreparedForms));
  EXPECT_EQ(area().findChild<frmprint*>()->findChild<QComboBox*>(QStringLiteral("cmbREPORT"))->count(), 6)
      << "the six teams of the first start";
  action("gEQUIPE").trigger();
  auto* teams = area().findChild<frmEQUIPES*>();
  auto* print = teams->findChild<QPushButton*>(QStringLiteral("cmdPRINT"));
  print->click();
  EXPECT_EQ(dialogs.shown.back().text, text(Text::SelectTeamFirst)) << "no team is chosen";
  teams->findChild<QListWidget*>(QStringLiteral("lstequipes"))->setCurrentRow(0);
  print->click();
  EXPECT_EQ(title(), text(Text::TeamRoster));
  dialogs.nextFile = makeGame("two.GAM");
  action("LIVEOpen").trigger();
  action("livePRINT").trigger();
  EXPECT_EQ(title(), text(Text::Scorecard));
}

TEST_F(MainWindowTest, EveryCommandStandsInTheMenusAndIsDisabledUntilItsWindowExists) {
  std::set<QString> inMenus;
  collect(window->findChild<QMenuBar*>(QStringLiteral("menuBar"))->actions(), inMenus);
  std::set<QString> usedKeys;
  for (const Command& command : commands()) {
    const QAction& shown = action(std::string(command.key).c_str());
    if (command.kind != CommandKind::Menu) {
      EXPECT_TRUE(inMenus.contains(shown.objectName())) << command.key;
      const bool isUsable =
          command.group == CommandGroup::Always || command.group == CommandGroup::StartOfInput;
      EXPECT_EQ(shown.isEnabled(), isUsable) << command.key << " in an empty window";
    }
    EXPECT_FALSE(shown.icon().isNull()) << command.key;
    EXPECT_FALSE(shown.text().isEmpty()) << command.key;
    const QString shortcut = shown.shortcut().toString();
    if (!shortcut.isEmpty()) {
      EXPECT_TRUE(usedKeys.insert(shortcut).second) << command.key << " shares a key";
      EXPECT_TRUE(shown.toolTip().contains(shortcut)) << command.key << ": " << fromQt(shown.toolTip());
    }
  }
}

TEST_F(MainWindowTest, MenusHaveLettersThatNoWindowTakesFromThem) {
  const auto letterOf = [](const QString& text) {
    const qsizetype place = text.indexOf(u'&');
    return place < 0 ? QChar() : text[place + 1].toLower();
  };
  action("gEQUIPE").trigger();
  for (int language = 0; language < 2; ++language) {
    QSet<QChar> letters;
    const QList<QAction*> menus = window->findChild<QMenuBar*>(QStringLiteral("menuBar"))->actions();
    for (const QAction* menu : menus)
      letters << letterOf(menu->text());
    EXPECT_EQ(letters.size(), menus.size());
    EXPECT_TRUE(letters.contains(u'f') && !letters.contains(QChar()));
    int own = 0;
    for (const QPushButton* button : area().findChild<frmEQUIPES*>()->findChildren<QPushButton*>()) {
      EXPECT_FALSE(letters.contains(letterOf(button->text()))) << fromQt(button->text());
      own += letterOf(button->text()).isNull() ? 0 : 1;
    }
    EXPECT_GT(own, 5);
    QMenu& file = *menus[0]->menu();
    emit file.aboutToShow();
    EXPECT_FALSE(letterOf(action("VwOPEN").text()).isNull());
    action("tbLANGUE").trigger();
  }
  QTest::keyClick(window.get(), Qt::Key_F10);
  EXPECT_NE(QApplication::activePopupWidget(), nullptr);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);

  // A text field leaves the key of the teams to the window.
  auto* field = area().findChild<frmEQUIPES*>()->findChild<QLineEdit*>(QStringLiteral("txtABB"));
  QKeyEvent key(QEvent::ShortcutOverride, Qt::Key_E, Qt::ControlModifier);
  key.ignore();
  QApplication::sendEvent(field, &key);
  EXPECT_FALSE(key.isAccepted());
}

// Menus and tools in one row, in every mode.
TEST_F(MainWindowTest, ShowsMenusAndToolsInOneRowOfASmallScreenInBothLanguages) {
  const auto fits = [this](const char* mode) {
    for (const int width : {1366, 1024}) {
      window->resize(width, 768);
      for (int language = 0; language < 2; ++language) {
        QTest::qWait(1); // one turn of the event loop lays out
        EXPECT_LE(window->findChild<QWidget*>(QStringLiteral("top"))->sizeHint().width(), width)
            << mode << " in language " << language;
        action("tbLANGUE").trigger();
      }
    }
  };
  fits("none");
  EXPECT_EQ(window->findChild<QToolButton*>(QStringLiteral("button_SWITCH")), nullptr)
      << "no game is recorded";
  dialogs.nextFile = makeGame("two.GAM");
  action("LIVEOpen").trigger();
  EXPECT_NE(window->findChild<QToolButton*>(QStringLiteral("button_SWITCH")), nullptr);
  fits("live");
  action("STATS").trigger();
  dialogs.nextFile = makeGame("three.GAM");
  action("VwOPEN").trigger();
  fits("scorecard in front of live and season");
  auto* more = window->findChild<QToolButton*>(QStringLiteral("button_MORE"));
  ASSERT_NE(more, nullptr) << "the window is 1024 wide";
  EXPECT_TRUE(more->defaultAction()->menu()->actions().contains(&action("CLOSELIVEMANUAL")));
}

TEST_F(MainWindowTest, OpensAGameByKeyAndServesItsScorecard) {
  dialogs.nextFile = makeGame("A.GAM");
  QTest::keyClick(window.get(), Qt::Key_O, Qt::ControlModifier);
  ASSERT_EQ(scorecards().size(), 1);
  EXPECT_TRUE(dialogs.lastFilter.contains(QStringLiteral("*.GAM *.gam"))) << fromQt(dialogs.lastFilter);
  EXPECT_EQ(fromQt(dialogs.lastFolder), folder()) << "the first games are looked for in the program folder";
  frmVIEW& view = *scorecards()[0];
  EXPECT_TRUE(view.isVisible());
  EXPECT_TRUE(area().currentSubWindow()->isMaximized());
  EXPECT_EQ(memory->recentFiles(), std::vector{fromQt(dialogs.nextFile)});

  for (const char* key :
       {"VwREFRESH", "VwREFSEC00", "VwREFSEC10", "VwREFSEC30", "VwREFSEC60", "VwLIGNE", "VwMA", "VwCLOSE"})
    EXPECT_TRUE(action(key).isEnabled()) << key;
  EXPECT_TRUE(action("vwPRINT").isEnabled());
  EXPECT_TRUE(action("VwREFSEC00").isChecked());

  click("VwLIGNE");
  EXPECT_TRUE(view.isByLine());
  EXPECT_EQ(action("VwLIGNE").text(), text(Text::ViewByPlayer));
  click("VwMA");
  EXPECT_TRUE(view.hidesMadeAttempted());
  EXPECT_EQ(action("VwMA").text(), text(Text::StatisticsWithMadeAndAttempt));
  click("VwLIGNE");
  EXPECT_FALSE(view.isByLine());
  EXPECT_EQ(action("VwLIGNE").text(), text(Text::ViewByLine));

  action("VwREFSEC30").trigger();
  EXPECT_EQ(view.refreshMode(), frmVIEW::RefreshMode::Every30);
  EXPECT_TRUE(action("VwREFSEC30").isChecked());
  EXPECT_FALSE(action("VwREFSEC00").isChecked());

  click("VwCLOSE");
  EXPECT_TRUE(QTest::qWaitFor([&] { return scorecards().isEmpty() && !action("VwREFRESH").isEnabled(); }));
  EXPECT_TRUE(window->findChild<QWidget*>(QStringLiteral("welcome"))->isVisible());
}

// The start page is left and reached by what stands on it, and shows the games anew each time.
TEST_F(MainWindowTest, TheStartPageLeadsIntoTheGamesAndBack) {
  const QString path = makeGame("GOES ON.GAM");
  memory->rememberFile(fromQt(makeWrongFile()));
  memory->rememberFile(fromQt(path));
  memory->rememberFile(fromQt(fileIn(games, "GONE.GAM")));
  start();
  auto* plate = window->findChild<QWidget*>(QStringLiteral("unfinished"));
  const auto row = [&](const char* name) { return window->findChild<QAbstractButton*>(QLatin1String(name)); };
  ASSERT_TRUE(QTest::qWaitFor([&] { return plate->isVisible() && row("recent(0)") != nullptr; }));
  EXPECT_TRUE(plate->accessibleName().contains(QStringLiteral("LYNX 3 – 0 PUMA")));
  EXPECT_TRUE(row("recent(0)")->accessibleName().contains(text(Text::RecentCannotBeRead)))
      << "the wrong file says so";
  EXPECT_EQ(row("recent(1)"), nullptr);
  QTest::mouseClick(row("recent(0)"), Qt::LeftButton);
  EXPECT_EQ(dialogs.shown.back().text, text(Text::NotAGame));
  QTest::mouseClick(row("optLANGUAGE(1)"), Qt::LeftButton);
  EXPECT_EQ(row("card_LIVENew")->text(), toQt(texts.text(Text::CreateANewGame, Language::French)));
  EXPECT_TRUE(row("optLANGUAGE(1)")->isChecked());
  QTest::mouseClick(row("cmdFOLDER"), Qt::LeftButton);
  EXPECT_EQ(dialogs.opened.back(), QUrl::fromLocalFile(games.path()));

  row("cmdCONTINUE")->setFocus();
  QTest::keyClick(row("cmdCONTINUE"), Qt::Key_Return);
  auto* recording = area().findChild<frmLIVE*>();
  ASSERT_NE(recording, nullptr);
  EXPECT_EQ(recording->path(), path);
  action("CLOSELIVEMANUAL").trigger();
  ASSERT_TRUE(QTest::qWaitFor([&] { return plate->isVisible(); }));
  window->openGame(path);
  EXPECT_EQ(GameFile(store, fromQt(path)).setDetails({{"TERMINE", "1"}}), GameFileProblem::None);
  click("VwCLOSE");
  ASSERT_TRUE(QTest::qWaitFor([&] { return row("recent(1)") != nullptr; })) << "it is over";
  EXPECT_FALSE(plate->isVisible());
  row("recent(0)")->setFocus();
  QTest::keyClick(row("recent(0)"), Qt::Key_Down);
  QTest::keyClick(window->focusWidget(), Qt::Key_Up);
  QTest::keyClick(window->focusWidget(), Qt::Key_Enter);
  ASSERT_EQ(scorecards().size(), 1);
  EXPECT_EQ(scorecards().first()->path(), path);
}

TEST_F(MainWindowTest, RefusesAWrongFileAndKeepsTheOpenGame) {
  window->openGame(makeGame("A.GAM"));
  dialogs.nextFile = makeWrongFile();
  action("VwOPEN").trigger();
  ASSERT_EQ(dialogs.shown.size(), 1u);
  EXPECT_EQ(dialogs.shown[0],
            (ScriptedDialogs::Shown{Kind::Warn, QStringLiteral("HOOPTAB - Error"),
                                    QStringLiteral("Invalid File Format (Not a Valid .GAM File)")}));
  EXPECT_EQ(scorecards().size(), 1);
  EXPECT_TRUE(action("VwREFRESH").isEnabled());
  EXPECT_EQ(memory->recentFiles().size(), 1u);

  window->openGame(fileIn(games, "MISSING.GAM"));
  ASSERT_EQ(dialogs.shown.size(), 2u);
  EXPECT_NE(dialogs.shown[1].text, text(Text::NotAGame)) << "a missing file is no wrong file";
  EXPECT_TRUE(dialogs.shown[1].text.contains(QStringLiteral("MISSING.GAM")));

  dialogs.nextFile.clear();
  action("VwOPEN").trigger();
  EXPECT_EQ(dialogs.shown.size(), 2u) << "a cancelled dialog is no event";
}

TEST_F(MainWindowTest, BringsAGameToTheFrontThatIsOpenAlready) {
  const QString first = makeGame("A.GAM");
  const QString second = makeGame("B.GAM", "COUGAR");
  window->openGame(first);
  window->openGame(second);
  ASSERT_EQ(scorecards().size(), 2);
  window->openGame(fileIn(games, "../") + QFileInfo(games.path()).fileName() + QStringLiteral("/A.GAM"));
  EXPECT_EQ(scorecards().size(), 2);
  EXPECT_EQ(qobject_cast<frmVIEW*>(area().currentSubWindow()->widget())->path(), first);
}

TEST_F(MainWindowTest, GamesOfASecondStartLeaveTheLiveWindowInFront) {
  const QString card = makeGame("CARD.GAM");
  dialogs.nextFile = makeGame("LIVE.GAM");
  action("LIVEOpen").trigger();
  settings->lastGameFolder = folder();
  const QWidget* focused = QApplication::focusWidget();
  window->openFromElsewhere({makeWrongFile()});
  EXPECT_EQ(settings->lastGameFolder, folder()) << "a file that was refused is from nowhere";
  window->openFromElsewhere({card});
  EXPECT_TRUE(dialogs.shown.empty()) << "what was refused is told beside the game";
  ASSERT_EQ(scorecards().size(), 1);
  EXPECT_EQ(area().currentSubWindow()->widget(), area().findChild<frmLIVE*>());
  EXPECT_EQ(QApplication::focusWidget(), focused);
  EXPECT_EQ(settings->lastGameFolder, fromQt(games.path()));

  action("CLOSELIVEMANUAL").trigger();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  window->openFromElsewhere({makeWrongFile(), makeGame("NEXT.GAM")});
  EXPECT_EQ(dialogs.shown.size(), 1u);
  EXPECT_EQ(qobject_cast<frmVIEW*>(area().currentSubWindow()->widget())->path(), fileIn(games, "NEXT.GAM"));
}

TEST_F(MainWindowTest, SwitchesTheLanguageOfEverythingThatIsOpen) {
  window->openGame(makeGame("A.GAM"));
  const QString englishToolTip = action("VwOPEN").toolTip();
  QTest::keyClick(window.get(), Qt::Key_F12);
  EXPECT_EQ(texts.language(), Language::French);
  EXPECT_EQ(setting("LANGUE"), "4000");
  EXPECT_EQ(action("VwOPEN").text(), toQt(texts.text(Text::OpenAGame, Language::French)));
  EXPECT_NE(action("VwOPEN").toolTip(), englishToolTip);
  EXPECT_EQ(action("tbLANGUE").text(), QStringLiteral("English"));
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Annuler"))
      << "dialog buttons";

  QTest::keyClick(window.get(), Qt::Key_F12);
  EXPECT_EQ(setting("LANGUE"), "0");
  EXPECT_EQ(action("VwOPEN").toolTip(), englishToolTip);
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Cancel"));
}

TEST_F(MainWindowTest, ShowsTextNumbersWhenTheFirstLabelAsksForThem) {
  store.Path(settings->path());
  store.Section("CONFIGURATION");
  store.Key("STATU1");
  store.Value("WW-DEBUG");
  start();
  EXPECT_EQ(action("VwOPEN").text(), QStringLiteral("1030 Open a Game"));
  action("tbLANGUE").trigger();
  EXPECT_TRUE(action("VwOPEN").text().startsWith(QStringLiteral("5030 "))) << fromQt(action("VwOPEN").text());
}

TEST_F(MainWindowTest, OpensGamesThatAreDroppedOnIt) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(makeGame("A.GAM")), QUrl::fromLocalFile(makeWrongFile())});
  QDragEnterEvent enter({100, 100}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(window.get(), &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop({100, 100}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(window.get(), &drop);
  EXPECT_TRUE(QTest::qWaitFor([&] { return dialogs.shown.size() == 1; }));
  EXPECT_EQ(scorecards().size(), 1);

  QMimeData noFile;
  noFile.setText(QStringLiteral("some words"));
  QDragEnterEvent enterText({100, 100}, Qt::CopyAction, &noFile, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(window.get(), &enterText);
  EXPECT_FALSE(enterText.isAccepted());
}

TEST_F(MainWindowTest, OpensOneTeamEditorThatAsksBeforeTheProgramEnds) {
  QTest::keyClick(window.get(), Qt::Key_E, Qt::ControlModifier);
  QTest::keyClick(window.get(), Qt::Key_E, Qt::ControlModifier);
  ASSERT_EQ(area().subWindowList().size(), 1);
  auto* editor = area().findChild<frmEQUIPES*>();
  ASSERT_NE(editor, nullptr);
  editor->findChild<QListWidget*>(QStringLiteral("lstequipes"))->setCurrentRow(0);
  editor->findChild<QLineEdit*>(QStringLiteral("txtNOMEQUIPE"))->setText(QStringLiteral("Bees"));
  action("tbLANGUE").trigger();
  EXPECT_EQ(editor->windowTitle(), toQt(texts.text(Text::TeamManagement, Language::French)));
  window->openGame(makeGame("ONE.GAM"));
  dialogs.nextSaveChoice = SaveChoice::Stay;
  EXPECT_FALSE(window->close());
  EXPECT_EQ(scorecards().size(), 1) << "nothing closes when one window stays";
  dialogs.nextSaveChoice = SaveChoice::Save;
  EXPECT_TRUE(window->close());
  EXPECT_EQ(TeamStore(store, *settings).read("1").name, "Bees");
}

TEST_F(MainWindowTest, MakesAGameAndOpensItAndBeginsTheNextOneWithItsChoices) {
  const QString path = fileIn(games, "NEW.GAM");
  dialogs.nextFileToSave = path;
  const auto useWindow = [this](auto&& act) {
    QTimer::singleShot(0, window.get(), [act] {
      auto* form = qobject_cast<frmNEWGAME*>(QApplication::activeModalWidget());
      ASSERT_NE(form, nullptr);
      act(*form);
    });
    action("LIVENew").trigger();
  };
  useWindow([](frmNEWGAME& form) {
    form.findChild<QListWidget*>(QStringLiteral("lstequipes(0)"))->setCurrentRow(3);
    form.findChild<QListWidget*>(QStringLiteral("lstequipes(1)"))->setCurrentRow(2);
    form.findChild<QLineEdit*>(QStringLiteral("txtENDROIT"))->setText(QStringLiteral("Main gym"));
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&form] { return QApplication::activeWindow() == &form; }));
    QTest::keyClick(&form, Qt::Key_F12);
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Nouvelle partie"));
    QTest::mouseClick(form.findChild<QPushButton*>(QStringLiteral("OKButton")), Qt::LeftButton);
  });
  auto* live = area().findChild<frmLIVE*>();
  ASSERT_NE(live, nullptr) << (dialogs.shown.empty() ? "" : fromQt(dialogs.shown.back().text));
  EXPECT_EQ(live->path(), path);
  QCoreApplication::processEvents();
  auto* fives = live->findChild<frmSUBST*>();
  ASSERT_NE(fives, nullptr) << "a game that has not begun asks for both of them";
  fives->reject();
  EXPECT_TRUE(live->windowTitle().endsWith(QStringLiteral("LION 0 - 0 JAGUAR")))
      << fromQt(live->windowTitle());
  EXPECT_EQ(settings->lastGameFolder, fromQt(games.path()));
  useWindow([](frmNEWGAME& form) {
    EXPECT_EQ(form.findChild<QLineEdit*>(QStringLiteral("txtNOMEQUIPE(0)"))->text(),
              QStringLiteral("Somewhere College "));
    EXPECT_EQ(form.findChild<QLineEdit*>(QStringLiteral("txtENDROIT"))->text(), QStringLiteral("Main gym"));
    form.reject();
  });
  EXPECT_EQ(area().subWindowList().size(), 1);
}

TEST_F(MainWindowTest, RecordsAGameAndStopsTheClockBeforeItCloses) {
  const QString path = makeGame("LIVE.GAM");
  dialogs.nextFile = path;
  action("LIVEOpen").trigger();
  auto* live = area().findChild<frmLIVE*>();
  ASSERT_NE(live, nullptr);
  EXPECT_TRUE(QFileInfo::exists(path + QStringLiteral(".lock")));
  EXPECT_TRUE(action("SWITCH").isEnabled() && action("GAMEOVER").isEnabled());
  live->setFocus();
  QTest::keyClick(live, Qt::Key_Space);
  EXPECT_TRUE(live->isRunning());
  EXPECT_FALSE(action("LIVEOpen").isEnabled() || action("LIVENew").isEnabled()) << "not while the clock runs";
  action("LIVEMouse").trigger();
  EXPECT_EQ(setting("SAVEREBOUND"), "True");
  dialogs.nextAnswer = true;
  action("CLOSELIVEMANUAL").trigger();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
  EXPECT_EQ(area().findChild<frmLIVE*>(), nullptr);
  EXPECT_FALSE(QFileInfo::exists(path + QStringLiteral(".lock")));
  EXPECT_TRUE(action("LIVEOpen").isEnabled());
  Game game;
  ASSERT_EQ(GameFile(store, fromQt(path)).read(game), GameFileProblem::None);
  EXPECT_EQ(game.events[game.events.size() - 1].code, EventCode::ARRET);
}

TEST_F(MainWindowTest, EntersTotalsInTheirOwnWindowWhichMakesRoomForALiveGame) {
  const QString path = makeGame("TOTALS.GAM");
  const QString second = makeGame("SECOND.GAM", "COUGAR");
  for (const QString& manual : {path, second}) {
    store.Path(fromQt(manual));
    store.Section("DETAILS");
    store.Key("INPUTTYPE");
    store.Value("1");
  }
  const QString live = makeGame("LIVE.GAM");
  const auto open = [this](const QString& game) {
    dialogs.nextFile = game;
    action("LIVEOpen").trigger();
  };
  const auto pathOfManual = [this] {
    const auto* manual = area().findChild<frmMANUAL*>();
    return manual == nullptr ? QString() : manual->path();
  };
  const auto count = [this] {
    auto* table = area().findChild<frmMANUAL*>()->findChild<QWidget*>(QStringLiteral("tblTOTALS"));
    table->setFocus();
    QTest::keyClicks(table, QStringLiteral("+"));
  };
  EXPECT_FALSE(action("saveMANUAL").isEnabled());
  open(path);
  EXPECT_EQ(pathOfManual(), path);
  EXPECT_TRUE(action("saveMANUAL").isEnabled() && action("CLOSELIVEMANUAL").isEnabled());
  EXPECT_FALSE(action("GAMEOVER").isEnabled() || action("SWITCH").isEnabled());
  window->openGame(path);
  count();
  QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
  Game game;
  ASSERT_EQ(GameFile(store, fromQt(path)).read(game), GameFileProblem::None);
  EXPECT_EQ(game.events.size(), 3u) << "two with a time, which stay, and one more";
  EXPECT_EQ(scorecards()[0]->findChild<QLabel*>(QStringLiteral("lblSCORE(0)"))->text(), QStringLiteral("5"))
      << "the scorecard follows";

  // Scanned forms are asked for with a command too; the report of one of them opens in the preview.
  EXPECT_TRUE(action("openFORM").isEnabled());
  dialogs.lastFilter.clear();
  action("openFORM").trigger();
  EXPECT_TRUE(dialogs.lastFilter.contains(QStringLiteral("*.TIF"))) << fromQt(dialogs.lastFilter);
  const auto layout = std::make_shared<FormLayout>();
  FormReading reading;
  reading.cells.resize(layout->cells().size());
  emit area().findChild<frmMANUAL*>()->scanReportAsked(
      ScannedTotals(CheckedSheet(layout, reading), 0, game.roster[0]), QStringLiteral("scan.tif"));
  auto* report = area().findChild<frmprint*>();
  ASSERT_NE(report, nullptr);
  EXPECT_EQ(report->findChild<QComboBox*>(QStringLiteral("cmbREPORT"))->currentText(),
            toQt(texts.text(Text::VerificationReport)));
  report->parentWidget()->close();

  count();
  window->openGame(path);
  QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
  ASSERT_EQ(GameFile(store, fromQt(path)).read(game), GameFileProblem::None);
  EXPECT_EQ(game.events.size(), 3u) << "the key is not for what is behind";
  for (const QString& other : {second, live}) {
    open(other);
    EXPECT_EQ(pathOfManual(), path) << "stays while the totals are not saved";
    EXPECT_EQ(dialogs.shown.back().kind, Kind::AskToSave);
  }
  action("LIVENew").trigger();
  EXPECT_EQ(dialogs.shown.size(), 3u) << "asked before a new game is even begun";
  dialogs.nextSaveChoice = SaveChoice::Save;
  open(second);
  EXPECT_EQ(pathOfManual(), second);
  ASSERT_EQ(GameFile(store, fromQt(path)).read(game), GameFileProblem::None);
  EXPECT_EQ(game.events.size(), 4u);
  open(live);
  EXPECT_EQ(pathOfManual(), QString()) << "makes room";
  EXPECT_FALSE(QFileInfo::exists(second + QStringLiteral(".lock")));
  EXPECT_FALSE(action("saveMANUAL").isEnabled());
  ASSERT_NE(area().findChild<frmLIVE*>(), nullptr);
  open(makeWrongFile());
  EXPECT_NE(area().findChild<frmLIVE*>(), nullptr) << "a file that is no game closes nothing";
  open(path);
  EXPECT_EQ(area().findChild<frmLIVE*>(), nullptr);

  action("CLOSELIVEMANUAL").trigger();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
  EXPECT_EQ(pathOfManual(), QString());
  EXPECT_FALSE(action("CLOSELIVEMANUAL").isEnabled());
  EXPECT_FALSE(QFileInfo::exists(path + QStringLiteral(".lock")));
}

TEST_F(MainWindowTest, OpensOneSeasonWindowWhoseGamesBecomeScorecards) {
  const QString path = makeGame("a.GAM");
  store.Path(fromQt(path));
  ProfileBatch end;
  end.set("DETAILS", "TERMINE", "1");
  ASSERT_TRUE(store.write(end));
  settings->lastGameFolder = fromQt(games.path());
  const auto seasons = [this] { return area().findChildren<frmSTATS*>(); };
  EXPECT_FALSE(action("stCLOSE").isEnabled());
  action("STATS").trigger();
  action("STATS").trigger();
  ASSERT_EQ(seasons().size(), 1);
  EXPECT_TRUE(action("stCLOSE").isEnabled());
  frmSTATS& season = *seasons()[0];
  ASSERT_TRUE(QTest::qWaitFor([&] { return !season.isBusy(); }));
  const auto* list = season.findChild<QAbstractItemView*>(QStringLiteral("lvwGAMES"));
  EXPECT_EQ(list->model()->rowCount(), 1);

  dialogs.shown.clear();
  action("stPRINT").trigger();
  ASSERT_EQ(dialogs.shown.size(), 1U);
  EXPECT_EQ(dialogs.shown[0].text, text(Text::GenerateFirst));
  dialogs.nextAnswer = true; // the game is not whole
  season.findChild<QAbstractButton*>(QStringLiteral("cmdGENERATE"))->click();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !season.isBusy() && season.statistics(); }));
  dialogs.shown.pop_back(); // the question
  action("stRAPLIGNE").trigger();
  ASSERT_EQ(dialogs.shown.size(), 2U);
  EXPECT_EQ(dialogs.shown[1].text, text(Text::ChooseSomebody)) << "no line is chosen";
  EXPECT_EQ(area().findChildren<frmprint*>().size(), 0);
  action("stSTATJOUEURS").trigger();
  EXPECT_EQ(area().findChildren<frmprint*>().size(), 1);

  emit season.gameAsked(path);
  ASSERT_EQ(scorecards().size(), 1);
  EXPECT_EQ(scorecards()[0]->path(), path);
  EXPECT_TRUE(action("stCLOSE").isEnabled()) << "behind the scorecard it is still there";
  action("tbLANGUE").trigger();
  EXPECT_EQ(season.windowTitle(), text(Text::SeasonTitle));
  action("stCLOSE").trigger();
  EXPECT_TRUE(QTest::qWaitFor([&] { return seasons().isEmpty() && !action("stCLOSE").isEnabled(); }));
  EXPECT_EQ(scorecards().size(), 1);

  settings->lastGameFolder = "/";
  action("STATS").trigger();
  ASSERT_EQ(seasons().size(), 1);
  EXPECT_EQ(seasons()[0]->findChild<QLineEdit*>(QStringLiteral("txtDIR"))->text(), games.path())
      << "its own last folder";
}

TEST_F(MainWindowTest, CourtColoursReachOpenWindowsAtOnce) {
  window->openGame(makeGame("ONE.GAM"));
  dialogs.nextColour = QColor(1, 2, 3);
  QTimer::singleShot(0, window.get(), [] {
    auto* form = qobject_cast<frmCOULEURS*>(QApplication::activeModalWidget());
    ASSERT_NE(form, nullptr);
    QTest::mouseClick(form->findChild<QPushButton*>(QStringLiteral("cmdCOULEUR2PTS")), Qt::LeftButton);
    auto* apply = form->findChild<QPushButton*>(QStringLiteral("cmdAPPLIQUER"));
    QTest::mouseClick(apply, Qt::LeftButton);
    EXPECT_TRUE(apply->text().contains(u'&')) << "its Alt key is there still";
    form->reject();
  });
  action("tbTERRAIN").trigger();
  EXPECT_EQ(setting("COULEUR2PTS"), "197121");
  const QImage chart = scorecards()[0]->findChild<CourtView*>()->grab().toImage();
  bool isThere = false;
  for (int x = 0; x < chart.width() && !isThere; ++x)
    isThere = chart.pixelColor(x, chart.height() / 2) == QColor(1, 2, 3);
  EXPECT_TRUE(isThere);
}

TEST_F(MainWindowTest, KeysThatAreBoundAnewActAtOnceAndAfterTheNextStart) {
  dialogs.nextFile = makeGame("KEYS.GAM");
  action("LIVEOpen").trigger();
  auto* live = area().findChild<frmLIVE*>();
  ASSERT_NE(live, nullptr);
  ASSERT_TRUE(action("LIVEKpad").isChecked()) << "as on a first start";
  const auto bind = [this](const char* box, Qt::Key key) {
    QTimer::singleShot(0, window.get(), [box, key] {
      auto* form = qobject_cast<frmConfiguration*>(QApplication::activeModalWidget());
      ASSERT_NE(form, nullptr);
      QTest::keyClick(form->findChild<QWidget*>(QLatin1String(box)), key);
      QTest::mouseClick(form->findChild<QPushButton*>(QStringLiteral("Command1")), Qt::LeftButton);
      form->reject();
    });
    action("tbKEYPAD").trigger();
  };
  bind("txtTOUCHE(0)", Qt::Key_G);
  EXPECT_EQ(setting("CLOCK"), "71-");
  bind("txtLETTRE(17)", Qt::Key_Q);
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  live->setFocus();
  QTest::keyClick(live, Qt::Key_G);
  EXPECT_TRUE(live->isRunning());
  action("LIVEKpad").trigger();
  EXPECT_EQ(setting("KEYPAD"), "False");
  EXPECT_FALSE(action("LIVEKpad").isChecked());
  QTest::keyClick(live, Qt::Key_G);
  EXPECT_TRUE(live->isRunning()) << "the keypad is off";
  QTest::keyClick(live, Qt::Key_Space);
  start();
  KeypadSetup kept;
  kept.take(memory->keyChoices());
  EXPECT_EQ(kept.letters.letter(LetterAssignment::kMiss), 'Q');
  EXPECT_EQ(settings->keypadKeyTexts[0], "71-");
}

TEST_F(MainWindowTest, RemembersTheLastFolderWhenItCloses) {
  dialogs.nextFile = makeGame("A.GAM");
  action("VwOPEN").trigger();
  EXPECT_EQ(setting("LASTPATHGAME"), folder());
  EXPECT_TRUE(window->close());
  EXPECT_EQ(setting("LASTPATHGAME"), fromQt(games.path()));

  start();
  dialogs.nextFile.clear();
  action("VwOPEN").trigger();
  EXPECT_EQ(dialogs.lastFolder, games.path());
}

TEST_F(MainWindowTest, ListsRecentAndSampleGames) {
  fs::create_directories(installed.filePath(QStringLiteral("samples")).toStdString());
  const QString path = makeGame("A.GAM");
  const QString sample = installed.filePath(QStringLiteral("samples/TIGER-PUMA.GAM"));
  QFile::copy(makeGame("B.GAM", "TIGER"), sample);
  QFile::copy(makeWrongFile(), installed.filePath(QStringLiteral("samples/NOTES.GAM")));
  window->openGame(path);

  QMenu& samples = *action("sampleGames").menu();
  emit samples.aboutToShow();
  ASSERT_EQ(samples.actions().size(), 1);
  EXPECT_EQ(samples.actions()[0]->text(), QStringLiteral("2026-11-05   TIGER - PUMA"));
  samples.actions()[0]->trigger();
  ASSERT_EQ(scorecards().size(), 2);

  QMenu& recent = *action("recentGames").menu();
  emit recent.aboutToShow();
  ASSERT_EQ(recent.actions().size(), 2);
  EXPECT_EQ(recent.actions()[1]->text(), QStringLiteral("A.GAM"));
  recent.actions()[1]->trigger();
  EXPECT_EQ(qobject_cast<frmVIEW*>(area().currentSubWindow()->widget())->path(), path);
}

TEST_F(MainWindowTest, SaysWhatIsNotOnDiskAndWritesItWhenItCan) {
  QLabel& unsaved = *window->findChild<QLabel*>(QStringLiteral("lblUNSAVED"));
  EXPECT_FALSE(unsaved.isVisible());
  fs::permissions(settings->path(), fs::perms::owner_read);
  action("tbLANGUE").trigger();
  EXPECT_TRUE(unsaved.isVisible());
  EXPECT_FALSE(unsaved.text().isEmpty());
  EXPECT_EQ(texts.language(), Language::French) << "the choice counts all the same";
  EXPECT_EQ(setting("LANGUE"), "0");

  EXPECT_FALSE(window->close()) << "the user stays";
  EXPECT_EQ(dialogs.shown.back().kind, Kind::AskToSave);
  dialogs.nextSaveChoice = SaveChoice::Discard;
  EXPECT_TRUE(window->close());
  window->show();

  fs::permissions(settings->path(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !unsaved.isVisible(); }, 10000));
  EXPECT_EQ(setting("LANGUE"), "4000");
}

TEST_F(MainWindowTest, TellsOfSettingsThatWereKeptAside) {
  window->report(preparation);
  EXPECT_EQ(preparation, Settings::Preparation::FirstRun);
  EXPECT_TRUE(dialogs.shown.empty()) << "an ordinary first start is no event";

  QFile file(toQt(settings->path()));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
  file.write("[SOMETHING]\r\nELSE=1\r\n");
  file.close();
  start();
  window->report(preparation);
  ASSERT_EQ(dialogs.shown.size(), 1u);
  EXPECT_TRUE(dialogs.shown[0].text.contains(QStringLiteral("CONFIG.INI.1")))
      << fromQt(dialogs.shown[0].text);
}

TEST_F(MainWindowTest, TilesInsideItsAreaAndForgetsNoSize) {
  for (const char* name : {"a.GAM", "b.GAM", "c.GAM"})
    window->openGame(makeGame(name));
  action("windowTile").trigger();
  EXPECT_EQ(window->size(), QSize(1366, 768)) << "the windows scroll instead";
  const QList<QMdiSubWindow*> tiles = area().subWindowList();
  for (const QMdiSubWindow* tile : tiles)
    for (const QMdiSubWindow* other : tiles)
      EXPECT_TRUE(tile == other || !tile->geometry().intersects(other->geometry()));

  const QSize size = tiles[0]->size() + QSize(37, 11);
  tiles[0]->resize(size);
  tiles[0]->close();
  window->openGame(makeGame("d.GAM"));
  EXPECT_EQ(area().currentSubWindow()->size(), size.boundedTo(area().viewport()->size()));
}

TEST_F(MainWindowTest, OpensGuideAndWebPage) {
  action("AidHELP").trigger();
  ASSERT_EQ(dialogs.shown.size(), 1u);
  EXPECT_EQ(dialogs.shown[0].title, QStringLiteral("Error"));
  EXPECT_EQ(dialogs.shown[0].text,
            QStringLiteral("User guide not found, you can download it from the HOOPTAB web site"));
  const QString guide = programFolder.filePath(QStringLiteral("guide.pdf"));
  const QString shipped = installed.filePath(QStringLiteral("guide.pdf"));
  QFile::copy(makeWrongFile(), shipped);
  action("AidHELP").trigger();
  QFile::copy(shipped, guide);
  action("AidHELP").trigger();
  EXPECT_EQ(dialogs.opened, (QList<QUrl>{QUrl::fromLocalFile(shipped), QUrl::fromLocalFile(guide)}));
  dialogs.opensDocuments = false;
  action("AidHELP").trigger();
  EXPECT_TRUE(dialogs.shown.back().text.contains(guide)) << "it is there, but nothing opens it";
  dialogs.opensDocuments = true;

  fs::create_directories(installed.filePath(QStringLiteral("help")).toStdString());
  const QString french = installed.filePath(QStringLiteral("help/fr.html"));
  QFile::copy(guide, french);
  action("tbLANGUE").trigger();
  action("AidWEB").trigger();
  EXPECT_EQ(dialogs.opened.last(), QUrl::fromLocalFile(french));
  settings->webPage[1] = "https://example.org/fr";
  action("AidWEB").trigger();
  EXPECT_EQ(dialogs.opened.last(), QUrl(QStringLiteral("https://example.org/fr")));
}

TEST_F(MainWindowTest, SwitchesColoursAndRemembersThem) {
  action("coloursDark").trigger();
  EXPECT_EQ(memory->colourScheme(), ColourScheme::Dark);
  EXPECT_LT(QApplication::palette().color(QPalette::Window).lightness(), 128);
  action("coloursLight").trigger();
  EXPECT_EQ(memory->colourScheme(), ColourScheme::Light);
  EXPECT_GT(QApplication::palette().color(QPalette::Window).lightness(), 128);
}

constexpr InstanceLock::Outcome MayRun = InstanceLock::Outcome::MayRun;

TEST(InstanceLockTest, AdmitsOneProgramPerFolderAndTakesOverFromTheDead) {
  QTemporaryDir folder, otherFolder;
  const pid_t child = fork();
  if (child == 0)
    _exit(InstanceLock(folder.path()).acquire() == MayRun ? 0 : 1);
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  ASSERT_EQ(status, 0);

  InstanceLock first(folder.path());
  EXPECT_EQ(first.acquire(), MayRun) << "the lock's owner is dead";
  EXPECT_EQ(InstanceLock(folder.path()).acquire(), InstanceLock::Outcome::IsRunning);
  EXPECT_EQ(InstanceLock(otherFolder.path()).acquire(), MayRun) << "two folders are two installations";
  QLockFile older(
      folder.filePath(QStringLiteral("hooptab.lock"))); // as older versions of the program take it
  older.setStaleLockTime(0);
  EXPECT_FALSE(older.tryLock(0));
  qint64 process = 0;
  QString computer, program;
  ASSERT_TRUE(older.getLockInfo(&process, &computer, &program));
  EXPECT_EQ(process, QCoreApplication::applicationPid());
  EXPECT_EQ(computer, QSysInfo::machineHostName());
}

// A stick that was taken out of another computer, and a lock that nobody can read.
TEST(InstanceLockTest, ALockOfAnotherComputerIsWatchedAndAnUnreadableOneTaken) {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("hooptab.lock"));
  const auto write = [&path](const char* text) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
  };
  for (const char* text : {"", "no lock of ours", "-3\nhooptab\n\n\n\n"}) {
    write(text);
    EXPECT_EQ(InstanceLock(folder.path()).acquire(), InstanceLock::Outcome::MayRun) << text;
  }
  write("77\nhooptab\nDEADLAPTOP\n0123\n4567\n");
  const Texts texts;
  ScriptedDialogs dialogs;
  EXPECT_FALSE(InstanceLock(folder.path()).admits(texts, dialogs, std::chrono::milliseconds(200)));
  ASSERT_EQ(dialogs.shown.size(), 1u);
  EXPECT_TRUE(dialogs.shown[0].text.contains(QStringLiteral("DEADLAPTOP")));
  dialogs.nextAnswer = true;
  EXPECT_TRUE(InstanceLock(folder.path()).admits(texts, dialogs, std::chrono::milliseconds(200)));
  EXPECT_FALSE(QFileInfo::exists(path)) << "given up at the end";
}

TEST(FileFilterTest, OffersBothLetterCasesOfEveryPair) {
  EXPECT_EQ(fileFilter(QStringLiteral("Game (*.GAM)|*.GAM")), QStringLiteral("Game (*.GAM *.gam)"));
  EXPECT_EQ(fileFilter(QStringLiteral("Form (*.BMP)|*.BMP|Form (*.TIF)|*.TIF")),
            QStringLiteral("Form (*.BMP *.bmp);;Form (*.TIF *.tif)"));
}

} // namespace
} // namespace hooptab
