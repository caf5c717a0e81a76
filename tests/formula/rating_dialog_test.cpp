#include "formula/FormulaRating.h"
#include "formula/frmRATING.h"
#include "support/FaultyFileSystem.h"
#include "support/WindowRoom.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace hooptab {
namespace {

constexpr const char* kOldFile =
    "[CONFIGURATION]\r\nSTATU1=U1----\r\nRATING=PTS\r\nRATINGNAME=MINE\r\nSTATU2=U2----\r\n";

class RatingDialogTest : public WindowTest<frmRATING, FaultyFileSystem> {
 protected:
  void SetUp() override {
    folder.write("CONFIG.INI", kOldFile);
    settings.read();
    window = std::make_unique<frmRATING>(settings, reader, texts, dialogs);
    window->show();
  }
  void type(const char* formula) {
    auto& field = find<QLineEdit>("txtFORMULE");
    field.selectAll();
    QTest::keyClicks(&field, QLatin1String(formula));
  }
  QString example() { return find<QLabel>("lblEXEMPLE").text(); }
  QPushButton& save() { return find<QPushButton>("cmdENREGISTRER"); }

  const FormulaReader reader = readFormula;
};

TEST_F(RatingDialogTest, TellsWhileOneTypesWhatTheFormulaGivesOrWhatIsWrong) {
  EXPECT_TRUE(example().endsWith(QStringLiteral("→ 21.0"))) << example().toStdString();
  type("PTS + 1.5 * Asst");
  EXPECT_EQ(example(), QStringLiteral("Asst is no counter (at character 13)"));
  EXPECT_FALSE(save().isEnabled());
  QTest::keyClick(&find<QLineEdit>("txtFORMULE"), Qt::Key_Return);
  EXPECT_TRUE(window->isVisible()) << "what is wrong is not saved";
  type("PTS / (FGA - FGA)");
  EXPECT_EQ(example(), text(Text::OwnRatingNoNumber));
  EXPECT_TRUE(save().isEnabled()) << "another line may give one";
  texts.setLanguage(Language::French);
  window->relabelWindow();
  type("(PTS");
  EXPECT_TRUE(example().startsWith(QStringLiteral("Une parenthèse"))) << example().toStdString();
  type(" ");
  EXPECT_EQ(example(), QString());
  EXPECT_TRUE(find<QLabel>("lblNOMS").text().contains(QStringLiteral(" PM "))) << "counters are named";
}

TEST_F(RatingDialogTest, SavesBothKeysAndKeepsThemForADiskThatFails) {
  type(" PTS + 2*PM ");
  find<QLineEdit>("txtTITRE").setText(QStringLiteral("cœur"));
  disk.failAt = disk.calls;
  disk.staysBroken = true;
  save().click();
  EXPECT_EQ(dialogs.shown.size(), 1U) << "it is told";
  disk.reset();
  EXPECT_TRUE(settings.retry());
  EXPECT_EQ(folder.read("CONFIG.INI"), "[CONFIGURATION]\r\nSTATU1=U1----\r\nRATING=PTS + 2*PM\r\n"
                                       "RATINGNAME=c\x9Cur\r\nSTATU2=U2----\r\n");
  settings.read();
  EXPECT_EQ(settings.ownRating, (OwnRatingChoice{"PTS + 2*PM", "cœur"}));
  EXPECT_EQ(window->result(), QDialog::Accepted);
}

} // namespace
} // namespace hooptab
