// The label of this program. What it shows is text, letter by letter: names come from the user and from files
// of others, and Qt's own label takes "<b>B</b>" for a command and loads the picture that an "<img>" names. A
// label whose text is written here may be given rich text, by its setTextFormat().
#pragma once

#include <QLabel>

namespace hooptab {

class PlainLabel : public QLabel {
  Q_OBJECT

 public:
  explicit PlainLabel(QWidget* parent = nullptr) : PlainLabel(QString(), parent) {}
  explicit PlainLabel(const QString& text, QWidget* parent = nullptr) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setText(text);
  }
};

} // namespace hooptab
