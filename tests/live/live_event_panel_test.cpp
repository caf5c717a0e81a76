// The list of events beside the court: what it shows, keeps and asks for.
#include "live/LiveEventPanel.h"

#include "appearance/relabel.h"
#include "live/LiveGame.h"
#include "live/ManualTime.h"
#include "live/frmEDIT.h"
#include "storage/Settings.h"
#include "support/TemporaryFolder.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <gtest/gtest.h>

namespace hooptab {
namespace {

class UnsyncedFileSystem : public FileSystem {
 public:
  int sync(int) override { return 0; }
};

class LiveEventPanelTest : public testing::Test {
 protected:
  void SetUp() override {
    GameDetails details;
    details.periods = 4;
    details.minutesPerPeriod = 10;
    details.abbreviation[0] = "LYNX";
    details.abbreviation[1] = "PUMA";
    const std::vector<RosterPlayer> players = {{"4", 0, "Ann"},  {"5", 1, "Bea"},  {"10", 2, "Cleo"},
                                               {"12", 2, "Dee"}, {"15", 1, "Eve"}, {"7", 1, "Fay"}};
    ASSERT_EQ(GameFile(store, path).create(details, players, players), GameFileProblem::None);
    ASSERT_EQ(live.open(path), GameFileProblem::None);
    ASSERT_TRUE(live.setOnCourt({kFive, kFive}));
    live.start();
    time.now += 10;
    live.recordShot(0, 1, EventCode::GLG, true);
    live.recordAction(0, 2, EventCode::SA);
    live.recordAction(1, 3, EventCode::SPF);
    panel.resize(250, 400);
    panel.showGame(live);
    panel.show();
    qRegisterMetaType<std::vector<EventPlace>>();
    qRegisterMetaType<EventPlace>();
  }
  template <class Found>
  Found& find(const char* name) {
    auto* found = panel.findChild<Found*>(QLatin1String(name));
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }
  QTableView& list() { return find<QTableView>("lvwEVENT"); }
  QAction& action(const char* name) { return find<QAction>(name); }
  QModelIndex cell(int row, int column) { return list().model()->index(row, column); }
  std::string words(int row) { return fromQt(cell(row, EventListModel::Action).data().toString()); }
  void select(int row, QItemSelectionModel::SelectionFlags how = QItemSelectionModel::ClearAndSelect) {
    list().selectionModel()->setCurrentIndex(cell(row, 0), how | QItemSelectionModel::Rows);
  }
  static constexpr unsigned kFive = 0b111110; // entries 1 to 5

  TemporaryFolder folder;
  UnsyncedFileSystem disk;
  cinifile store{disk};
  ManualTime time;
  std::string path = folder.path("live.GAM");
  LiveGame live{store, time};
  Texts texts;
  LiveEventPanel panel{texts};
};

TEST_F(LiveEventPanelTest, ShowsTheNewestFirstAndWhatBelongsTogether) {
  const QAbstractItemModelTester tester(list().model());
  ASSERT_EQ(list().model()->rowCount(), 6);
  EXPECT_EQ(words(0), "PUMA 10: personal foul");
  EXPECT_EQ(words(1), "  LYNX 5: assist");
  EXPECT_EQ(words(2), "LYNX 4 ● left layup");
  EXPECT_EQ(cell(2, EventListModel::Score).data().toString(), QStringLiteral("2-0"));
  EXPECT_EQ(words(4), "LYNX: in 4, 5, 10, 12, 15 - PUMA: in 4, 5, 10, 12, 15");
  EXPECT_TRUE(
      cell(2, EventListModel::Action).data(Qt::ToolTipRole).toString().contains(QLatin1String("Ann")));

  live.recordShot(1, 1, EventCode::GFT, false);
  panel.showGame(live);
  EXPECT_EQ(words(0), "PUMA 4 ✕ free throw");
  live.setDeleted(std::vector<EventPlace>{{1, "4"}}, true);
  panel.showGame(live);
  EXPECT_TRUE(cell(3, EventListModel::Action).data(Qt::FontRole).value<QFont>().strikeOut());
  EXPECT_EQ(words(2), "LYNX 5: assist") << "its shot is gone";
  EXPECT_EQ(action("cmdUNDO").text(), QStringLiteral("Undo: Deletion (LYNX 4 ● left layup)"));
  panel.showGame(live); // an assist without a basket
  auto& checks = find<QPushButton>("lblCHECKS");
  EXPECT_EQ(checks.text(), QStringLiteral("To check: 1"));
  checks.click();
  EXPECT_EQ(list().currentIndex().row(), 2);
  EXPECT_TRUE(
      cell(2, EventListModel::Action).data(Qt::ToolTipRole).toString().contains(QLatin1String("LYNX 5 Bea")));
  live.undo();
  panel.showGame(live);
  EXPECT_FALSE(checks.isEnabled());
  EXPECT_EQ(words(2), "  LYNX 5: assist");
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

TEST_F(LiveEventPanelTest, FiltersAndKeepsItsPlace) {
  const auto choose = [&](const char* name, int item) { find<QComboBox>(name).setCurrentIndex(item); };
  action("cmdFILTER").setChecked(true);
  choose("cmbTEAM", 2);
  ASSERT_EQ(list().model()->rowCount(), 2) << "the foul and who came in";
  EXPECT_EQ(find<QComboBox>("cmbPLAYER").count(), 1 + 6);
  choose("cmbPLAYER", 3);
  choose("cmbKIND", find<QComboBox>("cmbKIND").findText(QStringLiteral("personal foul")));
  ASSERT_EQ(list().model()->rowCount(), 1);
  live.recordAction(1, 3, EventCode::SPF);
  live.recordAction(1, 4, EventCode::SPF);
  panel.showGame(live);
  EXPECT_EQ(list().model()->rowCount(), 2);
  panel.choose(EventPlace{1, "4"});
  EXPECT_EQ(words(list().currentIndex().row()), "LYNX 4 ● left layup") << "shown again";
  action("cmdFILTER").setChecked(false);
  EXPECT_EQ(list().model()->rowCount(), 8);

  for (int event = 0; event < 60; ++event)
    live.recordAction(0, 1, EventCode::STO);
  panel.showGame(live);
  EXPECT_EQ(list().indexAt({0, 0}).row(), 0);
  EXPECT_EQ(words(list().currentIndex().row()), "LYNX 4 ● left layup");
  list().verticalScrollBar()->setValue(20 * 30);
  const std::string top = words(list().indexAt({0, 0}).row());
  const int value = list().verticalScrollBar()->value();
  live.recordAction(1, 1, EventCode::SBS);
  panel.showGame(live);
  EXPECT_EQ(list().verticalScrollBar()->value(), value + 20) << "who reads stays where he reads";
  EXPECT_EQ(words(list().indexAt({0, 0}).row()), top);
}

TEST_F(LiveEventPanelTest, TheEditingPanelChangesWhatItShows) {
  live.recordShot(1, 2, EventCode::GF3, false, {{10, 20}});
  const Settings settings(store, folder.path(""));
  frmEDIT shot(live, {1, "7"}, frmEDIT::Purpose::Change, settings, texts);
  EXPECT_EQ(shot.clockSeconds(), 590);
  auto& made = *shot.findChild<QCheckBox*>(QStringLiteral("chkMADE"));
  EXPECT_FALSE(made.isChecked());
  made.setChecked(true);
  auto& clock = *shot.findChild<QLineEdit*>(QStringLiteral("txtTEMPS"));
  clock.setText(QStringLiteral("9:"));
  EXPECT_FALSE(shot.findChild<QPushButton*>(QStringLiteral("cmdOK"))->isEnabled());
  clock.setText(QStringLiteral("09:51"));
  ASSERT_TRUE(shot.counted());
  ASSERT_TRUE(live.editEvent({1, "7"}, shot.clockSeconds(), *shot.counted()));
  EXPECT_EQ(*findLine(live.log().lines(), 1, "7"), "09:51,GF3,1-5,10,20");
  frmEDIT stop(live, {1, "2"}, frmEDIT::Purpose::Change, settings, texts);
  EXPECT_FALSE(stop.counted()) << "its time alone";
}

TEST_F(LiveEventPanelTest, StaysFastInALongGame) {
  for (int event = 0; event < 1500; ++event) {
    time.now += event % 3 == 0 ? 1 : 0;
    live.recordAction(event % 2, 1 + event % 5, EventCode::STO);
  }
  panel.showGame(live);
  QElapsedTimer timer;
  timer.start();
  for (int event = 0; event < 10; ++event) {
    live.recordAction(0, 1, EventCode::STO);
    panel.showGame(live);
  }
  RecordProperty("msPerEvent", static_cast<int>(timer.elapsed() / 10));
  EXPECT_LT(timer.elapsed(), 10 * 50);
}

} // namespace
} // namespace hooptab
