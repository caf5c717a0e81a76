// A menu that holds nobody up: a click elsewhere and any key that is not the menu's own close it, choose
// nothing, and are then carried out as what they are. Deleted when it closes.
#pragma once

#include <QMenu>

namespace hooptab {

class PassingMenu : public QMenu {
 public:
  explicit PassingMenu(QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

// What came over a widget has kept a key from the shortcuts of the windows below it, and has closed: the key
// does there what it always does.
void handOn(const QKeyEvent& event, QWidget& below);

} // namespace hooptab
