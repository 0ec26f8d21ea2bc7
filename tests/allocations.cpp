// Counts how often the test program asks for memory.
#include <cstdlib>
#include <new>

std::size_t allocations = 0;

void* operator new(std::size_t size) {
  ++allocations;
  if (void* const memory = std::malloc(size)) return memory;
  std::abort();
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
