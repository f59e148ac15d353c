#include "fuzz/HeapPeak.h"

#include <atomic>
#include <cerrno>

#include <malloc.h>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define FUZZ_SANITIZED_HEAP
#endif
#elif defined(__SANITIZE_ADDRESS__)
#define FUZZ_SANITIZED_HEAP
#endif

namespace {

// Constant-initialised: the first allocations come before any constructor.
std::atomic<std::size_t> held{0};
std::atomic<std::size_t> peak{0};
std::atomic<std::size_t> start{0};

void add(std::size_t bytes)
{
    const std::size_t now = held += bytes;
    std::size_t before = peak;
    while (now > before && !peak.compare_exchange_weak(before, now)) { }
}

} // namespace

namespace fuzz {

void beginHeapPeak()
{
    start = held.load();
    peak = held.load();
}

std::size_t heapPeak()
{
    return peak - start;
}

} // namespace fuzz

#ifdef FUZZ_SANITIZED_HEAP

// Declared here because GCC ships the runtime without this header.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*allocated)(const volatile void* block,
                                                                           std::size_t bytes),
                                                         void (*freed)(const volatile void* block));
extern "C" std::size_t __sanitizer_get_allocated_size(const volatile void* block);

namespace {

const int installed =
    __sanitizer_install_malloc_and_free_hooks([](const volatile void*, std::size_t bytes) { add(bytes); },
                                              [](const volatile void* block) {
                                                  if (block)
                                                      held -= __sanitizer_get_allocated_size(block);
                                              });

} // namespace

#else

// The C library calls a program's own allocator from everywhere when there is one; these count and pass on to its own.
extern "C" {

void* __libc_malloc(std::size_t);
void* __libc_calloc(std::size_t, std::size_t);
void* __libc_realloc(void*, std::size_t);
void* __libc_memalign(std::size_t, std::size_t);
void __libc_free(void*);

#define FUZZ_INTERPOSED __attribute__((visibility("default")))

FUZZ_INTERPOSED void* malloc(std::size_t bytes)
{
    void* const block = __libc_malloc(bytes);
    add(malloc_usable_size(block));
    return block;
}

FUZZ_INTERPOSED void* calloc(std::size_t count, std::size_t bytes)
{
    void* const block = __libc_calloc(count, bytes);
    add(malloc_usable_size(block));
    return block;
}

FUZZ_INTERPOSED void* realloc(void* old, std::size_t bytes)
{
    const std::size_t before = malloc_usable_size(old);
    void* const block = __libc_realloc(old, bytes);
    if (block || bytes == 0)
        held -= before;
    add(malloc_usable_size(block));
    return block;
}

FUZZ_INTERPOSED void* memalign(std::size_t alignment, std::size_t bytes)
{
    void* const block = __libc_memalign(alignment, bytes);
    add(malloc_usable_size(block));
    return block;
}

FUZZ_INTERPOSED void* aligned_alloc(std::size_t alignment, std::size_t bytes)
{
    return memalign(alignment, bytes);
}

FUZZ_INTERPOSED int posix_memalign(void** block, std::size_t alignment, std::size_t bytes)
{
    *block = memalign(alignment, bytes);
    return *block || bytes == 0 ? 0 : ENOMEM;
}

FUZZ_INTERPOSED void free(void* block)
{
    held -= malloc_usable_size(block);
    __libc_free(block);
}

} // extern "C"

#endif
