// A picture of a numeric keypad with what each key does, for the window that binds the keys and for the cheat
// sheet. Says which key was clicked; binds nothing.
#pragma once

#include "keypad/KeypadAssignment.h"

#include <QWidget>

#include <vector>

class QPushButton;

namespace hooptab {

class KeypadPicture : public QWidget {
  Q_OBJECT
 public:
  explicit KeypadPicture(QWidget* parent = nullptr);

  // With the action at `marked` standing out, if there is one.
  void showKeys(const KeypadSetup& setup, const Texts& texts,
                std::optional<KeypadAction> marked = std::nullopt);

 signals:
  void keyClicked(int code);

 private:
  struct PicturedKey {
    QPushButton* button;
    int code;
  };
  std::vector<PicturedKey> m_keys;
};

// "PF", or the short text of the first four: "Clock".
[[nodiscard]] QString shortNameOf(KeypadAction action, const Texts& texts);

} // namespace hooptab
