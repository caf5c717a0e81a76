#include "insight/FlowPanel.h"

#include "insight/MarginChart.h"

#include <QBoxLayout>

namespace hooptab {

FlowPanel::FlowPanel(const Texts& texts, QWidget* parent)
    : QWidget(parent), m_chart(new MarginChart(texts, this)) {
  setObjectName(QStringLiteral("flow"));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(m_chart);
}

void FlowPanel::showGame(std::shared_ptr<const CountedGame> game) {
  m_chart->showGame(std::move(game));
}

void FlowPanel::showStretch(const std::optional<Stretch>& stretch) {
  m_stretch = stretch;
}

} // namespace hooptab
