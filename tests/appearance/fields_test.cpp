#include "appearance/Fields.h"
#include "appearance/Mnemonics.h"
#include "appearance/relabel.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>
#include <set>

namespace hooptab {
namespace {

TEST(Fields, SelectTheirContentOnFocusByMouseToo) {
  QWidget window;
  auto* layout = new QGridLayout(&window);
  auto* one = new QLineEdit(QStringLiteral("Long"), &window);
  auto* other = new QLineEdit(QStringLiteral("5"), &window);
  layout->addWidget(other, 0, 0);
  layout->addWidget(one, 1, 0);
  selectOnFocus(window);
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  other->setFocus();
  QTest::mouseClick(one, Qt::LeftButton);
  QCoreApplication::processEvents();
  EXPECT_EQ(one->selectedText(), QStringLiteral("Long"));
  QTest::mouseClick(other, Qt::LeftButton);
  QCoreApplication::processEvents();
  EXPECT_EQ(other->selectedText(), QString()) << "one character is not worth it";
}

TEST(Fields, TakeNoMoreThanTheFileGivesBack) {
  const Texts texts;
  QLineEdit field;
  limitField(field, texts, 4);
  QTest::keyClicks(&field, QStringLiteral("abcde"));
  EXPECT_EQ(field.text(), QStringLiteral("abcd"));
  field.selectAll();
  field.insert(QStringLiteral("éèêë"));
  EXPECT_EQ(field.text(), QStringLiteral("éèêë")) << "letters, as the file counts them";
  field.selectAll();
  field.insert(QStringLiteral("too long"));
  EXPECT_EQ(field.text(), QStringLiteral("éèêë"));
  field.setText(QStringLiteral("from a file"));
  QTest::keyClick(&field, Qt::Key_Backspace);
  EXPECT_EQ(field.text(), QStringLiteral("from a fil")) << "a longer one can be shortened";
}

TEST(Mnemonics, GiveEachCaptionALetterOfItsOwn) {
  const QStringList captions = {QStringLiteral("Save"),         QStringLiteral("Select a Color"),
                                QStringLiteral("Sac"),          QStringLiteral("Éa"),
                                QStringLiteral("Live&&Keypad"), QString()};
  const std::vector<qsizetype> places = mnemonicPlaces(captions);
  EXPECT_EQ(places, (std::vector<qsizetype>{0, 1, 2, 1, 0, -1}));
}

TEST(Mnemonics, ReachButtonsAndFieldsInBothLanguages) {
  Texts texts;
  QWidget window;
  auto* layout = new QGridLayout(&window);
  auto* save = new QPushButton(&window);
  setTextNumber(*save, Text::Save);
  auto* label = new QLabel(&window);
  setTextNumber(*label, Text::Level);
  auto* field = new QLineEdit(&window);
  label->setBuddy(field);
  layout->addWidget(save, 0, 0);
  layout->addWidget(label, 1, 0);
  layout->addWidget(field, 2, 0);
  for (const Language language : {Language::English, Language::French}) {
    texts.setLanguage(language);
    relabel(window, texts);
    giveMnemonics(window);
    EXPECT_EQ(save->shortcut(), QKeySequence(Qt::ALT | Qt::Key_S));
    EXPECT_EQ(label->text().remove(u'&'), toQt(texts.text(Text::Level)));
    EXPECT_TRUE(label->text().contains(u'&'));
  }
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  save->setFocus();
  QTest::keyClick(&window, Qt::Key_N, Qt::AltModifier); // Niveau
  EXPECT_TRUE(field->hasFocus());
}

} // namespace
} // namespace hooptab
