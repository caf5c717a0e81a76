// Binds the keys of the live window: the external keypad's, the letters of the main keyboard, and how one is
// told what was recorded. What is saved goes to the settings at once; that an open live window follows, and
// where the letters are remembered, is the main window's affair.
#pragma once

#include "keypad/KeypadAssignment.h"

#include <QDialog>

#include <array>

class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace hooptab {

class Dialogs;
class KeyField;
class KeypadPicture;
class Settings;

class frmConfiguration : public QDialog {
  Q_OBJECT
 public:
  // All must outlive it.
  frmConfiguration(const KeypadSetup& setup, Settings& settings, const Texts& texts, Dialogs& dialogs,
                   QWidget* parent = nullptr);

  const KeypadSetup& saved() const { return m_saved; }
  void relabelWindow();   // the language has changed
  void reject() override; // asks when there are changes that are not saved

 signals:
  void applied();       // saved() is new
  void languageAsked(); // F12

 private:
  QWidget* makeKeys();
  QWidget* makeLetters();
  QWidget* makeOptions();
  QLayout* makeButtons();
  void bind(KeypadAction action, int code);
  void showSetup();
  void showNotice(bool canBeSaved);
  bool save();
  [[nodiscard]] QString wordsOfLetter(std::size_t what) const;

  Settings& m_settings;
  const Texts& m_texts;
  Dialogs& m_dialogs;
  KeypadSetup m_saved;
  KeypadSetup m_setup; // as shown
  std::array<KeyField*, kKeypadActions> m_keys = {};
  std::array<KeyField*, LetterAssignment::kCount> m_letters = {};
  std::array<QLabel*, LetterAssignment::kCount> m_letterCaptions = {};
  std::optional<KeypadAction> m_current; // whose box has the focus
  KeypadPicture* m_picture = nullptr;
  QCheckBox* m_flashes = nullptr;
  QCheckBox* m_sounds = nullptr;
  QLabel* m_notice = nullptr;
  QPushButton* m_save = nullptr;
};

} // namespace hooptab
