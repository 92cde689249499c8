// Runs a fuzz target without libFuzzer: every seed of a folder, then a fixed number of mutations of
// each, always the same ones. Linked into the targets that `./test` runs; a long run uses
// libFuzzer.
//
//   TARGET SEED_FOLDER
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using Input = std::vector<std::uint8_t>;

constexpr int kMutationsOfEachSeed = 400;

std::vector<Input> seeds(const std::filesystem::path& folder) {
    std::vector<Input> all{Input{}};
    if (!std::filesystem::is_directory(folder))
        return all;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        std::ifstream file(entry.path(), std::ios::binary);
        all.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    return all;
}

Input mutated(Input input, std::mt19937& random) {
    const int changes = 1 + static_cast<int>(random() % 6);
    for (int i = 0; i < changes; ++i) {
        const std::size_t at = input.empty() ? 0 : random() % input.size();
        switch (random() % 5) {
        case 0: // one bit
            if (!input.empty())
                input[at] ^= static_cast<std::uint8_t>(1u << random() % 8);
            break;
        case 1: // a byte of a kind that breaks sums
            if (!input.empty())
                input[at] = random() % 2 ? 0xFF : 0x80;
            break;
        case 2: // cut off
            input.resize(at);
            break;
        case 3: // one byte more
            input.insert(input.begin() + static_cast<std::ptrdiff_t>(at),
                         static_cast<std::uint8_t>(random()));
            break;
        default: // a stretch again
            if (!input.empty()) {
                const std::size_t length = std::min<std::size_t>(random() % 64, input.size() - at);
                const Input stretch(input.begin() + static_cast<std::ptrdiff_t>(at),
                                    input.begin() + static_cast<std::ptrdiff_t>(at + length));
                input.insert(input.end(), stretch.begin(), stretch.end());
            }
        }
    }
    return input;
}

} // namespace

int main(int argc, char** argv) {
    std::mt19937 random(20211);
    std::size_t runs = 0;
    const auto all = seeds(argc > 1 ? argv[1] : ".");
    for (const Input& seed : all) {
        LLVMFuzzerTestOneInput(seed.data(), seed.size());
        for (int i = 0; i < kMutationsOfEachSeed; ++i) {
            const Input input = mutated(seed, random);
            LLVMFuzzerTestOneInput(input.data(), input.size());
            ++runs;
        }
    }
    std::printf("%zu seeds, %zu mutations, no complaint\n", all.size(), runs);
    return 0;
}
