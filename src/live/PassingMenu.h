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

} // namespace hooptab
