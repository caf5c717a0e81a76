// A game of totals that is open in its window, on a disk of its own.
#pragma once

#include "appearance/Theme.h"
#include "court/CourtView.h"
#include "manual/TotalsTable.h"
#include "manual/frmMANUAL.h"
#include "support/TextGame.h"
#include "support/WindowRoom.h"

#include <QApplication>
#include <QComboBox>

namespace hooptab {

class OpenManualGame : public WindowTest<frmMANUAL> {
 protected:
  void SetUp() override {
    Theme::apply(*qApp, ColourScheme::Light);
    (void)settings.prepare(texts);
    path = folder.path("A.GAM");
    ASSERT_NO_FATAL_FAILURE(makeGame());
    window = std::make_unique<frmMANUAL>(store, settings, texts, dialogs);
    window->resize(1350, 640);
    ASSERT_NO_FATAL_FAILURE(showActive(*window));
    ASSERT_TRUE(window->open(toQt(path)));
  }
  virtual void makeGame() { folder.write("A.GAM", textOfGame("", "INPUTTYPE=1\n")); }
  QLabel& nameOf(int slot) const { return find<QLabel>("lblNom(" + std::to_string(slot) + ")"); }
  TotalsTable& table() const { return find<TotalsTable>("tblTOTALS"); }

  std::string path;
};

} // namespace hooptab
