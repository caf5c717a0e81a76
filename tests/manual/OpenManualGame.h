// A game of totals that is open in its window, on a disk of its own.
#pragma once

#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "manual/frmMANUAL.h"
#include "settings/Settings.h"
#include "support/ScriptedDialogs.h"
#include "support/TemporaryFolder.h"
#include "support/TextGame.h"

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

namespace hooptab {

class OpenManualGame : public testing::Test {
 protected:
  void SetUp() override {
    Theme::apply(*qApp, ColourScheme::Light);
    (void)settings.prepare(texts);
    path = folder.write("A.GAM", textOfGame("", "INPUTTYPE=1\n"));
    window = std::make_unique<frmMANUAL>(store, settings, texts, dialogs);
    window->resize(1350, 640);
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    ASSERT_TRUE(window->open(toQt(path)));
  }

  template <class Widget>
  Widget& find(const char* name) const {
    auto* found = window->findChild<Widget*>(QLatin1String(name));
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }
  std::string shown(const char* label) const { return fromQt(find<QLabel>(label).text()); }

  TemporaryFolder folder;
  std::string path;
  FileSystem files;
  cinifile store{files};
  Texts texts;
  Settings settings{store, folder.path()};
  ScriptedDialogs dialogs;
  std::unique_ptr<frmMANUAL> window;
};

} // namespace hooptab
