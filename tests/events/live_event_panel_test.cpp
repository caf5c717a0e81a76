// The list of events beside the court: what it shows, keeps and asks for.
#include "events/LiveEventDelegate.h"
#include "events/LiveEventPanel.h"

#include "appearance/TableContent.h"
#include "events/EventRequests.h"
#include "events/frmEDIT.h"
#include "events/frmSUBST.h"
#include "live/LiveRoom.h"
#include "live/frmLIVE.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QScrollBar>
#include <QShortcut>
#include <QTableView>

namespace hooptab {
namespace {

class LiveEventPanelTest : public LiveRoom<> {
 protected:
  void SetUp() override {
    GameDetails details;
    details.abbreviation[Side::Visitor] = "LYNX";
    details.abbreviation[Side::Home] = "PUMA";
    makeGame(path, "4=0,Ann\n5=1,Bea\n10=2,Cleo\n12=2,Dee\n15=1,Eve\n7=1,Fay\n", details);
    ASSERT_EQ(live.open(path), GameFileProblem::None);
    ASSERT_TRUE(live.setOnCourt({kFive, kFive}));
    live.start();
    time.now += 10;
    live.recordShot(Side::Visitor, 1, EventCode::GLG, true);
    live.recordAction(Side::Visitor, 2, EventCode::SA);
    live.recordAction(Side::Home, 3, EventCode::SPF);
    panel.resize(250, 400);
    panel.showGame(live);
    panel.show();
    qRegisterMetaType<std::vector<EventPlace>>();
    qRegisterMetaType<EventPlace>();
  }
  template <class Found>
  Found& find(const char* name) {
    return LiveRoom::find<Found>(panel, name);
  }
  QTableView& list() { return find<QTableView>("lvwEVENT"); }
  QAction& action(const char* name) { return find<QAction>(name); }
  QModelIndex cell(int row, int column) { return list().model()->index(row, column); }
  std::string words(int row) { return fromQt(cell(row, EventListModel::Action).data().toString()); }
  void select(int row, QItemSelectionModel::SelectionFlags how = QItemSelectionModel::ClearAndSelect) {
    list().selectionModel()->setCurrentIndex(cell(row, 0), how | QItemSelectionModel::Rows);
  }

  std::string path = folder.path("live.GAM");
  GameSession session{store, time};
  LiveGame& live = *session.change(); // what others do to it
  LiveEventPanel panel{texts};
};

TEST_F(LiveEventPanelTest, ShowsTheNewestFirstAndWhatBelongsTogether) {
  const QAbstractItemModelTester tester(list().model());
  ASSERT_EQ(list().model()->rowCount(), 6);
  EXPECT_EQ(words(0), "PUMA 10: personal foul");
  EXPECT_EQ(words(1), "LYNX 5: assist");
  EXPECT_EQ(words(2), "LYNX 4 ● left layup");
  EXPECT_EQ(cell(2, EventListModel::Score).data().toString(), QStringLiteral("2-0"));
  EXPECT_EQ(words(4), "LYNX: in 4, 5, 10, 12, 15 - PUMA: in 4, 5, 10, 12, 15");
  const TableContent content = tableContent(list());
  const auto& foul = content.rows[0].cells; // for a spreadsheet: its clock and period as numbers
  EXPECT_EQ(foul[EventListModel::Clock].kind, TableKind::Time);
  EXPECT_EQ(foul[EventListModel::Clock].value, 590);
  EXPECT_EQ(foul[EventListModel::Period].value, 1);
  const auto tip = [this](int row) {
    return fromQt(cell(row, EventListModel::Action).data(Qt::ToolTipRole).toString());
  };
  EXPECT_NE(tip(2).find("Ann"), std::string::npos);
  live.recordShot(Side::Home, 1, EventCode::GFT, false);
  panel.showGame(live);
  EXPECT_EQ(words(0), "PUMA 4 ✕ free throw");
  live.setDeleted(std::vector<EventPlace>{{1, "4"}}, true);
  panel.showGame(live);
  EXPECT_EQ(words(3), "START") << "what is deleted is hidden";
  action("cmdFILTER").setChecked(true);
  find<QCheckBox>("chkDELETED").setChecked(true);
  EXPECT_TRUE(cell(3, EventListModel::Action).data(Qt::FontRole).value<QFont>().strikeOut());
  action("cmdFILTER").setChecked(false);
  EXPECT_EQ(action("cmdUNDO").text(), QStringLiteral("Undo: Deletion (LYNX 4 ● left layup)"));
  panel.showGame(live); // an assist without a basket
  auto& checks = find<QPushButton>("lblCHECKS");
  EXPECT_EQ(checks.text(), QStringLiteral("⚠ 1"));
  checks.click();
  EXPECT_EQ(list().currentIndex().row(), 2);
  EXPECT_NE(tip(2).find("LYNX 5 Bea"), std::string::npos);
  live.undo();
  panel.showGame(live);
  EXPECT_FALSE(checks.isEnabled());
  EXPECT_EQ(words(2), "LYNX 5: assist");
}

// Another program has taken an event out of the middle of the file.
TEST_F(LiveEventPanelTest, TakesAGameThatHasBecomeShorter) {
  const QAbstractItemModelTester tester(list().model());
  select(0);
  Game shorter = live.game();
  shorter.events = {};
  for (const GameEvent& event : live.game().events) {
    if (event.key != "3")
      shorter.events.appendOwned(event.period, event.key, event.line);
  }
  auto& rows = *qobject_cast<LiveEventRows*>(list().model());
  rows.show(shorter);
  EXPECT_EQ(rows.rowCount(), 5);
  EXPECT_EQ(words(0), "PUMA 10: personal foul");
}

TEST_F(LiveEventPanelTest, StandsInAWindowOfItsOwnThatTakesNoKeys) {
  QSignalSpy corrections(&panel, &LiveEventPanel::correctionAsked);
  action("cmdDETACH").trigger();
  auto& window = find<QWidget>("frmEVENTS");
  auto& second = find<QTableView>("lvwEVENTS");
  EXPECT_TRUE(window.isWindow() && window.windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus));
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Events: LYNX – PUMA"));
  EXPECT_EQ(second.focusPolicy(), Qt::NoFocus);
  window.resize(300, 90); // three rows
  select(4);
  EXPECT_EQ(second.currentIndex().row(), 4);
  second.scrollTo(cell(4, EventListModel::Action), QAbstractItemView::PositionAtTop);
  const QPersistentModelIndex top = second.indexAt({0, 0});
  ASSERT_GT(top.row(), 0);
  live.recordShot(Side::Home, 1, EventCode::GFT, false);
  panel.showGame(live);
  EXPECT_EQ(second.indexAt({0, 0}), top) << "what one looks at stays under the mouse";
  second.scrollToTop();
  live.recordShot(Side::Home, 1, EventCode::GFT, false);
  panel.showGame(live);
  EXPECT_EQ(second.indexAt({0, 0}).row(), 0) << "and the newest comes in at the top";
  const QPoint row = second.visualRect(cell(0, EventListModel::Action)).center();
  QTest::mouseDClick(second.viewport(), Qt::LeftButton, {}, row);
  EXPECT_EQ(corrections.count(), 1);
  window.move(30, 40);
  const QByteArray place = panel.windowPlace();
  action("cmdDETACH").trigger();
  EXPECT_FALSE(panel.hasWindow());
  EXPECT_EQ(panel.windowPlace(), place) << "kept for the next time";
  panel.restoreWindow(place, true);
  EXPECT_EQ(panel.hasWindow(), QGuiApplication::screens().size() > 1) << "never over the panels by itself";
}

TEST_F(LiveEventPanelTest, AsksForWhatIsToBeDone) {
  QSignalSpy deletions(&panel, &LiveEventPanel::deleteAsked);
  QSignalSpy edits(&panel, &LiveEventPanel::editAsked);
  QSignalSpy insertions(&panel, &LiveEventPanel::insertAsked);
  const auto places = [&](int call) { return deletions[call][0].value<std::vector<EventPlace>>(); };
  EXPECT_FALSE(action("cmdDELETE").isEnabled()) << "nothing selected";
  select(0);
  action("cmdDELETE").trigger();
  ASSERT_EQ(deletions.count(), 1);
  EXPECT_EQ(places(0), (std::vector<EventPlace>{{1, "6"}}));
  select(2); // a shot with its assist
  action("cmdDELETE").trigger();
  ASSERT_EQ(deletions.count(), 1) << "asks first";
  auto& menu = find<QMenu>("mnuDELETE");
  EXPECT_EQ(menu.actions()[0]->text(), QStringLiteral("Delete the shot with: LYNX 5: assist"));
  menu.actions()[0]->trigger();
  EXPECT_EQ(places(1), (std::vector<EventPlace>{{1, "4"}, {1, "5"}}));
  menu.close();
  select(1, QItemSelectionModel::Select);
  action("cmdDELETE").trigger();
  ASSERT_EQ(deletions.count(), 3) << "both are selected";
  select(4); // the last stop while the clock runs may go, for a start is behind it
  EXPECT_TRUE(action("cmdDELETE").isEnabled());
  EXPECT_FALSE(action("cmdUNDELETE").isEnabled());
  action("cmdEDIT").trigger();
  EXPECT_EQ(edits[0][0].value<EventPlace>(), (EventPlace{1, "2"}));
  action("cmdINSERTBEFORE").trigger();
  EXPECT_TRUE(insertions[0][1].toBool());
  live.stop();
  live.finish({});
  panel.showGame(live);
  for (const char* name : {"cmdDELETE", "cmdEDIT", "cmdINSERTAFTER", "cmdUNDO"})
    EXPECT_FALSE(action(name).isEnabled()) << name;
}

TEST_F(LiveEventPanelTest, TheSelectionStaysWithItsEventUntilItIsTakenBack) {
  select(0);
  const std::string foul = words(0);
  ASSERT_TRUE(live.setTime({1, "6"}, 595)); // before the shot
  panel.showGame(live);
  EXPECT_EQ(list().currentIndex().row(), 2);
  EXPECT_EQ(words(2), foul);
  EXPECT_TRUE(list().selectionModel()->isRowSelected(2));
  ASSERT_TRUE(live.undo());
  panel.showGame(live);
  EXPECT_EQ(list().currentIndex().row(), 0);
  ASSERT_TRUE(live.undo()); // the foul
  panel.showGame(live);
  panel.leaveDeleted();
  EXPECT_FALSE(list().selectionModel()->hasSelection() || action("cmdDELETE").isEnabled());
}

TEST_F(LiveEventPanelTest, LeadsToWhatMendsAFinding) {
  live.recordAction(Side::Home, 6, EventCode::SBS); // from the bench
  live.recordAction(Side::Visitor, 3, EventCode::SA);
  panel.showGame(live);
  QSignalSpy edits(&panel, &LiveEventPanel::editAsked);
  std::vector<std::pair<PastSubstitution, int>> asked;
  QObject::connect(&panel, &LiveEventPanel::substitutionAsked, &panel,
                   [&](const PastSubstitution& past, Side, int player) { asked.emplace_back(past, player); });
  auto& checks = find<QPushButton>("lblCHECKS");
  checks.click();
  auto* menu = &find<QMenu>("mnuREPAIR");
  EXPECT_EQ(list().currentIndex().row(), 1);
  EXPECT_FALSE(menu->actions()[0]->isEnabled()) << "says what is wrong";
  EXPECT_EQ(menu->actions()[1]->text(), QStringLiteral("Substitution Before: 7 Fay Comes In"));
  menu->actions()[1]->trigger();
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_EQ(asked[0].first.event, (EventPlace{1, "7"}));
  EXPECT_EQ(asked[0].second, 6);
  menu->actions()[2]->trigger();
  EXPECT_EQ(edits.count(), 1);
  EXPECT_EQ(menu->actions().back()->text(), QStringLiteral("Next to Check"));
  // Any other key closes it and does what it does without a menu.
  int pressed = 0;
  auto* shortcut = new QShortcut(Qt::Key_Space, &panel);
  QObject::connect(shortcut, &QShortcut::activated, &panel, [&pressed] { ++pressed; });
  QTest::keyClick(menu, Qt::Key_Space);
  EXPECT_EQ(pressed, 1);
  EXPECT_FALSE(menu->isVisible());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(asked.size() + static_cast<std::size_t>(edits.count()), 2U);
  const QRect row = list().visualRect(cell(0, EventListModel::Action));
  QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, {row.left() + 60, row.center().y()});
  EXPECT_EQ(panel.findChild<QMenu*>(QStringLiteral("mnuREPAIR")), nullptr) << "beside the mark";
  QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, LiveEventDelegate::chipOf(row).center());
  menu = &find<QMenu>("mnuREPAIR");
  EXPECT_EQ(menu->actions()[1]->text(), QStringLiteral("Edit"));
  menu->close();
}

TEST_F(LiveEventPanelTest, AForgottenSubstitutionIsChosenAtItsPlace) {
  QWidget window;
  const EventRequests requests(session, panel, settings, texts, dialogs, window);
  const auto dialog = [&window]() -> frmSUBST& { return *window.findChild<frmSUBST*>(); };
  const auto press = [&](const char* name) {
    QTest::mouseClick(&LiveRoom::find(dialog(), name), Qt::LeftButton);
  };
  live.setOnCourt({kFive, 0b1111100}); // PUMA 7 for 4 at 9:50
  panel.showGame(live);
  emit panel.substitutionAsked({PastSubstitution::What::InsertBefore, {1, "4"}}, Side::Home, 6);
  const auto& accept = LiveRoom::find<QPushButton>(dialog(), "cmdOK");
  EXPECT_EQ(textOf(dialog(), "lblPLACE"), "Substitution at 09:50 (Period 1)");
  EXPECT_FALSE(accept.isEnabled()) << "six";
  press("cmdJERSEY(16)"); // PUMA 5 leaves: 7 would come twice
  EXPECT_EQ(textOf(dialog(), "lblCONFLICT"), "09:50 (Period 1): 7 of PUMA would come in or leave twice");
  EXPECT_FALSE(accept.isEnabled());
  press("cmdJERSEY(16)");
  press("cmdJERSEY(15)"); // for 4, as it was to be
  EXPECT_EQ(textOf(dialog(), "lblCONFLICT"), "");
  press("cmdOK");
  EXPECT_EQ(live.game().events.find(1, "9")->whole(), "09:50,ARRET,IN-04-05-10-12-15,IN-05-07-10-12-15");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  emit panel.editAsked({1, "9"}); // others
  EXPECT_FALSE(LiveRoom::find<QPushButton>(dialog(), "cmdOK").isEnabled()) << "as it stands";
  press("cmdJERSEY(0)");
  press("cmdJERSEY(5)"); // LYNX 7 for 4
  press("cmdOK");
  EXPECT_EQ(live.onCourt(), (OnCourt{0b1111100, 0b1111100}));
  EXPECT_TRUE(dialogs.shown.empty());
  EXPECT_TRUE(live.undo() && live.undo());
  EXPECT_EQ(live.onCourt(), (OnCourt{kFive, 0b1111100}));
}

TEST_F(LiveEventPanelTest, FiltersAndKeepsItsPlace) {
  const auto choose = [&](const char* name, int item) { find<QComboBox>(name).setCurrentIndex(item); };
  action("cmdFILTER").setChecked(true);
  choose("cmbTEAM", 2);
  ASSERT_EQ(list().model()->rowCount(), 2) << "the foul and who came in";
  EXPECT_EQ(find<QComboBox>("cmbPLAYER").count(), 1 + 6);
  choose("cmbPLAYER", 3);
  choose("cmbKIND", find<QComboBox>("cmbKIND").findText(QStringLiteral("personal foul")));
  ASSERT_EQ(list().model()->rowCount(), 1);
  live.recordAction(Side::Home, 3, EventCode::SPF);
  live.recordAction(Side::Home, 4, EventCode::SPF);
  panel.showGame(live);
  EXPECT_EQ(list().model()->rowCount(), 2);
  const auto timeOuts = [&] { return find<QComboBox>("cmbKIND").findText(QStringLiteral("time-out")); };
  EXPECT_LT(timeOuts(), 0);
  ASSERT_TRUE(live.setDetails({{"NIVEAU", "LEAGUE"}}));
  panel.showGame(live);
  EXPECT_GT(timeOuts(), 0) << "where the game asks for them";
  EXPECT_EQ(list().model()->rowCount(), 2) << "what was chosen stays";
  panel.choose(EventPlace{1, "4"});
  EXPECT_EQ(words(list().currentIndex().row()), "LYNX 4 ● left layup") << "shown again";
  action("cmdFILTER").setChecked(false);
  EXPECT_EQ(list().model()->rowCount(), 8);
  for (int event = 0; event < 60; ++event)
    live.recordAction(Side::Visitor, 1, EventCode::STO);
  panel.showGame(live);
  EXPECT_EQ(list().indexAt({0, 0}).row(), 0);
  EXPECT_EQ(words(list().currentIndex().row()), "LYNX 4 ● left layup");
  list().verticalScrollBar()->setValue(30 * list().rowHeight(0));
  const std::string top = words(list().indexAt({0, 0}).row());
  const int value = list().verticalScrollBar()->value();
  live.recordAction(Side::Home, 1, EventCode::SBS);
  panel.showGame(live);
  EXPECT_EQ(list().verticalScrollBar()->value(), value + list().rowHeight(0));
  EXPECT_EQ(words(list().indexAt({0, 0}).row()), top);
}

TEST_F(LiveEventPanelTest, TheEditingPanelChangesWhatItShows) {
  live.recordShot(Side::Home, 2, EventCode::GF3, false, {{10, 20}});
  frmEDIT shot(live, {1, "7"}, frmEDIT::Purpose::Change, settings, texts);
  EXPECT_EQ(shot.clockSeconds(), 590);
  auto& made = LiveRoom::find<QCheckBox>(shot, "chkMADE");
  EXPECT_FALSE(made.isChecked());
  made.setChecked(true);
  auto& clock = LiveRoom::find<QLineEdit>(shot, "txtTEMPS");
  const auto& accept = LiveRoom::find<QPushButton>(shot, "cmdOK");
  clock.setText(QStringLiteral("9:"));
  EXPECT_FALSE(accept.isEnabled());
  QTest::keyClicks(&clock, QStringLiteral("51"));
  EXPECT_EQ(shot.clockSeconds(), 591) << "as one types a clock, without the leading nought";
  clock.clear();
  QTest::keyClicks(&clock, QStringLiteral("9x51"));
  EXPECT_EQ(shot.clockSeconds(), 591) << "nor the colon";
  EXPECT_TRUE(accept.isEnabled());
  showActive(shot);
  QSignalSpy asked(&shot, &frmEDIT::clockAsked);
  clock.setFocus();
  QTest::keyClick(&clock, Qt::Key_Space);
  EXPECT_EQ(asked.count(), 1) << "the blank stays the key of the game's clock";
  EXPECT_EQ(shot.clockSeconds(), 591);
  ASSERT_TRUE(shot.counted());
  ASSERT_TRUE(live.editEvent({1, "7"}, shot.clockSeconds(), *shot.counted()));
  EXPECT_EQ(live.game().events.find(1, "7")->whole(), "09:51,GF3,1-5,10,20");
  auto& kinds = LiveRoom::find<QComboBox>(shot, "cmbKIND");
  EXPECT_NE(textOf(shot, "lblxy").find("other zone"), std::string::npos);
  kinds.setCurrentIndex(kinds.findData(static_cast<int>(EventCode::GFG)));
  EXPECT_EQ(textOf(shot, "lblxy"), "10, 20");
  QTest::mouseClick(&LiveRoom::find(shot, "cmdBUTFT(10)"), Qt::RightButton);
  EXPECT_EQ(shot.counted()->kind, EventCode::GFT);
  EXPECT_FALSE(shot.counted()->isMade);
  EXPECT_EQ(textOf(shot, "lblxy"), "");
  QTest::mouseClick(&LiveRoom::find(shot, "cmdBUTORB(10)"), Qt::LeftButton);
  EXPECT_EQ(shot.counted()->kind, EventCode::SOR);
  EXPECT_EQ(live.game().events.size(), 7U) << "nothing is recorded";
  frmEDIT stop(live, {1, "2"}, frmEDIT::Purpose::Change, settings, texts);
  EXPECT_FALSE(stop.counted()) << "its time alone";
}

TEST_F(LiveEventPanelTest, TheEditingPanelAsksForDetailsWhereTheGameDoes) {
  const auto boxesOf = [](const frmEDIT& window) {
    std::string names;
    for (const QComboBox* box :
         window.findChildren<QComboBox*>(QRegularExpression(QStringLiteral("^cmbDETAIL"))))
      names += fromQt(box->objectName()).at(10);
    return names;
  };
  const auto box = [](frmEDIT& window, const char* name) -> QComboBox& {
    return LiveRoom::find<QComboBox>(window, name);
  };
  const auto foul = [&] { return std::string(live.game().events.find(1, "6")->whole()); };
  const auto changeFoul = [&](auto change) {
    frmEDIT window(live, {1, "6"}, frmEDIT::Purpose::Change, settings, texts);
    change(window);
    const auto counted = window.counted(); // none where nothing was chosen
    return !counted || live.editEvent({1, "6"}, window.clockSeconds(), *counted);
  };
  EXPECT_TRUE(changeFoul([&](frmEDIT& window) {
    EXPECT_EQ(boxesOf(window), "");
    EXPECT_EQ(box(window, "cmbKIND").findText(QStringLiteral("time-out")), -1);
  }));
  ASSERT_TRUE(live.replaceEvent({1, "6"}, 590, ",SPF,1-10,Z=9,F=5"));
  EXPECT_TRUE(changeFoul([&](frmEDIT& window) {
    EXPECT_EQ(boxesOf(window), "F") << "the game is of no level, and the foul has this one";
    EXPECT_EQ(box(window, "cmbDETAIL(F)").currentText(), QStringLiteral("5"));
  }));
  ASSERT_TRUE(live.setDetails({{"NIVEAU", "LEAGUE"}}));
  EXPECT_TRUE(changeFoul([&](frmEDIT& window) {
    EXPECT_EQ(boxesOf(window), "KDF");
    box(window, "cmbDETAIL(K)").setCurrentText(QStringLiteral("shooting"));
    box(window, "cmbDETAIL(D)").setCurrentText(QStringLiteral("7 Fay"));
  }));
  EXPECT_EQ(foul(), "09:50,SPF,1-10,Z=9,F=5,K=S,D=0-7");
  EXPECT_TRUE(changeFoul([&](frmEDIT& window) {
    box(window, "cmbDETAIL(F)").setCurrentText(QStringLiteral("2"));
    box(window, "cmbPLAYER").setCurrentIndex(1); // of the other team
    EXPECT_EQ(box(window, "cmbDETAIL(D)").currentText(), QStringLiteral("–"));
    EXPECT_EQ(box(window, "cmbDETAIL(F)").currentText(), QStringLiteral("2")) << "as it was chosen";
  }));
  EXPECT_EQ(foul(), "09:50,SPF,0-5,Z=9,K=S,F=2");
  EXPECT_TRUE(live.undo() && live.undo());
  EXPECT_EQ(foul(), "09:50,SPF,1-10,Z=9,F=5");

  frmEDIT fresh(live, {1, "6"}, frmEDIT::Purpose::Insert, settings, texts);
  auto& who = box(fresh, "cmbPLAYER");
  who.setCurrentIndex(who.findText(QStringLiteral("PUMA 5 Bea")));
  box(fresh, "cmbKIND").setCurrentText(QStringLiteral("time-out"));
  EXPECT_EQ(who.currentText(), QStringLiteral("PUMA"));
  EXPECT_EQ(boxesOf(fresh), "K");
  EXPECT_EQ(box(fresh, "cmbDETAIL(K)").count(), 3) << "full or short";
  box(fresh, "cmbKIND").setCurrentText(QStringLiteral("steal"));
  EXPECT_EQ(who.currentText(), QStringLiteral("PUMA 5 Bea"));
  box(fresh, "cmbKIND").setCurrentText(QStringLiteral("team turnover"));
  who.setCurrentIndex(0);
  ASSERT_TRUE(live.insertEvent({1, "6"}, LiveGame::Where::Behind, fresh.clockSeconds(), *fresh.counted()));
  EXPECT_EQ(live.game().events.find(1, "7")->whole(), "09:50,XTV,0");
}

TEST_F(LiveEventPanelTest, ANewEventIsOfNobodyUntilSomebodyIsNamed) {
  frmEDIT fresh(live, {1, "6"}, frmEDIT::Purpose::Insert, settings, texts);
  const auto& accept = LiveRoom::find<QPushButton>(fresh, "cmdOK");
  EXPECT_FALSE(accept.isEnabled());
  QTest::mouseClick(&LiveRoom::find(fresh, "cmdBUTDK(10)"), Qt::LeftButton);
  EXPECT_NE(textOf(fresh, "lbleditshot"), "");
  EXPECT_FALSE(accept.isEnabled());
  LiveRoom::find<QComboBox>(fresh, "cmbPLAYER").setCurrentIndex(0);
  EXPECT_TRUE(accept.isEnabled());
  EXPECT_EQ(fresh.counted()->kind, EventCode::GDK);
}

TEST_F(LiveEventPanelTest, KeepsWhatCannotBeUnderstood) {
  ASSERT_EQ(GameFile(store, path).change({{EventChange::Kind::Add, 1, "7", "what is this?"}}),
            GameFileProblem::None);
  ASSERT_EQ(live.open(path), GameFileProblem::None);
  panel.showGame(live);
  select(0);
  EXPECT_EQ(words(0), "what is this?");
  for (const char* name : {"cmdEDIT", "cmdTIME", "cmdINSERTBEFORE", "cmdSUBSTAFTER"})
    EXPECT_FALSE(action(name).isEnabled()) << name;
  select(1);
  EXPECT_TRUE(action("cmdEDIT").isEnabled());
}

TEST_F(LiveEventPanelTest, IsUndoneByKeyInTheWindow) {
  frmLIVE window(store, settings, texts, dialogs, time);
  ASSERT_EQ(window.open(toQt(path)), frmLIVE::Opening::Opened);
  showActive(window);
  const auto event = [&] {
    Game game;
    EXPECT_EQ(GameFile(store, path).read(game), GameFileProblem::None);
    return std::string(game.events[5].line);
  };
  auto* events = &LiveRoom::find<QTableView>(window, "lvwEVENT");
  events->setFocus();
  events->selectRow(0);
  QTest::keyClick(events, Qt::Key_Delete);
  EXPECT_TRUE(event().starts_with('E'));
  QTest::keyClick(events, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_FALSE(event().starts_with('E'));
  QTest::keyClick(&window, Qt::Key_Y, Qt::ControlModifier);
  EXPECT_TRUE(event().starts_with('E'));
}

} // namespace
} // namespace hooptab
