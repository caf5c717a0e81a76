// What one bench is told, over and over as a whole: anew after each change and each second of a running
// clock, while anybody listens.
#pragma once

#include "publish/WebSource.h"

#include <string>

namespace hooptab {

class BenchStream : public WebStream {
 public:
  // JSON in one line.
  void show(const std::string& figures);
  [[nodiscard]] std::vector<Frame> since(std::string_view lastId) override;
  void beat(std::int64_t now);

 private:
  Frame m_frame;
};

} // namespace hooptab
