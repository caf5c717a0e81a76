// Answers dialogs in the user's place, as the test laid down before, and remembers what was shown.
#pragma once

#include "appearance/Dialogs.h"

#include <QUrl>
#include <vector>

namespace hooptab {

class ScriptedDialogs : public Dialogs {
 public:
  enum class Kind { Inform, Warn, Complain, Ask, AskToSave };
  struct Shown {
    Kind kind;
    QString title;
    QString text;
    friend bool operator==(const Shown&, const Shown&) = default;
  };

  QString nextFile; // empty: the user cancels
  QStringList nextFiles;
  QString nextFileToSave;
  QString nextFolder;
  QColor nextColour; // not valid: the user cancels
  bool nextAnswer = false;
  SaveChoice nextSaveChoice = SaveChoice::Stay;
  bool opensDocuments = true;

  std::vector<Shown> shown;
  QString lastFilter;
  QString lastFolder;
  QString lastProposed;
  QColor lastColour;
  QList<QUrl> opened;

  QString chooseFile(QWidget*, const QString&, const QString& folder, const QString& filter) override {
    lastFolder = folder;
    lastFilter = filter;
    return nextFile;
  }
  QStringList chooseFiles(QWidget*, const QString&, const QString& folder, const QString& filter) override {
    lastFolder = folder;
    lastFilter = filter;
    return nextFiles;
  }
  QString chooseFolder(QWidget*, const QString&, const QString& folder) override {
    lastFolder = folder;
    return nextFolder;
  }
  QString chooseFileToSave(QWidget*, const QString&, const QString& proposed, const QString& filter,
                           const QString&) override {
    lastProposed = proposed;
    lastFilter = filter;
    return nextFileToSave;
  }
  QColor chooseColour(QWidget*, const QString&, const QColor& current) override {
    lastColour = current;
    return nextColour;
  }
  void inform(QWidget*, const QString& title, const QString& text) override {
    shown.push_back({Kind::Inform, title, text});
  }
  void warn(QWidget*, const QString& title, const QString& text) override {
    shown.push_back({Kind::Warn, title, text});
  }
  void complain(QWidget*, const QString& title, const QString& text) override {
    shown.push_back({Kind::Complain, title, text});
  }
  SaveChoice askToSave(QWidget*, const QString& title, const QString& text) override {
    shown.push_back({Kind::AskToSave, title, text});
    return nextSaveChoice;
  }
  bool ask(QWidget*, const QString& title, const QString& text) override {
    shown.push_back({Kind::Ask, title, text});
    return nextAnswer;
  }
  bool openDocument(const QUrl& document) override {
    opened << document;
    return opensDocuments;
  }
};

} // namespace hooptab
