// The window in which a game is exported: as what, and to which folder. Shows the files before it writes
// them, and asks before one gives way. Which kinds there are is the caller's list.
#pragma once

#include "exchange/ExportKinds.h"
#include "settings/Texts.h"

#include <QDialog>
#include <QStringList>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace hooptab {

class Dialogs;
class FileSystem;

class frmEXPORT : public QDialog {
  Q_OBJECT
 public:
  struct Choice {
    std::string kind; // its key
    std::string folder;
    bool follows = false; // written anew after each event
  };
  // Files, texts and dialogs must outlive it. It begins with the choice of the last time.
  frmEXPORT(GameToExport game, std::vector<ExportKind> kinds, const Choice& last, FileSystem& files,
            const Texts& texts, Dialogs& dialogs, QWidget* parent = nullptr);

  [[nodiscard]] Choice choice() const;

 private:
  void addHead();
  void addFields();
  void addAnswers();
  void browse();
  void showFiles();
  void write();
  [[nodiscard]] QString pathOf(const ExportedFile& file) const;

  GameToExport m_game;
  std::vector<ExportKind> m_kinds;
  FileSystem& m_system;
  const Texts& m_texts;
  Dialogs& m_dialogs;
  std::vector<ExportedFile> m_files; // of the kind that is chosen
  QComboBox* m_kind = nullptr;
  QLineEdit* m_folder = nullptr;
  QCheckBox* m_follows = nullptr; // shown for a game that is being recorded
  QListWidget* m_names = nullptr;
  QPushButton* m_export = nullptr;
};

} // namespace hooptab
