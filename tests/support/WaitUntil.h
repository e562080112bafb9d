#pragma once

#include <chrono>
#include <functional>

namespace vantorel::test {

/// How long tests wait for something that is bound to happen; generous, since machines are often busy.
inline constexpr std::chrono::milliseconds generousDeadline = std::chrono::seconds(30);

/// Looks at `condition` again and again until it holds or `deadline` has passed; answers whether it held.
bool waitUntil(const std::function<bool()>& condition, std::chrono::milliseconds deadline = generousDeadline);

}  // namespace vantorel::test
