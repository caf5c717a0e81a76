// What is known of one game of an import: notes, differences from the file's own box, and, where several
// files fit it, the choice of one. Only shows, and tells what is chosen.
#pragma once

#include "exchange/GameImport.h"
#include "settings/Texts.h"

#include <QWidget>

class QComboBox;
class QListWidget;
class QSplitter;

namespace hooptab {

class ElidedLabel;
class RowTable;

class ImportDetails : public QWidget {
  Q_OBJECT
 public:
  ImportDetails(const Texts& texts, QWidget* parent); // texts must outlive it

  void show(const ImportedGame* game); // null: of none
  using QWidget::show;
  void relabelPanel();
  void fitToFont();
  void setChoosing(bool isOn); // false while there is work under way

 signals:
  void fileChosen(const QString& path); // empty: none of those that fit

 private:
  void showChoice();

  const Texts& m_texts;
  ImportedGame m_game;
  QWidget* m_choice;
  ElidedLabel* m_question;
  QComboBox* m_files;
  QListWidget* m_notes;
  RowTable* m_differences;
};

} // namespace hooptab
