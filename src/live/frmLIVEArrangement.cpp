// How the live window and those beside it were left, and the window for the bench.
#include "assistant/frmBENCH.h"
#include "events/LiveEventPanel.h"
#include "live/BenchPanel.h"
#include "live/frmLIVE.h"

#include <QGuiApplication>

namespace hooptab {

namespace {

constexpr const char* kRowsStay = "rows-stay";
constexpr const char* kRowsChange = "rows-change";
constexpr const char* kPlacesStay = "places-stay";
constexpr const char* kEventsOpen = "events-open"; // and in the next word where
constexpr const char* kEventsClosed = "events-closed";
constexpr const char* kBenchOpen = "bench-open"; // the same of the bench's window
constexpr const char* kBenchClosed = "bench-closed";
constexpr const char* kBenchOfHome = "bench-of-home";

} // namespace

void frmLIVE::switchBench() {
  if (m_assistant != nullptr && m_assistant->isInSight())
    return m_assistant->hide();
  if (m_assistant != nullptr)
    return m_assistant->comeToFront();
  m_assistant = new frmBENCH(m_session, m_texts, this);
  m_assistant->setTeam(m_assistantTeam);
  m_assistant->open(m_assistantPlace);
}

QByteArray frmLIVE::arrangement() const {
  QByteArrayList kept = {m_rowsStay ? kRowsStay : kRowsChange}; // never empty, which would not be remembered
  if (m_bench->placesStay())
    kept << kPlacesStay;
  if (const QByteArray place = m_events->windowPlace(); !place.isEmpty())
    kept << (m_events->hasWindow() ? kEventsOpen : kEventsClosed) << place.toBase64();
  if (const QByteArray place = m_assistant != nullptr ? m_assistant->saveGeometry() : m_assistantPlace;
      !place.isEmpty())
    kept << (m_assistant != nullptr && m_assistant->isVisible() ? kBenchOpen : kBenchClosed)
         << place.toBase64();
  if ((m_assistant != nullptr ? m_assistant->team() : m_assistantTeam) == Side::Home)
    kept << kBenchOfHome;
  return kept.join(' ');
}

void frmLIVE::restoreArrangement(const QByteArray& arrangement) {
  const QByteArrayList kept = arrangement.split(' ');
  m_rowsStay = kept.contains(kRowsStay);
  m_bench->setPlacesStay(kept.contains(kPlacesStay));
  const bool hasWindow = kept.contains(kEventsOpen);
  if (const qsizetype at = kept.indexOf(hasWindow ? kEventsOpen : kEventsClosed); at >= 0)
    m_events->restoreWindow(QByteArray::fromBase64(kept.value(at + 1)), hasWindow);
  m_session.change()->setKeepsPlaces(m_bench->placesStay());
  m_assistantTeam = kept.contains(kBenchOfHome) ? Side::Home : Side::Visitor;
  const bool hasBench = kept.contains(kBenchOpen);
  if (const qsizetype at = kept.indexOf(hasBench ? kBenchOpen : kBenchClosed); at >= 0)
    m_assistantPlace = QByteArray::fromBase64(kept.value(at + 1));
  if (hasBench && QGuiApplication::screens().size() > 1) // on one screen it would lie over the panels
    switchBench();
  showSides();
}

} // namespace hooptab
