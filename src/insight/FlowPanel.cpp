#include "insight/FlowPanel.h"

#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "insight/FlowCanvas.h"
#include "insight/FlowLegend.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QVBoxLayout>

#include <utility>

namespace hooptab {

FlowPanel::FlowPanel(const Texts& texts, QWidget* parent)
    : QWidget(parent), m_texts(texts), m_canvas(new FlowCanvas(texts)), m_legend(new FlowLegend(texts, this)),
      m_chances(new QCheckBox(this)) {
  setObjectName(QStringLiteral("pnlFLOW"));
  // Two full rosters on a low screen are scrolled, the chart with them, so that one time stays above the
  // other.
  auto* area = new QScrollArea(this);
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidget(m_canvas);
  area->viewport()->setAutoFillBackground(false);
  m_canvas->setAutoFillBackground(false);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(Theme::measure()(4));
  layout->addWidget(area, 1);
  auto* below = new QHBoxLayout;
  below->setSpacing(Theme::measure()(16));
  below->addWidget(m_legend, 1);
  below->addWidget(m_chances);
  layout->addLayout(below);
  m_chances->setObjectName(QStringLiteral("chkCHANCES"));
  Theme::setType(*m_chances, Type::Small);
  setTextNumber(*m_chances, Text::WinProbability);
  setToolTipNumber(*m_chances, Text::WinProbabilityNote);
  connect(m_chances, &QCheckBox::toggled, this, [this](bool areShown) {
    m_canvas->showChances(areShown);
    m_legend->showChances(areShown);
  });
  connect(m_canvas, &FlowCanvas::stretchChosen, this, &FlowPanel::stretchChosen);
  connect(m_canvas, &FlowCanvas::stretchCleared, this, &FlowPanel::stretchCleared);
  connect(m_canvas, &FlowCanvas::eventAsked, this, &FlowPanel::eventAsked);
  relabelPanel();
}

void FlowPanel::showGame(std::shared_ptr<const CountedGame> counted) {
  m_canvas->showGame(std::move(counted));
  m_chances->setVisible(m_canvas->hasTime());
}

void FlowPanel::showStretch(const std::optional<Stretch>& stretch) {
  m_canvas->showStretch(stretch);
}

void FlowPanel::applyColours() {
  m_canvas->update();
  m_legend->update();
}

void FlowPanel::relabelPanel() {
  relabel(*this, m_texts);
  m_canvas->relabelCanvas();
  m_legend->update();
}

} // namespace hooptab
