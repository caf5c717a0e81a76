#include "events/DetailBoxes.h"

#include "appearance/Fields.h"
#include "appearance/relabel.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

#include <algorithm>

namespace hooptab {

DetailBoxes::DetailBoxes(QGridLayout& layout, int firstRow, QWidget& before, QWidget& window)
    : QObject(&window), m_layout(layout), m_firstRow(firstRow), m_before(before), m_window(window) {}

DetailBoxes::Box DetailBoxes::makeBox(const DetailChoice& choice) const {
  auto* values = new QComboBox(&m_window);
  values->setObjectName(QStringLiteral("cmbDETAIL(%1)").arg(toQt(choice.key)));
  for (const DetailChoice::Value& value : choice.values)
    values->addItem(toQt(value.words), toQt(value.value));
  values->setCurrentIndex(static_cast<int>(choice.held));
  return {std::string(choice.key), toQt(choice.values[choice.held].value),
          captionFor(*values, choice.caption), values};
}

void DetailBoxes::show(const std::vector<DetailChoice>& choices) {
  const std::vector<Box> old = std::exchange(m_boxes, {});
  QWidget* last = &m_before;
  for (const DetailChoice& choice : choices) {
    Box box = makeBox(choice);
    const auto before = std::ranges::find(old, box.key, &Box::key);
    const QVariant chosen = before == old.end() ? QVariant() : before->values->currentData();
    if (chosen.isValid() && chosen.toString() != before->held && box.values->findData(chosen) >= 0)
      box.values->setCurrentIndex(box.values->findData(chosen));
    connect(box.values, &QComboBox::currentIndexChanged, this, &DetailBoxes::changed);
    const int row = m_firstRow + static_cast<int>(m_boxes.size());
    m_layout.addWidget(box.caption, row, 0);
    m_layout.addWidget(box.values, row, 1);
    QWidget::setTabOrder(last, box.values);
    last = box.values;
    m_boxes.push_back(std::move(box));
  }
  for (const Box& box : old) {
    delete box.caption;
    delete box.values;
  }
}

std::vector<std::pair<std::string, std::string>> DetailBoxes::changes() const {
  std::vector<std::pair<std::string, std::string>> changes;
  for (const Box& box : m_boxes) {
    if (const QString value = box.values->currentData().toString(); value != box.held)
      changes.emplace_back(box.key, fromQt(value));
  }
  return changes;
}

} // namespace hooptab
