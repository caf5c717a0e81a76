#include "appearance/Fields.h"
#include "appearance/Mnemonics.h"
#include "appearance/relabel.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace hooptab {
namespace {

using namespace Qt::StringLiterals;

TEST(Fields, SelectTheirContentOnFocusByMouseToo) {
  QWidget window;
  auto* one = new QLineEdit(u"Long"_s, &window);
  auto* other = new QLineEdit(u"5"_s, &window);
  other->move(0, 100);
  selectOnFocus(window);
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  other->setFocus();
  QTest::mouseClick(one, Qt::LeftButton);
  QCoreApplication::processEvents();
  EXPECT_EQ(one->selectedText(), u"Long"_s);
  QTest::mouseClick(other, Qt::LeftButton);
  QCoreApplication::processEvents();
  EXPECT_EQ(other->selectedText(), QString()) << "one character is not worth it";
}

TEST(Fields, TakeNoMoreThanTheFileGivesBack) {
  const Texts texts;
  QLineEdit field;
  limitField(field, texts, 4);
  QTest::keyClicks(&field, u"abcde"_s);
  EXPECT_EQ(field.text(), u"abcd"_s);
  field.selectAll();
  field.insert(u"éèêë"_s);
  EXPECT_EQ(field.text(), u"éèêë"_s) << "letters, as the file counts them";
  field.selectAll();
  field.insert(u"too long"_s);
  EXPECT_EQ(field.text(), u"éèêë"_s);
  field.setText(u"from a file"_s);
  QTest::keyClick(&field, Qt::Key_Backspace);
  EXPECT_EQ(field.text(), u"from a fil"_s) << "a longer one can be shortened";
}

TEST(Mnemonics, GiveEachCaptionALetterOfItsOwn) {
  const QStringList captions = {u"Save"_s, u"Select a Color"_s, u"Sac"_s,
                                u"Éa"_s,   u"Live&&Keypad"_s,   QString()};
  EXPECT_EQ(mnemonicPlaces(captions), (std::vector<qsizetype>{0, 1, 2, 1, 0, -1}));
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
  for (QWidget* widget : std::initializer_list<QWidget*>{save, label, field})
    layout->addWidget(widget);
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
