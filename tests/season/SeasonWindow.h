// The window of the season, with ways to its widgets, and games written for it.
#pragma once

#include "season/frmSTATS.h"

#include "appearance/relabel.h"
#include "season/SeasonTableView.h"
#include "settings/Settings.h"
#include "simulator/SampleSeason.h"
#include "storage/ProfileStore.h"
#include "support/ScriptedDialogs.h"
#include "support/TemporaryFolder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

namespace hooptab {

class SeasonWindow : public testing::Test {
 protected:
  static void writeGames(const TemporaryFolder& into, int count, unsigned seed) {
    FileSystem files;
    ProfileStore store{files};
    const SampleSeason season(count, seed);
    for (int i = 0; i < count; ++i) {
      ASSERT_TRUE(store.write(into.path(std::to_string(i) + ".GAM"), season.game(i).batch()).isOnDisk());
    }
  }
  void makeWindow() {
    window = std::make_unique<frmSTATS>(files, settings, texts, dialogs);
    window->resize(1350, 640);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  }
  void wait() {
    ASSERT_TRUE(QTest::qWaitFor([this] { return !window->isBusy(); }, 60000));
  }
  void read(const std::string& folder, bool withSubfolders = false) {
    window->readFolder(toQt(folder), withSubfolders);
    wait();
  }
  void click(const char* name) {
    auto& button = find<QPushButton>(name);
    ASSERT_TRUE(button.isEnabled()) << name;
    button.click();
  }
  void generate() {
    click("cmdGENERATE");
    wait();
  }
  template <class Widget>
  Widget& find(const char* name) const {
    auto* found = window->findChild<Widget*>(QLatin1String(name));
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }
  SeasonTableView& table(const char* name) const { return find<SeasonTableView>(name); }
  int rows(const char* name) const { return table(name).model()->rowCount(); }
  QString cell(const char* name, int row, int column) const {
    return table(name).model()->index(row, column).data().toString();
  }

  TemporaryFolder programFolder;
  FileSystem files;
  ProfileStore store{files};
  Settings settings{store, programFolder.path()};
  Texts texts;
  ScriptedDialogs dialogs;
  std::unique_ptr<frmSTATS> window;
};

} // namespace hooptab
