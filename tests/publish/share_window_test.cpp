// The window in which a game is shared: what it shows while it is on and off, and what it tells.
#include "publish/frmSHARE.h"

#include "appearance/relabel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

#include <gtest/gtest.h>

namespace hooptab {
namespace {

const std::vector<WebNetwork> kNetworks = {{"wlan0", "192.168.1.20", false, false, true},
                                           {"lo", "127.0.0.1", false, true, false}};

class ShareWindowTest : public ::testing::Test {
 protected:
  template <class Widget>
  static Widget* in(frmSHARE& window, const char* name) {
    return window.findChild<Widget*>(QLatin1String(name));
  }
  Texts texts;
};

TEST_F(ShareWindowTest, TellsWhatIsChosenAndShowsTheAddressWhileItIsOn) {
  ShareChoice choice;
  choice.address = "192.168.1.20";
  choice.passPhrase = "word";
  choice.feed = {.names = NameForm::Initial, .delaySeconds = 20, .first = Side::Home};
  frmSHARE window(choice, kNetworks, {"AAA", false}, texts);
  EXPECT_EQ(window.choice(), choice);
  QSignalSpy switched(&window, &frmSHARE::switched);
  QSignalSpy chosen(&window, &frmSHARE::feedChosen);
  auto* share = in<QCheckBox>(window, "chkSHARE");
  share->click();
  ASSERT_EQ(switched.count(), 1);
  EXPECT_TRUE(switched[0][0].toBool());

  window.showShared(9000);
  window.showViewers(3);
  auto* address = in<QLineEdit>(window, "txtADDRESS");
  EXPECT_EQ(fromQt(address->text()), "http://192.168.1.20:9000/");
  EXPECT_FALSE(in<QComboBox>(window, "cmbNETWORK")->isEnabled()) << "it listens there";
  EXPECT_EQ(fromQt(in<QLabel>(window, "lblVIEWERS")->text()), "Viewers now: 3");
  in<QComboBox>(window, "cmbPAGE")->setCurrentIndex(1);
  EXPECT_EQ(fromQt(address->text()), "http://192.168.1.20:9000/bench");
  in<QSpinBox>(window, "spnDELAY")->setValue(5);
  EXPECT_EQ(chosen.count(), 1);

  window.showShared(std::nullopt);
  EXPECT_FALSE(share->isChecked());
  EXPECT_TRUE(address->text().isEmpty());
  EXPECT_EQ(fromQt(in<QLabel>(window, "lblVIEWERS")->text()), "Off: nothing listens");
}

// The network of another hall is gone; a name that is told to nobody is said to be so.
TEST_F(ShareWindowTest, OffersWhatIsThere) {
  ShareChoice choice;
  choice.address = "10.0.0.9";
  frmSHARE window(choice, kNetworks, {"U16", true}, texts);
  EXPECT_EQ(window.choice().address, "192.168.1.20");
  EXPECT_TRUE(fromQt(in<QLabel>(window, "lblNAMES")->text()).starts_with("Minors play"));
  EXPECT_NE(fromQt(in<QLabel>(window, "lblNAMES")->text()).find("U16"), std::string::npos);
}

} // namespace
} // namespace hooptab
