#pragma once

#include <string_view>

namespace vantorel {

/// Whether `text` is well-formed UTF-8 (RFC 3629).
bool isUtf8(std::string_view text);

}  // namespace vantorel
