#include "studies/SavedViews.h"

#include "appearance/PlainText.h"
#include "appearance/relabel.h"

#include <QLineEdit>
#include <QMenu>
#include <QWidgetAction>

namespace hooptab {

SavedViews::SavedViews(const Texts& texts, QWidget* parent)
    : QToolButton(parent), m_texts(texts), m_menu(new QMenu(this)) {
  setObjectName(QStringLiteral("cmdVIEWS"));
  setAutoRaise(true);
  setPopupMode(QToolButton::InstantPopup);
  setMenu(m_menu);
  setToolTipNumber(*this, Text::SavedViews);
  setAccessibleNumber(*this, Text::SavedViews);
  connect(m_menu, &QMenu::aboutToShow, this, &SavedViews::fillMenu);
}

void SavedViews::fillMenu() {
  m_menu->clear();
  auto* name = new QLineEdit(m_menu);
  name->setObjectName(QStringLiteral("txtVIEWNAME"));
  name->setPlaceholderText(caption(m_texts, Text::ViewName));
  name->setAccessibleName(caption(m_texts, Text::ViewName));
  auto* field = new QWidgetAction(m_menu);
  field->setDefaultWidget(name);
  m_menu->addAction(field);
  QAction* keep = m_menu->addAction(caption(m_texts, Text::SaveView));
  keep->setEnabled(false);
  connect(name, &QLineEdit::textChanged, keep,
          [keep](const QString& text) { keep->setEnabled(!text.trimmed().isEmpty()); });
  connect(keep, &QAction::triggered, this, [this, name] { emit keepAsked(name->text().trimmed()); });
  connect(name, &QLineEdit::returnPressed, keep, [this, keep] {
    keep->trigger();
    m_menu->close();
  });
  if (m_views.isEmpty())
    return;
  m_menu->addSeparator();
  auto* remove = new QMenu(caption(m_texts, Text::DeleteView), m_menu);
  for (auto view = m_views.cbegin(); view != m_views.cend(); ++view) {
    const QString shown = withoutMnemonic(view.key());
    connect(m_menu->addAction(shown), &QAction::triggered, this,
            [this, state = view.value()] { emit viewAsked(state); });
    connect(remove->addAction(shown), &QAction::triggered, this,
            [this, key = view.key()] { m_views.remove(key); });
  }
  m_menu->addSeparator();
  m_menu->addMenu(remove);
}

} // namespace hooptab
