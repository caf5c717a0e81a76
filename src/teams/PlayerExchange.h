// Players from and to tables of text: a file or the clipboard into a sheet, and a sheet into a file. Talks to
// the user about what was left out and what could not be read or written.
#pragma once

#include <QString>

class QWidget;

namespace hooptab {

class Dialogs;
class FileSystem;
class TeamSheet;
class Texts;

class PlayerExchange {
 public:
  PlayerExchange(FileSystem& files, const Texts& texts, Dialogs& dialogs);

  // Each returns whether the sheet has changed.
  bool importFile(QWidget* parent, TeamSheet& sheet, const QString& folder);
  bool paste(QWidget* parent, TeamSheet& sheet);

  // `name` is proposed, without ending.
  void exportFile(QWidget* parent, const TeamSheet& sheet, const QString& folder, const QString& name);

 private:
  bool take(QWidget* parent, TeamSheet& sheet, const QString& text);

  FileSystem& m_files;
  const Texts& m_texts;
  Dialogs& m_dialogs;
};

// The text of a file as people's programs write them: as its byte order mark says, else UTF-8, else
// Windows-1252.
[[nodiscard]] QString decodedText(const QByteArray& bytes);

} // namespace hooptab
