#include "appearance/BackgroundWork.h"

#include <exception>
#include <system_error>
#include <utility>

namespace hooptab {

BackgroundWork::~BackgroundWork() {
  if (m_thread.joinable())
    m_thread.join();
}

void BackgroundWork::start(std::function<Delivery()> work) {
  m_isRunning = true;
  try {
    m_thread = std::thread([this, work = std::move(work)] {
      Delivery delivery;
      try {
        delivery = work();
      } catch (const std::exception&) { // too much for this computer's memory
        delivery = [this] { emit failed(); };
      }
      endWith(std::move(delivery));
    });
  } catch (const std::system_error&) { // the system has no more threads
    endWith([this] { emit failed(); });
  }
}

// Queued for this object: dropped when it is gone by then, and never before its owner shows that work began.
void BackgroundWork::endWith(Delivery delivery) {
  QMetaObject::invokeMethod(
      this,
      [this, delivery = std::move(delivery)] {
        if (m_thread.joinable())
          m_thread.join();
        m_isRunning = false;
        delivery();
        emit finished();
      },
      Qt::QueuedConnection);
}

} // namespace hooptab
