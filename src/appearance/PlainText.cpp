#include "appearance/PlainText.h"

#include <QWidget>

namespace hooptab {

namespace {

constexpr QLatin1String kModifiedMark("[*]"); // twice: the letters themselves

} // namespace

QString withoutMnemonic(QString text) {
  return text.replace(u'&', QLatin1String("&&"));
}

QString asTitle(QString text) {
  return text.replace(kModifiedMark, QLatin1String("[*][*]"));
}

QString shownTitle(const QWidget& window) {
  QString title = window.windowTitle();
  for (qsizetype at = title.indexOf(kModifiedMark); at >= 0; at = title.indexOf(kModifiedMark, at)) {
    title.remove(at, kModifiedMark.size());
    if (title.mid(at).startsWith(kModifiedMark))
      at += kModifiedMark.size();
  }
  return title;
}

} // namespace hooptab
