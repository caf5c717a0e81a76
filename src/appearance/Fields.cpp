#include "appearance/Fields.h"

#include "appearance/relabel.h"
#include "storage/codepage.h"

#include <QEvent>
#include <QLineEdit>
#include <QTimer>
#include <QToolTip>
#include <QValidator>

namespace hooptab {

namespace {

constexpr int kNoMoreFits = 1810;

class SelectOnFocus : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::FocusIn) {
      auto* field = qobject_cast<QLineEdit*>(watched);
      // Later: the press of the mouse that brought the focus is still to come, and would take the selection
      // away.
      if (field != nullptr && field->text().size() > 1)
        QTimer::singleShot(0, field, &QLineEdit::selectAll);
    }
    return QObject::eventFilter(watched, event);
  }
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

void selectOnFocus(QWidget& window) {
  auto* filter = new SelectOnFocus(&window);
  for (QLineEdit* field : window.findChildren<QLineEdit*>())
    field->installEventFilter(filter);
}

void limitField(QLineEdit& field, std::function<bool(const std::string& text)> fits, const Texts& texts) {
  field.setValidator(new FieldLimit(&field, std::move(fits)));
  QObject::connect(&field, &QLineEdit::inputRejected, &field, [&field, &texts] {
    QToolTip::showText(field.mapToGlobal(QPoint(0, field.height() / 2)), caption(texts, kNoMoreFits), &field);
  });
}

void limitField(QLineEdit& field, const Texts& texts, std::size_t bytes) {
  limitField(
      field, [bytes](const std::string& text) { return codepage::fromUtf8(text).size() <= bytes; }, texts);
}

} // namespace hooptab
