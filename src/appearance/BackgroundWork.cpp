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
  try {
    m_thread = std::thread([this, work = std::move(work)] {
      Delivery delivery;
      try {
        delivery = work();
      } catch (const std::exception&) { // too much for this computer's memory
        delivery = [this] { emit failed(); };
      }
      // Queued for this object: dropped when it is gone by then.
      QMetaObject::invokeMethod(
          this,
          [this, delivery = std::move(delivery)] {
            m_thread.join();
            delivery();
            emit finished();
          },
          Qt::QueuedConnection);
    });
  } catch (const std::system_error&) { // the system has no more threads
    emit failed();
    emit finished();
  }
}

} // namespace hooptab
