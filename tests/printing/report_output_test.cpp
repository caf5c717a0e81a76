// The ways out of the program: disks, folders and names, cancelling, and what tables turn into.
#include "printing/ReportOutput.h"
#include "printing/TableReport.h"
#include "printing/WindowExports.h"

#include "appearance/ChildWindow.h"
#include "appearance/relabel.h"
#include "season/SeasonTableView.h"
#include "settings/Settings.h"
#include "storage/DelimitedText.h"
#include "support/FaultyFileSystem.h"
#include "support/ScriptedDialogs.h"
#include "support/TemporaryFolder.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QImage>
#include <QPrinter>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QStandardPaths>
#include <QTest>
#include <filesystem>
#include <gtest/gtest.h>
#include <regex>

namespace hooptab {
namespace {

namespace fs = std::filesystem;
using Kind = ReportCell::Kind;

// A table that takes long enough to be cancelled.
Report longReport(int rows, int columns = 60) {
  Report report;
  report.title = report.fileName = "Long";
  ReportTable table;
  table.columns.push_back({"Name", "Name", {}, true, true});
  for (int column = 0; column < columns; ++column)
    table.columns.push_back({"C" + std::to_string(column), "C" + std::to_string(column)});
  for (int row = 0; row < rows; ++row) {
    ReportRow& line = table.rows.emplace_back();
    line.cells.push_back(textCell("Row " + std::to_string(row)));
    for (int column = 0; column < columns; ++column)
      line.cells.push_back(numberCell(row * column));
  }
  report.blocks.emplace_back(std::move(table));
  return report;
}

class ReportOutputTest : public testing::Test {
 protected:
  void save(const std::string& path, ReportForm form = ReportForm::Html) {
    dialogs.nextFileToSave = toQt(path);
    output.save(longReport(3, 3), form, {}, nullptr);
    wait();
  }
  void wait() {
    ASSERT_TRUE(QTest::qWaitFor([&] { return !output.isBusy(); }, 60000));
  }
  std::string complaint() {
    if (dialogs.shown.empty() || dialogs.shown.back().kind != ScriptedDialogs::Kind::Complain)
      return {};
    const std::string text = fromQt(dialogs.shown.back().text);
    dialogs.shown.clear();
    return text;
  }

  TemporaryFolder folder;
  FaultyFileSystem files;
  Texts texts;
  ScriptedDialogs dialogs;
  ReportOutput output{texts, dialogs, files};
};

TEST_F(ReportOutputTest, EveryPlaceThatTakesNoFileIsNamedWithItsReason) {
  dialogs.nextAnswer = true; // to replace
  fs::create_directory(folder.path("folder.html"));
  save(folder.path("folder.html"));
  EXPECT_EQ(complaint(), texts.withPlaceholder(Text::PathIsFolder, folder.path("folder.html")));
  save(folder.path("missing/x.html"));
  EXPECT_EQ(complaint(), texts.withPlaceholder(Text::FolderIsMissing, folder.path("missing/x.html")));
  (void)folder.write("locked.html", "mine");
  fs::permissions(folder.path("locked.html"), fs::perms::owner_read);
  save(folder.path("locked.html"));
  EXPECT_EQ(complaint(), texts.withPlaceholder(Text::NoRightToWrite, folder.path("locked.html")));
  EXPECT_EQ(folder.read("locked.html"), "mine");
  const std::string tooLong = folder.path(std::string(300, 'n') + ".html");
  save(tooLong);
  EXPECT_EQ(complaint(), texts.withPlaceholder(Text::ReportNotWritten, tooLong));
  for (const char* odd : {"é ü – ‘x’.html", "a\nb\tc.html", "-o ; rm $HOME.html", "%s%n.html"}) {
    save(folder.path(odd));
    EXPECT_EQ(complaint(), "") << odd;
    EXPECT_TRUE(folder.holds(odd)) << odd;
  }
}

// A real small disk where the system lets us have one.
TEST_F(ReportOutputTest, AFullDiskKeepsTheOldFileAndLeavesNothingHalfWritten) {
  dialogs.nextAnswer = true;
  const std::string disk = folder.path("disk");
  fs::create_directory(disk);
  const bool isMounted =
      QProcess::execute(QStringLiteral("mount"), QStringLiteral("-t tmpfs -o size=64k tmpfs").split(u' ')
                                                     << toQt(disk)) == 0;
  if (isMounted) {
    (void)folder.write("disk/long.html", "old");
    dialogs.nextFileToSave = toQt(disk + "/long.html");
    output.save(longReport(2000), ReportForm::Html, {}, nullptr);
    wait();
    const std::string old = folder.read("disk/long.html");
    const auto count = std::distance(fs::directory_iterator(disk), fs::directory_iterator());
    QProcess::execute(QStringLiteral("umount"), {toQt(disk)});
    EXPECT_EQ(complaint(), texts.withPlaceholder(Text::NoRoomOnDisk, disk + "/long.html"));
    EXPECT_EQ(old, "old");
    EXPECT_EQ(count, 1) << "nothing half written";
  }
  (void)folder.write("long.html", "old");
  files.reset();
  files.failAt = 8; // the write
  files.staysBroken = true;
  files.error = ENOSPC;
  save(folder.path("long.html"));
  EXPECT_TRUE(files.hasFailed);
  EXPECT_NE(complaint().find("long.html"), std::string::npos);
  EXPECT_EQ(folder.read("long.html"), "old");
}

TEST_F(ReportOutputTest, CancellingLeavesNothingAndTheWindowAnswersMeanwhile) {
  (void)folder.write("long.pdf", "old");
  dialogs.nextAnswer = true;
  for (const ReportForm form : {ReportForm::Pdf, ReportForm::Xlsx}) {
    const std::string name = "long." + std::string(endingOf(form));
    dialogs.nextFileToSave = toQt(folder.path(name));
    QSignalSpy reported(&output, &ReportOutput::reported);
    output.save(longReport(4000), form, {}, nullptr);
    ASSERT_TRUE(output.isBusy());
    output.save(longReport(1), form, {}, nullptr); // one at a time
    const auto& bar = *output.findChild<QProgressBar*>();
    ASSERT_TRUE(QTest::qWaitFor([&] { return bar.value() > 0 || !output.isBusy(); }, 60000));
    ASSERT_TRUE(output.isBusy()) << "it goes on, and the window answers";
    output.findChild<QPushButton*>()->click();
    wait();
    EXPECT_FALSE(output.isVisible());
    ASSERT_EQ(reported.size(), 2) << "what it was at, and what came of it";
    EXPECT_EQ(reported[1][0].toString(),
              toQt(texts.withPlaceholder(Text::ReportCancelled, folder.path(name))));
  }
  EXPECT_TRUE(dialogs.shown.size() == 1) << "the question whether to replace, and no complaint";
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 1) << "the old file alone";
  EXPECT_EQ(folder.read("long.pdf"), "old");
}

// Half a report must not come out of a printer: it is cancelled before its first page, or not at all.
TEST_F(ReportOutputTest, APrintJobIsCancelledAsAWholeOrNotAtAll) {
  for (const bool waitsForPages : {false, true}) {
    const std::string file = waitsForPages ? "all.pdf" : "none.pdf";
    const auto printer = std::make_shared<QPrinter>();
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(toQt(folder.path(file)));
    QSignalSpy reported(&output, &ReportOutput::reported);
    output.print(longReport(4000), {}, printer, nullptr);
    const auto& bar = *output.findChild<QProgressBar*>();
    if (waitsForPages) {
      ASSERT_TRUE(QTest::qWaitFor([&] { return bar.value() > 0 || !output.isBusy(); }, 60000));
    }
    output.cancel();
    wait();
    ASSERT_EQ(reported.size(), 1);
    EXPECT_EQ(
        reported[0][0].toString(),
        toQt(texts.withPlaceholder(waitsForPages ? Text::SentToPrinter : Text::ReportCancelled, "Long")));
    EXPECT_EQ(folder.holds(file), waitsForPages);
  }
  EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(ReportOutputTest, WhatWasSavedCanBeOpenedAndItsFolderIsProposedNextWithANameThatItTakes) {
  const auto& open = *output.findChild<QPushButton*>(QStringLiteral("cmdOPENREPORT"));
  save(folder.path("missing/x.html"));
  EXPECT_TRUE(open.isHidden()) << "nothing was saved";
  save(folder.path("a.html"));
  ASSERT_FALSE(open.isHidden());
  output.findChild<QPushButton*>(QStringLiteral("cmdOPENREPORT"))->click();
  output.findChild<QPushButton*>(QStringLiteral("cmdSHOWREPORT"))->click();
  EXPECT_EQ(dialogs.opened, (QList<QUrl>{QUrl::fromLocalFile(toQt(folder.path("a.html"))),
                                         QUrl::fromLocalFile(toQt(folder.path()))}));
  Report report = longReport(1, 1);
  report.fileName = "two  blanks, Jr";
  output.save(report, ReportForm::CsvFrench, {}, nullptr);
  EXPECT_EQ(fromQt(dialogs.lastProposed), folder.path("two blanks, Jr.csv"));
  report.fileName = std::string(400, 'W');
  output.save(report, ReportForm::Csv, {}, nullptr);
  EXPECT_LT(fs::path(fromQt(dialogs.lastProposed)).filename().string().size(), 255U);
  EXPECT_TRUE(dialogs.lastProposed.endsWith(u".csv"));
}

// --- Tables

TableContent::Column column(const char* header, bool isLeft = false, const char* name = "") {
  return {QString::fromUtf8(header), QString::fromUtf8(*name != '\0' ? name : header), {}, isLeft};
}

TEST(TableReportTest, NumbersAreToldFromNames) {
  const auto cell = [](const char* text, TableKind kind = TableKind::Text, double value = 0) {
    return TableContent::Cell{QString::fromUtf8(text), kind, value};
  };
  TableContent content;
  content.columns = {column("No", true), column("Name", true), column("M"), column("%"), column("M")};
  content.rows = {{{cell("4"), cell("12"), cell("-3", TableKind::Number, -3),
                    cell("6.3%", TableKind::Percent, 0.0625), cell("120:05", TableKind::Time, 7205)}},
                  {{cell("00"), cell("=A1"), cell("-"), cell("0.0%", TableKind::Percent), cell("")}}};
  const ReportTable table = tableOf(content);
  const Kind kinds[] = {Kind::Text, Kind::Text, Kind::Number, Kind::Percent, Kind::Time};
  for (std::size_t i = 0; i < std::size(kinds); ++i) {
    EXPECT_EQ(table.rows[0].cells[i].kind, kinds[i]) << i;
    EXPECT_DOUBLE_EQ(table.rows[0].cells[i].value, content.rows[0].cells[i].value);
  }
  EXPECT_EQ(table.columns[2].name, "M");
  EXPECT_EQ(table.columns[4].name, "M 2");
  EXPECT_EQ(table.columns[4].header, "M 2") << "two columns of one name cannot be told apart";
  // Through the file and back.
  const auto csv = reportCsv(tableReport(content, QStringLiteral("About")));
  ASSERT_EQ(csv.size(), 1U);
  const auto lines = parseDelimited(csv[0].bytes);
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[1].fields[2], "-3") << "a negative number is one";
  EXPECT_EQ(lines[2].fields[1], "'=A1") << "a name is no formula";
  EXPECT_EQ(lines[2].fields[0], "00");
}

TEST(TableReportTest, AWorkbookTellsNumbersPercentagesTimesAndTextsApart) {
  if (QStandardPaths::findExecutable(QStringLiteral("unzip")).isEmpty())
    GTEST_SKIP() << "no unzip";
  const TemporaryFolder folder;
  Report report;
  ReportTable table;
  table.title = "T";
  table.columns = {{"Name", "Name", {}, true, true}, {"N", "N"}, {"P", "P"}, {"T", "T"}, {"A", "A"}};
  table.rows.push_back({{textCell("=1+1 <b>"),
                         {"-3", Kind::Number, -3},
                         {"6.3%", Kind::Percent, 0.0625},
                         {"90:00", Kind::Time, 5400},
                         {"2.33", Kind::Number, 7.0 / 3}}});
  table.chart = {"bars", 1, 2, true};
  report.blocks.emplace_back(table);
  table.chart.reset();
  table.title = "a sheet of its own";
  report.blocks.emplace_back(table);
  FlowDrawing flow;
  flow.flow.steps.push_back({0, 1, 540, 60, {2, 0}});
  report.blocks.emplace_back(ReportPicture{"flow", flow});
  const auto bytes = reportXlsx(report);
  ASSERT_TRUE(bytes);
  const QString path = toQt(folder.write("t.xlsx", *bytes));
  const auto part = [&](const char* name) {
    QProcess process;
    process.start(QStringLiteral("unzip"), {QStringLiteral("-p"), path, QLatin1String(name)});
    return process.waitForFinished(20000) ? process.readAllStandardOutput().toStdString() : std::string();
  };
  const std::string sheet = part("xl/worksheets/sheet1.xml");
  EXPECT_NE(part("xl/worksheets/sheet2.xml"), "");
  EXPECT_TRUE(std::regex_search(part("xl/worksheets/sheet3.xml"), std::regex("<c r=\"D3\"[^>]*><v>2</v>")));
  EXPECT_NE(part("xl/charts/chart1.xml").find("<c:cat><c:strRef><c:f>T!$B$1:$C$1"), std::string::npos);
  EXPECT_NE(part("xl/charts/chart1.xml").find("T!$B$2:$C$2"), std::string::npos);
  EXPECT_NE(part("xl/charts/chart2.xml").find("flow!$D$2:$D$3"), std::string::npos);
  EXPECT_NE(part("xl/sharedStrings.xml").find("=1+1 &lt;b&gt;"), std::string::npos);
  const std::string styles = part("xl/styles.xml");
  EXPECT_EQ(sheet.find("<f>"), std::string::npos);
  EXPECT_NE(sheet.find("xSplit=\"1\" ySplit=\"1\" topLeftCell=\"B2\""), std::string::npos) << sheet;
  EXPECT_TRUE(std::regex_search(sheet, std::regex("<c r=\"A2\"( s=\"\\d+\")? t=\"s\">")));
  EXPECT_TRUE(std::regex_search(sheet, std::regex("<c r=\"B2\"( s=\"\\d+\")?><v>-3</v>")));
  EXPECT_TRUE(std::regex_search(sheet, std::regex("<c r=\"D2\" s=\"\\d+\"><v>0.0625</v>")));
  // The style of a cell leads to its format of numbers.
  const auto formatOf = [&](const char* cell) -> std::string {
    std::smatch found;
    if (!std::regex_search(sheet, found, std::regex("<c r=\"" + std::string(cell) + "\" s=\"(\\d+)\"")))
      return "0"; // the usual one
    const std::size_t style = std::stoul(found[1]);
    const std::string cells = styles.substr(styles.find("<cellXfs"));
    const std::regex xf("<xf numFmtId=\"(\\d+)\"");
    auto each = std::sregex_iterator(cells.begin(), cells.end(), xf);
    std::advance(each, static_cast<std::ptrdiff_t>(style));
    const std::string number = (*each)[1];
    if (number == "2") // built in
      return "0.00";
    const std::regex code("numFmtId=\"" + number + "\" formatCode=\"([^\"]*)\"");
    return std::regex_search(styles, found, code) ? std::string(found[1]) : number;
  };
  EXPECT_EQ(formatOf("B2"), "0") << "none of its own";
  EXPECT_EQ(formatOf("C2"), "0.0%");
  EXPECT_EQ(formatOf("D2"), "[mm]:ss");
  EXPECT_EQ(formatOf("E2"), "0.00") << "as many decimals as on screen";
}

// --- Menus of windows

class SomePicture : public QWidget, public ShownPicture {
 public:
  using QWidget::QWidget;
  bool isThere = true;
  bool hasPicture() const override { return isThere; }
  QSize pictureSize() const override { return {200, 100}; }
  void paintPicture(QPainter& painter, const QRectF& area) const override {
    painter.fillRect(area, Qt::blue);
  }
};

class SomeWindow : public ChildWindow {
 public:
  SomeWindow() {
    setWindowTitle(QStringLiteral("LYNX – PUMA"));
    table->resize(300, 100);
    list->move(0, 120);
    list->horizontalHeader()->hide();
    listModel.setHorizontalHeaderLabels({QStringLiteral("Clock"), QStringLiteral("Words")});
    listModel.appendRow(
        {new QStandardItem(QStringLiteral("09:00")), new QStandardItem(QStringLiteral("Basket"))});
    list->setModel(&listModel);
    list->hideColumn(0);
    table->showColumns({{QStringLiteral("Name"), {}, {}, true, true},
                        {QStringLiteral("PTS")},
                        {QStringLiteral("Hidden"), {}, {}, false, false, true}});
    TableRows rows;
    rows.count = 2;
    rows.text = [](int row, int column) {
      return column == 0 ? QStringLiteral("Name %1").arg(row) : QString::number(row * 10);
    };
    rows.sortValue = [](int row, int) { return row * 10.0; };
    table->showRows(rows);
    table->setAccessibleName(QStringLiteral("Players"));
    table->sortByColumn(1, Qt::DescendingOrder);
    picture->move(0, 250);
  }
  void relabelWindow() override {}
  void applyColours() override {}

  SeasonTableView* table = new SeasonTableView(QStringLiteral("lvwTABLE"), 1, this);
  QTableView* list = new QTableView(this);
  SomePicture* picture = new SomePicture(this);
  QStandardItemModel listModel;
};

class WindowExportsTest : public ReportOutputTest {
 protected:
  void SetUp() override {
    exports.serve(window);
    window.resize(400, 400);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  }
  void trigger(QWidget& widget, const char* name) {
    auto* action = widget.findChild<QAction*>(QLatin1String(name));
    ASSERT_NE(action, nullptr) << name;
    EXPECT_FALSE(action->text().isEmpty());
    action->trigger();
    wait();
  }

  WindowExports exports{output, texts};
  SomeWindow window;
};

TEST_F(WindowExportsTest, ATableIsExportedAsItIsShown) {
  dialogs.nextFileToSave = toQt(folder.path("t.csv"));
  trigger(*window.table, "tableCSV");
  EXPECT_EQ(folder.read("t.csv"), "\xEF\xBB\xBFName,PTS\r\nName 1,10\r\nName 0,0\r\n");
  EXPECT_TRUE(dialogs.lastProposed.endsWith(QStringLiteral("LYNX – PUMA Players.csv")));
  dialogs.nextFileToSave = toQt(folder.path("list.csv"));
  trigger(*window.list, "tableCSV");
  EXPECT_EQ(folder.read("list.csv").substr(3), "Clock,Words\r\n09:00,Basket\r\n")
      << "a list without a header has left columns out";
  for (const char* form : {"XLSX", "HTML"}) {
    dialogs.nextFileToSave = toQt(folder.path(std::string("t.") + form));
    trigger(*window.table, (std::string("table") + form).c_str());
    EXPECT_TRUE(folder.holds(std::string("t.") + form));
  }
  QSignalSpy reported(&exports, &WindowExports::reported);
  trigger(*window.list, "tableCOPY");
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Clock\tWords\n09:00\tBasket\n"));
  EXPECT_EQ(reported.size(), 1);
}

TEST_F(WindowExportsTest, APictureIsSavedOnWhiteAndNothingWhereThereIsNone) {
  dialogs.nextFileToSave = toQt(folder.path("p.png"));
  trigger(*window.picture, "picturePNG");
  const QImage image(toQt(folder.path("p.png")));
  ASSERT_EQ(image.size(), QSize(400, 200));
  EXPECT_EQ(image.pixelColor(200, 150), QColor(Qt::blue));
  EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::white));
  window.picture->isThere = false;
  dialogs.nextFileToSave = toQt(folder.path("none.png"));
  trigger(*window.picture, "picturePNG");
  EXPECT_FALSE(folder.holds("none.png"));
}

} // namespace
} // namespace hooptab
