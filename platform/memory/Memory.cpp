#include "platform/memory/Memory.h"

#include <cstdint>
#include <cstring>

// The headers above define __GLIBC__. While debugging, breakpoints would go with the pages they are in.
#if defined(__GLIBC__) && defined(NDEBUG)
#include <link.h>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {

// dl_iterate_phdr calls this for the program and for each library until it returns non-zero.
int ReturnCodeOf(dl_phdr_info* library, std::size_t, void* name) {
    if (!std::strstr(library->dlpi_name, static_cast<const char*>(name))) return 0;
    const auto page = static_cast<std::uintptr_t>(getpagesize());
    for (int i = 0; i < library->dlpi_phnum; ++i) {
        const auto& part = library->dlpi_phdr[i];
        if (part.p_type != PT_LOAD || (part.p_flags & PF_W) != 0) continue;
        const std::uintptr_t begin = library->dlpi_addr + part.p_vaddr, within = begin % page;
        // NOLINTNEXTLINE(performance-no-int-to-ptr): the loader gives addresses as integers
        madvise(reinterpret_cast<void*>(begin - within), part.p_memsz + within, MADV_DONTNEED);
    }
    return 0;
}

}  // namespace

void Memory::ShareHeap() {
    mallopt(M_MMAP_THRESHOLD, 1 << 20);  // return freed pictures to the system
    mallopt(M_ARENA_MAX, 1);             // let the window reuse what the decoding thread frees
}

void Memory::ReturnHoles() {
    malloc_trim(0);
}

void Memory::ReturnCode(const char* name) {
    dl_iterate_phdr(ReturnCodeOf, const_cast<char*>(name));
}

#else

void Memory::ShareHeap() {}
void Memory::ReturnHoles() {}
void Memory::ReturnCode(const char*) {}

#endif
