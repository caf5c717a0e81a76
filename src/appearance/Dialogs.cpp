#include "appearance/Dialogs.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QMessageBox>
#include <QUrl>

namespace hooptab {

QString QtDialogs::chooseFile(QWidget* parent, const QString& title, const QString& folder,
                              const QString& filter) {
  return QFileDialog::getOpenFileName(parent, title, folder, filter);
}

void QtDialogs::inform(QWidget* parent, const QString& title, const QString& text) {
  QMessageBox::information(parent, title, text);
}

void QtDialogs::warn(QWidget* parent, const QString& title, const QString& text) {
  QMessageBox::warning(parent, title, text);
}

bool QtDialogs::ask(QWidget* parent, const QString& title, const QString& text) {
  return QMessageBox::question(parent, title, text) == QMessageBox::Yes;
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
