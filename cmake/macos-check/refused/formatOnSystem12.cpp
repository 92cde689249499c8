// Must be refused: a part of the standard library that came to the system with macOS 13.3. With
// ACCEPTED it is one that system 12 has, so that nothing else can be what the compiler refuses.
#include <format>
#include <string>

std::string hexadecimal(int number);

std::string hexadecimal(int number) {
#ifdef ACCEPTED
    return std::to_string(number);
#else
    return std::format("{:08x}", number);
#endif
}
