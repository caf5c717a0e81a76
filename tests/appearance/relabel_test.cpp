#include "appearance/relabel.h"

#include <QAction>
#include <QDockWidget>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <gtest/gtest.h>

namespace hooptab {
namespace {

using namespace Qt::StringLiterals;

constexpr const char* kEnglish = "1001 \"Open a Game\"\n1002 \"Statistics\"\n1003 \"Save & Close\"\n";
constexpr const char* kFrench =
    "5001 \"Ouvrir une partie\"\n5002 \"Statistiques\"\n5003 \"Sauvegarder & fermer\"\n";

class RelabelTest : public testing::Test {
 protected:
  void say(Language language) {
    texts.setLanguage(language);
    relabel(window, texts);
  }

  Texts texts{kEnglish, kFrench};
  QWidget window;
};

TEST_F(RelabelTest, WritesEveryKindOfCaptionInTheLanguageInUse) {
  QLabel label(&window);
  QPushButton button(&window);
  QGroupBox group(&window);
  QDockWidget dock(&window);
  QMenu menu(&window);
  QTabWidget tabs(&window);
  auto* page = new QWidget;
  tabs.addTab(new QWidget, u"LYNX"_s);
  tabs.addTab(page, QString());
  for (QWidget* const widget :
       std::initializer_list<QWidget*>{&label, &button, &group, &dock, &menu, &window})
    setTextNumber(*widget, Text::LiveTitle);
  setTabTextNumber(*page, Text::GameScoreboard);
  setAccessibleNumber(tabs, Text::GameScoreboard);
  for (const Language language : {Language::French, Language::English}) {
    say(language);
    const bool isFrench = language == Language::French;
    const QString open = isFrench ? u"Ouvrir une partie"_s : u"Open a Game"_s;
    const QString statistics = isFrench ? u"Statistiques"_s : u"Statistics"_s;
    EXPECT_EQ((QStringList{label.text(), button.text(), group.title(), dock.windowTitle(), menu.title(),
                           window.windowTitle()}),
              QStringList(6, open));
    EXPECT_EQ(tabs.tabText(1), statistics);
    EXPECT_EQ(tabs.tabText(0), u"LYNX"_s); // has no number: not ours to change
    EXPECT_EQ(tabs.accessibleName(), statistics);
  }
}

TEST_F(RelabelTest, NamesTheKeyInToolTips) {
  QAction action(&window);
  action.setShortcut(QKeySequence(u"Ctrl+O"_s));
  setTextNumber(action, Text::LiveTitle);
  setToolTipNumber(action, Text::LiveTitle);
  QPushButton button(&window);
  button.setShortcut(QKeySequence(u"F5"_s));
  setTextNumber(button, Text::GameScoreboard);
  setToolTipNumber(button, Text::GameScoreboard);
  QPushButton keyless(&window);
  setToolTipNumber(keyless, Text::GameScoreboard);
  for (int times = 0; times < 2; ++times) {
    say(Language::French);
    EXPECT_EQ(action.text(), u"Ouvrir une partie"_s);
    EXPECT_EQ(action.toolTip(), u"Ouvrir une partie (Ctrl+O)"_s);
    EXPECT_EQ(action.statusTip(), action.toolTip());
    EXPECT_EQ(button.toolTip(), u"Statistiques (F5)"_s);
    EXPECT_EQ(button.shortcut(), QKeySequence(u"F5"_s)); // a new caption takes no key away
    EXPECT_EQ(keyless.toolTip(), u"Statistiques"_s);
  }
}

TEST_F(RelabelTest, ShowsAnAmpersandOfTheTableAndNumbersInTheDiagnosticDisplay) {
  QAction action(&window);
  QPushButton button(&window);
  QLabel label(&window);
  for (QObject* const object : std::initializer_list<QObject*>{&action, &button, &label})
    setTextNumber(*object, Text::FoulShort);
  setToolTipNumber(action, Text::FoulShort);
  say(Language::English);
  EXPECT_EQ(action.text(), u"Save && Close"_s);
  EXPECT_EQ(button.text(), u"Save && Close"_s);
  EXPECT_TRUE(button.shortcut().isEmpty());
  EXPECT_EQ(label.text(), u"Save & Close"_s); // drawn as it stands
  EXPECT_EQ(action.toolTip(), u"Save & Close"_s);
  setTextNumber(label, Text::LiveTitle);
  setTextNumber(action, Text::GameScoreboard);
  setToolTipNumber(action, Text::LiveTitle);
  texts.showNumbers(true);
  say(Language::French);
  EXPECT_EQ(label.text(), u"5001 Ouvrir une partie"_s);
  EXPECT_EQ(action.text(), u"5002 Statistiques"_s);
  EXPECT_EQ(action.toolTip(), u"5001 Ouvrir une partie"_s);
}

TEST_F(RelabelTest, LeavesAloneWhatHasNoNumberOrNoLonger) {
  QLabel label(u"12 : 08"_s, &window);
  QLabel former(&window);
  QLabel missing(u"old"_s, &window);
  setTextNumber(former, Text::LiveTitle);
  setTextNumber(missing, Text::AskToSaveColours);
  say(Language::English);
  setTextNumber(former, Text::None);
  say(Language::French);
  EXPECT_EQ(label.text(), u"12 : 08"_s);
  EXPECT_EQ(former.text(), u"Open a Game"_s);
  EXPECT_EQ(missing.text(), QString()); // a number without text is an empty caption
}

TEST_F(RelabelTest, CarriesAnyLetterBothWays) {
  const std::string utf8 = "Québec – Noël \xF0\x9F\x8F\x80";
  EXPECT_EQ(fromQt(toQt(utf8)), utf8);
  EXPECT_EQ(toQt(std::string_view("\xE9t\xE9 \xFF")).size(), 5); // no UTF-8, and yet no crash
}

} // namespace
} // namespace hooptab
