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
  tabs.addTab(new QWidget, QStringLiteral("LYNX"));
  tabs.addTab(page, QString());
  for (QWidget* const widget :
       {static_cast<QWidget*>(&label), static_cast<QWidget*>(&button), static_cast<QWidget*>(&group),
        static_cast<QWidget*>(&dock), static_cast<QWidget*>(&menu), &window})
    setTextNumber(*widget, Text::LiveTitle);
  setTabTextNumber(*page, Text::GameScoreboard);
  setAccessibleNumber(tabs, Text::GameScoreboard);

  for (const Language language : {Language::French, Language::English}) {
    say(language);
    const QString open =
        language == Language::French ? QStringLiteral("Ouvrir une partie") : QStringLiteral("Open a Game");
    const QString statistics =
        language == Language::French ? QStringLiteral("Statistiques") : QStringLiteral("Statistics");
    EXPECT_EQ(label.text(), open);
    EXPECT_EQ(button.text(), open);
    EXPECT_EQ(group.title(), open);
    EXPECT_EQ(dock.windowTitle(), open);
    EXPECT_EQ(menu.title(), open);
    EXPECT_EQ(window.windowTitle(), open);
    EXPECT_EQ(tabs.tabText(1), statistics);
    EXPECT_EQ(tabs.tabText(0), QStringLiteral("LYNX")); // has no number: not ours to change
    EXPECT_EQ(tabs.accessibleName(), statistics);
  }
}

TEST_F(RelabelTest, NamesTheKeyInToolTips) {
  QAction action(&window);
  action.setShortcut(QKeySequence(QStringLiteral("Ctrl+O")));
  setTextNumber(action, Text::LiveTitle);
  setToolTipNumber(action, Text::LiveTitle);
  QPushButton button(&window);
  button.setShortcut(QKeySequence(QStringLiteral("F5")));
  setTextNumber(button, Text::GameScoreboard);
  setToolTipNumber(button, Text::GameScoreboard);
  QPushButton keyless(&window);
  setToolTipNumber(keyless, Text::GameScoreboard);

  for (int times = 0; times < 2; ++times) {
    say(Language::French);
    EXPECT_EQ(action.text(), QStringLiteral("Ouvrir une partie"));
    EXPECT_EQ(action.toolTip(), QStringLiteral("Ouvrir une partie (Ctrl+O)"));
    EXPECT_EQ(action.statusTip(), action.toolTip());
    EXPECT_EQ(button.toolTip(), QStringLiteral("Statistiques (F5)"));
    EXPECT_EQ(button.shortcut(), QKeySequence(QStringLiteral("F5"))); // a new caption takes no key away
    EXPECT_EQ(keyless.toolTip(), QStringLiteral("Statistiques"));
  }
}

TEST_F(RelabelTest, ShowsAnAmpersandOfTheTable) {
  QAction action(&window);
  QPushButton button(&window);
  QLabel label(&window);
  for (QObject* const object :
       {static_cast<QObject*>(&action), static_cast<QObject*>(&button), static_cast<QObject*>(&label)})
    setTextNumber(*object, Text::FoulShort);
  setToolTipNumber(action, Text::FoulShort);
  say(Language::English);
  EXPECT_EQ(action.text(), QStringLiteral("Save && Close"));
  EXPECT_EQ(button.text(), QStringLiteral("Save && Close"));
  EXPECT_TRUE(button.shortcut().isEmpty());
  EXPECT_EQ(label.text(), QStringLiteral("Save & Close")); // drawn as it stands
  EXPECT_EQ(action.toolTip(), QStringLiteral("Save & Close"));
}

TEST_F(RelabelTest, PutsNumbersInFrontInTheDiagnosticDisplay) {
  QLabel label(&window);
  QAction action(&window);
  setTextNumber(label, Text::LiveTitle);
  setTextNumber(action, Text::GameScoreboard);
  setToolTipNumber(action, Text::LiveTitle);
  texts.showNumbers(true);
  say(Language::French);
  EXPECT_EQ(label.text(), QStringLiteral("5001 Ouvrir une partie"));
  EXPECT_EQ(action.text(), QStringLiteral("5002 Statistiques"));
  EXPECT_EQ(action.toolTip(), QStringLiteral("5001 Ouvrir une partie"));
  texts.showNumbers(false);
  say(Language::English);
  EXPECT_EQ(label.text(), QStringLiteral("Open a Game"));
}

TEST_F(RelabelTest, LeavesAloneWhatHasNoNumberOrNoLonger) {
  QLabel label(QStringLiteral("12 : 08"), &window);
  QLabel former(&window);
  QLabel missing(QStringLiteral("old"), &window);
  setTextNumber(former, Text::LiveTitle);
  setTextNumber(missing, Text::AskToSaveColours);
  say(Language::English);
  setTextNumber(former, 0);
  say(Language::French);
  EXPECT_EQ(label.text(), QStringLiteral("12 : 08"));
  EXPECT_EQ(former.text(), QStringLiteral("Open a Game"));
  EXPECT_EQ(missing.text(), QString()); // a number without text is an empty caption
}

TEST_F(RelabelTest, CarriesAnyLetterBothWays) {
  const std::string utf8 = "Québec – Noël \xF0\x9F\x8F\x80";
  EXPECT_EQ(fromQt(toQt(utf8)), utf8);
  EXPECT_EQ(toQt(std::string_view("\xE9t\xE9 \xFF")).size(), 5); // no UTF-8, and yet no crash
}

} // namespace
} // namespace hooptab
