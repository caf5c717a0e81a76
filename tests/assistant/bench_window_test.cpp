// The window for the bench: follows the game behind its back, keeps its parts in their places, takes no
// focus.
#include "assistant/frmBENCH.h"
#include "live/LiveRoom.h"

#include <QSignalSpy>
#include <QToolButton>

namespace hooptab {
namespace {

class BenchWindowTest : public LiveRoom<> {
 protected:
  void SetUp() override {
    GameDetails details;
    details.personalFoulLimit = 5;
    details.bonus = 5;
    details.abbreviation = {"PANDAS", "OLIVES"};
    details.ruleSet = "FIBA";
    const std::string path = folder.path("bench.GAM");
    makeGame(path,
             "4=0,Ann Able\n5=1,Bea Bakerfield\n10=2,Cleo Carter\n12=2,Dot Dunn\n15=1,Eve Ellis\n"
             "20=1,Fay Ford\n",
             details);
    ASSERT_EQ(session.change()->open(path), GameFileProblem::None);
    ASSERT_TRUE(session.change()->setOnCourt({kFive, kFive}));
    showActive(table);
    window->open({});
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
  }
  // What a part says to a screen reader: its title, and its lines.
  QString said(const char* part) const {
    const auto& widget = find(*window, part);
    return widget.accessibleName() + u": " +
           widget.accessibleDescription().split(u'\n').join(QStringLiteral(" | "));
  }
  void score(Side team, int times) {
    for (int i = 0; i < times; ++i)
      ASSERT_TRUE(session.change()->recordShot(team, 1, EventCode::GDK, true));
  }

  GameSession session{store, time};
  QWidget table; // the live window's place
  frmBENCH* window = new frmBENCH(session, texts, &table);
};

TEST_F(BenchWindowTest, ShowsWhatHasComeOfTheGameBehindTheClick) {
  EXPECT_EQ(said("picBENCHRUN"), QStringLiteral("Run: – | No run"));
  score(Side::Home, 4);
  EXPECT_EQ(said("picBENCHRUN"), QStringLiteral("Run: – | No run")) << "the click is not waited for";
  QTRY_COMPARE(said("picBENCHRUN"), QStringLiteral("Run · OLIVES: 0–8 | in 00:00 | 4 Able 8 | !"));
  EXPECT_TRUE(
      said("picBENCHHEAD").startsWith(QStringLiteral("PANDAS 0–8 OLIVES: 10:00 1st · STOPPED | PANDAS 0")));
  session.change()->start();
  time.now += 65;
  QTRY_VERIFY(said("lvwFIVE").contains(QStringLiteral("4 Able 0/5 01:05 −8 0 01:05 | 5 Bakerfield")));
  EXPECT_TRUE(said("lvwFIVES").endsWith(QStringLiteral("4 5 10 12 15 ● Now 01:05 −8 few")));
  EXPECT_EQ(said("lvwBENCH"), QStringLiteral("Bench Fouls min +/− PTS Rested: 20 Ford 0/5 – – – –"));
  QTest::mouseClick(&find(*window, "cmdBENCHTEAM(1)"), Qt::LeftButton);
  QTRY_VERIFY(said("picBENCHRUN").contains(QStringLiteral("8–0")));
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Bench View – OLIVES"));
  texts.setLanguage(Language::French);
  window->relabelWindow();
  EXPECT_TRUE(said("picBENCHSINCE").startsWith(QStringLiteral("Depuis le début: 8–0")));
}

TEST_F(BenchWindowTest, TakesNoFocusAndKeepsItsPartsApartInEverySize) {
  EXPECT_TRUE(window->windowFlags() & Qt::WindowDoesNotAcceptFocus);
  EXPECT_TRUE(window->testAttribute(Qt::WA_ShowWithoutActivating));
  score(Side::Home, 1);
  for (const QSize size : {QSize(720, 480), QSize(900, 600), QSize(1366, 768), QSize(1920, 1040)}) {
    window->resize(size);
    QCoreApplication::processEvents();
    const QList<QWidget*> parts = window->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    ASSERT_GT(parts.size(), 10);
    for (const char* team : {"cmdBENCHTEAM(0)", "cmdBENCHTEAM(1)"})
      EXPECT_GE(find(*window, team).width(), find(*window, team).sizeHint().width());
    for (const QWidget* part : parts) {
      EXPECT_TRUE(window->rect().contains(part->geometry())) << fromQt(part->objectName()) << size.width();
      EXPECT_GE(part->height(), 13) << fromQt(part->objectName());
      for (const QWidget* other : parts)
        EXPECT_TRUE(other == part || !other->geometry().intersects(part->geometry()))
            << fromQt(part->objectName() + u' ' + other->objectName()) << size.width();
    }
  }
}

} // namespace
} // namespace hooptab
