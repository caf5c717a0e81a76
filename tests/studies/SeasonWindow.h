// The window of the season, with ways to its widgets, and games written for it.
#pragma once

#include "studies/frmSTATS.h"

#include "season/SeasonTableView.h"
#include "simulator/SampleSeason.h"
#include "support/WindowRoom.h"

#include <QCheckBox>
#include <QComboBox>
#include <QTabWidget>
#include <QToolButton>

namespace hooptab {

class SeasonWindow : public WindowTest<frmSTATS> {
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
    window = std::make_unique<frmSTATS>(disk, settings, texts, dialogs);
    window->resize(1350, 640);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  }
  void wait() {
    ASSERT_TRUE(QTest::qWaitFor([this] { return !window->isBusy(); }, 60000));
  }
  void read(const std::string& from, bool withSubfolders = false) {
    window->readFolder(toQt(from), withSubfolders);
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
  SeasonTableView& table(const char* name) const { return find<SeasonTableView>(name); }
  int rows(const char* name) const { return table(name).model()->rowCount(); }
  QString cell(const char* name, int row, int column) const {
    return table(name).model()->index(row, column).data().toString();
  }
};

} // namespace hooptab
