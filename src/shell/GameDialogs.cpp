#include "shell/GameDialogs.h"

#include "appearance/Dialogs.h"
#include "appearance/relabel.h"
#include "settings/Settings.h"
#include "shell/Refusals.h"
#include "shell/Workshop.h"

#include <QDir>

namespace hooptab {

QString askForGame(const Workshop& workshop, QWidget* window, Text title) {
  const Texts& texts = workshop.texts;
  return workshop.dialogs.chooseFile(window, toQt(texts.text(title)), toQt(workshop.settings.lastGameFolder),
                                     fileFilter(toQt(texts.text(Text::GameFilter))));
}

QString refusal(const Workshop& workshop, GameFileProblem problem, const QString& path) {
  return toQt(workshop.texts.withPlaceholder(refusalText(problem), fromQt(QDir::toNativeSeparators(path))));
}

void refuse(const Workshop& workshop, QWidget* window, GameFileProblem problem, const QString& path) {
  workshop.dialogs.warn(window, toQt(workshop.texts.text(Text::ErrorTitle)),
                        refusal(workshop, problem, path));
}

} // namespace hooptab
