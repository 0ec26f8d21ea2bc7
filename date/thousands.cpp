#include <cstddef>
#include <string>

#include "calendar_library.h"

void separate_thousands(const char* number, std::int32_t separator, char* buffer) {
  constexpr std::size_t BufferBytes = 20;
  std::string text = number;
  const std::size_t first_digit = text.starts_with('-') ? 1 : 0;
  for (std::size_t at = text.size(); at > first_digit + 3;) {
    at -= 3;
    text.insert(at, 1, static_cast<char>(separator));
  }
  buffer[text.copy(buffer, BufferBytes - 1)] = '\0';
}
