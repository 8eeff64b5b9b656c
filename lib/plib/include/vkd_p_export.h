#pragma once

// The library is built with hidden visibility; only what carries this macro is exported.
#if defined(VKD_P_BUILDING_LIBRARY)
#define VKD_P_EXPORT __attribute__((visibility("default")))
#else
#define VKD_P_EXPORT
#endif
