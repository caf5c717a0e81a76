// What a game is recorded with, for tests of the windows that show it: on a disk of its own, with a clock
// that the test sets.
#pragma once

#include "appearance/relabel.h"
#include "recording/LiveGame.h"
#include "recording/ManualTime.h"
#include "settings/Settings.h"
#include "support/ScriptedDialogs.h"
#include "support/TemporaryFolder.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace hooptab {

template <class Disk = FileSystem>
class LiveRoom : public testing::Test {
 protected:
  LiveRoom() {
    settings.twoPointColour = kFirstColours.twoPoints;
    settings.boxColour = kFirstColours.box;
    settings.threePointColour = kFirstColours.threePoints;
    settings.buttonColour = kFirstColours.buttons;
  }
  // Four periods of ten minutes; both teams have these players.
  static void makeGame(const std::string& path, const std::vector<RosterPlayer>& players,
                       GameDetails details = {}) {
    details.periods = 4;
    details.minutesPerPeriod = 10;
    FileSystem plain;
    ProfileStore own{plain};
    ASSERT_EQ(GameFile(own, path).create(details, players, players), GameFileProblem::None);
  }
  static void showActive(QWidget& window) {
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  template <class Widget = QWidget>
  static Widget& find(const QWidget& in, QAnyStringView name) {
    auto* found = in.findChild<Widget*>(name.toString());
    EXPECT_NE(found, nullptr) << fromQt(name.toString());
    return *found;
  }
  // Of labels, with a stroke between two of them.
  static std::string textOf(const QWidget& in, const char* first, auto... others) {
    return (fromQt(find<QLabel>(in, first).text()) + ... + ("|" + fromQt(find<QLabel>(in, others).text())));
  }
  static constexpr unsigned kFive = 0b111110; // entries 1 to 5

  TemporaryFolder folder;
  Disk disk;
  ProfileStore store{disk};
  ManualTime time;
  Texts texts;
  Settings settings{store, folder.path()};
  ScriptedDialogs dialogs;
};

} // namespace hooptab
