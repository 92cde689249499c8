// The sample product's program: says that it was launched, on standard output and in a file of the
// user's, and ends; with the argument --version, says which version it is. With
// SCRIVEL_SAMPLE_STAY=SECONDS in the environment it stays open that long.
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string_view>
#include <thread>

int main(int argc, char** argv) {
    if (argc > 1 && std::string_view(argv[1]) == "--version") {
        std::cout << SCRIVEL_SAMPLE_VERSION << std::endl;
        return 0;
    }
    std::cout << "Scrivel 21 was launched." << std::endl;
    if (const char* home = std::getenv("HOME")) {
        const auto folder = std::filesystem::path(home) / "Library/Application Support/Scrivel 21";
        std::error_code ignored;
        std::filesystem::create_directories(folder, ignored);
        std::ofstream(folder / "launches.txt", std::ios::app) << "launched\n";
    }
    if (const char* seconds = std::getenv("SCRIVEL_SAMPLE_STAY"))
        std::this_thread::sleep_for(std::chrono::seconds(std::atoi(seconds)));
    return 0;
}
