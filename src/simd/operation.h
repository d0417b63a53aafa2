// How the one-line operations are declared. The compiler would inline them by itself, but takes
// half of the compile time of a long kernel to find that out.
#pragma once

#define KFM_OPERATION [[gnu::always_inline]] inline
