// Feeds a fuzz target without a fuzzer, so that every compiler replays what is kept:
//
//     fuzz_NAME SEEDS [FINDINGS]       every file of the folders once; fails when there is no seed
//     fuzz_NAME --memory LIMIT SHAPES  inputs of 1 MB; fails when one takes more than LIMIT bytes of heap a byte
#include "fuzz/FuzzTarget.h"
#include "fuzz/HeapPeak.h"
#include "fuzz/OversizedInputs.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

constexpr std::size_t kLargestInput = 1 << 20;

void feed(const std::string& input)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

/// The files of a folder by name; a folder without findings is not kept.
std::vector<std::filesystem::path> filesOf(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> files;
    if (std::filesystem::is_directory(folder))
        for (const auto& entry : std::filesystem::directory_iterator(folder))
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

std::size_t replay(const std::filesystem::path& folder)
{
    const auto files = filesOf(folder);
    for (const auto& path : files) {
        // Said before: a target that fails ends the process.
        std::fprintf(stderr, "%s\n", path.filename().c_str());
        std::ifstream file(path, std::ios::binary);
        feed({std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()});
    }
    return files.size();
}

int replayAll(const char* seedFolder, const char* findingFolder)
{
    const std::size_t seeds = replay(seedFolder);
    const std::size_t findings = findingFolder ? replay(findingFolder) : 0;
    std::printf("%zu seeds and %zu findings replayed\n", seeds, findings);
    return seeds > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

bool staysWithin(double limit, const fuzz::Shape& shape, double& most)
{
    const std::string input = fuzz::inputOf(shape, kLargestInput);
    std::fprintf(stderr, "%s: ", shape.title.c_str());
    const std::clock_t begin = std::clock();
    fuzz::beginHeapPeak();
    feed(input);
    const double memory = double(fuzz::heapPeak()) / double(kLargestInput);
    const double seconds = double(std::clock() - begin) / CLOCKS_PER_SEC;
    const bool isWithin = memory <= limit;
    std::fprintf(stderr, "%.2f bytes a byte, %.3f s%s\n", memory, seconds, isWithin ? "" : ", TOO MUCH");
    most = std::max(most, memory);
    return isWithin;
}

int measure(double limit, const char* shapesFile)
{
    std::vector<fuzz::Shape> shapes = fuzz::shapesOf(shapesFile);
    bool isGood = !shapes.empty();
    for (const fuzz::Shape& plain : fuzz::plainShapes())
        shapes.push_back(plain);
    feed({}); // what is made once for all inputs belongs to none of them
    double most = 0;
    for (const fuzz::Shape& shape : shapes)
        isGood = staysWithin(limit, shape, most) && isGood;
    std::printf("%zu inputs of 1 MB: at most %.2f bytes of heap a byte, allowed %.0f\n", shapes.size(), most, limit);
    return isGood ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int count, char** arguments)
try {
    if (count == 4 && std::string(arguments[1]) == "--memory")
        return measure(std::atof(arguments[2]), arguments[3]);
    if (count == 2 || count == 3)
        return replayAll(arguments[1], arguments[2]);
    std::fprintf(stderr, "usage: %s SEEDS [FINDINGS] | --memory LIMIT SHAPES\n", arguments[0]);
    return EXIT_FAILURE;
} catch (const std::exception& problem) {
    std::fprintf(stderr, "%s\n", problem.what());
    return EXIT_FAILURE;
}
