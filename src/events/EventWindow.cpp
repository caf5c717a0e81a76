#include "events/EventWindow.h"

#include "events/LiveEventList.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace hooptab {

namespace {

constexpr QSize kSize(460, 640);

} // namespace

EventWindow::EventWindow(LiveEventList& list, QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::WindowDoesNotAcceptFocus),
      m_list(new LiveEventList(QStringLiteral("lvwEVENTS"), *list.model(), this)) {
  setObjectName(QStringLiteral("frmEVENTS"));
  setAttribute(Qt::WA_ShowWithoutActivating);
  m_list->setFocusPolicy(Qt::NoFocus);
  m_list->setSelectionModel(list.selectionModel());
  m_list->addActions(list.actions());
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(m_list);
  applyColours();
}

void EventWindow::applyColours() {
  m_list->applyColours();
}

void EventWindow::open(const QByteArray& geometry) {
  if (!restoreGeometry(geometry)) {
    const QScreen* here = parentWidget()->screen();
    const QList<QScreen*> screens = QGuiApplication::screens();
    const auto other =
        std::ranges::find_if(screens, [here](const QScreen* screen) { return screen != here; });
    const QRect room = (other == screens.end() ? here : *other)->availableGeometry();
    resize(kSize.boundedTo(room.size()));
    move(room.center() - rect().center());
  }
  show();
}

void EventWindow::closeEvent(QCloseEvent* event) {
  QWidget::closeEvent(event);
  if (event->spontaneous())
    emit closed();
}

} // namespace hooptab
