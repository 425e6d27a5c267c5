// Export.h - marks the few functions that a module or program shows to others.
#pragma once

#ifdef _WIN32
#define PLATFORM_EXPORT extern "C" __declspec(dllexport)
#else
#define PLATFORM_EXPORT extern "C" __attribute__((visibility("default")))
#endif
