#include "cp/CStringConverter.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "cp/CException.h"
#include "cp/private/NativeTranslation.h"

using namespace Corvaldine::CP;

namespace {

const std::string& narrow(CStringConverter& converter) {
    return converter;
}
const std::wstring& wide(CStringConverter& converter) {
    return converter;
}

class Counting : public CStringConverter {
  public:
    using CStringConverter::CStringConverter;
    int toWide = 0;
    int toNarrow = 0;

  protected:
    bool _translate(const std::string& from, std::wstring& to) override {
        ++toWide;
        return CStringConverter::_translate(from, to);
    }
    bool _translate(const std::wstring& from, std::string& to) override {
        ++toNarrow;
        return CStringConverter::_translate(from, to);
    }
};

template <class Text>
void expectThrow(const Text& text, CStringConverter::encoding encoding) {
    CStringConverter converter(text, encoding, 1252);
    try {
        if constexpr (std::is_same_v<Text, std::string>)
            static_cast<void>(wide(converter));
        else
            static_cast<void>(narrow(converter));
        ADD_FAILURE() << "nothing thrown";
    } catch (const CException& error) {
        EXPECT_EQ(error.get_code(), 0u);
    }
}

} // namespace

TEST(StringConverter, AnEmptyTextSucceedsInEveryEncodingAlsoWithNone) {
    for (int encoding = 0; encoding <= 5; ++encoding) {
        const auto kind = static_cast<CStringConverter::encoding>(encoding);
        CStringConverter fromNarrow(std::string(), kind, 1252);
        CStringConverter fromWide(std::wstring(), kind, 1252);
        EXPECT_TRUE(wide(fromNarrow).empty());
        EXPECT_TRUE(narrow(fromWide).empty());
    }
}

TEST(StringConverter, WithoutAnEncodingTheConversionOperatorsThrow) {
    expectThrow(std::string("a"), CStringConverter::none);
    expectThrow(std::wstring(L"a"), CStringConverter::none);
    expectThrow(std::string("a"), static_cast<CStringConverter::encoding>(6));
}

TEST(StringConverter, TheFormThatIsThereNeedsNoEncoding) {
    CStringConverter converter(std::string("a"), CStringConverter::none, 0);
    EXPECT_EQ(narrow(converter), "a");
}

TEST(StringConverter, InvalidBytesThrow) {
    expectThrow(std::string("\xFF"), CStringConverter::utf8);
    expectThrow(std::string("\x81"), CStringConverter::windows_latin1);
}

TEST(StringConverter, EachEncodingReadsAndWritesItsOwnBytes) {
    const std::vector<std::pair<CStringConverter::encoding, std::string>> forms{
        {CStringConverter::windows_latin1, "\xB5"},
        {CStringConverter::utf8, "\xC2\xB5"},
        {CStringConverter::mac_roman, "\xB5"},
        {CStringConverter::windows_codepage, "\xB5"}};
    for (const auto& [encoding, bytes] : forms) {
        CStringConverter read(bytes, encoding, 1253);
        EXPECT_EQ(wide(read), L"\u00B5") << encoding;
        CStringConverter written(std::wstring(L"\u00B5"), encoding, 1253);
        EXPECT_EQ(narrow(written), bytes) << encoding;
    }
    CStringConverter symbol(std::string("m"), CStringConverter::mac_symbol, 0);
    EXPECT_EQ(wide(symbol), L"\u03BC");
}

TEST(StringConverter, ACodePageIsTakenByItsNumber) {
    CStringConverter greek(std::string("\xE1"), CStringConverter::windows_codepage, 1253);
    EXPECT_EQ(wide(greek), L"\u03B1");
    CStringConverter cyrillic(std::string("\xE1"), CStringConverter::windows_codepage, 1251);
    EXPECT_EQ(wide(cyrillic), L"\u0431");
    CStringConverter utf8(std::string("\xC3\xA1"), CStringConverter::windows_codepage, 65001);
    EXPECT_EQ(wide(utf8), L"\u00E1");
}

TEST(StringConverter, ACodePageThatIsNotOfferedThrows) {
    CStringConverter converter(std::string("a"), CStringConverter::windows_codepage, 99999);
    EXPECT_THROW(static_cast<void>(wide(converter)), CException);
}

TEST(StringConverter, CharactersThatCannotBeHeldBecomeTheLossByte) {
    CStringConverter usual(std::wstring(L"a\u4E2Db"), CStringConverter::windows_latin1, 1252);
    EXPECT_EQ(narrow(usual), "a?b");
    CStringConverter chosen(std::wstring(L"a\u4E2Db"), CStringConverter::windows_latin1, 1252, '_');
    EXPECT_EQ(narrow(chosen), "a_b");
    CStringConverter without(std::wstring(L"a\u4E2Db"), CStringConverter::windows_latin1, 1252, 0);
    EXPECT_EQ(narrow(without), "a");
}

TEST(StringConverter, AFormIsMadeOnce) {
    Counting converter(std::string("abc"), CStringConverter::utf8, 1252);
    EXPECT_EQ(converter.toWide, 0);
    EXPECT_EQ(wide(converter), L"abc");
    EXPECT_EQ(wide(converter), L"abc");
    EXPECT_EQ(narrow(converter), "abc");
    EXPECT_EQ(converter.toWide, 1);
    EXPECT_EQ(converter.toNarrow, 0);
}

TEST(StringConverter, UpdatingToTheSameEncodingAndCodePageZeroKeepsTheNarrowForm) {
    Counting converter(std::string("abc"), CStringConverter::windows_latin1, 1252);
    converter._update_translation(CStringConverter::windows_latin1, 0);
    converter._update_translation(CStringConverter::windows_latin1, 1252);
    EXPECT_EQ(narrow(converter), "abc");
    EXPECT_EQ(converter.toWide + converter.toNarrow, 0);
}

TEST(StringConverter, UpdatingTheEncodingMakesTheNarrowFormAgain) {
    Counting converter(std::string("\xE9"), CStringConverter::windows_latin1, 1252);
    converter._update_translation(CStringConverter::mac_roman, 0);
    EXPECT_EQ(narrow(converter), "\x8E");
    converter._update_translation(CStringConverter::utf8, 0);
    EXPECT_EQ(narrow(converter), "\xC3\xA9");
    EXPECT_EQ(converter.toWide, 1);
    EXPECT_EQ(converter.toNarrow, 2);
}

TEST(StringConverter, UpdatingTheCodePageAloneMakesTheNarrowFormAgain) {
    CStringConverter converter(std::wstring(L"\u03B1"), CStringConverter::windows_codepage, 1252);
    EXPECT_EQ(narrow(converter), "?");
    converter._update_translation(CStringConverter::windows_codepage, 1253);
    EXPECT_EQ(narrow(converter), "\xE1");
}

TEST(StringConverter, WhenNeitherFormIsLeftTheTextIsEmpty) {
    CStringConverter converter(std::string("\xFF"), CStringConverter::utf8, 1252);
    converter._update_translation(CStringConverter::windows_latin1, 0);
    EXPECT_EQ(narrow(converter), "");
    EXPECT_EQ(wide(converter), L"");
}

TEST(StringConverter, TheSystemsNameOfEachEncoding) {
    using Private::_get_mac_encoding;
    EXPECT_EQ(_get_mac_encoding(CStringConverter::windows_latin1, 1250), "CP1252");
    EXPECT_EQ(_get_mac_encoding(CStringConverter::utf8, 1252), "UTF-8");
    EXPECT_EQ(_get_mac_encoding(CStringConverter::mac_roman, 1252), "MACINTOSH");
    EXPECT_EQ(_get_mac_encoding(CStringConverter::windows_codepage, 1250), "CP1250");
    EXPECT_EQ(_get_mac_encoding(CStringConverter::windows_codepage, 10000), "MACINTOSH");
    EXPECT_EQ(_get_mac_encoding(CStringConverter::none, 1252), "");
}

TEST(Exception, EveryCodeHasItsText) {
    EXPECT_STREQ(CException(0).what(), "Attempt to access a NULL pointer.");
    EXPECT_STREQ(CException(1).what(), "Memory is too low to complete the operation.");
    EXPECT_STREQ(CException(2).what(), "Buffer is too small to hold requested data.");
    EXPECT_STREQ(CException(3).what(), "Bad params were used.");
    EXPECT_STREQ(CException(3).whatw(), L"Bad params were used.");
}

TEST(Exception, ACodeAboveThreeHasNoText) {
    EXPECT_STREQ(CException(7).what(), "");
    EXPECT_STREQ(CException(4).whatw(), L"");
    EXPECT_STREQ(CException(0xFFFFFFFF).what(), "");
}
