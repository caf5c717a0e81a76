// Puts Qt's own texts (buttons of message boxes, the file dialog) into the language of the program.
#pragma once

#include "settings/Texts.h"

#include <QTranslator>

namespace hooptab {

class DialogLanguage {
 public:
  DialogLanguage() = default;
  ~DialogLanguage();
  DialogLanguage(const DialogLanguage&) = delete;
  DialogLanguage& operator=(const DialogLanguage&) = delete;

  void set(Language language);

 private:
  QTranslator m_texts;
};

} // namespace hooptab
