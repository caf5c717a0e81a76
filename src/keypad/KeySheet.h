// The cheat sheet: which key does what at present, on the keypad and on the main keyboard. Lies over the live
// window and takes no key, so that one can try out what one reads; a click closes it.
#pragma once

#include "keypad/KeypadAssignment.h"

#include <QFrame>

class QLabel;

namespace hooptab {

class KeypadPicture;

class KeySheet : public QFrame {
  Q_OBJECT
 public:
  // `texts` must outlive it.
  KeySheet(const Texts& texts, QWidget* parent);

  void showSetup(const KeypadSetup& setup, bool keypadIsActive);

 protected:
  void mousePressEvent(QMouseEvent* event) override;

 private:
  const Texts& m_texts;
  KeypadPicture* m_picture = nullptr;
  QLabel* m_league = nullptr;
  QLabel* m_letters = nullptr;
  QLabel* m_off = nullptr;
};

// An action in words: "personal foul".
[[nodiscard]] std::string wordsOfAction(KeypadAction action, const Texts& texts);

} // namespace hooptab
