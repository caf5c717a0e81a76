#include "shell/DialogLanguage.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace hooptab {

DialogLanguage::~DialogLanguage() {
  QCoreApplication::removeTranslator(&m_french);
}

void DialogLanguage::set(Language language) {
  QCoreApplication::removeTranslator(&m_french);
  if (language != Language::French)
    return;
  const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  if (!m_french.isEmpty() || m_french.load(QStringLiteral("qtbase_fr"), folder))
    QCoreApplication::installTranslator(&m_french);
}

} // namespace hooptab
