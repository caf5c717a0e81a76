// Chosen games written to one file: what comes out, what is asked, and what is left where it is stopped.
#include "printing/frmWEEKEND.h"

#include "catalogue/SeasonFolder.h"
#include "support/WindowRoom.h"

#include <QComboBox>
#include <QLineEdit>
#include <QProcess>
#include <QProgressBar>
#include <QStandardPaths>
#include <filesystem>

namespace hooptab {
namespace {

constexpr const char* kEvents = "1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=09:00,GFG,0-4,40,50\n"
                                "3=00:00,ARRET,IN-,IN-\n";

class GamesFilesTest : public WindowTest<frmWEEKEND> {
 protected:
  GamesFilesTest() {
    games.addGame("a.GAM", "2026-10-02", kEvents);
    games.add("broken.GAM", "no game at all");
    games.addGame("b.GAM", "2026-10-03", kEvents);
  }
  void open(int times = 1) {
    std::vector<std::string> paths;
    for (int i = 0; i < times; ++i) {
      for (const char* name : {"a.GAM", "broken.GAM", "b.GAM"})
        paths.push_back(games.folder().path(name));
    }
    window = std::make_unique<frmWEEKEND>(paths, toQt(folder.path()), QStringLiteral("weekend"), disk, texts,
                                          dialogs);
    find<QComboBox>("cmbFORMAT").setCurrentIndex(2);
    window->show();
  }
  void wait() {
    ASSERT_TRUE(QTest::qWaitFor([this] { return !window->isVisible(); }, 60000));
  }
  [[nodiscard]] std::ptrdiff_t written() const {
    return std::distance(std::filesystem::directory_iterator(folder.path()), {});
  }

  SeasonFolder games;
};

TEST_F(GamesFilesTest, EachGameIsAPageAndWhatIsNoGameIsNamed) {
  open();
  click("cmdWRITE");
  wait();
  EXPECT_EQ(window->result(), QDialog::Accepted);
  EXPECT_EQ(window->message(), toQt(texts.withPlaceholder(Text::WeekendDone, "weekend.pdf, weekend.xlsx")));
  ASSERT_EQ(dialogs.shown.size(), 1U);
  EXPECT_TRUE(dialogs.shown[0].text.startsWith(QStringLiteral("broken.GAM")));
  EXPECT_TRUE(folder.read("weekend.pdf").starts_with("%PDF"));
  EXPECT_TRUE(folder.read("weekend.xlsx").starts_with("PK"));
  if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
    GTEST_SKIP() << "no pdftotext";
  QProcess process;
  process.start(QStringLiteral("pdftotext"), {QStringLiteral("-f"), QStringLiteral("2"),
                                              toQt(folder.path("weekend.pdf")), QStringLiteral("-")});
  ASSERT_TRUE(process.waitForFinished(20000));
  const QString second = toQt(process.readAllStandardOutput().toStdString());
  EXPECT_TRUE(second.contains(QStringLiteral("2026-10-03")));
  EXPECT_FALSE(second.contains(QStringLiteral("2026-10-02")));
  EXPECT_TRUE(second.contains(QStringLiteral("Page 2 of 2"))) << "counted through";
}

TEST_F(GamesFilesTest, NothingGivesWayUnasked) {
  (void)folder.write("weekend.pdf", "mine");
  open();
  click("cmdWRITE");
  EXPECT_TRUE(window->isVisible());
  ASSERT_EQ(dialogs.shown.size(), 1U);
  EXPECT_EQ(dialogs.shown[0].text, toQt(texts.withPlaceholder(Text::ExportReplaces, "weekend.pdf")));
  EXPECT_EQ(folder.read("weekend.pdf"), "mine");
  dialogs.nextAnswer = true;
  click("cmdWRITE");
  wait();
  EXPECT_NE(folder.read("weekend.pdf"), "mine");
}

TEST_F(GamesFilesTest, CancellingAndAFullDiskLeaveNothing) {
  open(300);
  click("cmdWRITE");
  ASSERT_TRUE(QTest::qWaitFor([this] { return find<QProgressBar>("progress").value() > 0; }, 60000));
  EXPECT_FALSE(find<QLineEdit>("txtNAME").isEnabled());
  click("cmdCANCEL");
  wait();
  EXPECT_EQ(window->result(), QDialog::Rejected);
  EXPECT_EQ(written(), 0);
  open();
  std::filesystem::create_directory(folder.path("weekend.pdf"));
  dialogs.nextAnswer = true;
  click("cmdWRITE");
  ASSERT_TRUE(QTest::qWaitFor([this] { return find<QPushButton>("cmdWRITE").isEnabled(); }, 60000));
  EXPECT_EQ(dialogs.shown.back().text,
            toQt(texts.withPlaceholder(Text::PathIsFolder, folder.path("weekend.pdf"))));
  EXPECT_TRUE(window->isVisible()) << "another name can be tried";
  EXPECT_EQ(written(), 1);
}

} // namespace
} // namespace hooptab
