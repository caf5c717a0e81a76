// Names are text: whatever letters the teams and players of a file have, every window shows them as they are.
#include "appearance/Dialogs.h"
#include "appearance/Theme.h"
#include "live/frmLIVE.h"
#include "manual/frmMANUAL.h"
#include "recording/TimeSource.h"
#include "review/frmVIEW.h"
#include "season/SeasonTableView.h"
#include "studies/frmSTATS.h"
#include "setup/frmNEWGAME.h"
#include "support/WindowRoom.h"
#include "teams/TeamStore.h"
#include "teams/frmEQUIPES.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QListWidget>
#include <QMessageBox>
#include <QSet>
#include <QTimer>
#include <QToolTip>
#include <algorithm>
#include <array>
#include <set>

namespace hooptab {
namespace {

using namespace Qt::StringLiterals;

constexpr const char* kBold = "<b>B</b>";
constexpr const char* kImage = "<img src=x>";
constexpr const char* kAnd = "A&B";
constexpr const char* kMark = "[*]";
constexpr const char* kNames[] = {kBold, kImage, kAnd, kMark};

class NamesTest : public WindowRoom<> {
 protected:
  void SetUp() override {
    Theme::apply(*qApp, ColourScheme::Light);
    (void)settings.prepare(texts);
    TeamStore teams(store, settings);
    std::vector<TeamPlayer> players;
    for (const char* player : kNames)
      players.push_back({std::to_string(players.size() + 4), {9, player, kBold, kImage, kAnd, kMark}, {}});
    for (const char* name : {kBold, kMark}) {
      TeamRecord team;
      team.abbreviation = name;
      team.category = kAnd;
      team.name = kImage;
      const auto id = teams.create(texts);
      ASSERT_TRUE(id.has_value());
      ASSERT_TRUE(teams.save(*id, team, {{"4", {}, {}}, {"5", {}, {}}}));
      ASSERT_TRUE(teams.savePlayers(*id, players));
    }
    ASSERT_FALSE(HasFailure());
  }
  QString makeGame(const char* file, int inputType = 0,
                   const std::array<std::string, 4>& names = {kBold, kImage, kAnd, kMark}) {
    std::string text = "[DETAILS]\nVERSION=2.0\nINPUTTYPE=" + std::to_string(inputType) +
                       "\nDATE=2026-11-05\nNBREPERIODE=4\nDUREE=10\nENDROIT=" + kBold +
                       "\nEQUIPE0ABB=" + names[0] + "\nEQUIPE1ABB=" + names[3] + "\n";
    for (const std::string team : {"0", "1"})
      text += "EQUIPE" + team + "NOM=" + names[1] + "\nEQUIPE" + team + "CAT=" + names[2] + "\nSUPP" + team +
              (team == "0" ? "=U1-" : "=U2-") + kAnd + "\n";
    for (const char* roster : {"[0]\n", "[1]\n"})
      text += roster + ("4=0," + names[0]) + "\n5=1," + names[1] + "\n6=2," + names[2] + "\n7=2," + names[3] +
              "\n";
    if (inputType == 0)
      text +=
          "[PERIODE1]\n1=10:00,ARRET,IN-,IN-\n2=08:20,ARRET,IN-04-05-06-07,IN-04-05-06-07\n3=08:20,DEPART\n"
          "4=08:20,GF3,0-4,60,80\n5=08:20,GFG,1-5,40,50\n6=08:20,SA,1-6\n7=08:20,SPF,0-7\n";
    (void)games.write(file, text);
    return toQt(games.path(file));
  }

  static void show(QWidget& window) {
    window.resize(1366, 700);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_LE(window.minimumSizeHint().width(), 1366) << fromQt(window.objectName()) << " is pushed apart";
  }
  // What is shown of the names: label by label, cell by cell, tool tip by tool tip.
  void expectPlain(QWidget& window, int leastTips) {
    SCOPED_TRACE(fromQt(window.objectName()));
    m_seen.clear();
    show(window);
    for (const QLabel* label : window.findChildren<QLabel*>()) {
      const QString text = label->text();
      const bool isRich = label->textFormat() == Qt::RichText && !holdsName(text);
      EXPECT_TRUE(label->textFormat() == Qt::PlainText || isRich) << fromQt(text);
      if (label->buddy() != nullptr)
        expectNoKey(text);
      note(text);
    }
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
      expectNoKey(button->text());
      note(button->text().replace(QLatin1String("&&"), QLatin1String("&")));
    }
    for (const QAction* action : window.findChildren<QAction*>())
      expectNoKey(action->text());
    for (const QGroupBox* group : window.findChildren<QGroupBox*>())
      expectNoKey(group->title());
    for (const QComboBox* box : window.findChildren<QComboBox*>())
      for (int item = 0; item < box->count(); ++item)
        note(box->itemText(item));
    for (const QAbstractItemView* view : window.findChildren<QAbstractItemView*>()) {
      for (int row = 0; row < view->model()->rowCount(); ++row)
        for (int column = 0; column < view->model()->columnCount(); ++column) {
          const QModelIndex index = view->model()->index(row, column);
          note(index.data().toString());
          expectPlainTip(index.data(Qt::ToolTipRole).toString());
        }
    }
    for (const QWidget* widget : window.findChildren<QWidget*>())
      expectPlainTip(widget->toolTip());
    QToolTip::hideText();
    EXPECT_EQ(m_seen.size(), std::size(kNames));
    EXPECT_GE(m_tips.size(), leastTips);
  }
  void finish(const QString& path) {
    EXPECT_EQ(GameFile(store, fromQt(path)).setDetails({{"TERMINE", "1"}}), GameFileProblem::None);
  }
  void readAndGenerate(frmSTATS& window) {
    const auto wait = [&] { return QTest::qWaitFor([&] { return !window.isBusy(); }, 60000); };
    window.readFolder(toQt(games.path()), false);
    ASSERT_TRUE(wait());
    dialogs.nextAnswer = true; // the game is not whole
    window.findChild<QAbstractButton*>(u"cmdGENERATE"_s)->click();
    ASSERT_TRUE(wait());
    emit window.findChild<SeasonTableView*>(u"lvwSTATjoueurs(0)"_s)->rowAsked(0);
    ASSERT_TRUE(wait());
  }
  static bool holdsName(const QString& text) {
    return std::ranges::any_of(kNames, [&](const char* name) { return text.contains(QLatin1String(name)); });
  }
  // An "&" that is no sign of a key stands twice.
  static void expectNoKey(const QString& text) {
    EXPECT_FALSE(text.contains(QLatin1String(kAnd))) << fromQt(text);
  }
  void note(const QString& text) {
    for (const char* name : kNames)
      if (text.contains(QLatin1String(name)))
        m_seen.insert(name);
    EXPECT_FALSE(text.contains(QLatin1String("&lt;"))) << fromQt(text);
  }
  // As Qt would show it: by a label of its own.
  void expectPlainTip(const QString& text) {
    if (!holdsName(text) || m_tips.contains(text))
      return;
    m_tips.insert(text);
    QToolTip::showText({100, 100}, text);
    EXPECT_TRUE(std::ranges::any_of(QApplication::topLevelWidgets(), [&text](const QWidget* shown) {
      const auto* tip = qobject_cast<const QLabel*>(shown);
      return shown->inherits("QTipLabel") && tip->text() == text && tip->textFormat() == Qt::PlainText;
    })) << fromQt(text);
  }

  TemporaryFolder games;
  SystemTime time;
  std::set<std::string> m_seen; // of the names
  QSet<QString> m_tips;
};

TEST_F(NamesTest, TheScorecardShowsThem) {
  frmVIEW window(store, settings, texts);
  ASSERT_EQ(window.open(makeGame("1.GAM")), GameFileProblem::None);
  expectPlain(window, 3);
}

TEST_F(NamesTest, TheLiveWindowShowsThem) {
  frmLIVE window(store, settings, texts, dialogs, time);
  ASSERT_EQ(window.open(makeGame("1.GAM")), frmLIVE::Opening::Opened);
  expectPlain(window, 4);
}

TEST_F(NamesTest, TheWindowOfTotalsShowsThem) {
  frmMANUAL window(store, settings, texts, dialogs);
  ASSERT_TRUE(window.open(makeGame("1.GAM", 1)));
  expectPlain(window, 0);
}

TEST_F(NamesTest, TheSeasonShowsThem) {
  finish(makeGame("1.GAM"));
  frmSTATS window(disk, settings, texts, dialogs);
  readAndGenerate(window);
  expectPlain(window, 4);
}

TEST_F(NamesTest, TeamsAndNewGameShowThem) {
  TeamStore teams(store, settings);
  frmEQUIPES editor(teams, texts, dialogs);
  auto* list = editor.findChild<QListWidget*>(u"lstequipes"_s);
  list->setCurrentRow(list->count() - 1);
  expectPlain(editor, 0);
  frmNEWGAME form(teams, settings, texts, dialogs, [](const QString&) { return QString(); }, {});
  auto* sides = form.findChild<QListWidget*>(u"lstequipes(0)"_s);
  sides->setCurrentRow(sides->count() - 1);
  expectPlain(form, 4);
}

// As files of other programs may have them.
TEST_F(NamesTest, LongOnesPushNothingApart) {
  const std::string name(80, 'W');
  const std::array<std::string, 4> names = {name + "1", name + "2", name + "3", name + "4"};
  const QString path = makeGame("1.GAM", 0, names);
  frmVIEW scorecard(store, settings, texts);
  ASSERT_EQ(scorecard.open(path), GameFileProblem::None);
  show(scorecard);
  frmLIVE live(store, settings, texts, dialogs, time);
  ASSERT_EQ(live.open(path), frmLIVE::Opening::Opened);
  show(live);
  finish(path);
  frmSTATS season(disk, settings, texts, dialogs);
  readAndGenerate(season);
  show(season);
  frmMANUAL manual(store, settings, texts, dialogs);
  ASSERT_TRUE(manual.open(makeGame("2.GAM", 1, names)));
  show(manual);
}

TEST_F(NamesTest, MessagesShowThem) {
  QtDialogs real;
  const QString name = QLatin1String(kImage);
  const auto answer = [&](QMessageBox::StandardButton button) {
    QTimer::singleShot(0, qApp, [name, button] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      EXPECT_EQ(box->textFormat(), Qt::PlainText);
      EXPECT_EQ(box->text(), name);
      box->button(button)->click();
    });
  };
  for (const auto method : {&Dialogs::inform, &Dialogs::warn, &Dialogs::complain}) {
    answer(QMessageBox::Ok);
    (real.*method)(nullptr, name, name);
  }
  answer(QMessageBox::Yes);
  EXPECT_TRUE(real.ask(nullptr, {}, name));
  answer(QMessageBox::Cancel);
  EXPECT_EQ(real.askToSave(nullptr, {}, name), SaveChoice::Stay);
}

} // namespace
} // namespace hooptab
