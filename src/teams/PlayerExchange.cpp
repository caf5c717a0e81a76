#include "teams/PlayerExchange.h"

#include "appearance/Dialogs.h"
#include "appearance/relabel.h"
#include "storage/AtomicFile.h"
#include "storage/Module1.h"
#include "storage/codepage.h"
#include "teams/PlayerCsv.h"
#include "teams/TeamSheet.h"

#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QStringDecoder>
#include <utility>

namespace hooptab {

namespace {

constexpr qsizetype kMostLinesShown = 12; // of each list

// What the table does not say of a player stays as it is.
PlayerFields withKept(PlayerFields fields, const CsvPlayers& read, const TeamSheet& sheet) {
  const TeamSheet::Target target = sheet.target(fields);
  if (target.row < 0 || TeamSheet::isRefused(target.effect))
    return fields;
  const PlayerFields old = fieldsOf(sheet.players()[static_cast<std::size_t>(target.row)]);
  if (!read.hasPosition)
    fields.position = old.position;
  const std::pair<bool, std::string PlayerFields::*> texts[] = {{read.hasHeight, &PlayerFields::height},
                                                                {read.hasWeight, &PlayerFields::weight},
                                                                {read.hasAge, &PlayerFields::age},
                                                                {read.hasGrade, &PlayerFields::grade}};
  for (const auto& [isThere, text] : texts) {
    if (!isThere)
      fields.*text = old.*text;
  }
  return fields;
}

} // namespace

QString decodedText(const QByteArray& bytes) {
  if (const auto encoding = QStringConverter::encodingForData(bytes))
    return QStringDecoder(*encoding)(bytes);
  QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  const QString text = utf8(bytes);
  return utf8.hasError() ? toQt(codepage::toUtf8(bytes.toStdString())) : text;
}

PlayerExchange::PlayerExchange(FileSystem& files, const Texts& texts, Dialogs& dialogs)
    : m_files(files), m_texts(texts), m_dialogs(dialogs) {}

bool PlayerExchange::importFile(QWidget* parent, TeamSheet& sheet, const QString& folder) {
  const QString path = m_dialogs.chooseFile(parent, toQt(m_texts.text(Text::ImportTip)), folder,
                                            fileFilter(toQt(m_texts.text(Text::TableFilter))));
  if (path.isEmpty())
    return false;
  std::string bytes;
  FileStamp stamp;
  if (readWholeFile(m_files, fromQt(path), bytes, stamp) != ReadOutcome::Read) {
    m_dialogs.complain(
        parent, toQt(m_texts.text(Text::ErrorTitle)),
        toQt(m_texts.withPlaceholder(Text::FileCannotBeRead, fromQt(QDir::toNativeSeparators(path)))));
    return false;
  }
  return take(parent, sheet, decodedText(QByteArray::fromStdString(bytes)));
}

bool PlayerExchange::paste(QWidget* parent, TeamSheet& sheet) {
  return take(parent, sheet, QGuiApplication::clipboard()->text());
}

bool PlayerExchange::take(QWidget* parent, TeamSheet& sheet, const QString& text) {
  const CsvPlayers read = parsePlayersCsv(fromQt(text), m_texts);
  QStringList problems;
  for (const CsvProblem& problem : read.problems)
    problems << toQt(problemText(problem, m_texts));
  QStringList others; // players who are somebody else now, or have another number
  int taken = 0;
  for (const TeamPlayer& player : read.players) {
    const PlayerFields fields = withKept(fieldsOf(player), read, sheet);
    const TeamSheet::Effect effect = sheet.target(fields).effect;
    const QString words = toQt(sheet.announcement(fields, m_texts));
    if (effect == TeamSheet::Effect::Renames || effect == TeamSheet::Effect::Renumbers)
      others << words;
    if (sheet.put(fields) >= 0)
      ++taken;
    else
      problems << words;
  }

  QString message = taken == 0 && problems.isEmpty()
                        ? toQt(m_texts.text(Text::NoPlayers))
                        : toQt(m_texts.withPlaceholder(Text::PlayersTakenOver, std::to_string(taken)));
  const auto list = [&](Text title, const QStringList& lines) {
    if (lines.isEmpty())
      return;
    message += QStringLiteral("\n\n") + toQt(m_texts.text(title));
    for (const QString& line : lines.mid(0, kMostLinesShown))
      message += QStringLiteral("\n• ") + line;
    if (lines.size() > kMostLinesShown)
      message += QStringLiteral("\n• ") +
                 toQt(m_texts.withPlaceholder(Text::AndMore, std::to_string(lines.size() - kMostLinesShown)));
  };
  list(Text::OthersNow, others);
  list(Text::LeftOut, problems);
  if (problems.isEmpty() && others.isEmpty() && taken > 0)
    m_dialogs.inform(parent, toQt(m_texts.text(Text::ImportTip)), message);
  else
    m_dialogs.warn(parent, toQt(m_texts.text(Text::WarningTitle)), message);
  return taken > 0;
}

void PlayerExchange::exportFile(QWidget* parent, const TeamSheet& sheet, const QString& folder,
                                const QString& name) {
  const QString path = m_dialogs.chooseFileToSave(
      parent, toQt(m_texts.text(Text::ExportTip)),
      folder + u'/' + toQt(Module1::asFileName(fromQt(name))) + QStringLiteral(".csv"),
      fileFilter(toQt(m_texts.text(Text::TableFilter))), QStringLiteral("csv"));
  if (path.isEmpty())
    return;
  const std::string shown = fromQt(QDir::toNativeSeparators(path));
  FileStamp stamp;
  if (m_files.stamp(fromQt(path), stamp) &&
      !m_dialogs.ask(parent, toQt(m_texts.text(Text::WarningTitle)),
                     toQt(m_texts.withPlaceholder(Text::ReplaceFile, shown))))
    return;
  // With a byte order mark, by which spreadsheets know that it is UTF-8.
  const std::string content = "\xEF\xBB\xBF" + playersCsv(sheet.players(), m_texts);
  if (!replaceWholeFile(m_files, fromQt(path), content, stamp).isOnDisk())
    m_dialogs.complain(parent, toQt(m_texts.text(Text::ErrorTitle)),
                       toQt(m_texts.withPlaceholder(Text::NotWritten, shown)));
}

} // namespace hooptab
