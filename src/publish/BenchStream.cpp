#include "publish/BenchStream.h"

namespace hooptab {

void BenchStream::show(const std::string& figures) {
  auto frame = std::make_shared<const std::string>("data: " + figures + "\n\n");
  if (m_frame && *m_frame == *frame)
    return;
  m_frame = std::move(frame);
  tell(m_frame);
}

std::vector<WebStream::Frame> BenchStream::since(std::string_view /*lastId*/) {
  return m_frame ? std::vector{m_frame} : std::vector<Frame>();
}

void BenchStream::beat(std::int64_t now) {
  tell(std::make_shared<const std::string>("event: beat\ndata: {\"at\":" + std::to_string(now) + "}\n\n"));
}

} // namespace hooptab
