// A card of the start page: one of the program's commands with its icon and key, and a line that says what is
// behind it. Pressing it triggers the command, or opens its menu.
#pragma once

#include "settings/Texts.h"
#include "welcome/PageButton.h"

class QAction;
class QMenu;

namespace hooptab {

class StartCard : public PageButton {
  Q_OBJECT
 public:
  // Looks and is called like the action. `line` is the number of the line's text.
  StartCard(QAction& action, Text line, const Texts& texts, QWidget* parent);
  StartCard(QMenu& menu, Text line, const Texts& texts, QWidget* parent);

  void relabelCard();
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void follow();
  [[nodiscard]] QSize signSize() const;
  [[nodiscard]] QString keyText() const;

  QAction& m_action;
  Text m_line;
  const Texts& m_texts;
};

} // namespace hooptab
