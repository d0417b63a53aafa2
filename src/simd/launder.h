// Constants that stay in memory.
#pragma once

namespace kfm {

// Hides where a table comes from, so that its constants are loaded and not rebuilt.
template <class T>
[[gnu::always_inline]] inline void launder(const T*& table) {
    asm("" : "+r"(table));
}

}   // namespace kfm
