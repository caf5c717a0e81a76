// Scanned forms as they are used: printed sheets with crosses on them, through loader, reader and window into
// the totals and onto the disk; and pictures that are of no use.
#include "forms/frmSCAN.h"

#include "forms/FilledForm.h"
#include "forms/PictureFile.h"
#include "forms/ScanView.h"
#include "forms/ScannedModel.h"
#include "manual/OpenManualGame.h"
#include "report/ScanReport.h"
#include "totals/ManualColumns.h"

#include <QFile>
#include <QFileInfo>
#include <QListWidget>
#include <QSignalSpy>
#include <QTableView>
#include <cstring>

namespace hooptab {
namespace {

using Kind = FormCell::Kind;
constexpr int kPatience = 100000; // milliseconds for a page, with a slow build on a busy machine

TeamRecord panthers() {
  TeamRecord team;
  team.abbreviation = "PAN";
  return team;
}
std::vector<TeamPlayer> players(const std::vector<std::string>& numbers) {
  std::vector<TeamPlayer> list;
  for (const std::string& number : numbers) {
    list.push_back({number, {}, {}});
    list.back().record.name = "Player with a name of more than forty letters " + number;
  }
  return list;
}

// Of the first player.
std::size_t placeOf(const FormLayout& layout, Kind kind, Counter counter, int number) {
  const auto cells = layout.cells();
  std::size_t place = 0;
  while (cells[place].kind != kind || cells[place].counter != counter || cells[place].number != number)
    ++place;
  return place;
}

class ScanWindowTest : public OpenManualGame {
 protected:
  void press(const char* button) const { QTest::mouseClick(&find<QPushButton>(button), Qt::LeftButton); }
  bool showsSheet() const { return find<QTableView>("tblSCAN").isVisible(); }
  bool showsTotals() const { return find<QWidget>("tblTOTALS").isVisible(); }
  // Waits for the next sheet, or for the totals.
  void choose(const std::vector<std::string>& chosen) {
    dialogs.nextFiles.clear();
    for (const std::string& name : chosen)
      dialogs.nextFiles << toQt(name);
    press("cmdFORM");
    wait();
  }
  void wait() const {
    EXPECT_TRUE(QTest::qWaitFor([this] { return showsSheet() || showsTotals(); }, kPatience));
  }
  // The count of the form, as the table shows it.
  QModelIndex cell(int player, Counter counter) const {
    int column = 0;
    while (kManualColumns.at(static_cast<std::size_t>(column)).counter != counter)
      ++column;
    return find<QTableView>("tblSCAN").model()->index(player * ScannedModel::kLines + ScannedModel::FormTotal,
                                                      ScannedModel::kFirstCount + column);
  }
  std::string form(int player, Counter first, auto... others) const {
    return (fromQt(cell(player, first).data().toString()) + ... + ("|" + form(player, others)));
  }
  Game game() {
    Game read;
    EXPECT_EQ(GameFile(store, path).read(read), GameFileProblem::None);
    return read;
  }
  std::string text(Text which) const { return std::string(texts.text(which)); }
  std::string file(const char* name) const { return folder.path(name); }
  std::string write(const char* name, const QByteArray& bytes) const {
    return folder.write(name, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
  }
};

TEST_F(ScanWindowTest, BringsAPrintedSheetIntoTheTotalsAndOntoTheDisk) {
  const auto prepared = preparedForms(panthers(), players({"4", "5", "10", "12", "15", "0", "00"}), texts);
  FilledForm first(prepared);
  first.tick(0, Kind::Made, Counter::FGM, 5);
  first.tick(0, Kind::Missed, Counter::FGM, 3);
  first.tick(1, Kind::Made, Counter::F3M, 2, Qt::blue);
  first.tick(3, Kind::Count, Counter::PF, 4, Qt::red);
  first.hint(2, Kind::Count, Counter::DR, 0);
  first.hint(3, Kind::Made, Counter::FTM, 0);
  FilledForm second(prepared, 1);
  second.tick(2, Kind::Count, Counter::Ast, 14);
  first.save(file("one.tif"));
  second.save(file("two.bmp"));
  choose({file("one.tif"), file("two.bmp")});
  EXPECT_EQ(settings.lastScanFolder, folder.path());
  for (const char* kind : {"*.TIF", "*.bmp", "*.pdf"})
    EXPECT_TRUE(dialogs.lastFilter.contains(QLatin1String(kind))) << fromQt(dialogs.lastFilter);
  ASSERT_TRUE(showsSheet());
  EXPECT_TRUE(dialogs.shown.empty());
  EXPECT_EQ(find<QComboBox>("cmbFORMTEAM").currentIndex(), 0);
  EXPECT_FALSE(find<QComboBox>("cmbFORMTEAM").isEnabled()) << "the sheet says whose it is";
  EXPECT_EQ(find<QComboBox>("cmbSCANNED(2)").currentIndex(), 3);
  EXPECT_EQ(form(0, Counter::FGM, Counter::FGA), "5|8");
  EXPECT_EQ(form(1, Counter::F3A), "2");
  EXPECT_EQ(form(3, Counter::PF), "4");
  auto& doubts = find<QListWidget>("lstDOUBT");
  ASSERT_EQ(doubts.count(), 2);
  EXPECT_TRUE(doubts.hasFocus());
  EXPECT_EQ(doubts.currentRow(), 0);
  EXPECT_TRUE(QString::fromStdString(form(2, Counter::DR)).endsWith(u'?'));
  press("cmdADDSCAN");
  ASSERT_EQ(dialogs.shown.size(), 1u) << "asked, since nobody has looked";
  EXPECT_TRUE(showsSheet()) << "the answer was no";
  doubts.setFocus();
  QTest::keyClicks(&doubts, QStringLiteral("+"));
  EXPECT_EQ(doubts.currentRow(), 1);
  QTest::keyClicks(&doubts, QStringLiteral("-"));
  EXPECT_EQ(shown("lblDOUBT"), text(Text::NoDoubtLeft));
  EXPECT_EQ(QString::fromStdString(form(2, Counter::DR)).remove(u'*').toInt(), 1);
  EXPECT_EQ(QString::fromStdString(form(3, Counter::FTM)).remove(u'*').toInt(), 0);
  press("cmdADDSCAN");
  EXPECT_EQ(dialogs.shown.size(), 1u) << "no question any more";
  wait();
  ASSERT_TRUE(showsSheet()) << "the second file";
  EXPECT_EQ(form(2, Counter::Ast), "14");
  EXPECT_EQ(game().events.size(), 0u) << "nothing is saved yet";
  press("cmdADDSCAN");
  ASSERT_TRUE(showsTotals());
  EXPECT_EQ(shown("lblHINT"), texts.withPlaceholder(Text::FormsImported, "2"));
  EXPECT_TRUE(window->isWindowModified());
  window->save();
  const GameState counted = tallied(game());
  const std::tuple<std::size_t, Counter, int> counts[] = {{1, Counter::FGA, 8},
                                                          {2, Counter::F3M, 2},
                                                          {3, Counter::DR, 1},
                                                          {4, Counter::PF, 4},
                                                          {7, Counter::Ast, 14}};
  for (const auto& [player, counter, count] : counts) // the last has number 00, not 0
    EXPECT_EQ(counted.players[Side::Visitor][player].counters[counter], count) << player;
  EXPECT_EQ(counted.points(Side::Visitor), 5 * 2 + 2 * 3);
  EXPECT_EQ(counted.points(Side::Home), 0);
  choose({file("two.bmp")});
  ASSERT_TRUE(showsSheet());
  press("cmdADDSCAN");
  ASSERT_EQ(dialogs.shown.size(), 2u) << "the same sheet once more";
  EXPECT_TRUE(dialogs.shown[1].text.contains(toQt(text(Text::AddedBefore)))) << fromQt(dialogs.shown[1].text);
  EXPECT_TRUE(showsSheet());
}

TEST_F(ScanWindowTest, LetsABlankSheetBeCorrectedByHandAndReplaceWhatWasThere) {
  FilledForm blank(blankForms(texts));
  blank.tickDigit(0, 2, 7); // of the home team
  blank.tick(0, Kind::Made, Counter::FTM, 2);
  blank.tick(0, Kind::Missed, Counter::FTM, 1);
  blank.tickDigit(1, 1, 9); // nobody's
  blank.tickDigit(1, 2, 9);
  blank.tick(1, Kind::Count, Counter::ST, 3);
  blank.save(file("blank.png"));
  find<QComboBox>("cmbTEAM").setCurrentIndex(1);
  choose({file("blank.png")});
  ASSERT_TRUE(showsSheet());
  EXPECT_EQ(find<QComboBox>("cmbFORMTEAM").currentIndex(), 1) << "as in the window of the totals";
  EXPECT_EQ(find<QComboBox>("cmbSCANNED(0)").currentIndex(), 2);
  EXPECT_NE(shown("lblSCANNED(1)").find("99"), std::string::npos);
  EXPECT_FALSE(find<QPushButton>("cmdSKIP").isVisible()) << "it is the only page";
  // A click on a cell of the page; typing into the table; back to what is ticked.
  auto& view = find<ScanView>("picSCAN");
  const std::size_t third = placeOf(FormLayout(), Kind::Made, Counter::FTM, 2);
  view.goTo(third);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.positionOf(third));
  EXPECT_EQ(form(0, Counter::FTM, Counter::FTA), "3*|4*");
  view.setFocus();
  QTest::keyClick(&view, Qt::Key_Left);
  QTest::keyClick(&view, Qt::Key_Space);
  EXPECT_EQ(form(0, Counter::FTM), "2*") << "the one before it";
  const QModelIndex steals = cell(1, Counter::ST);
  auto& model = *find<QTableView>("tblSCAN").model();
  EXPECT_TRUE(model.setData(steals, QStringLiteral("15")));
  EXPECT_EQ(form(1, Counter::ST), "15*");
  EXPECT_FALSE(model.setData(steals, QStringLiteral("1000")));
  EXPECT_NE(shown("lblSCANHINT"), "");
  press("cmdRECALC");
  EXPECT_EQ(form(1, Counter::ST), "3");
  // 99 is nobody: named in the question, and left out or given to somebody.
  press("cmdREPLACESCAN");
  ASSERT_EQ(dialogs.shown.size(), 1u);
  EXPECT_TRUE(dialogs.shown[0].text.contains(QStringLiteral("99"))) << fromQt(dialogs.shown[0].text);
  auto& choice = find<QComboBox>("cmbSCANNED(1)");
  choice.setFocus();
  QTest::keyClick(&choice, Qt::Key_Down);
  EXPECT_EQ(choice.currentIndex(), 1);
  QSignalSpy report(window.get(), &frmMANUAL::scanReportAsked);
  press("cmdVERIFY");
  ASSERT_EQ(report.size(), 1);
  press("cmdREPLACESCAN");
  ASSERT_TRUE(showsTotals());
  EXPECT_EQ(dialogs.shown.size(), 1u);
  EXPECT_EQ(shown("lblFT(2)", "lblFTa(2)", "lblST(1)"), "2|3|3");
  choose({file("blank.png")}); // once more, by mistake: nothing doubles
  press("cmdREPLACESCAN");
  EXPECT_EQ(dialogs.shown.size(), 2u) << "99 again";
  press("cmdCANCELSCAN");
  ASSERT_TRUE(showsTotals());
  EXPECT_EQ(dialogs.shown.size(), 2u) << "nothing of the user's work is lost by it";
  EXPECT_EQ(shown("lblFT(2)"), "2");
}

TEST_F(ScanWindowTest, TakesThePagesOfOneFileInTurnAndLeavesOnlyAfterAQuestion) {
  const auto prepared = preparedForms(panthers(), players({"4"}), texts);
  FilledForm filled(prepared);
  filled.tick(0, Kind::Count, Counter::ST, 2);
  filled.hint(0, Kind::Count, Counter::BS, 3);
  filled.save(file("page.png"));
  choose({write("pages.pdf", pdfOf({filled.picture(), FilledForm(prepared).picture()})), file("page.png")});
  ASSERT_TRUE(showsSheet());
  EXPECT_EQ(form(0, Counter::ST), "2");
  EXPECT_NE(shown("lblPAGE").find("1 of 2"), std::string::npos) << shown("lblPAGE");
  EXPECT_TRUE(find<QPushButton>("cmdSKIP").isVisible());
  EXPECT_EQ(find<QListWidget>("lstDOUBT").count(), 1);
  press("cmdSKIP");
  auto& stop = find<QPushButton>("cmdSTOPSCAN");
  stop.setFocus();
  QTest::keyClick(&stop, Qt::Key_F3); // the next doubt, of a sheet that is no longer there
  EXPECT_EQ(find<QListWidget>("lstDOUBT").count(), 0);
  wait();
  ASSERT_TRUE(showsSheet());
  EXPECT_EQ(form(0, Counter::ST), "") << "the second page is empty";
  EXPECT_FALSE(window->agreesToClose()) << "two pages wait";
  ASSERT_EQ(dialogs.shown.size(), 1u);
  EXPECT_EQ(fromQt(dialogs.shown[0].text), texts.withPlaceholder(Text::LeavePages, "2"));
  press("cmdCANCELSCAN");
  EXPECT_TRUE(showsSheet()) << "the answer was no";
  dialogs.nextAnswer = true;
  press("cmdCANCELSCAN");
  EXPECT_TRUE(showsTotals());
  EXPECT_EQ(shown("lblSCORE(0)"), "0");
  EXPECT_FALSE(window->isWindowModified());
  EXPECT_TRUE(window->agreesToClose());
  // While a page is being read: stopped, and another one started at once.
  dialogs.nextFiles = {toQt(file("page.png"))};
  press("cmdFORM");
  EXPECT_TRUE(find<QPushButton>("cmdSTOPSCAN").isVisible());
  press("cmdSTOPSCAN");
  EXPECT_TRUE(showsTotals());
  choose({file("page.png")});
  ASSERT_TRUE(showsSheet());
  EXPECT_EQ(form(0, Counter::ST), "2");
  window.reset(); // with a sheet in sight
}

TEST_F(ScanWindowTest, SaysWhyAPictureIsOfNoUseAndChangesNothing) {
  TeamRecord others = panthers();
  others.category = "AAA"; // the game's have none
  const FilledForm theirs(preparedForms(others, players({"4"}), texts));
  theirs.save(file("theirs.tif"));
  theirs.save(file("theirs.bmp"));
  const auto tif = QByteArray::fromStdString(folder.read("theirs.tif"));
  const auto bmp = QByteArray::fromStdString(folder.read("theirs.bmp"));
  QImage photo(2480, 3508, QImage::Format_RGB32);
  photo.fill(Qt::darkCyan);
  EXPECT_TRUE(photo.save(toQt(file("photo.jpg"))));
  EXPECT_TRUE(photo.scaled(8, 11).save(toQt(file("dot.png"))));
  QImage coarse = theirs.picture().scaledToWidth(1100, Qt::SmoothTransformation);
  coarse.setDotsPerMeterX(5236); // 133 dots per inch
  EXPECT_TRUE(coarse.save(toQt(file("coarse.png"))));
  QImage wide(20000, 14000, QImage::Format_Mono);
  wide.fill(1);
  EXPECT_TRUE(wide.save(toQt(file("wide.png"))));
  const std::string kinds = text(Text::NotAPicture) + ". " + text(Text::KindsRead);
  const std::pair<std::string, std::string> cases[] = {
      {write("notes.tif", "these are words"), kinds},
      {write("empty.bmp", ""), kinds},
      {write("cut.tif", tif.left(tif.size() / 2)), text(Text::PictureDamaged)},
      {write("cut.bmp", bmp.left(bmp.size() - 1000)), text(Text::PictureDamaged)},
      {write("torn.tif", tif.chopped(200) + QByteArray(200, '\xFF')), text(Text::PictureDamaged)},
      {write("locked.pdf", lockedPdf()), text(Text::PasswordAsked)},
      {write("directories.tif", tifOfDirectories(1001)), texts.withPlaceholder(Text::TooManyPages, "1000")},
      {write("head.jpg", QByteArray("\xff\xd8\xff\xe0", 4)), text(Text::PictureDamaged)},
      {file("absent.png"), text(Text::CannotOpen)},
      {folder.path(), text(Text::CannotOpen)},
      {file("dot.png"), text(Text::TooCoarse)},
      {file("coarse.png"), text(Text::TooCoarse)},
      {file("wide.png"), text(Text::PictureTooLarge)},
      {file("photo.jpg"), text(Text::NoUpperLeftMark) + ". " + text(Text::ScanNoBottom)},
      {file("theirs.bmp"), text(Text::InvalidFormat)}};
  std::vector<std::string> all;
  for (const auto& bad : cases)
    all.push_back(bad.first);
  choose(all);
  ASSERT_TRUE(showsTotals());
  ASSERT_EQ(dialogs.shown.size(), 1u) << "told once";
  const QStringList told = dialogs.shown[0].text.split(u'\n');
  ASSERT_EQ(told.size(), static_cast<qsizetype>(std::size(cases)) + 1) << fromQt(dialogs.shown[0].text);
  for (std::size_t bad = 0; bad < std::size(cases); ++bad) {
    const std::string name = fromQt(QFileInfo(toQt(cases[bad].first)).fileName());
    EXPECT_EQ(fromQt(told[static_cast<qsizetype>(bad)]), name + ": " + cases[bad].second);
  }
  EXPECT_NE(fromQt(told.last()).find("PAN"), std::string::npos) << "which teams it could be of";
  EXPECT_NE(fromQt(told.last()).find("OLY"), std::string::npos);
  EXPECT_FALSE(window->isWindowModified());
  EXPECT_EQ(shown("lblHINT"), text(Text::ChoosePlayer)) << "nothing was imported";
}

// A script in the place of the process that decodes: it does as the file's name says, or decodes.
TEST_F(ScanWindowTest, GoesOnWithTheNextPageWhateverThePictureDoesToItsDecoder) {
  const std::string script =
      folder.write("decoder.sh", "#!/bin/sh\n"
                                 "case $2-$3 in\n"
                                 "*crash*) kill -SEGV $$ ;;\n"
                                 "*pages*-0) printf 'HTPG\\2\\0\\0\\0'; kill -ABRT $$ ;;\n"
                                 "*garbage*) echo not an answer at all ;;\n"
                                 "*hang*) echo $$ > " +
                                     file("process") +
                                     "; exec sleep 100 ;;\n"
                                     "esac\n"
                                     "exec '" +
                                     fromQt(QApplication::applicationFilePath()) + "' \"$@\"\n");
  ASSERT_TRUE(QFile::setPermissions(toQt(script), QFile::ReadOwner | QFile::ExeOwner));
  auto& forms = find<frmSCAN>("frmSCAN");
  forms.decodeWith({script, std::chrono::seconds(10)}); // for the one that hangs; a busy machine needs some
  FilledForm filled(preparedForms(panthers(), players({"4"}), texts));
  filled.tick(0, Kind::Count, Counter::ST, 2);
  filled.save(file("good.png"));
  choose({"crash.png", "garbage.png", "hang.png",
          write("pages.tif", tifOf({filled.picture(), filled.picture()})), file("good.png")});
  ASSERT_TRUE(showsSheet());
  EXPECT_EQ(form(0, Counter::ST), "2");
  EXPECT_NE(shown("lblPAGE").find("2 of 2"), std::string::npos) << shown("lblPAGE");
  ASSERT_EQ(dialogs.shown.size(), 1u);
  const std::string broken = ": " + text(Text::BrokeOff) + '\n';
  EXPECT_EQ(fromQt(dialogs.shown[0].text) + '\n',
            "crash.png" + broken + "garbage.png" + broken +
                "hang.png: " + texts.withPlaceholder(Text::TookTooLong, "10") + "\npages.tif (1/2)" + broken);
  press("cmdSKIP");
  wait();
  ASSERT_TRUE(showsSheet());
  press("cmdCANCELSCAN");
  // Stopped while the process hangs: at once, and it is gone.
  forms.decodeWith({script, std::chrono::seconds(60)});
  QFile::remove(toQt(file("process")));
  dialogs.nextFiles = {QStringLiteral("hang.png")};
  press("cmdFORM");
  ASSERT_TRUE(QTest::qWaitFor([this] { return folder.read("process").ends_with('\n'); }, kPatience));
  press("cmdSTOPSCAN");
  EXPECT_TRUE(showsTotals());
  const QString process = u"/proc/" + toQt(folder.read("process")).trimmed();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !QFileInfo::exists(process); }, 10000));
  forms.decodeWith({file("absent"), std::chrono::seconds(60)});
  dialogs.shown.clear();
  choose(std::vector<std::string>(25, file("good.png")));
  ASSERT_TRUE(showsTotals());
  ASSERT_EQ(dialogs.shown.size(), 1u);
  const QStringList told = dialogs.shown[0].text.split(u'\n');
  ASSERT_EQ(told.size(), 21);
  EXPECT_EQ(fromQt(told.first()),
            "good.png: " + texts.withPlaceholder(Text::CannotStart, std::strerror(ENOENT)));
  EXPECT_EQ(fromQt(told.last()), texts.withPlaceholder(Text::MoreRefused, "5"));
}

TEST(ScanReport, NamesWhatIsDoubtfulAndWhatWasChanged) {
  const auto layout = std::make_shared<FormLayout>();
  FormReading reading;
  reading.cells.resize(layout->cells().size());
  const std::size_t doubtful = placeOf(*layout, Kind::Count, Counter::ST, 0);
  const std::size_t changed = placeOf(*layout, Kind::Missed, Counter::FTM, 3);
  reading.cells[doubtful].isTicked = reading.cells[doubtful].isDoubtful = true;
  const Game game = gameOfText(textOfGame(""));
  ScannedTotals scanned(CheckedSheet(layout, reading), Side::Visitor, game.roster[Side::Visitor]);
  scanned.sheet.settle(changed, true);
  scanned.assign(0, 1);
  const TemporaryFolder folder;
  FileSystem files;
  ProfileStore store(files);
  const Settings settings(store, folder.path());
  Texts texts;
  for (const Language language : {Language::English, Language::French}) {
    texts.setLanguage(language);
    const Report report = verificationReport(scanned, game.details, "one.tif", settings, texts);
    EXPECT_EQ(report.title, texts.text(Text::VerificationReport));
    std::string all;
    for (const ReportBlock& block : report.blocks) {
      if (const auto* table = std::get_if<ReportTable>(&block)) {
        for (const ReportRow& row : table->rows) {
          ASSERT_EQ(row.cells.size(), table->columns.size());
          for (const ReportCell& cell : row.cells)
            all += cell.text + '|';
          all += '\n';
        }
      }
    }
    const auto line = [&](Text read, Text now, const std::string& row, const char* signs) {
      return row + std::string(texts.text(read)) + (signs[0] == '?' ? " ?|" : "|") +
             std::string(texts.text(now)) + ' ' + signs[1] + '|';
    };
    EXPECT_NE(all.find("Ann Able"), std::string::npos);
    EXPECT_NE(all.find(line(Text::TickedWord, Text::TickedWord, "ST|1|", "??")), std::string::npos) << all;
    EXPECT_NE(all.find(line(Text::NotTickedWord, Text::TickedWord,
                            "FT " + std::string(texts.text(Text::MissCapitals)) + "|4|", " *")),
              std::string::npos)
        << all;
    EXPECT_NE(all.find("|1?|"), std::string::npos) << "the count of steals";
    EXPECT_NE(all.find("|1*|"), std::string::npos) << "the attempts";
  }
}

} // namespace
} // namespace hooptab
