#include "setup/frmNEWGAME.h"

#include "appearance/Theme.h"
#include "setup/SidePlayersTable.h"
#include "setup/frmSHEET.h"
#include "support/WindowRoom.h"

#include <QAbstractItemModelTester>
#include <QCalendarWidget>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTimer>

namespace hooptab {
namespace {

using namespace Qt::StringLiterals;
using Column = SidePlayersModel::Column;
using Kind = ScriptedDialogs::Kind;

enum { kLynx, kOwl, kFox }; // positions in the lists

// Lynx has twenty players, Owl is a main team with two, and one more who cannot play.
std::string teamsText() {
  std::string text =
      "[CONFIGURATION]\r\nLANGUE=0\r\n[TEAM]\r\n"
      "1=LYNX,AAA ,Basketball College,U1,U2,2,4,5,5,2,8438015,0\r\n"
      "2=OWL,AA,Owls,U1,U2,10,4,5,5,2,255,1\r\n3=FOX,B,Foxes,U1,U2,8,2,6,4,1,65280,0\r\n[1]\r\n";
  for (int number = 1; number <= 20; ++number)
    text += std::to_string(number) + "=0,Player " + std::to_string(number) + ",,,,,\r\n";
  return text + "[2]\r\n4=0,Ann Able,,,,,\r\n5=2,Bea Baker,,,,,\r\nAB=1,Cleo Carter,,,,,\r\n";
}

class NewGameWindowTest : public WindowTest<frmNEWGAME> {
 protected:
  NewGameWindowTest() {
    folder.write("CONFIG.INI", teamsText());
    settings.read();
    open({});
  }
  void open(const LastChoices& last) {
    window = std::make_unique<frmNEWGAME>(
        teams, settings, texts, dialogs, [](const QString&) { return QString(); }, last);
    window->resize(1340, 700);
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }
  void choose(Side side, int team) const {
    auto& list = find<QListWidget>(side == Side::Visitor ? "lstequipes(0)" : "lstequipes(1)");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(team)).center());
  }
  SidePlayersTable& players(Side side) const {
    return find<SidePlayersTable>(side == Side::Visitor ? "lvwJOUEURS(0)" : "lvwJOUEURS(1)");
  }
  QVariant cell(Side side, int row, int column, int role = Qt::DisplayRole) const {
    return players(side).model()->index(row, column).data(role);
  }
  QLineEdit& line(const char* name) const { return find<QLineEdit>(name); }
  int mark(int row) const { return cell(Side::Visitor, row, Column::Number, Qt::CheckStateRole).toInt(); }

  QString count() const { return find<QLabel>("lblCOUNT(0)").text(); }
  QPushButton& ok() const { return find<QPushButton>("OKButton"); }
  bool isOpen() const { return window->isVisible(); }

  TeamStore teams{store, settings};
};

TEST_F(NewGameWindowTest, OkWaitsForEverythingAndTheWindowSaysForWhat) {
  EXPECT_EQ(window->windowTitle(), text(Text::NewGame));
  const auto& missing = find<QLabel>("lblMISSING");
  EXPECT_FALSE(ok().isEnabled());
  EXPECT_EQ(missing.text(), text(Text::ChooseTeams));
  for (const char* list : {"lstequipes(1)", "lstequipes(0)"}) {
    find<QListWidget>(list).setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(find<QListWidget>(list).selectedItems().isEmpty()) << "passing through chooses nothing";
  }
  EXPECT_EQ(line("txtNBREPERIODE").text(), QString());
  choose(Side::Visitor, kLynx);
  EXPECT_EQ(line("txtNOMEQUIPE(0)").text(), u"Basketball College"_s);
  EXPECT_FALSE(ok().isEnabled());
  choose(Side::Home, kFox);
  EXPECT_TRUE(ok().isEnabled());
  EXPECT_EQ(missing.text(), QString());
  find<QComboBox>("typeinput").setCurrentIndex(1);
  EXPECT_FALSE(ok().isEnabled());
  EXPECT_EQ(missing.text(), text(Text::ChooseMainTeam));
  find<QRadioButton>("Option1(0)").click();
  EXPECT_TRUE(ok().isEnabled());
  choose(Side::Home, kOwl);
  EXPECT_TRUE(find<QRadioButton>("Option1(1)").isChecked()) << "the team says so";
  choose(Side::Home, kFox);
  EXPECT_FALSE(ok().isEnabled()) << "and takes it back";
  find<QComboBox>("typeinput").setCurrentIndex(2);
  line("txtDATE").clear();
  EXPECT_FALSE(ok().isEnabled());
  find<QComboBox>("lstTYPEPARTIE").setCurrentIndex(-1);
  find<QDateEdit>("DTPicker1").setDate(QDate(2024, 3, 1));
  EXPECT_FALSE(ok().isEnabled());
  find<QComboBox>("lstTYPEPARTIE").setCurrentIndex(6);
  EXPECT_TRUE(ok().isEnabled());
}

TEST_F(NewGameWindowTest, TheTabKeyLeavesNoSearchFieldOut) {
  EXPECT_EQ(window->focusWidget()->objectName(), u"lstequipes(0)"_s);
  QStringList passed;
  for (int i = 0; i < 30 && !passed.contains(u"txtNOMEQUIPE(1)"_s); ++i) {
    QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    passed << window->focusWidget()->objectName();
  }
  EXPECT_EQ(passed.mid(passed.size() - 3),
            QStringList({u"txtSEARCHequipes(1)"_s, u"lstequipes(1)"_s, u"txtNOMEQUIPE(1)"_s}));
}

TEST_F(NewGameWindowTest, TheDateAndItsPickerKeepInStep) {
  auto& date = line("txtDATE");
  auto& picker = find<QDateEdit>("DTPicker1");
  EXPECT_EQ(date.text(), picker.text());
  picker.setDate(QDate(2024, 3, 1));
  EXPECT_EQ(date.text(), u"2024-03-01"_s);
  date.setText(u"2023-12-31"_s);
  EXPECT_EQ(picker.date(), QDate(2023, 12, 31));
  date.setText(u"tomorrow"_s);
  EXPECT_EQ(picker.date(), QDate(2023, 12, 31));
  EXPECT_EQ(date.text(), u"tomorrow"_s);
  emit picker.calendarWidget()->clicked(picker.date());
  EXPECT_EQ(date.text(), u"2023-12-31"_s) << "the same day again";
  choose(Side::Home, kFox);
  EXPECT_EQ(date.text(), picker.text());
  EXPECT_EQ(picker.date(), QDate::currentDate());
}

TEST_F(NewGameWindowTest, PlayersAreCheckedAndTheirPositionsStepByMouseAndKey) {
  choose(Side::Visitor, kOwl);
  SidePlayersTable& table = players(Side::Visitor);
  new QAbstractItemModelTester(table.model(), QAbstractItemModelTester::FailureReportingMode::Fatal, &table);
  ASSERT_EQ(table.model()->rowCount(), 3);
  EXPECT_TRUE(table.isColumnHidden(Column::PositionIndex));
  EXPECT_EQ(table.palette().color(QPalette::Base), colourOf(255));
  EXPECT_FALSE(cell(Side::Visitor, 2, Column::Number, Qt::CheckStateRole).isValid()) << "AB is no jersey";
  EXPECT_TRUE(
      cell(Side::Visitor, 2, Column::Name, Qt::ToolTipRole).toString().contains(text(Text::NoJersey)));
  const QPoint name = table.visualRect(table.model()->index(1, Column::Name)).center();
  QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, name);
  QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, name);
  EXPECT_EQ(cell(Side::Visitor, 1, Column::Position).toString(), text(Text::NotApplicable))
      << "after the guard";
  EXPECT_EQ(cell(Side::Visitor, 1, Column::PositionIndex).toInt(), 9);
  QTest::keyClick(&table, Qt::Key_F2);
  EXPECT_EQ(cell(Side::Visitor, 1, Column::PositionIndex).toInt(), 0);
  QTest::keyClick(&table, Qt::Key_Space);
  EXPECT_EQ(mark(1), Qt::Unchecked);
  EXPECT_EQ(count(), u"1 of 15"_s);
  const QRect row = table.visualRect(table.model()->index(1, Column::Number));
  const QPoint box(row.left() + row.height() / 2, row.center().y());
  QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, box);
  EXPECT_EQ(mark(1), Qt::Checked);
  QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, box);
  EXPECT_EQ(cell(Side::Visitor, 1, Column::PositionIndex).toInt(), 0) << "two quick clicks on a check mark";
  find<QPushButton>("cmdNONE(0)").click();
  EXPECT_EQ(count(), u"0 of 15"_s);
  find<QPushButton>("cmdALL(0)").click();
  EXPECT_EQ(count(), u"2 of 15"_s);
}

TEST_F(NewGameWindowTest, NumbersAloneMakeTheSideOnceAndSayWhatIsWrong) {
  choose(Side::Visitor, kOwl);
  choose(Side::Home, kFox);
  auto& numbers = line("txtNUMBERS(0)");
  const auto& problem = find<QLabel>("lblPROBLEM(0)");
  const auto rows = [this] { return players(Side::Visitor).model()->rowCount(); };
  numbers.setFocus();
  numbers.insert(u"5 é 23"_s);
  QTest::keyClick(&numbers, Qt::Key_Return);
  EXPECT_TRUE(problem.text().contains(u"é"_s));
  EXPECT_EQ(numbers.selectedText(), u"é"_s);
  EXPECT_TRUE(numbers.hasFocus());
  EXPECT_EQ(count(), u"2 of 15"_s) << "nothing was changed";
  ok().click();
  ASSERT_EQ(dialogs.shown.size(), 1U);
  EXPECT_EQ(dialogs.shown[0].text, problem.text());
  EXPECT_EQ(dialogs.lastProposed, QString()) << "no file was asked for";

  QTest::keyClicks(&numbers, u"7"_s);
  EXPECT_EQ(problem.text(), QString());
  QTest::keyClick(&numbers, Qt::Key_Tab);
  EXPECT_EQ(rows(), 5) << "7 and 23 came along";
  EXPECT_EQ(mark(0), Qt::Unchecked);
  EXPECT_EQ(cell(Side::Visitor, 4, Column::Number).toString(), u"23"_s);
  players(Side::Visitor)
      .model()
      ->setData(players(Side::Visitor).model()->index(0, 0), Qt::Checked, Qt::CheckStateRole);
  numbers.setFocus();
  QTest::keyClick(&numbers, Qt::Key_Tab);
  EXPECT_EQ(count(), u"4 of 15"_s) << "what is empty changes nothing";

  auto& jersey = line("txtJERSEY(0)");
  auto& name = line("txtPLAYER(0)");
  QTest::keyClicks(&jersey, u"23"_s);
  QTest::keyClick(&jersey, Qt::Key_Return);
  EXPECT_EQ(problem.text(), u"Number 23 is worn by 23."_s);
  jersey.clear();
  QTest::keyClicks(&jersey, u"8"_s);
  QTest::keyClicks(&name, u"Zoe"_s);
  QTest::keyClick(&name, Qt::Key_Tab);
  QTest::keyClick(window->focusWidget(), Qt::Key_Return);
  EXPECT_EQ(cell(Side::Visitor, 5, Column::Name).toString(), u"Zoe"_s);
  EXPECT_EQ(jersey.text() + name.text() + problem.text(), QString());
  EXPECT_EQ(dialogs.lastProposed, QString()) << "Enter adds, and no more";
}

TEST_F(NewGameWindowTest, TeamsOfThisGameAloneStandInBothLists) {
  choose(Side::Visitor, kOwl);
  find<QPushButton>("cmdOTHER(0)").click();
  EXPECT_TRUE(line("txtNOMEQUIPE(0)").hasFocus());
  EXPECT_EQ(players(Side::Visitor).model()->rowCount(), 0);
  QTest::keyClicks(&line("txtNOMEQUIPE(0)"), u"Harbour Pikes"_s);
  QTest::keyClicks(&line("txtNOMEQUIPE(1)"), u"Storks"_s);
  EXPECT_EQ(line("txtNOMEQUIPE(1)").text(), u"Storks"_s) << "what is typed stays";
  QCoreApplication::processEvents(); // the lists follow when no click is on its way to them
  for (const char* list : {"lstequipes(0)", "lstequipes(1)"}) {
    ASSERT_EQ(find<QListWidget>(list).count(), 5) << list;
    EXPECT_EQ(find<QListWidget>(list).item(3)->text() + u'|' + find<QListWidget>(list).item(4)->text(),
              u"Pikes-|Storks-"_s);
  }
  EXPECT_EQ(line("txtDUREE").text(), u"10"_s);
  EXPECT_TRUE(ok().isEnabled());
}

TEST_F(NewGameWindowTest, ASetOfRulesStaysNamedWhenSomethingElseIsTyped) {
  open({{3, 2}, "", "", 2, 0, {{2, {"FIBA", RecordingLevel::League}}}});
  auto& sets = find<QComboBox>("lstREGLES");
  auto& level = find<QComboBox>("lstNIVEAU");
  const auto& words = find<QLabel>("lblMISSING");
  EXPECT_EQ(sets.currentText() + level.currentText(), text(Text::RulesFiba) + text(Text::LevelLeague));
  EXPECT_NE(words.text(), QString()) << "the team's bonus is another one";
  EXPECT_TRUE(ok().isEnabled());
  QTest::keyClick(&sets, Qt::Key_Down);
  EXPECT_EQ(line("txtDUREE").text() + line("txtPF").text(), u"126"_s) << "of the NBA";
  EXPECT_EQ(words.text(), QString());
  line("txtPF").setText(u"5"_s);
  EXPECT_TRUE(words.text().contains(text(Text::RulesNba)));
  choose(Side::Home, kFox);
  EXPECT_EQ(line("txtDUREE").text(), u"8"_s);
  EXPECT_EQ(sets.currentText(), text(Text::RulesNba));
  EXPECT_EQ(level.currentText(), text(Text::LevelBasic)) << "that nobody chose";
  find<QComboBox>("typeinput").setCurrentIndex(2);
  EXPECT_FALSE(level.isEnabled()) << "totals ask for nothing";
}

TEST_F(NewGameWindowTest, DetailsAreAskedForInAWindowOfTheirOwn) {
  open({{3, 2}, "", "", 2, 0});
  for (const bool accepts : {true, false}) {
    QTimer::singleShot(0, window.get(), [&] {
      auto* sheet = window->findChild<frmSHEET*>();
      ASSERT_NE(sheet, nullptr);
      const auto field = [sheet](const QString& name) { return sheet->findChild<QLineEdit*>(name); };
      field(u"txtRONDE"_s)->setText(accepts ? u"final"_s : u"semi-final"_s);
      QTest::keyClicks(field(u"txtENTRAINEUR(0)"_s), QString(300, u'W'));
      QTest::keyClicks(field(u"txtSCORECIBLE"_s), u"2x1000"_s);
      auto* captain = sheet->findChild<QComboBox*>(u"lstCAPITAINE(1)"_s);
      captain->setCurrentIndex(captain->findText(u"5 Bea Baker"_s));
      accepts ? sheet->accept() : sheet->reject();
    });
    click("cmdSHEET");
  }
  dialogs.nextFileToSave = toQt(folder.path("a.GAM"));
  ok().click();
  EXPECT_NE(folder.read("a.GAM").find("RONDE=final\r\nENTRAINEUR0=" + std::string(254, 'W') +
                                      "\r\nCAPITAINE1=5\r\nSCORECIBLE=210\r\n"),
            std::string::npos);
}

TEST_F(NewGameWindowTest, TheCountWarnsBeforeOkDoes) {
  open({{1, 2}, "", "", 2, 0});
  const auto& count = find<QLabel>("lblCOUNT(0)");
  EXPECT_TRUE(count.text().contains(u"20 of 15"_s));
  EXPECT_TRUE(count.text().startsWith(QChar(0x26A0)));
  EXPECT_TRUE(count.font().bold());
  EXPECT_GE(players(Side::Visitor).rowAt(players(Side::Visitor).viewport()->height() - 1), 14);
  ok().click();
  ASSERT_EQ(dialogs.shown.size(), 1U);
  EXPECT_EQ(dialogs.shown[0],
            (ScriptedDialogs::Shown{Kind::Warn, text(Text::WarningTitle), text(Text::VisitorsTooMany)}));
  EXPECT_TRUE(isOpen());
  EXPECT_TRUE(players(Side::Visitor).hasFocus()) << "where the fault is";
  EXPECT_EQ(dialogs.lastProposed, QString()) << "no file was asked for";
  for (int row = 0; row < 5; ++row)
    players(Side::Visitor)
        .model()
        ->setData(players(Side::Visitor).model()->index(row, 0), Qt::Unchecked, Qt::CheckStateRole);
  EXPECT_EQ(count.text(), u"15 of 15"_s);
  EXPECT_FALSE(count.font().bold());
}

TEST_F(NewGameWindowTest, EnterPressesOkOnlyWhereItIsMeant) {
  open({{3, 2}, "Gym", "Zoë", 2, 0});
  EXPECT_EQ(line("txtENDROIT").text(), u"Gym"_s);
  for (const char* name : {"lvwJOUEURS(1)", "lstequipes(0)", "txtSEARCHequipes(0)", "txtNOTES"}) {
    auto& widget = find<QWidget>(name);
    widget.setFocus();
    QTest::keyClick(&widget, Qt::Key_Return);
    EXPECT_EQ(dialogs.lastProposed, QString()) << name;
  }
  auto& place = line("txtENDROIT");
  place.setFocus();
  QTest::keyClick(&place, Qt::Key_Return);
  EXPECT_EQ(dialogs.lastFilter, fileFilter(text(Text::GameFilter)));
  EXPECT_TRUE(dialogs.lastProposed.endsWith(u" Season FOX-B OWL-AA.GAM"_s));
  EXPECT_TRUE(dialogs.lastProposed.startsWith(toQt(folder.path()) + u"/20"_s));
  EXPECT_TRUE(isOpen()) << "the file dialog was cancelled";
  QTest::keyClick(window.get(), Qt::Key_Escape);
  EXPECT_FALSE(isOpen());
}

TEST_F(NewGameWindowTest, TheLanguageFollowsAtOnceAndTheChoicesStay) {
  open({{1, 2}, "", "", 9, 1});
  QSignalSpy asked(window.get(), &frmNEWGAME::languageAsked);
  QTest::keyClick(window.get(), Qt::Key_F12);
  EXPECT_EQ(asked.count(), 1);
  texts.setLanguage(Language::French);
  window->relabelWindow();
  EXPECT_EQ(window->windowTitle(), text(Text::NewGame));
  EXPECT_EQ(find<QComboBox>("lstTYPEPARTIE").currentText(), text(Text::OtherType));
  EXPECT_EQ(find<QComboBox>("lstTYPEPARTIE").count(), 7);
  EXPECT_EQ(find<QComboBox>("typeinput").currentText(), text(Text::LiveAndKeypad));
  EXPECT_EQ(cell(Side::Visitor, 0, Column::Position).toString(), u"Centre"_s);
  EXPECT_TRUE(count().contains(u"20 sur 15"_s));
  EXPECT_EQ(window->choices(), (LastChoices{{1, 2}, "", "", 9, 1, {{1, {}}, {2, {}}}}));
}

TEST_F(NewGameWindowTest, MakesAGameOfEachInputType) {
  for (const int input : {0, 1, 2}) {
    SCOPED_TRACE(input);
    open({{3, 2}, "", "", 2, 0});
    find<QComboBox>("typeinput").setCurrentIndex(input);
    line("txtNOMEQUIPE(0)").setText(u"Renards"_s);
    line("txtNOTES").setText(u"Final"_s);
    line("txtPF").setText(u"04"_s);
    QTest::keyClick(&players(Side::Home), Qt::Key_F2);
    dialogs.nextFileToSave = toQt(folder.path("game" + std::to_string(input)));
    ok().click();
    EXPECT_TRUE(!isOpen() && window->result() == QDialog::Accepted);
    EXPECT_EQ(window->path(), dialogs.nextFileToSave + u".GAM"_s);
    Game game;
    ASSERT_EQ(GameFile(store, fromQt(window->path())).read(game), GameFileProblem::None);
    EXPECT_EQ(game.details.inputType, input == 2 ? 1 : 0);
    EXPECT_EQ(game.details.mainTeam, Side::Home);
    EXPECT_EQ(game.details.name[Side::Visitor] + '|' + game.details.notes, "Renards|Final");
    EXPECT_EQ(game.roster[Side::Home].players().size(), 2U);
    EXPECT_EQ(game.events.size(), input == 2 ? 0U : 1U);
    EXPECT_NE(folder.read("game" + std::to_string(input) + ".GAM").find("PFMAX=04\r\n"), std::string::npos);
    EXPECT_EQ(settings.keypadIsActive, input == 1);
  }
  EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(NewGameWindowTest, AsksBeforeAGameIsLostAndSaysWhatCouldNotBeWritten) {
  open({{3, 2}, "Gym", "", 2, 0});
  const std::string old =
      "[DETAILS]\r\nVERSION=2.0\r\nDATE=2024-03-01\r\nEQUIPE0ABB=CAT\r\nEQUIPE1ABB=DOG\r\n";
  folder.write("old.GAM", old);
  dialogs.nextFileToSave = toQt(folder.path("old.GAM"));
  ok().click();
  ASSERT_EQ(dialogs.shown.size(), 1U);
  EXPECT_TRUE(dialogs.shown[0].kind == Kind::Ask && dialogs.shown[0].title == text(Text::WarningTitle));
  EXPECT_TRUE(dialogs.shown[0].text.contains(u"CAT - DOG (2024-03-01), which is not finished"_s));
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(folder.read("old.GAM"), old);
  dialogs.nextFileToSave = toQt(folder.path("missing/new.GAM"));
  ok().click();
  ASSERT_EQ(dialogs.shown.size(), 2U);
  EXPECT_TRUE(dialogs.shown[1].kind == Kind::Complain && dialogs.shown[1].title == text(Text::ErrorTitle));
  EXPECT_TRUE(dialogs.shown[1].text.contains(dialogs.nextFileToSave));
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(line("txtENDROIT").text(), u"Gym"_s);
  dialogs.nextFileToSave = toQt(folder.path("old.GAM"));
  dialogs.nextAnswer = true;
  ok().click();
  EXPECT_FALSE(isOpen());
  EXPECT_NE(folder.read("old.GAM").find("EQUIPE0ABB=FOX"), std::string::npos);
}

} // namespace
} // namespace hooptab
