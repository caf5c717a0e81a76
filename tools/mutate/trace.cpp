// Writes, when a process ends, which basic blocks of ours it has run: the offsets of their addresses in each
// library, to the file $HOOPTAB_TRACE.<process>. In the mutate preset each block calls the first function.
#include <array>
#include <atomic>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <string>
#include <unistd.h>

namespace {

constexpr std::size_t kSize = 1 << 20;
std::array<std::atomic<std::uintptr_t>, kSize> s_seen; // a hash table without deletions; 0 is a free place
const char* const s_path = std::getenv("HOOPTAB_TRACE");

} // namespace

extern "C" void __sanitizer_cov_trace_pc();
extern "C" void __sanitizer_cov_trace_pc() {
  if (s_path == nullptr)
    return;
  const auto address = reinterpret_cast<std::uintptr_t>(__builtin_return_address(0));
  for (std::size_t place = (address * 0x9E3779B97F4A7C15U >> 44) % kSize;; place = (place + 1) % kSize) {
    std::uintptr_t there = s_seen[place].load(std::memory_order_relaxed);
    if (there == 0 && s_seen[place].compare_exchange_strong(there, address))
      return;
    if (there == address)
      return;
  }
}

__attribute__((destructor)) static void writeTrace() {
  if (s_path == nullptr)
    return;
  std::FILE* const file = std::fopen((std::string(s_path) + '.' + std::to_string(getpid())).c_str(), "w");
  if (file == nullptr)
    return;
  for (const auto& seen : s_seen) {
    Dl_info found;
    if (seen != 0 && dladdr(reinterpret_cast<void*>(seen.load()), &found) != 0)
      std::fprintf(file, "%s %lx\n", found.dli_fname,
                   static_cast<unsigned long>(seen - reinterpret_cast<std::uintptr_t>(found.dli_fbase) - 1));
  }
  std::fclose(file);
}
