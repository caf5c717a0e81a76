#include "appearance/Fields.h"

#include "appearance/Icons.h"
#include "appearance/PlainLabel.h"
#include "appearance/relabel.h"
#include "storage/codepage.h"

#include <QAbstractItemView>
#include <QBoxLayout>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>
#include <QToolTip>
#include <QValidator>

namespace hooptab {

namespace {

class SelectOnFocus : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::FocusIn) {
      auto* field = qobject_cast<QLineEdit*>(watched);
      if (field == nullptr || field->text().size() <= 1)
        return false;
      // By mouse later: the press that brought the focus is still to come, and would take the selection away.
      if (static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason)
        QTimer::singleShot(0, field, &QLineEdit::selectAll);
      else
        field->selectAll();
    }
    return QObject::eventFilter(watched, event);
  }
};

class CallOnRelease : public QObject {
 public:
  CallOnRelease(QAbstractItemView& view, std::function<void()> act) : QObject(&view), m_act(std::move(act)) {}
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::MouseButtonRelease)
      m_act(); // the row was selected when the button was pressed, or while it was moved
    return QObject::eventFilter(watched, event);
  }

 private:
  std::function<void()> m_act;
};

class FieldLimit : public QValidator {
 public:
  FieldLimit(QObject* parent, std::function<bool(const std::string&)> fits)
      : QValidator(parent), m_fits(std::move(fits)) {}
  State validate(QString& text, int&) const override { return m_fits(fromQt(text)) ? Acceptable : Invalid; }

 private:
  std::function<bool(const std::string&)> m_fits;
};

} // namespace

QLabel* captionFor(QWidget& field, Text text) {
  setAccessibleNumber(field, text);
  setToolTipNumber(field, text);
  auto* label = new PlainLabel(field.parentWidget());
  label->setBuddy(&field);
  setTextNumber(*label, text);
  return label;
}

QPushButton* iconButton(const char* name, Text text, Text toolTip, const char* iconName, QWidget* parent) {
  auto* button = new QPushButton(parent);
  button->setObjectName(QLatin1String(name));
  button->setIcon(icon(QLatin1String(iconName)));
  button->setAutoDefault(false);
  setTextNumber(*button, text);
  setToolTipNumber(*button, toolTip);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    auto* press = new QShortcut(QKeySequence(key), button);
    press->setContext(Qt::WidgetShortcut);
    QObject::connect(press, &QShortcut::activated, button, &QPushButton::click);
  }
  return button;
}

QPushButton* addAnswer(QBoxLayout& answers, const char* name, Text text, QWidget* parent) {
  auto* button = new QPushButton(parent);
  button->setObjectName(QLatin1String(name));
  setTextNumber(*button, text);
  setToolTipNumber(*button, text);
  answers.addWidget(button);
  return button;
}

QLabel* noticeLabel(QWidget* parent) {
  constexpr int kMargin = 8;
  auto* notice = new PlainLabel(parent);
  notice->setObjectName(QStringLiteral("lblNOTICE"));
  notice->setAutoFillBackground(true);
  notice->setBackgroundRole(QPalette::Highlight);
  notice->setForegroundRole(QPalette::HighlightedText);
  notice->setContentsMargins(kMargin, kMargin / 2, kMargin, kMargin / 2);
  notice->setWordWrap(true);
  notice->hide();
  return notice;
}

void whenSelected(QAbstractItemView& view, std::function<void()> act) {
  view.viewport()->installEventFilter(new CallOnRelease(view, act));
  QObject::connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, &view,
                   [act = std::move(act)] {
                     if (QGuiApplication::mouseButtons() == Qt::NoButton)
                       act();
                   });
}

void selectOnFocus(QWidget& window) {
  auto* filter = new SelectOnFocus(&window);
  for (QLineEdit* field : window.findChildren<QLineEdit*>())
    field->installEventFilter(filter);
}

void limitField(QLineEdit& field, std::function<bool(const std::string& text)> fits, const Texts& texts) {
  field.setValidator(new FieldLimit(&field, std::move(fits)));
  QObject::connect(&field, &QLineEdit::inputRejected, &field, [&field, &texts] {
    if (!field.hasFocus()) // a longer text from a file is shown, not typed
      return;
    QToolTip::showText(field.mapToGlobal(QPoint(0, field.height() / 2)), caption(texts, Text::NoMoreFits),
                       &field);
  });
}

void limitField(QLineEdit& field, const Texts& texts, std::size_t bytes) {
  limitField(
      field, [bytes](const std::string& text) { return codepage::fromUtf8(text).size() <= bytes; }, texts);
}

} // namespace hooptab
