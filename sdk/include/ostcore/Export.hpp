#pragma once

// The toolkit lives in one shared library that the host and every plug-in share, so its state
// (registries, font cache) exists once. Plug-ins build with hidden visibility; marking the
// toolkit's classes keeps their type information and members visible across that boundary.
#define OST_API __attribute__((visibility("default")))
