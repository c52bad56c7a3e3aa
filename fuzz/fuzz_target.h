#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

/// What the fuzzer and the driver of the tests call: it reads some bytes and throws
/// std::logic_error where what came out is not sound.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace veldox {

inline std::string_view BytesOf(const std::uint8_t* data, std::size_t size) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the fuzzer's bytes are text here
  return {reinterpret_cast<const char*>(data), size};
}

inline void RequireSound(bool sound, const std::string& what) {
  if (!sound) throw std::logic_error(what);
}

}  // namespace veldox
