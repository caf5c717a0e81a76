// The colour settings: colours of the court and of the live window's buttons, labels of the user's two
// statistics, and a picture of what they will look like. What is applied goes to the settings at once; that
// open windows follow is the main window's affair.
#pragma once

#include "appearance/Theme.h"
#include "court/CourtColourChoice.h"

#include <QDialog>

#include <vector>

class QCheckBox;
class QGridLayout;
class QLineEdit;
class QPushButton;

namespace hooptab {

class CourtView;
class Dialogs;

class frmCOULEURS : public QDialog {
  Q_OBJECT

 public:
  frmCOULEURS(Settings& settings, const Texts& texts, Dialogs& dialogs, QWidget* parent = nullptr);

  void relabelWindow();           // the language has changed
  CourtStrength strength() const; // as applied, or chosen
  void reject() override;         // asks when there are changes that are not applied

 signals:
  void applied();
  void languageAsked(); // F12

 private:
  struct ColourButton {
    QPushButton* button;
    std::uint32_t ChosenColours::*colour;
  };
  QWidget* makeColours();
  QWidget* makeLabels();
  QWidget* makePreview();
  QWidget* makePresets();
  void addColour(QGridLayout& rows, const char* name, Text text, std::uint32_t ChosenColours::*colour);
  void addLabel(QGridLayout& rows, std::size_t which, const char* name, Text text);
  QPushButton* makeButton(const char* name, Text text, Text toolTip);
  void chooseColour(std::uint32_t ChosenColours::*colour);
  void showLabels();
  void showColours();
  bool apply();

  Settings& m_settings;
  const Texts& m_texts;
  Dialogs& m_dialogs;
  CourtColourChoice m_choice;
  std::vector<ColourButton> m_colours;
  QLineEdit* m_labels[2] = {};
  CourtView* m_court = nullptr;
  QCheckBox* m_asSet = nullptr; // not calmer
  QPushButton* m_sample = nullptr;
};

} // namespace hooptab
