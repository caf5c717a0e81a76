// The dialog in which the user makes a rating of his own: formula and head of its column, what is wrong with
// the formula as it is typed, and what it gives for a made-up line. What reads formulas is handed down; that
// open windows follow is the main window's affair.
#pragma once

#include "game/OwnRating.h"
#include "settings/Settings.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

namespace hooptab {

class Dialogs;

class frmRATING : public QDialog {
  Q_OBJECT

 public:
  // All must outlive it.
  frmRATING(Settings& settings, const FormulaReader& reader, const Texts& texts, Dialogs& dialogs,
            QWidget* parent = nullptr);

  void relabelWindow(); // the language has changed

 signals:
  void languageAsked(); // F12

 private:
  QLayout* makeFields();
  QLayout* makeButtons();
  void showReading();
  void save();

  Settings& m_settings;
  const FormulaReader& m_reader;
  const Texts& m_texts;
  Dialogs& m_dialogs;
  QLineEdit* m_formula;
  QLineEdit* m_name;
  QLabel* m_names;   // that a formula may use
  QLabel* m_example; // or what is wrong
  QPushButton* m_save = nullptr;
};

} // namespace hooptab
