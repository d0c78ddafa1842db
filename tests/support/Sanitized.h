#pragma once

// The sanitizers keep what was freed, look at memory through pipes, and end a program that has no memory.
#if defined(__has_feature)
constexpr bool kSanitized = __has_feature(address_sanitizer);
#else
constexpr bool kSanitized = false;
#endif
