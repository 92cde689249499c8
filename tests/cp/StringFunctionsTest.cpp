#include <string>

#include <gtest/gtest.h>

#include "cp/StringConversion.h"
#include "cp/StringHelpers.h"
#include "cp/private/_UniCharConverter.h"

using namespace Corvaldine::CP;
namespace Helpers = SVCommon_NSStringConversionHelpers;
namespace MutableHelpers = SVCommon_NSMutableStringConversionHelpers;

namespace {

const std::wstring kLoneSurrogate(1, static_cast<wchar_t>(0xD800));

} // namespace

TEST(StringWrappers, AreTrueUnlessTheInputIsInvalid) {
    std::wstring wide;
    std::string narrow;
    EXPECT_TRUE(utf8_to_wchar_wrapper("", 0, wide));
    EXPECT_TRUE(utf8_to_wchar_wrapper("\xC3\xA9x", 3, wide));
    EXPECT_EQ(wide, L"\u00E9x");
    EXPECT_FALSE(utf8_to_wchar_wrapper("\xC3\xA9x", 1, wide));
    EXPECT_TRUE(wchar_to_utf8_wrapper(L"\u00E9x", 2, narrow));
    EXPECT_EQ(narrow, "\xC3\xA9x");
    EXPECT_FALSE(wchar_to_utf8_wrapper(kLoneSurrogate.data(), 1, narrow));
    EXPECT_TRUE(narrow.empty());
}

TEST(StringFunctions, WideTextBecomesAPlatformString) {
    EXPECT_EQ(ToCFString(L"a\U0001F600"), u"a\U0001F600");
    EXPECT_EQ(ToCFString(L"abc", 2), u"ab");
    EXPECT_EQ(ToCFString(std::wstring(L"a\0b", 3)), std::u16string(u"a\0b", 3));
    EXPECT_EQ(ToMutableCFString(L"abc"), u"abc");
    EXPECT_EQ(ToMutableCFString(L"abc", 1), u"a");
    EXPECT_EQ(ToMutableCFString(std::wstring(L"abc")), u"abc");
    EXPECT_EQ(ToCFString(kLoneSurrogate), u"");
    EXPECT_EQ(ToCFString(static_cast<const wchar_t*>(nullptr)), u"");
}

TEST(StringFunctions, PlatformStringsBecomeWideTextAndUtf8) {
    const unsigned short units[] = {0x61, 0xD83D, 0xDE00, 0x62};
    EXPECT_EQ(ToWString(units, 4), L"a\U0001F600b");
    EXPECT_EQ(ToWString(units, 2), L"");
    EXPECT_EQ(ToWString(nullptr, 0), L"");
    EXPECT_EQ(CFStringToWString(u"\u03B1"), L"\u03B1");
    EXPECT_EQ(CFStringToUTF8(u"\u03B1\U0001F600"), "\xCE\xB1\xF0\x9F\x98\x80");
}

TEST(StringFunctions, NarrowTextBecomesAPlatformString) {
    EXPECT_EQ(UTF8ToCFString("\xCE\xB1"), u"\u03B1");
    EXPECT_EQ(UTF8ToCFString(std::string("\xCE\xB1")), u"\u03B1");
    EXPECT_EQ(UTF8ToCFString("\xCE"), u"");
    EXPECT_EQ(MacRomanToCFString("\x80\xF0"), u"\u00C4\uF8FF");
    EXPECT_EQ(MacRomanToCFString(std::string("\x80")), u"\u00C4");
    EXPECT_EQ(ASCIIToCFString("abc"), u"abc");
    EXPECT_EQ(ASCIIToCFString(std::string("abc\x80")), u"");
    EXPECT_EQ(UTF8ToCFString(static_cast<const char*>(nullptr)), u"");
}

TEST(StringHelpers, ACharacterAboveTheFirstPlaneIsKept) {
    const std::u16string string = Helpers::stringWith_std_wstring(L"\U0001F600");
    EXPECT_EQ(string.size(), 2u);
    EXPECT_EQ(Helpers::to_std_wstring(string), L"\U0001F600");
}

TEST(StringHelpers, LengthsCountUnits) {
    EXPECT_EQ(Helpers::stringWithUTF16String(u"abc", 2), u"ab");
    EXPECT_EQ(Helpers::stringWithUTF32String(L"abc", 2), u"ab");
    EXPECT_EQ(Helpers::stringWithUTF32String(L"abc"), u"abc");
    EXPECT_EQ(MutableHelpers::stringWithUTF16String(u"abc", 2), u"ab");
    EXPECT_EQ(MutableHelpers::stringWithUTF32String(L"abc"), u"abc");
}

TEST(StringHelpers, Utf8TextEndsAtItsFirstNul) {
    EXPECT_EQ(Helpers::stringWith_utf8_std_string(std::string("a\0b", 3)), u"a");
    EXPECT_EQ(Helpers::to_utf8_std_string(std::u16string(u"a\0b", 3)), "a");
    EXPECT_EQ(MutableHelpers::stringWith_utf8_std_string("\xC3\xA9"), u"\u00E9");
}

TEST(StringHelpers, WideTextIsTakenWholeAlsoBehindANul) {
    const std::wstring text(L"a\0b", 3);
    EXPECT_EQ(Helpers::to_std_wstring(Helpers::stringWith_std_wstring(text)), text);
}

TEST(UniCharConverter, GivesTheNameBackAsWideText) {
    using Private::_UniCharConverter;
    const std::wstring name = L"Na\u00EFve \U0001F600";
    const _UniCharConverter fromString(name);
    EXPECT_EQ(fromString.size(), name.size() + 1);
    EXPECT_EQ(fromString.get_wstring(), name);
    EXPECT_EQ(_UniCharConverter(name.data(), 2).get_wstring(), L"Na");
    Private::HFSUniStr255 record;
    record.length = 2;
    record.unicode[0] = u'V';
    record.unicode[1] = u'1';
    EXPECT_EQ(_UniCharConverter(record).get_wstring(), L"V1");
    record.length = 60000;
    EXPECT_EQ(_UniCharConverter(record).size(), 255u);
    EXPECT_EQ(_UniCharConverter(record.unicode.data(), 1).get_wstring(), L"V");
}
