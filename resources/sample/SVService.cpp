// The sample Services application's program: stays in the background until it is stopped, as a real
// one does, but not longer than an hour. The sample add-in and importer carry it too, so that their
// bundles hold a program.
#include <chrono>
#include <thread>

int main() {
    std::this_thread::sleep_for(std::chrono::hours(1));
    return 0;
}
