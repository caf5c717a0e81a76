#include "appearance/Theme.h"
#include "support/WindowRoom.h"
#include "teams/PlayerTableModel.h"
#include "teams/TeamList.h"
#include "teams/frmEQUIPES.h"

#include <QAbstractButton>
#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QTableView>

namespace hooptab {
namespace {

using namespace Qt::StringLiterals;
using Kind = ScriptedDialogs::Kind;
using Shown = ScriptedDialogs::Shown;

class TeamWindowTest : public WindowTest<frmEQUIPES> {
 protected:
  void SetUp() override {
    folder.write(
        "CONFIG.INI",
        "[CONFIGURATION]\r\nLANGUE=0\r\nSTATU1=U1-One\r\nSTATU2=U2-Two\r\n"
        "[TEAM]\r\n1=BEES,A,Bees,,,8,4,5,5,2,255,0\r\n2=ANTS,B,Fuzzy Ants,,,10,4,5,5,2\r\nx=ODD,C,\r\n"
        "[1]\r\n5=2,Ann,6ft,,,,\r\n10=0,Bo,,,,,\r\n");
    settings.read();
    window = std::make_unique<frmEQUIPES>(teams, texts, dialogs);
    window->resize(1350, 650);
    ASSERT_NO_FATAL_FAILURE(showActive(*window));
    auto* model = window->findChild<PlayerTableModel*>();
    new QAbstractItemModelTester(model, QAbstractItemModelTester::FailureReportingMode::Fatal, model);
  }
  QLineEdit& field(const char* name) const { return find<QLineEdit>(name); }
  QListWidget& list() const { return find<QListWidget>("lstequipes"); }
  QTableView& table() const { return find<QTableView>("lvwJOUEURS"); }
  static void clickAt(QWidget& widget, QPoint place) {
    QTest::mouseClick(&widget, Qt::LeftButton, {}, place);
    QCoreApplication::processEvents();
  }
  void clickHeader(int column) const {
    QHeaderView& header = *table().horizontalHeader();
    clickAt(*header.viewport(), QPoint(header.sectionViewportPosition(column) + 20, 8));
  }
  void choose(int team) const {
    clickAt(*list().viewport(), list().visualItemRect(list().item(team)).center());
  }
  void clickPlayer(int row) const {
    clickAt(*table().viewport(), table().visualRect(table().model()->index(row, 1)).center());
  }
  // As a user types: over what the focus has selected.
  void type(const char* name, const char* text) const {
    if (!field(name).hasFocus())
      QTest::mouseClick(&field(name), Qt::LeftButton);
    QCoreApplication::processEvents();
    QTest::keyClicks(&field(name), QString::fromUtf8(text));
  }
  void press(const char* name, Qt::Key key) const {
    field(name).setFocus();
    QTest::keyClick(&field(name), key);
  }
  void choosePosition(int index) const {
    auto& box = find<QComboBox>("cmbPOSITION");
    box.setCurrentIndex(box.findData(index));
  }
  void typePlayer(const char* number, const char* name) const {
    type("txtJOUEURNO", number);
    choosePosition(1);
    type("txtJOUEURNOM", name);
  }
  QString players() const {
    QStringList rows;
    for (int row = 0; row < table().model()->rowCount(); ++row)
      rows << table().model()->index(row, 0).data().toString() + u' ' +
                  table().model()->index(row, 1).data().toString();
    return rows.join(u", "_s);
  }
  bool holds(const std::string& line) const {
    return folder.read("CONFIG.INI").find("\r\n" + line + "\r\n") != std::string::npos;
  }
  QString said() {
    const auto shown = std::exchange(dialogs.shown, {});
    return shown.empty() ? QString() : shown.back().text;
  }
  QString saidAfter(const char* button) {
    click(button);
    return said();
  }

  TeamStore teams{store, settings};
};

TEST_F(TeamWindowTest, ShowsTheTeamThatIsChosen) {
  EXPECT_EQ(list().count(), 3);
  EXPECT_EQ(list().item(0)->text(), u"BEES - A"_s);
  EXPECT_EQ(players(), QString());
  choose(0);
  EXPECT_EQ(field("txtNOMEQUIPE").text(), u"Bees"_s);
  EXPECT_EQ(field("txtDUREE").text(), u"8"_s);
  EXPECT_EQ(field("txtTF").text(), u"2"_s);
  EXPECT_EQ(players(), u"5 Ann, 10 Bo"_s);
  EXPECT_EQ(table().palette().color(QPalette::Base), QColor(255, 0, 0));
  clickPlayer(0);
  EXPECT_EQ(field("txtJOUEURNO").text(), u"5"_s);
  EXPECT_EQ(field("txtGRANDEUR").text(), u"6ft"_s);
  EXPECT_EQ(find<QComboBox>("cmbPOSITION").currentText(), u"Guard"_s);
  texts.setLanguage(Language::French);
  window->relabelWindow();
  EXPECT_EQ(find<QComboBox>("cmbPOSITION").currentText(), u"Garde"_s);
  EXPECT_EQ(table().model()->index(0, 2).data().toString(), u"Garde"_s);
  EXPECT_EQ(find<QLabel>("lblANNOUNCE").text(), QString());
  // A list of many teams is searched by what they contain.
  for (const char* part : {"ant", "zzy a"}) {
    field("txtSEARCHequipes").setText(QLatin1String(part));
    EXPECT_TRUE(list().item(0)->isHidden());
    EXPECT_FALSE(list().item(1)->isHidden()) << part << " is in its abbreviation or its full name";
  }
  EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(TeamWindowTest, TheTabKeyGoesFromTheTeamToThePlayer) {
  field("txtABB").setFocus();
  QStringList fields;
  for (int i = 0; i < 21; ++i) {
    QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    const QString name = window->focusWidget()->objectName();
    if (name.startsWith(u"txt") || name == u"cmbPOSITION")
      fields << name;
  }
  EXPECT_EQ(fields.join(u' ').toStdString(),
            "txtCATEGORIE txtNOMEQUIPE txtDUREE txtNBREPERIODE txtBONUS txtPF txtTF txtJOUEURNO cmbPOSITION "
            "txtJOUEURNOM txtGRANDEUR txtPOIDS txtAGE");
}

TEST_F(TeamWindowTest, MessagesComeInTheirOrder) {
  click("cmdAJOUTERJOUEUR");
  ASSERT_EQ(dialogs.shown.size(), 1U);
  EXPECT_EQ(dialogs.shown[0], (Shown{Kind::Complain, text(Text::ErrorTitle), text(Text::SelectTeamFirst)}));
  dialogs.shown.clear();
  EXPECT_EQ(saidAfter("cmdEFFACEREQUIPE"), text(Text::SelectTeamFirst));
  EXPECT_EQ(saidAfter("cmdSAVEEQUIPE"), QString()) << "nothing happens";
  choose(0);
  click("cmdAJOUTERJOUEUR");
  EXPECT_EQ(dialogs.shown[0], (Shown{Kind::Warn, text(Text::WarningTitle), text(Text::InvalidNumber)}));
  type("txtJOUEURNO", "7");
  EXPECT_EQ(saidAfter("cmdAJOUTERJOUEUR"), text(Text::NoPositionChosen));
  choosePosition(1);
  EXPECT_EQ(saidAfter("cmdAJOUTERJOUEUR"), text(Text::NoName));
  EXPECT_FALSE(holds("7=1,,,,,,"));
}

TEST_F(TeamWindowTest, PlayersAreAddedRenumberedRenamedAndRemoved) {
  choose(0);
  typePlayer("7", "Cy, Jr.");
  EXPECT_EQ(find<QLabel>("lblANNOUNCE").text(), u"Adds a player: 7 Cy  Jr."_s);
  QTest::keyClick(&field("txtJOUEURNOM"), Qt::Key_Return);
  EXPECT_TRUE(holds("7=1,Cy  Jr.,,,,,")) << folder.read("CONFIG.INI");
  EXPECT_EQ(field("txtJOUEURNOM").text(), QString()) << "ready for the next one";
  EXPECT_TRUE(field("txtJOUEURNO").hasFocus());
  clickPlayer(1);
  type("txtJOUEURNO", "11");
  EXPECT_EQ(find<QLabel>("lblANNOUNCE").text(), u"Gives Bo number 11 in place of 10"_s);
  click("cmdAJOUTERJOUEUR");
  EXPECT_TRUE(holds("11=0,Bo,,,,,"));
  EXPECT_FALSE(holds("10=0,Bo,,,,,"));
  type("txtJOUEURNO", "5"); // Ann's
  EXPECT_TRUE(saidAfter("cmdAJOUTERJOUEUR").contains(u"belongs to Ann"_s));
  EXPECT_EQ(players(), u"5 Ann, 11 Bo, 7 Cy  Jr."_s);
  // A removal waits for the save; it comes back when the window is left without.
  dialogs.nextSaveChoice = SaveChoice::Discard;
  clickPlayer(0);
  EXPECT_EQ(said(), u"Player 5 Bo is typed in, but not saved. Save?"_s);
  QTest::keyClick(&table(), Qt::Key_Delete);
  EXPECT_EQ(players(), u"11 Bo, 7 Cy  Jr."_s);
  EXPECT_TRUE(holds("5=2,Ann,6ft,,,,"));
  choose(1);
  EXPECT_EQ(said(), u"The changes to BEES are not saved. Save them?"_s);
  choose(0);
  EXPECT_EQ(players(), u"5 Ann, 11 Bo, 7 Cy  Jr."_s);
  // What is seen in order is written in that order.
  clickHeader(0);
  EXPECT_EQ(players(), u"5 Ann, 7 Cy  Jr., 11 Bo"_s);
  click("cmdSAVEEQUIPE");
  EXPECT_TRUE(holds("[1]\r\n5=2,Ann,6ft,,,,\r\n7=1,Cy  Jr.,,,,,\r\n11=0,Bo,,,,,"));
}

TEST_F(TeamWindowTest, ATeamIsMadeSavedAndDeletedAndItsIdReused) {
  choose(1);
  dialogs.nextAnswer = false;
  EXPECT_EQ(saidAfter("cmdEFFACEREQUIPE"), text(Text::ReallyDelete));
  EXPECT_EQ(list().count(), 3);
  dialogs.nextAnswer = true;
  click("cmdEFFACEREQUIPE");
  EXPECT_EQ(list().count(), 2);
  EXPECT_TRUE(holds("2=0"));
  click("cmdAJOUTEREQUIPE");
  EXPECT_TRUE(holds("2=Newteam, , ,U1-One,U2-Two,8,4,5,5,2"));
  EXPECT_EQ(field("txtABB").text(), u"Newteam"_s);
  type("txtABB", "LONGEST1");
  EXPECT_EQ(field("txtABB").text(), u"LONGEST"_s) << "seven fit";
  type("txtCATEGORIE", "A,B "); // behind the one blank of a new team, which the focus does not select
  field("txtCATEGORIE").insert(u"č"_s);
  field("txtDUREE").clear();
  type("txtDUREE", "12x");
  dialogs.nextColour = QColor(1, 2, 3);
  click("cmdCOUL");
  EXPECT_EQ(dialogs.lastColour, QColor(255, 192, 128)) << "the default";
  press("txtDUREE", Qt::Key_Return);
  EXPECT_TRUE(holds("2=LONGEST, A B c, ,U1-One,U2-Two,12,4,5,5,2,197121,0")) << folder.read("CONFIG.INI");
  EXPECT_EQ(list().item(1)->text(), u"LONGEST -  A B c"_s);
  EXPECT_EQ(field("txtCATEGORIE").text(), u" A B c"_s);
  EXPECT_TRUE(window->close()) << "nothing is unsaved";
}

// What is pressed and typed is seen at once; the list shows what is in the file.
TEST_F(TeamWindowTest, AColourIsChosenWithOnePressAndTheListShowsWhatIsSaved) {
  choose(0);
  const auto listed = [this](int role) { return list().item(0)->data(role); };
  EXPECT_EQ(listed(TeamRole::Players).toInt(), 2);
  auto& yellow = find<QAbstractButton>("swatch(8)");
  QTest::mouseClick(&yellow, Qt::LeftButton);
  EXPECT_TRUE(yellow.isChecked());
  const QColor colour = table().palette().color(QPalette::Base);
  const QString measured = QString::number(contrast(Qt::black, colour), 'f', 1);
  EXPECT_EQ(find<QLabel>("lblCONTRAST").text(),
            toQt(texts.withPlaceholder(Text::BlackText, fromQt(measured))));
  EXPECT_EQ(colourOf(listed(TeamRole::Colour).toUInt()), QColor(255, 0, 0));
  typePlayer("7", "Cy");
  click("cmdAJOUTERJOUEUR");
  EXPECT_EQ(listed(TeamRole::Players).toInt(), 3);
  EXPECT_EQ(colourOf(listed(TeamRole::Colour).toUInt()), QColor(255, 0, 0)) << "a player is no team";
  click("cmdSAVEEQUIPE");
  EXPECT_EQ(colourOf(listed(TeamRole::Colour).toUInt()), colour);
  // A colour of one's own is none of them.
  dialogs.nextColour = QColor(1, 2, 3);
  click("cmdCOUL");
  EXPECT_FALSE(yellow.isChecked());
}

TEST_F(TeamWindowTest, NothingTypedIsLostWithoutAWord) {
  choose(0);
  type("txtNOMEQUIPE", "Wasps");
  dialogs.nextSaveChoice = SaveChoice::Stay;
  choose(1);
  EXPECT_EQ(field("txtNOMEQUIPE").text(), u"Wasps"_s);
  EXPECT_TRUE(list().item(0)->isSelected());
  EXPECT_FALSE(window->close());
  dialogs.nextSaveChoice = SaveChoice::Save;
  choose(1);
  EXPECT_TRUE(holds("1=BEES,A,Wasps,U1-One,U2-Two,8,4,5,5,2,255,0"));
  EXPECT_EQ(field("txtNOMEQUIPE").text(), u"Fuzzy Ants"_s);
  EXPECT_EQ(dialogs.shown.size(), 3U);
  // A player that cannot be saved keeps the window open.
  type("txtJOUEURNO", "4");
  EXPECT_FALSE(window->close());
  dialogs.nextSaveChoice = SaveChoice::Discard;
  EXPECT_TRUE(window->close());
}

TEST_F(TeamWindowTest, WhatWasTypedForAPlayerIsAskedAboutOrKept) {
  // Typed before any team was chosen: it is for the first one.
  type("txtJOUEURNO", "7");
  choose(0);
  EXPECT_TRUE(dialogs.shown.empty());
  EXPECT_EQ(field("txtJOUEURNO").text(), u"7"_s);
  dialogs.nextSaveChoice = SaveChoice::Stay;
  press("txtJOUEURNO", Qt::Key_Escape);
  click("cmdCLEAR");
  EXPECT_EQ(dialogs.shown.size(), 2U);
  clickPlayer(0);
  EXPECT_EQ(field("txtJOUEURNO").text(), u"7"_s);
  dialogs.nextSaveChoice = SaveChoice::Discard;
  press("txtJOUEURNO", Qt::Key_Escape);
  EXPECT_EQ(field("txtJOUEURNO").text(), QString());
  EXPECT_TRUE(window->close());
}

TEST_F(TeamWindowTest, TheSelectionStaysWithItsPlayerWhenTheListIsSorted) {
  choose(0);
  clickPlayer(0);
  clickHeader(1);
  clickHeader(1);
  ASSERT_EQ(players(), u"10 Bo, 5 Ann"_s);
  EXPECT_EQ(table().selectionModel()->selectedRows().value(0).row(), 1);
  QTest::keyClick(&table(), Qt::Key_Delete);
  EXPECT_EQ(players(), u"10 Bo"_s);
  // From one row to another with the button held down: the one where it was let go.
  dialogs.nextSaveChoice = SaveChoice::Discard;
  choose(1);
  choose(0);
  const auto at = [this](int row) { return table().visualRect(table().model()->index(row, 1)).center(); };
  QTest::mousePress(table().viewport(), Qt::LeftButton, {}, at(0));
  QTest::mouseMove(table().viewport(), at(1));
  QTest::mouseRelease(table().viewport(), Qt::LeftButton, {}, at(1));
  QCoreApplication::processEvents();
  const int selected = table().selectionModel()->selectedRows().value(0).row();
  EXPECT_EQ(field("txtJOUEURNO").text(), table().model()->index(selected, 0).data().toString());
}

TEST_F(TeamWindowTest, ATeamWithoutNumberCannotBeChangedAndOddNumbersOfPlayersAreShownWhole) {
  const std::string before = folder.read("CONFIG.INI");
  choose(2);
  EXPECT_TRUE(find<QLabel>("lblNOTICE").isVisible());
  QTest::keyClick(&field("txtABB"), Qt::Key_Return);
  click("cmdSAVEEQUIPE");
  click("cmdEFFACEREQUIPE");
  EXPECT_EQ(folder.read("CONFIG.INI"), before);
  dialogs.shown.clear();
  folder.write("CONFIG.INI", before + "100=1,Cy,,,,,\r\n1001=1,Dee,,,,,\r\na=1,Eve,,,,,\r\nA=1,Fay,,,,,\r\n");
  choose(0);
  clickPlayer(3);
  EXPECT_EQ(field("txtJOUEURNO").text(), u"1001"_s);
  QTest::keyClick(&table(), Qt::Key_Delete);
  EXPECT_EQ(players(), u"5 Ann, 10 Bo, 100 Cy, a Eve, A Fay"_s);
  click("cmdSAVEEQUIPE"); // which would lose one of two keys that differ in letter case alone
  EXPECT_TRUE(said().contains(u"Two players have the number A"_s));
  EXPECT_TRUE(holds("a=1,Eve,,,,,"));
}

TEST_F(TeamWindowTest, WhatTheDiskDoesNotTakeIsToldAndKeptUntilItDoes) {
  QStringList told;
  QObject::connect(window.get(), &ChildWindow::reported, [&](const QString& words) { told << words; });
  choose(0);
  type("txtNOMEQUIPE", "Wasps");
  std::filesystem::permissions(folder.path("CONFIG.INI"), std::filesystem::perms::owner_read);
  click("cmdSAVEEQUIPE");
  EXPECT_TRUE(told.value(0).contains(toQt(folder.path("CONFIG.INI"))));
  click("cmdAJOUTEREQUIPE");
  EXPECT_EQ(list().count(), 4);
  choose(0);
  EXPECT_EQ(field("txtNOMEQUIPE").text(), u"Wasps"_s);
  EXPECT_FALSE(holds("1=BEES,A,Wasps,U1-One,U2-Two,8,4,5,5,2,255,0"));
  std::filesystem::permissions(folder.path("CONFIG.INI"), std::filesystem::perms::owner_all);
  EXPECT_TRUE(settings.retry());
  EXPECT_TRUE(holds("1=BEES,A,Wasps,U1-One,U2-Two,8,4,5,5,2,255,0"));
  // Nobody knows what a change would meet in a file that cannot be read.
  std::filesystem::remove(folder.path("CONFIG.INI"));
  std::filesystem::create_directory(folder.path("CONFIG.INI"));
  type("txtNOMEQUIPE", "Hornets");
  EXPECT_TRUE(saidAfter("cmdSAVEEQUIPE").contains(toQt(folder.path("CONFIG.INI"))));
  EXPECT_EQ(field("txtNOMEQUIPE").text(), u"Hornets"_s);
}

TEST_F(TeamWindowTest, PlayersArePastedImportedAndExported) {
  choose(0);
  QApplication::clipboard()->setText(u"11\tG\tBo\n5\tC\tBo\nxx\tG\tCy\n8\tForward\tDee\t6ft\n"_s);
  click("cmdPASTE");
  EXPECT_EQ(players(), u"5 Ann, 11 Bo, 8 Dee"_s);
  const QString report = said();
  EXPECT_TRUE(report.contains(u"taken over: 2"_s)) << fromQt(report);
  EXPECT_TRUE(report.contains(u"3"_s)) << "the bad line is named: " << fromQt(report);
  EXPECT_TRUE(report.contains(u"belongs to Ann"_s));
  EXPECT_FALSE(holds("8=1,Dee,6ft,,,,")) << "not before the save";
  click("cmdSAVEEQUIPE");
  EXPECT_TRUE(holds("8=1,Dee,6ft,,,,"));
  dialogs.nextFileToSave = toQt(folder.path("out.csv"));
  click("cmdEXPORT");
  EXPECT_TRUE(dialogs.lastProposed.endsWith(u"BEES-A.csv"_s)) << fromQt(dialogs.lastProposed);
  ASSERT_TRUE(folder.holds("out.csv"));
  choose(1);
  dialogs.nextFile = dialogs.nextFileToSave;
  click("cmdIMPORT");
  EXPECT_EQ(players(), u"5 Ann, 11 Bo, 8 Dee"_s);
  dialogs.nextFile = toQt(folder.path("gone.csv"));
  EXPECT_TRUE(saidAfter("cmdIMPORT").contains(u"gone.csv"_s));
  // A table without a column leaves what stands in it.
  dialogs.nextSaveChoice = SaveChoice::Discard;
  choose(0);
  QApplication::clipboard()->setText(u"Name,Number\nAnn,6\nEve,8\n"_s);
  click("cmdPASTE");
  const QString told = said();
  EXPECT_TRUE(told.contains(text(Text::OthersNow))) << fromQt(told);
  EXPECT_TRUE(told.contains(u"Eve in place of Dee"_s)) << fromQt(told);
  click("cmdSAVEEQUIPE");
  EXPECT_TRUE(holds("6=2,Ann,6ft,,,,")) << folder.read("CONFIG.INI");
  EXPECT_EQ(decodedText(QByteArray("\xFF\xFE\x31\0;\0", 6)), u"1;"_s);
  EXPECT_EQ(decodedText(QByteArray("\xC9mile")), u"Émile"_s);
}

} // namespace
} // namespace hooptab
