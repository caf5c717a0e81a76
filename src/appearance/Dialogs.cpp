#include "appearance/Dialogs.h"

#include "appearance/Theme.h"
#include "settings/Settings.h"

#include <QColorDialog>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QUrl>

namespace hooptab {

namespace {

// What it says is text: names and paths stand in it.
QMessageBox::StandardButton say(QWidget* parent, QMessageBox::Icon sign, const QString& title,
                                const QString& text, QMessageBox::StandardButtons answers = QMessageBox::Ok,
                                QMessageBox::StandardButton usual = QMessageBox::NoButton) {
  QMessageBox box(sign, title, text, answers, parent);
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(usual);
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

} // namespace

QString QtDialogs::chooseFile(QWidget* parent, const QString& title, const QString& folder,
                              const QString& filter) {
  return QFileDialog::getOpenFileName(parent, title, folder, filter);
}

QStringList QtDialogs::chooseFiles(QWidget* parent, const QString& title, const QString& folder,
                                   const QString& filter) {
  return QFileDialog::getOpenFileNames(parent, title, folder, filter);
}

QString QtDialogs::chooseFolder(QWidget* parent, const QString& title, const QString& folder) {
  return QFileDialog::getExistingDirectory(parent, title, folder);
}

QString QtDialogs::chooseFileToSave(QWidget* parent, const QString& title, const QString& proposed,
                                    const QString& filter, const QString& ending) {
  QFileDialog dialog(parent, title, QFileInfo(proposed).path(), filter);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  dialog.setDefaultSuffix(ending);
  dialog.selectFile(QFileInfo(proposed).fileName());
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QColor QtDialogs::chooseColour(QWidget* parent, const QString& title, const QColor& current) {
  if (!m_hasCustomColours) {
    int place = 0;
    for (const std::uint32_t colour : customColours())
      QColorDialog::setCustomColor(place++, colourOf(colour));
    m_hasCustomColours = true;
  }
  return QColorDialog::getColor(current, parent, title);
}

void QtDialogs::inform(QWidget* parent, const QString& title, const QString& text) {
  say(parent, QMessageBox::Information, title, text);
}

void QtDialogs::warn(QWidget* parent, const QString& title, const QString& text) {
  say(parent, QMessageBox::Warning, title, text);
}

void QtDialogs::complain(QWidget* parent, const QString& title, const QString& text) {
  say(parent, QMessageBox::Critical, title, text);
}

bool QtDialogs::ask(QWidget* parent, const QString& title, const QString& text) {
  return say(parent, QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No,
             QMessageBox::No) == QMessageBox::Yes;
}

SaveChoice QtDialogs::askToSave(QWidget* parent, const QString& title, const QString& text) {
  switch (say(parent, QMessageBox::Question, title, text,
              QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save)) {
  case QMessageBox::Save: return SaveChoice::Save;
  case QMessageBox::Discard: return SaveChoice::Discard;
  default: return SaveChoice::Stay;
  }
}

bool QtDialogs::openDocument(const QUrl& document) {
  return QDesktopServices::openUrl(document);
}

QString fileFilter(const QString& tableText) {
  const QStringList parts = tableText.split(u'|');
  QStringList filters;
  for (qsizetype pair = 0; pair + 1 < parts.size(); pair += 2) {
    // The name may carry the pattern in brackets already, which would be shown twice.
    const QString name = parts[pair].section(u'(', 0, 0).trimmed();
    const QString& pattern = parts[pair + 1];
    filters << QStringLiteral("%1 (%2 %3)").arg(name, pattern.toUpper(), pattern.toLower());
  }
  return filters.join(QStringLiteral(";;"));
}

} // namespace hooptab
