#include "shell/MDI.h"

#include "appearance/PlainText.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "court/CourtView.h"
#include "court/frmCOULEURS.h"
#include "events/frmSUBST.h"
#include "exchange/frmEXPORT.h"
#include "exchange/frmIMPORT.h"
#include "forms/ScannedTotals.h"
#include "keypad/frmConfiguration.h"
#include "live/frmLIVE.h"
#include "manual/frmMANUAL.h"
#include "printing/Printers.h"
#include "printing/ReportOutput.h"
#include "printing/frmprint.h"
#include "recording/TimeSource.h"
#include "review/frmVIEW.h"
#include "settings/Settings.h"
#include "setup/frmNEWGAME.h"
#include "setup/frmSHEET.h"
#include "shell/CommandBar.h"
#include "shell/InstanceLock.h"
#include "shell/SharedFiles.h"
#include "shell/WindowMemory.h"
#include "storage/cinifile.h"
#include "studies/frmSTATS.h"
#include "support/ScriptedDialogs.h"
#include "teams/frmEQUIPES.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
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
#include <QToolButton>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

namespace hooptab {
namespace {

using namespace Qt::StringLiterals;

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

  QString write(const char* name, const std::string& text) {
    const QString path = fileIn(games, name);
    std::ofstream(fromQt(path)) << text;
    return path;
  }
  // A game with one made shot, 3 : 0.
  QString makeGame(const char* name, const std::string& visitors = "LYNX") {
    return write(name, "[DETAILS]\nVERSION=2.0\nDATE=2026-11-05\nEQUIPE0ABB=" + visitors +
                           "\nEQUIPE1ABB=PUMA\nEQUIPE0NOM=Basketball College\nEQUIPE1NOM=Very Small School\n"
                           "NBREPERIODE=4\nDUREE=10\nEVENUM=3\n[0]\n4=0,Ann Able\n[1]\n5=1,Bea Baker\n"
                           "[PERIODE1]\n1=10:00,ARRET,IN-,IN-\n2=08:20,GF3,0-4,60,80\n");
  }
  QString makeWrongFile() { return write("WRONG.GAM", "[DETAILS]\r\nVERSION=1.0\r\n"); }
  // Opens it for input; null when that is no live game.
  frmLIVE* record(const QString& game) {
    dialogs.nextFile = game;
    action("LIVEOpen").trigger();
    return area().findChild<frmLIVE*>();
  }

  QAction& action(const char* key) {
    auto* found = find<QAction>(key);
    EXPECT_NE(found, nullptr) << key;
    return *found;
  }
  void click(const char* key) {
    auto* button = window->findChild<QToolButton*>(QLatin1String("button_") + QLatin1String(key));
    ASSERT_NE(button, nullptr) << key;
    QTest::mouseClick(button, Qt::LeftButton);
  }
  template <class Widget>
  Widget* find(const char* name) const {
    return window->findChild<Widget*>(QLatin1String(name));
  }
  static bool isHeld(const QString& path) { return QFileInfo::exists(path + u".lock"_s); }
  QString pathInFront() {
    const auto* view = qobject_cast<frmVIEW*>(area().currentSubWindow()->widget());
    return view == nullptr ? QString() : view->path();
  }
  void leave(const char* key) {
    action(key).trigger();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }
  // What its command opens until it is answered.
  template <class Form>
  void useDialog(const char* key, const std::function<void(Form&)>& act) {
    QTimer::singleShot(0, window.get(),
                       [act] { act(dynamic_cast<Form&>(*QApplication::activeModalWidget())); });
    action(key).trigger();
  }
  QMdiArea& area() { return *window->findChild<QMdiArea*>(); }
  QList<frmVIEW*> scorecards() { return area().findChildren<frmVIEW*>(); }
  QString text(Text number) { return toQt(texts.text(number)); }
  std::string setting(const char* key) {
    cinifile file(store);
    file.Path(settings->path());
    file.Section("CONFIGURATION");
    file.Key(key);
    return file.Value();
  }

  QTemporaryDir programFolder, games, installed;
  FileSystem files;
  ProfileStore store{files};
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

void collect(const QList<QAction*>& actions, std::set<QString>& names) {
  for (const QAction* action : actions) {
    names.insert(action->objectName());
    if (action->menu() != nullptr)
      collect(action->menu()->actions(), names);
  }
}

// "[*]" in a title is Qt's mark of what is not saved, "&" in a menu that of a key.
TEST_F(MainWindowTest, TitlesAndMenusShowNamesAsTheyAre) {
  record(makeGame("LIVE.GAM", "[*]&<b>"));
  window->openGame(dialogs.nextFile);
  const QString score = u"[*]&<b> 3 - 0 PUMA"_s;
  EXPECT_TRUE(window->windowTitle().contains(asTitle(score))) << fromQt(window->windowTitle());
  ASSERT_EQ(area().subWindowList().size(), 2);
  for (const QMdiSubWindow* each : area().subWindowList())
    EXPECT_TRUE(shownTitle(*each).endsWith(score)) << fromQt(each->windowTitle());
  auto* windows = qobject_cast<QMenu*>(action("windowNext").associatedObjects().value(0));
  ASSERT_NE(windows, nullptr);
  emit windows->aboutToShow();
  EXPECT_TRUE(windows->actions().last()->text().endsWith(u"[*]&&<b> 3 - 0 PUMA"_s));
  QWidget modified;
  modified.setWindowTitle(asTitle(u"A [*] - [*]"_s) + u"[*]"_s);
  EXPECT_EQ(shownTitle(modified), u"A [*] - [*]"_s);
}

// The menu stands on the table itself; the same table is what the File menu exports.
TEST_F(MainWindowTest, EveryTableOfEveryWindowIsExportedFromItsOwnPlace) {
  const auto exported = [&](QWidget& table) {
    dialogs.nextFileToSave = fileIn(programFolder, "table.csv");
    QFile::remove(dialogs.nextFileToSave);
    table.findChild<QAction*>(u"tableCSV"_s)->trigger();
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
  everyTable(view, {u"lvwSTAT(0)"_s, u"lvwSTAT(1)"_s, u"lvwEVENT"_s});
  const QString box = exported(*view.findChild<QTableView*>(u"lvwSTAT(0)"_s));
  EXPECT_TRUE(box.contains(u"FGM,FGA,FG%,FGPTS"_s)) << fromQt(box);
  EXPECT_TRUE(box.contains(u"Ann Able"_s));
  EXPECT_TRUE(view.findChild<QAction*>(u"pictureCOPY"_s) && view.findChild<QAction*>(u"picturePNG"_s));
  auto* menu = action("exportTable").menu();
  emit qobject_cast<QMenu*>(action("QUIT").parent())->aboutToShow();
  ASSERT_TRUE(menu->isEnabled());
  menu->actions().first()->trigger();
  EXPECT_TRUE(QApplication::clipboard()->text().contains(u"Ann Able"_s));

  action("STATS").trigger();
  everyTable(*window->findChild<frmSTATS*>(),
             {u"lvwGAMES"_s, u"lvwSTATjoueurs(0)"_s, u"lvwSTATjoueurs(1)"_s, u"lvwSTATjoueurs(2)"_s,
              u"lvwSTATlignes(0)"_s, u"lvwLEADERS"_s, u"lvwFIRST"_s, u"lvwRECORD"_s, u"lvwRESULTS"_s});
  action("gEQUIPE").trigger();
  everyTable(*window->findChild<frmEQUIPES*>(), {u"lvwJOUEURS"_s});
  EXPECT_TRUE(exported(*record(game)->findChild<QTableView*>(u"lvwEVENT"_s)).contains(u"3-0"_s));
  record(
      write("M.GAM", "[DETAILS]\nVERSION=2.0\nINPUTTYPE=1\nEQUIPE0ABB=LYNX\n[0]\n00=0,=Ann\n[1]\n0=9,B\n"));
  const QString manual = exported(*find<QWidget>("tblTOTALS"));
  EXPECT_TRUE(manual.contains(u"\r\n00,'=Ann,0,"_s)) << fromQt(manual);
  emit qobject_cast<QMenu*>(action("QUIT").parent())->aboutToShow();
  EXPECT_TRUE(menu->isEnabled());
}

// Each print command leads to the one preview, with what it was asked from.
TEST_F(MainWindowTest, EveryPrintCommandLeadsToOnePreview) {
  const auto title = [&] {
    EXPECT_EQ(area().findChildren<frmprint*>().size(), 1);
    return area().findChild<frmprint*>()->findChild<QLineEdit*>(u"txtTITLE"_s)->text();
  };
  window->openGame(makeGame("one.GAM"));
  for (const auto& [key, shown] :
       {std::pair("vwPRINT", Text::GameSheetReport), std::pair("viergePRINT", Text::BlankForms),
        std::pair("blankPRINT", Text::PreparedForms)}) {
    action(key).trigger();
    EXPECT_EQ(title(), text(shown));
  }
  EXPECT_EQ(area().findChild<frmprint*>()->findChild<QComboBox*>(u"cmbREPORT"_s)->count(), 6);
  action("gEQUIPE").trigger();
  auto* teams = area().findChild<frmEQUIPES*>();
  auto* print = teams->findChild<QPushButton*>(u"cmdPRINT"_s);
  print->click();
  EXPECT_EQ(dialogs.shown.back().text, text(Text::SelectTeamFirst)) << "no team is chosen";
  teams->findChild<QListWidget*>(u"lstequipes"_s)->setCurrentRow(0);
  print->click();
  EXPECT_EQ(title(), text(Text::TeamRoster));
  record(makeGame("two.GAM"));
  action("livePRINT").trigger();
  EXPECT_EQ(title(), text(Text::GameSheetReport));
}

TEST_F(MainWindowTest, EveryCommandIsServedStandsInTheMenusAndIsDisabledUntilItsWindowExists) {
  const auto* bar = window->findChild<CommandBar*>();
  std::set<QString> inMenus;
  collect(find<QMenuBar>("menuBar")->actions(), inMenus);
  std::set<QString> usedKeys;
  for (const Command& command : commands()) {
    const QAction& shown = action(std::string(command.key).c_str());
    SCOPED_TRACE(command.key);
    EXPECT_NE(bar->isServed(command.id), command.kind == CommandKind::Menu);
    const bool isUsable =
        command.group == CommandGroup::Always || command.group == CommandGroup::StartOfInput;
    EXPECT_TRUE(command.kind == CommandKind::Menu ||
                (inMenus.contains(shown.objectName()) && shown.isEnabled() == isUsable));
    EXPECT_FALSE(shown.icon().isNull() || shown.text().isEmpty());
    const QString shortcut = shown.shortcut().toString();
    EXPECT_TRUE(shortcut.isEmpty() || usedKeys.insert(shortcut).second) << "shares a key";
    EXPECT_TRUE(shown.toolTip().contains(shortcut)) << fromQt(shown.toolTip());
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
    const QList<QAction*> menus = find<QMenuBar>("menuBar")->actions();
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
    emit menus[0]->menu()->aboutToShow();
    EXPECT_FALSE(letterOf(action("VwOPEN").text()).isNull());
    action("tbLANGUE").trigger();
  }
  QTest::keyClick(window.get(), Qt::Key_F10);
  EXPECT_NE(QApplication::activePopupWidget(), nullptr);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
  // A text field leaves the key of the teams to the window.
  auto* field = area().findChild<frmEQUIPES*>()->findChild<QLineEdit*>(u"txtABB"_s);
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
        EXPECT_LE(find<QWidget>("top")->sizeHint().width(), width) << mode << " in language " << language;
        action("tbLANGUE").trigger();
      }
    }
  };
  fits("none");
  EXPECT_EQ(find<QToolButton>("button_SWITCH"), nullptr) << "no game is recorded";
  record(makeGame("two.GAM"));
  EXPECT_NE(find<QToolButton>("button_SWITCH"), nullptr);
  fits("live");
  action("STATS").trigger();
  dialogs.nextFile = makeGame("three.GAM");
  action("VwOPEN").trigger();
  fits("scorecard in front of live and season");
  auto* more = find<QToolButton>("button_MORE");
  ASSERT_NE(more, nullptr) << "the window is 1024 wide";
  EXPECT_TRUE(more->defaultAction()->menu()->actions().contains(&action("CLOSELIVEMANUAL")));
}

TEST_F(MainWindowTest, OpensAGameByKeyServesItsScorecardAndRemembersItsFolder) {
  dialogs.nextFile = makeGame("A.GAM");
  QTest::keyClick(window.get(), Qt::Key_O, Qt::ControlModifier);
  ASSERT_EQ(scorecards().size(), 1);
  EXPECT_TRUE(dialogs.lastFilter.contains(u"*.GAM *.gam"_s)) << fromQt(dialogs.lastFilter);
  EXPECT_EQ(fromQt(dialogs.lastFolder), folder()) << "the first games are looked for in the program folder";
  frmVIEW& view = *scorecards()[0];
  EXPECT_TRUE(view.isVisible());
  EXPECT_TRUE(area().currentSubWindow()->isMaximized());
  EXPECT_EQ(memory->recentFiles(), std::vector{fromQt(dialogs.nextFile)});
  EXPECT_TRUE(action("VwREFRESH").isEnabled() && action("VwREFSEC00").isChecked());
  for (const bool isByLine : {true, false}) {
    click("VwLIGNE");
    EXPECT_EQ(view.isByLine(), isByLine);
    EXPECT_EQ(action("VwLIGNE").text(), text(isByLine ? Text::ViewByPlayer : Text::ViewByLine));
  }
  click("VwMA");
  EXPECT_TRUE(view.hidesMadeAttempted());
  action("VwREFSEC30").trigger();
  EXPECT_EQ(view.refreshMode(), frmVIEW::RefreshMode::Every30);
  EXPECT_TRUE(action("VwREFSEC30").isChecked() && !action("VwREFSEC00").isChecked());
  click("VwCLOSE");
  EXPECT_TRUE(QTest::qWaitFor([&] { return scorecards().isEmpty() && !action("VwREFRESH").isEnabled(); }));
  EXPECT_TRUE(find<QWidget>("welcome")->isVisible());
  EXPECT_EQ(setting("LASTPATHGAME"), folder());
  EXPECT_TRUE(window->close());
  EXPECT_EQ(setting("LASTPATHGAME"), fromQt(games.path()));
  start();
  dialogs.nextFile.clear();
  action("VwOPEN").trigger();
  EXPECT_EQ(dialogs.lastFolder, games.path());
}

// The start page is left and reached by what stands on it, and shows the games anew each time.
TEST_F(MainWindowTest, TheStartPageLeadsIntoTheGamesAndBack) {
  const QString path = makeGame("GOES ON.GAM");
  memory->rememberFile(fromQt(makeWrongFile()));
  memory->rememberFile(fromQt(path));
  memory->rememberFile(fromQt(fileIn(games, "GONE.GAM")));
  start();
  auto* plate = find<QWidget>("unfinished");
  const auto row = [&](const char* name) { return window->findChild<QAbstractButton*>(QLatin1String(name)); };
  ASSERT_TRUE(QTest::qWaitFor([&] { return plate->isVisible() && row("recent(0)") != nullptr; }));
  EXPECT_TRUE(plate->accessibleName().contains(u"LYNX 3 – 0 PUMA"_s));
  EXPECT_TRUE(row("recent(0)")->accessibleName().contains(text(Text::RecentCannotBeRead)));
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
  EXPECT_EQ(dialogs.shown[0], (ScriptedDialogs::Shown{Kind::Warn, u"HOOPTAB - Error"_s,
                                                      u"Invalid File Format (Not a Valid .GAM File)"_s}));
  EXPECT_EQ(scorecards().size(), 1);
  EXPECT_TRUE(action("VwREFRESH").isEnabled());
  EXPECT_EQ(memory->recentFiles().size(), 1u);
  window->openGame(fileIn(games, "MISSING.GAM"));
  ASSERT_EQ(dialogs.shown.size(), 2u);
  EXPECT_NE(dialogs.shown[1].text, text(Text::NotAGame)) << "a missing file is no wrong file";
  EXPECT_TRUE(dialogs.shown[1].text.contains(u"MISSING.GAM"_s));
  dialogs.nextFile.clear();
  action("VwOPEN").trigger();
  EXPECT_EQ(dialogs.shown.size(), 2u) << "a cancelled dialog is no event";
}

TEST_F(MainWindowTest, GamesOfASecondStartLeaveTheLiveWindowInFront) {
  const QString card = makeGame("CARD.GAM");
  const frmLIVE* live = record(makeGame("LIVE.GAM"));
  settings->lastGameFolder = folder();
  const QWidget* focused = QApplication::focusWidget();
  window->openFromElsewhere({makeWrongFile()});
  EXPECT_EQ(settings->lastGameFolder, folder()) << "a file that was refused is from nowhere";
  window->openFromElsewhere({card});
  EXPECT_TRUE(dialogs.shown.empty()) << "what was refused is told beside the game";
  ASSERT_EQ(scorecards().size(), 1);
  EXPECT_EQ(area().currentSubWindow()->widget(), live);
  EXPECT_EQ(QApplication::focusWidget(), focused);
  EXPECT_EQ(settings->lastGameFolder, fromQt(games.path()));
  leave("CLOSELIVEMANUAL");
  window->openFromElsewhere({makeWrongFile(), makeGame("NEXT.GAM")});
  EXPECT_EQ(dialogs.shown.size(), 1u);
  EXPECT_EQ(pathInFront(), fileIn(games, "NEXT.GAM"));
}

TEST_F(MainWindowTest, SwitchesTheLanguageOfEverythingThatIsOpen) {
  window->openGame(makeGame("A.GAM"));
  const QString englishToolTip = action("VwOPEN").toolTip();
  QTest::keyClick(window.get(), Qt::Key_F12);
  EXPECT_EQ(texts.language(), Language::French);
  EXPECT_EQ(setting("LANGUE"), "4000");
  EXPECT_EQ(action("VwOPEN").text(), toQt(texts.text(Text::OpenAGame, Language::French)));
  EXPECT_NE(action("VwOPEN").toolTip(), englishToolTip);
  EXPECT_EQ(action("tbLANGUE").text(), u"English"_s);
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), u"Annuler"_s) << "dialog buttons";
  QTest::keyClick(window.get(), Qt::Key_F12);
  EXPECT_EQ(setting("LANGUE"), "0");
  EXPECT_EQ(action("VwOPEN").toolTip(), englishToolTip);
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), u"Cancel"_s);
  texts.showNumbers(true);
  action("tbLANGUE").trigger();
  EXPECT_TRUE(action("VwOPEN").text().startsWith(u"5030 "_s)) << fromQt(action("VwOPEN").text());
}

TEST_F(MainWindowTest, OpensGamesThatAreDroppedOnIt) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(makeGame("A.GAM")), QUrl::fromLocalFile(makeWrongFile()),
                QUrl::fromLocalFile(write("other.JSON", "{}"))});
  const auto isAccepted = [this](QMimeData& dragged) {
    QDragEnterEvent enter({100, 100}, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window.get(), &enter);
    return enter.isAccepted();
  };
  EXPECT_TRUE(isAccepted(data));
  QDropEvent drop({100, 100}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(window.get(), &drop);
  EXPECT_TRUE(QTest::qWaitFor([&] { return dialogs.shown.size() == 1; }));
  EXPECT_EQ(scorecards().size(), 1);
  auto* import = area().findChild<frmIMPORT*>();
  ASSERT_NE(import, nullptr) << "what is of another system is imported";
  EXPECT_TRUE(QTest::qWaitFor([&] { return !import->isBusy(); }));
  EXPECT_EQ(import->findChild<QTableView*>(u"tblGAMES"_s)->model()->rowCount(), 1);
  QMimeData noFile;
  noFile.setText(u"some words"_s);
  EXPECT_FALSE(isAccepted(noFile));
}

TEST_F(MainWindowTest, OpensOneTeamEditorThatAsksBeforeTheProgramEnds) {
  QTest::keyClick(window.get(), Qt::Key_E, Qt::ControlModifier);
  QTest::keyClick(window.get(), Qt::Key_E, Qt::ControlModifier);
  ASSERT_EQ(area().subWindowList().size(), 1);
  auto* editor = area().findChild<frmEQUIPES*>();
  ASSERT_NE(editor, nullptr);
  editor->findChild<QListWidget*>(u"lstequipes"_s)->setCurrentRow(0);
  editor->findChild<QLineEdit*>(u"txtNOMEQUIPE"_s)->setText(u"Bees"_s);
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

TEST_F(MainWindowTest, TakesTeamsOfImportedGamesAndExportsTheGameInFront) {
  const QString path = makeGame("ONE.GAM");
  action("gEQUIPE").trigger();
  action("IMPORT").trigger();
  Game game;
  ASSERT_EQ(GameFile(store, fromQt(path)).read(game), GameFileProblem::None);
  TeamsOfGames teams;
  teams.add(game);
  const auto playersOfLast = [&] { return TeamStore(store, *settings).list().back().players; };
  ASSERT_EQ(playersOfLast(), 0U) << "of the first start's Pumas";
  emit area().findChild<frmIMPORT*>()->teamsAsked(teams);
  EXPECT_EQ(playersOfLast(), 0U) << "only after a question";
  dialogs.nextAnswer = true;
  emit area().findChild<frmIMPORT*>()->teamsAsked(teams);
  EXPECT_EQ(playersOfLast(), 1U);
  EXPECT_EQ(area().findChildren<frmEQUIPES*>().size(), 1) << "another one, which shows them";

  window->openGame(path);
  useDialog<frmEXPORT>("EXPORT", [](frmEXPORT& form) {
    form.findChild<QComboBox*>(u"cmbFORMAT"_s)->setCurrentIndex(3);
    form.findChild<QPushButton*>(u"cmdEXPORT"_s)->click();
  });
  EXPECT_TRUE(QFileInfo::exists(fileIn(games, "ONE.xml")));
  EXPECT_EQ(memory->exportKind(), "bbgame");
  EXPECT_EQ(memory->exportFolder(), fromQt(games.path()));
}

TEST_F(MainWindowTest, MakesAGameAndOpensItAndBeginsTheNextOneWithItsChoices) {
  const QString path = fileIn(games, "NEW.GAM");
  dialogs.nextFileToSave = path;
  useDialog<frmNEWGAME>("LIVENew", [](frmNEWGAME& form) {
    form.findChild<QListWidget*>(u"lstequipes(0)"_s)->setCurrentRow(3);
    form.findChild<QListWidget*>(u"lstequipes(1)"_s)->setCurrentRow(2);
    form.findChild<QLineEdit*>(u"txtENDROIT"_s)->setText(u"Main gym"_s);
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&form] { return QApplication::activeWindow() == &form; }));
    QTest::keyClick(&form, Qt::Key_F12);
    EXPECT_EQ(form.windowTitle(), u"Nouvelle partie"_s);
    QTest::mouseClick(form.findChild<QPushButton*>(u"OKButton"_s), Qt::LeftButton);
  });
  auto* live = area().findChild<frmLIVE*>();
  ASSERT_NE(live, nullptr) << (dialogs.shown.empty() ? "" : fromQt(dialogs.shown.back().text));
  EXPECT_EQ(live->path(), path);
  QCoreApplication::processEvents();
  auto* fives = live->findChild<frmSUBST*>();
  ASSERT_NE(fives, nullptr) << "a game that has not begun asks for both of them";
  fives->reject();
  EXPECT_TRUE(live->windowTitle().endsWith(u"LION 0 - 0 JAGUAR"_s)) << fromQt(live->windowTitle());
  EXPECT_EQ(settings->lastGameFolder, fromQt(games.path()));
  useDialog<frmNEWGAME>("LIVENew", [](frmNEWGAME& form) {
    EXPECT_EQ(form.findChild<QLineEdit*>(u"txtNOMEQUIPE(0)"_s)->text(), u"Somewhere College "_s);
    EXPECT_EQ(form.findChild<QLineEdit*>(u"txtENDROIT"_s)->text(), u"Main gym"_s);
    form.reject();
  });
  EXPECT_EQ(area().subWindowList().size(), 1);
}

TEST_F(MainWindowTest, RecordsAGameAndStopsTheClockBeforeItCloses) {
  const QString path = makeGame("LIVE.GAM");
  frmLIVE* live = record(path);
  ASSERT_NE(live, nullptr);
  EXPECT_TRUE(isHeld(path));
  EXPECT_TRUE(action("SWITCH").isEnabled() && action("GAMEOVER").isEnabled());
  live->setFocus();
  QTest::keyClick(live, Qt::Key_Space);
  EXPECT_TRUE(live->isRunning());
  EXPECT_FALSE(action("LIVEOpen").isEnabled() || action("LIVENew").isEnabled()) << "not while the clock runs";
  action("LIVEMouse").trigger();
  EXPECT_EQ(setting("SAVEREBOUND"), "True");
  action("LIVEBench").trigger();
  EXPECT_TRUE(live->findChild<QWidget*>(u"frmBENCH"_s)->isVisible());
  for (const QString& referees : {u"A. Whistle"_s, QString()}) {
    useDialog<frmSHEET>("SHEET", [&](frmSHEET& sheet) {
      sheet.findChild<QLineEdit*>(u"txtARBITRES"_s)->setText(referees);
      sheet.findChild<QComboBox*>(u"lstNIVEAU"_s)->setCurrentIndex(2);
      sheet.accept();
    });
    EXPECT_EQ(live->game().details.referees, fromQt(referees));
  }
  dialogs.nextAnswer = true;
  leave("CLOSELIVEMANUAL");
  EXPECT_EQ(area().findChild<frmLIVE*>(), nullptr);
  EXPECT_FALSE(isHeld(path));
  EXPECT_TRUE(action("LIVEOpen").isEnabled());
  Game game;
  ASSERT_EQ(GameFile(store, fromQt(path)).read(game), GameFileProblem::None);
  EXPECT_EQ(game.events[game.events.size() - 1].code, EventCode::ARRET);
  EXPECT_EQ(game.details.referees, "") << "emptied again";
  EXPECT_EQ(game.details.level, RecordingLevel::Full);
}

TEST_F(MainWindowTest, EntersTotalsInTheirOwnWindowWhichMakesRoomForALiveGame) {
  const QString path = makeGame("TOTALS.GAM");
  const QString second = makeGame("SECOND.GAM", "COUGAR");
  for (const QString& manual : {path, second})
    ASSERT_EQ(GameFile(store, fromQt(manual)).setDetails({{"INPUTTYPE", "1"}}), GameFileProblem::None);
  const QString live = makeGame("LIVE.GAM");
  const auto pathOfManual = [this] {
    const auto* manual = area().findChild<frmMANUAL*>();
    return manual == nullptr ? QString() : manual->path();
  };
  const auto count = [this] {
    auto* table = area().findChild<frmMANUAL*>()->findChild<QWidget*>(u"tblTOTALS"_s);
    table->setFocus();
    QTest::keyClicks(table, u"+"_s);
  };
  EXPECT_FALSE(action("saveMANUAL").isEnabled());
  record(path);
  EXPECT_EQ(pathOfManual(), path);
  EXPECT_TRUE(action("saveMANUAL").isEnabled() && action("CLOSELIVEMANUAL").isEnabled());
  EXPECT_FALSE(action("GAMEOVER").isEnabled() || action("SWITCH").isEnabled());
  window->openGame(path);
  count();
  QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
  Game game;
  ASSERT_EQ(GameFile(store, fromQt(path)).read(game), GameFileProblem::None);
  EXPECT_EQ(game.events.size(), 3u) << "two with a time, which stay, and one more";
  EXPECT_EQ(scorecards()[0]->findChild<QLabel*>(u"lblSCORE(0)"_s)->text(), u"5"_s) << "the scorecard follows";

  // Scanned forms are asked for with a command too; the report of one of them opens in the preview.
  EXPECT_TRUE(action("openFORM").isEnabled());
  dialogs.lastFilter.clear();
  action("openFORM").trigger();
  EXPECT_TRUE(dialogs.lastFilter.contains(u"*.TIF"_s)) << fromQt(dialogs.lastFilter);
  const auto layout = std::make_shared<FormLayout>();
  FormReading reading;
  reading.cells.resize(layout->cells().size());
  emit area().findChild<frmMANUAL*>()->scanReportAsked(
      ScannedTotals(CheckedSheet(layout, reading), Side::Visitor, game.roster[Side::Visitor]), u"scan.tif"_s);
  auto* report = area().findChild<frmprint*>();
  ASSERT_NE(report, nullptr);
  EXPECT_EQ(report->findChild<QComboBox*>(u"cmbREPORT"_s)->currentText(), text(Text::VerificationReport));
  report->parentWidget()->close();

  count();
  window->openGame(path);
  QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
  ASSERT_EQ(GameFile(store, fromQt(path)).read(game), GameFileProblem::None);
  EXPECT_EQ(game.events.size(), 3u) << "the key is not for what is behind";
  for (const QString& other : {second, live}) {
    record(other);
    EXPECT_EQ(pathOfManual(), path) << "stays while the totals are not saved";
    EXPECT_EQ(dialogs.shown.back().kind, Kind::AskToSave);
  }
  action("LIVENew").trigger();
  EXPECT_EQ(dialogs.shown.size(), 3u) << "asked before a new game is even begun";
  dialogs.nextSaveChoice = SaveChoice::Save;
  record(second);
  EXPECT_EQ(pathOfManual(), second);
  ASSERT_EQ(GameFile(store, fromQt(path)).read(game), GameFileProblem::None);
  EXPECT_EQ(game.events.size(), 4u);
  ASSERT_NE(record(live), nullptr);
  EXPECT_EQ(pathOfManual(), QString()) << "makes room";
  EXPECT_FALSE(isHeld(second) || action("saveMANUAL").isEnabled());
  EXPECT_NE(record(makeWrongFile()), nullptr) << "a file that is no game closes nothing";
  EXPECT_EQ(record(path), nullptr);

  leave("CLOSELIVEMANUAL");
  EXPECT_EQ(pathOfManual(), QString());
  EXPECT_FALSE(action("CLOSELIVEMANUAL").isEnabled());
  EXPECT_FALSE(isHeld(path));
}

TEST_F(MainWindowTest, OpensOneSeasonWindowWhoseGamesBecomeScorecards) {
  const QString path = makeGame("a.GAM");
  ASSERT_EQ(GameFile(store, fromQt(path)).setDetails({{"TERMINE", "1"}}), GameFileProblem::None);
  settings->lastGameFolder = fromQt(games.path());
  const auto seasons = [this] { return area().findChildren<frmSTATS*>(); };
  EXPECT_FALSE(action("stCLOSE").isEnabled());
  action("STATS").trigger();
  action("STATS").trigger();
  ASSERT_EQ(seasons().size(), 1);
  EXPECT_TRUE(action("stCLOSE").isEnabled());
  frmSTATS& season = *seasons()[0];
  ASSERT_TRUE(QTest::qWaitFor([&] { return !season.isBusy(); }));
  const auto* list = season.findChild<QAbstractItemView*>(u"lvwGAMES"_s);
  EXPECT_EQ(list->model()->rowCount(), 1);

  dialogs.shown.clear();
  action("stPRINT").trigger();
  ASSERT_EQ(dialogs.shown.size(), 1U);
  EXPECT_EQ(dialogs.shown[0].text, text(Text::GenerateFirst));
  dialogs.nextAnswer = true; // the game is not whole
  season.findChild<QAbstractButton*>(u"cmdGENERATE"_s)->click();
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
  EXPECT_EQ(seasons()[0]->findChild<QLineEdit*>(u"txtDIR"_s)->text(), games.path()) << "its own last folder";
}

TEST_F(MainWindowTest, ColoursOfProgramAndCourtAreRememberedAndReachOpenWindowsAtOnce) {
  for (const ColourScheme scheme : {ColourScheme::Dark, ColourScheme::Light}) {
    action(scheme == ColourScheme::Dark ? "coloursDark" : "coloursLight").trigger();
    EXPECT_EQ(memory->colourScheme(), scheme);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window).lightness() < 128,
              scheme == ColourScheme::Dark);
  }
  window->openGame(makeGame("ONE.GAM"));
  dialogs.nextColour = QColor(1, 2, 3);
  useDialog<frmCOULEURS>("tbTERRAIN", [](frmCOULEURS& form) {
    form.findChild<QPushButton*>(u"cmdCOULEUR2PTS"_s)->click();
    auto* apply = form.findChild<QPushButton*>(u"cmdAPPLIQUER"_s);
    apply->click();
    EXPECT_TRUE(apply->text().contains(u'&')) << "its Alt key is there still";
    form.reject();
  });
  EXPECT_EQ(setting("COULEUR2PTS"), "197121");
  const QImage chart = scorecards()[0]->findChild<CourtView*>()->grab().toImage();
  int x = 0;
  while (x < chart.width() && chart.pixelColor(x, chart.height() / 2) != QColor(1, 2, 3))
    ++x;
  EXPECT_LT(x, chart.width());
}

TEST_F(MainWindowTest, KeysThatAreBoundAnewActAtOnceAndAfterTheNextStart) {
  frmLIVE* live = record(makeGame("KEYS.GAM"));
  ASSERT_NE(live, nullptr);
  ASSERT_TRUE(action("LIVEKpad").isChecked()) << "as on a first start";
  const auto bind = [this](const char* box, Qt::Key key) {
    useDialog<frmConfiguration>("tbKEYPAD", [box, key](frmConfiguration& form) {
      QTest::keyClick(form.findChild<QWidget*>(QLatin1String(box)), key);
      form.findChild<QPushButton*>(u"Command1"_s)->click();
      form.reject();
    });
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

TEST_F(MainWindowTest, ListsRecentAndSampleGamesAndBringsOneToTheFrontThatIsOpenAlready) {
  fs::create_directories(installed.filePath(u"samples"_s).toStdString());
  const QString path = makeGame("A.GAM");
  const QString sample = installed.filePath(u"samples/TIGER-PUMA.GAM"_s);
  QFile::copy(makeGame("B.GAM", "TIGER"), sample);
  QFile::copy(makeWrongFile(), installed.filePath(u"samples/NOTES.GAM"_s));
  window->openGame(path);
  const auto chooseLast = [&](const char* key, int count, const QString& words) {
    QMenu& menu = *action(key).menu();
    emit menu.aboutToShow();
    ASSERT_EQ(menu.actions().size(), count);
    EXPECT_EQ(menu.actions().last()->text(), words);
    menu.actions().last()->trigger();
  };
  chooseLast("sampleGames", 1, u"2026-11-05   TIGER - PUMA"_s);
  ASSERT_EQ(scorecards().size(), 2);
  chooseLast("recentGames", 2, u"A.GAM"_s);
  EXPECT_EQ(pathInFront(), path);
  window->openGame(fileIn(games, "../") + QFileInfo(games.path()).fileName() + u"/B.GAM"_s);
  window->openGame(fileIn(games, "../") + QFileInfo(games.path()).fileName() + u"/A.GAM"_s);
  EXPECT_EQ(scorecards().size(), 3) << "by another name it is the same game";
  EXPECT_EQ(pathInFront(), path);
}

TEST_F(MainWindowTest, SaysWhatIsNotOnDiskAndWritesItWhenItCan) {
  QLabel& unsaved = *find<QLabel>("lblUNSAVED");
  EXPECT_FALSE(unsaved.isVisible());
  fs::permissions(settings->path(), fs::perms::owner_read);
  action("tbLANGUE").trigger();
  EXPECT_TRUE(unsaved.isVisible());
  EXPECT_FALSE(unsaved.text().isEmpty());
  EXPECT_EQ(unsaved.accessibleDescription(),
            toQt(texts.withPlaceholder(Text::WhyNotPermitted, settings->path())));
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
  EXPECT_TRUE(dialogs.shown[0].text.contains(u"CONFIG.INI.1"_s)) << fromQt(dialogs.shown[0].text);
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
  EXPECT_EQ(dialogs.shown[0].title, u"Error"_s);
  EXPECT_TRUE(dialogs.shown[0].text.startsWith(u"User guide not found"_s));
  const QString guide = programFolder.filePath(u"guide.pdf"_s);
  const QString shipped = installed.filePath(u"guide.pdf"_s);
  QFile::copy(makeWrongFile(), shipped);
  action("AidHELP").trigger();
  QFile::copy(shipped, guide);
  action("AidHELP").trigger();
  EXPECT_EQ(dialogs.opened, (QList<QUrl>{QUrl::fromLocalFile(shipped), QUrl::fromLocalFile(guide)}));
  dialogs.opensDocuments = false;
  action("AidHELP").trigger();
  EXPECT_TRUE(dialogs.shown.back().text.contains(guide)) << "it is there, but nothing opens it";
  dialogs.opensDocuments = true;
  fs::create_directories(installed.filePath(u"help"_s).toStdString());
  const QString french = installed.filePath(u"help/fr.html"_s);
  QFile::copy(guide, french);
  action("tbLANGUE").trigger();
  action("AidWEB").trigger();
  EXPECT_EQ(dialogs.opened.last(), QUrl::fromLocalFile(french));
  settings->webPage[1] = "https://example.org/fr";
  action("AidWEB").trigger();
  EXPECT_EQ(dialogs.opened.last(), QUrl(u"https://example.org/fr"_s));
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
  QLockFile older(folder.filePath(u"hooptab.lock"_s)); // as older versions of the program take it
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
  const QString path = folder.filePath(u"hooptab.lock"_s);
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
  EXPECT_TRUE(dialogs.shown[0].text.contains(u"DEADLAPTOP"_s));
  dialogs.nextAnswer = true;
  EXPECT_TRUE(InstanceLock(folder.path()).admits(texts, dialogs, std::chrono::milliseconds(200)));
  EXPECT_FALSE(QFileInfo::exists(path)) << "given up at the end";
}

TEST(FileFilterTest, OffersBothLetterCasesOfEveryPair) {
  EXPECT_EQ(fileFilter(u"Form (*.BMP)|*.BMP|Form (*.TIF)|*.TIF"_s),
            u"Form (*.BMP *.bmp);;Form (*.TIF *.tif)"_s);
}

} // namespace
} // namespace hooptab
