#include "benchmarks/Heap.h"

#include <malloc.h>
#include <unistd.h>

#include <cstdio>

namespace bench {

void keepPixelsOutOfHeap()
{
    constexpr int kPixelBlock = 128 * 1024;
    mallopt(M_MMAP_THRESHOLD, kPixelBlock);
}

double heapBytes()
{
    return double(mallinfo2().uordblks);
}

double residentBytes()
{
    malloc_trim(0);
    long pages = 0;
    long resident = 0;
    if (std::FILE* file = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(file, "%ld %ld", &pages, &resident) != 2)
            resident = 0;
        std::fclose(file);
    }
    return double(resident) * double(sysconf(_SC_PAGESIZE));
}

} // namespace bench
