#include "events/FollowUpBar.h"
#include "events/FreeThrowBar.h"
#include "live/LiveRoom.h"
#include "live/PlayerPanel.h"
#include "live/frmLIVE.h"
#include "storage/ProfileText.h"

#include <QMenu>

namespace hooptab {
namespace {

class LiveLeagueWindowTest : public LiveRoom<> {
 protected:
  void SetUp() override {
    settings.asksRebounds = true;
    const std::string path = folder.write(
        "league.GAM", textOfGame("[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n",
                                 "REGLES=FIBA\nNIVEAU=LEAGUE\nBONUS=4\n"));
    ASSERT_EQ(window.open(toQt(path)), frmLIVE::Opening::Opened);
    window.resize(1366, 700);
    showActive(window);
    window.setFocus();
  }
  void press(const char* name) {
    ++clicks;
    QTest::mouseClick(&find<QWidget>(window, name), Qt::LeftButton);
  }
  void type(std::string_view keys) { // "<" is Enter, ">" with Shift
    for (const char key : keys) {
      ++typed;
      if (key == '<' || key == '>')
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return,
                        key == '>' ? Qt::ShiftModifier : Qt::NoModifier);
      else
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key));
    }
    if (window.findChild<FollowUpBar*>()->isOpen())
      QTest::qWait(FollowUpBar::kMayGoOn + 50);
  }
  std::string lines() {
    std::string text = folder.read("league.GAM");
    text = text.substr(text.find('\n', text.find("1=10:00,ARRET")) + 1);
    text = text.substr(0, text.find('['));
    std::string all;
    for (std::size_t at = 0; at < text.size(); at = text.find('\n', at) + 1) {
      const std::size_t begin = text.find("10:00,", at) + 6;
      all += (all.empty() ? "" : " ") + text.substr(begin, text.find('\r', begin) - begin);
    }
    return all;
  }
  bool isThrowing() { return window.findChild<FreeThrowBar*>()->isOpen(); }

  frmLIVE window{store, settings, texts, dialogs, time};
  int clicks = 0;
  int typed = 0;
};

TEST_F(LiveLeagueWindowTest, ATwoShotFoulTakesFourClicksOrEightKeys) {
  press("cmdBUTF(0)");
  press("CourtJ(6)"); // anywhere on the panel of who drew it, and no shot of his
  EXPECT_TRUE(isThrowing());
  press("cmdMADE(0)");
  press("cmdMADE(1)");
  EXPECT_EQ(clicks, 4);
  EXPECT_FALSE(isThrowing());
  EXPECT_EQ(lines(), "SPF,0-4,D=1-7,F=2,K=S GFT,1-7,N=1/2 GFT,1-7,N=2/2");
  type("12F<"); // two digits each
  type("11");
  EXPECT_TRUE(isThrowing());
  type("MX");
  EXPECT_EQ(typed, 8);
  EXPECT_TRUE(lines().ends_with("SPF,0-12,D=1-11,F=2,K=S GFT,1-11,N=1/2 GFTA,1-11,N=2/2")) << lines();
  EXPECT_TRUE(find<QWidget>(window, "frmRebound").isVisible()) << "of the last one, which missed";
  type("D"); // nobody's in particular
  EXPECT_TRUE(lines().ends_with(" XDR,0")) << lines();
}

TEST_F(LiveLeagueWindowTest, KindsAndWhatClosesTheStrip) {
  type("5F<U");
  EXPECT_EQ(lines(), "SPF,0-5,K=U");
  type("7");
  EXPECT_TRUE(isThrowing());
  QTest::mouseClick(window.findChild<FreeThrowBar*>()->findChild<QWidget*>(QStringLiteral("cmdKIND(S)")),
                    Qt::LeftButton);
  EXPECT_EQ(lines(), "SPF,0-5,D=1-7,K=S");
  type("5"); // a line has begun: its letters are its own
  type("V<");
  EXPECT_FALSE(isThrowing()) << "the ball is in play";
  EXPECT_TRUE(lines().ends_with("STO,0-5")) << lines();
  type("V");
  EXPECT_TRUE(lines().ends_with("K=S XTV,0")) << "the team's: " << lines();
  type("5F<O");
  press("lblNom(6)");
  EXPECT_FALSE(isThrowing()) << "none for an offensive foul";
  EXPECT_TRUE(lines().ends_with("SPF,0-5,K=O,D=1-7")) << lines();
  type("5F<");
  press("cmdBUTTO(1)"); // his own team: he drew nothing, and it is carried out
  EXPECT_TRUE(lines().ends_with("SPF,0-5 STO,0-5")) << lines();
}

TEST_F(LiveLeagueWindowTest, BlocksTimeOutsAndTheArrow) {
  press("cmdBUTLUG(0)");
  type("4"); // no question: the panel's left button made it
  QTest::keyClick(&window, Qt::Key_Escape);
  QTest::mouseClick(&find<QWidget>(window, "cmdBUTLUG(1)"), Qt::RightButton);
  type("B8");
  type("7");
  EXPECT_TRUE(lines().ends_with("GLGA,0-5 SBS,1-8,S=0-5 SDR,1-7")) << lines();
  QTest::keyClick(&window, Qt::Key_Left, Qt::ControlModifier);
  press("cmdTIMEOUT(1)");
  press("cmdTIMEOUT(1)"); // a slip
  EXPECT_TRUE(lines().ends_with(" XTO,0 XTO,1")) << lines();
  press("cmdARROW(1)");
  press("cmdARROW(1)");
  QTest::keyClick(&window, Qt::Key_Up, Qt::ControlModifier); // too soon
  EXPECT_TRUE(lines().ends_with(" XAR,1")) << lines();
  QTest::qWait(1050);
  QTest::keyClick(&window, Qt::Key_Up, Qt::ControlModifier);
  EXPECT_TRUE(lines().ends_with(" XAR,1 XAR,0")) << lines();
  type("F<"); // no team's without a number
  EXPECT_TRUE(lines().ends_with(" XAR,0"));
}

} // namespace
} // namespace hooptab
