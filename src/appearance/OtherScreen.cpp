#include "appearance/OtherScreen.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace hooptab {

void showOnOtherScreen(QWidget& window, const QByteArray& geometry, QSize size) {
  if (!window.restoreGeometry(geometry)) {
    const QScreen* here = window.parentWidget()->screen();
    const QList<QScreen*> screens = QGuiApplication::screens();
    const auto other =
        std::ranges::find_if(screens, [here](const QScreen* screen) { return screen != here; });
    const QRect room = (other == screens.end() ? here : *other)->availableGeometry();
    window.resize(size.boundedTo(room.size()));
    window.move(room.center() - window.rect().center());
  }
  window.show();
}

} // namespace hooptab
