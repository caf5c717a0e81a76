#include "events/EventWindow.h"

#include "appearance/OtherScreen.h"
#include "events/LiveEventList.h"

#include <QBoxLayout>
#include <QCloseEvent>

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
  showOnOtherScreen(*this, geometry, kSize);
}

void EventWindow::closeEvent(QCloseEvent* event) {
  QWidget::closeEvent(event);
  if (event->spontaneous())
    emit closed();
}

} // namespace hooptab
