// A game of totals that is open in its window, on a disk of its own.
#pragma once

#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "court/CourtView.h"
#include "manual/TotalsTable.h"
#include "manual/frmMANUAL.h"
#include "settings/Settings.h"
#include "support/ScriptedDialogs.h"
#include "support/TemporaryFolder.h"
#include "support/TextGame.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

namespace hooptab {

class OpenManualGame : public testing::Test {
 protected:
  void SetUp() override {
    Theme::apply(*qApp, ColourScheme::Light);
    (void)settings.prepare(texts);
    path = folder.path("A.GAM");
    ASSERT_NO_FATAL_FAILURE(makeGame());
    window = std::make_unique<frmMANUAL>(store, settings, texts, dialogs);
    window->resize(1350, 640);
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    ASSERT_TRUE(window->open(toQt(path)));
  }
  virtual void makeGame() { folder.write("A.GAM", textOfGame("", "INPUTTYPE=1\n")); }
  template <class Widget>
  Widget& find(const std::string& name) const {
    auto* found = window->findChild<Widget*>(toQt(name));
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }
  QLabel& nameOf(int slot) const { return find<QLabel>("lblNom(" + std::to_string(slot) + ")"); }
  TotalsTable& table() const { return find<TotalsTable>("tblTOTALS"); }
  // Texts of labels, with a stroke between two of them.
  std::string shown(const char* first, auto... others) const {
    return (fromQt(find<QLabel>(first).text()) + ... + ("|" + fromQt(find<QLabel>(others).text())));
  }

  TemporaryFolder folder;
  std::string path;
  FileSystem files;
  ProfileStore store{files};
  Texts texts;
  Settings settings{store, folder.path()};
  ScriptedDialogs dialogs;
  std::unique_ptr<frmMANUAL> window;
};

} // namespace hooptab
