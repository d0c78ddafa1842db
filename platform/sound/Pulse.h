#pragma once

#include <dlfcn.h>
#include <pulse/pulseaudio.h>

// libpulse; null when the computer has none. Not linked, as its codecs would take some 3 ms of every start,
// but loaded by the first call. Any thread.
inline void* Pulse() {
    static void* const library = dlopen("libpulse.so.0", RTLD_NOW);
    return library;
}

// The function pa_`name` of libpulse, as in PULSE(stream_unref)(stream). Only once Pulse() is not null.
#define PULSE(name) reinterpret_cast<decltype(&pa_##name)>(dlsym(Pulse(), "pa_" #name))
