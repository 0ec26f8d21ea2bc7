#include <cstring>

#include "calendar_library.h"

void separate_thousands(const char* number, std::int32_t separator, char* buffer) {
  constexpr std::size_t BufferBytes = 20;
  std::size_t used = 0;
  const auto put = [&](char c) {
    if (used + 1 < BufferBytes) buffer[used++] = c;
  };
  if (*number == '-') put(*number++);
  for (std::size_t left = std::strlen(number); left > 0; --left) {
    put(*number++);
    if (left > 1 && (left - 1) % 3 == 0) put(static_cast<char>(separator));
  }
  buffer[used] = '\0';
}
