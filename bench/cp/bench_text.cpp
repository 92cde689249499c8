// UTF-8 to UTF-32 and back, against iconv and the C library's own functions, on blocks of 64 KB.
// The figure to compare is bytes_per_second, counted in bytes of UTF-8 in both directions.
#include <clocale>
#include <cstddef>
#include <cwchar>
#include <iconv.h>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <benchmark/benchmark.h>

#include "cp/StringConversion.h"

namespace {

constexpr std::size_t kBlockBytes = 64 * 1024;

std::string repeated(std::string_view sample) {
    std::string text;
    while (text.size() + sample.size() <= kBlockBytes)
        text += sample;
    return text;
}

const std::string& sample(int which) {
    static const std::vector<std::string> samples{
        repeated("The quick brown fox jumps over the lazy dog and reads the references again. "),
        repeated("Größere Übersicht für naïve Leser, déjà vu à Évian; "
                 "Η γρήγορη αλεπού πηδά πάνω από τον σκύλο. "),
        repeated("参考文献管理ソフトの紹介📚 简体中文的文献🦊管理 한국어 문헌 관리 프로그램🚀 "),
    };
    return samples.at(static_cast<std::size_t>(which));
}

std::wstring wide(const std::string& text) {
    std::wstring out;
    if (!Corvaldine::CP::utf8_to_wchar_wrapper(text.data(), text.size(), out))
        throw std::runtime_error("the sample is not UTF-8");
    return out;
}

void count(benchmark::State& state, const std::string& text) {
    static const char* const names[] = {"ASCII", "Latin+Greek", "CJK+emoji"};
    state.SetLabel(names[state.range(0)]);
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                            static_cast<std::int64_t>(text.size()));
}

void OursToWide(benchmark::State& state) {
    const std::string& text = sample(static_cast<int>(state.range(0)));
    std::wstring out;
    for (auto _ : state) {
        if (!Corvaldine::CP::utf8_to_wchar_wrapper(text.data(), text.size(), out))
            state.SkipWithError("invalid");
        benchmark::DoNotOptimize(out.data());
    }
    count(state, text);
}

void OursToUtf8(benchmark::State& state) {
    const std::string& text = sample(static_cast<int>(state.range(0)));
    const std::wstring from = wide(text);
    std::string out;
    for (auto _ : state) {
        if (!Corvaldine::CP::wchar_to_utf8_wrapper(from.data(), from.size(), out))
            state.SkipWithError("invalid");
        benchmark::DoNotOptimize(out.data());
    }
    if (out != text)
        state.SkipWithError("not the same text again");
    count(state, text);
}

void convert(benchmark::State& state, const char* to, const char* from, const char* input,
             std::size_t size, std::size_t room) {
    const iconv_t converter = iconv_open(to, from);
    std::string out(room, '\0');
    for (auto _ : state) {
        char* in = const_cast<char*>(input);
        std::size_t inLeft = size;
        char* at = out.data();
        std::size_t outLeft = out.size();
        if (iconv(converter, &in, &inLeft, &at, &outLeft) != 0)
            state.SkipWithError("iconv failed");
        benchmark::DoNotOptimize(out.data());
    }
    iconv_close(converter);
}

void IconvToWide(benchmark::State& state) {
    const std::string& text = sample(static_cast<int>(state.range(0)));
    convert(state, "UTF-32LE", "UTF-8", text.data(), text.size(), text.size() * 4);
    count(state, text);
}

void IconvToUtf8(benchmark::State& state) {
    const std::string& text = sample(static_cast<int>(state.range(0)));
    const std::wstring from = wide(text);
    convert(state, "UTF-8", "UTF-32LE", reinterpret_cast<const char*>(from.data()), from.size() * 4,
            text.size());
    count(state, text);
}

void LibraryToWide(benchmark::State& state) {
    std::setlocale(LC_CTYPE, "C.UTF-8");
    const std::string& text = sample(static_cast<int>(state.range(0)));
    std::wstring out(text.size() + 1, L'\0');
    for (auto _ : state) {
        const char* from = text.c_str();
        std::mbstate_t shift{};
        if (std::mbsrtowcs(out.data(), &from, out.size(), &shift) == static_cast<std::size_t>(-1))
            state.SkipWithError("mbsrtowcs failed");
        benchmark::DoNotOptimize(out.data());
    }
    count(state, text);
}

void LibraryToUtf8(benchmark::State& state) {
    std::setlocale(LC_CTYPE, "C.UTF-8");
    const std::string& text = sample(static_cast<int>(state.range(0)));
    const std::wstring wideText = wide(text);
    std::string out(text.size() + 1, '\0');
    for (auto _ : state) {
        const wchar_t* from = wideText.c_str();
        std::mbstate_t shift{};
        if (std::wcsrtombs(out.data(), &from, out.size(), &shift) == static_cast<std::size_t>(-1))
            state.SkipWithError("wcsrtombs failed");
        benchmark::DoNotOptimize(out.data());
    }
    count(state, text);
}

BENCHMARK(OursToWide)->DenseRange(0, 2);
BENCHMARK(IconvToWide)->DenseRange(0, 2);
BENCHMARK(LibraryToWide)->DenseRange(0, 2);
BENCHMARK(OursToUtf8)->DenseRange(0, 2);
BENCHMARK(IconvToUtf8)->DenseRange(0, 2);
BENCHMARK(LibraryToUtf8)->DenseRange(0, 2);

} // namespace
