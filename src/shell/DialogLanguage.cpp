#include "shell/DialogLanguage.h"

#include "appearance/relabel.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace hooptab {

DialogLanguage::~DialogLanguage() {
  QCoreApplication::removeTranslator(&m_texts);
}

void DialogLanguage::set(Language language) {
  QCoreApplication::removeTranslator(&m_texts);
  if (language == Language::English) // Qt's own
    return;
  const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  if (m_texts.load(QStringLiteral("qtbase_") + toQt(factsOf(language).code), folder))
    QCoreApplication::installTranslator(&m_texts);
}

} // namespace hooptab
