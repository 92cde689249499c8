#include "cp/CFileType.h"

#include <cerrno>
#include <string>

#include "cp/CException.h"
#include "tests/cp/FinderInformationWriter.h"
#include "tests/cp/FolderTest.h"

using namespace Corvaldine::CP;

namespace {

constexpr std::uint32_t code(const char (&name)[5]) {
    std::uint32_t value = 0;
    for (int i = 0; i < 4; ++i)
        value = value << 8 | static_cast<unsigned char>(name[i]);
    return value;
}

std::wstring mainExtension(const CFileType& type) {
    std::wstring extension;
    type.copy_main_extension(extension);
    return extension;
}

class PathFileType : public FolderTest {
  protected:
    std::uint32_t typeOf(const CPath& file) const {
        CFileType type(kBefore);
        file.get_filetype(type);
        return type.get_type();
    }

    bool setFinderInformation(const std::string& name, const std::string& record) const {
        return writeFinderInformation(at(name).string(), record);
    }

    static constexpr std::uint32_t kBefore = code("befo");
};

} // namespace

TEST(FileTypes, ExtensionsAreFoundInEitherCaseWithAndWithoutADot) {
    EXPECT_EQ(CFileType(".JPG").get_type(), code("JPEG"));
    EXPECT_EQ(CFileType(L"jpeg").get_type(), code("JPEG"));
    EXPECT_EQ(mainExtension(CFileType(".JPG")), L"jpg");
}

TEST(FileTypes, AnUnknownExtensionIsTheUnknownType) {
    const CFileType unknown("xyz");
    EXPECT_TRUE(unknown.is_unknown_type());
    EXPECT_EQ(unknown.get_type(), 0x3F3F3F3Fu);
    EXPECT_EQ(mainExtension(unknown), L"???");
    EXPECT_EQ(CFileType(), unknown);
    EXPECT_TRUE(CFileType("").is_unknown_type());
    EXPECT_TRUE(CFileType("..jpg").is_unknown_type());
    EXPECT_TRUE(CFileType(static_cast<const char*>(nullptr)).is_unknown_type());
    EXPECT_TRUE(CFileType("\x81").is_unknown_type());
}

TEST(FileTypes, TheFirstPairingRegisteredIsFound) {
    EXPECT_EQ(CFileType("doc").get_type(), code("W8BN"));
    EXPECT_EQ(CFileType("xls").get_type(), code("XLS8"));
    EXPECT_EQ(mainExtension(CFileType(code("WDBN"))), L"doc");
    EXPECT_EQ(mainExtension(CFileType(code("shlb"))), L"dll");
}

TEST(FileTypes, TheCommonTypesAreExactlyTheseWithMfAsItIs) {
    struct Row {
        const char* extension;
        std::uint32_t type;
    };
    for (const Row& row :
         {Row{"bmp", code("BMPf")},    Row{"gif", code("GIFf")}, Row{"jpg", code("JPEG")},
          Row{"jpeg", code("JPEG")},   Row{"png", code("PNGf")}, Row{"tif", code("TIFF")},
          Row{"tiff", code("TIFF")},   Row{"mf", code("EMFf")},  Row{"emf", code("EMFf")},
          Row{"ico", code("ICOf")},    Row{"pct", code("PICT")}, Row{"doc", code("W8BN")},
          Row{"dot", code("DOTt")},    Row{"xls", code("XLS8")}, Row{"dll", code("shlb")},
          Row{"bundle", code("shlb")}, Row{"rtf", code("RTF ")}, Row{"txt", code("TEXT")},
          Row{"pdf", code("PDF ")},    Row{"odt", code("ODT ")}, Row{"???", code("????")},
          Row{"wmf", code("????")},    Row{"docx", code("????")}})
        EXPECT_EQ(CFileType(row.extension).get_type(), row.type) << row.extension;
    for (const char* type : {"WDBN", "XLS5", "XLS4", "XLS3"}) {
        const std::uint32_t packed = code({type[0], type[1], type[2], type[3], 0});
        EXPECT_NE(mainExtension(CFileType(packed)), L"???") << type;
    }
    EXPECT_EQ(mainExtension(CFileType(code("EMFf"))), L"mf");
}

TEST(FileTypes, CanBeAdded) {
    EXPECT_TRUE(CFileType::register_type(code("ABCD"), ".Abc"));
    EXPECT_EQ(CFileType("ABC").get_type(), code("ABCD"));
    std::string narrow;
    CFileType(code("ABCD")).copy_main_extension(narrow);
    EXPECT_EQ(narrow, "abc");
    EXPECT_TRUE(CFileType::register_type(code("ABCD"), L"abc"));
    EXPECT_EQ(CFileType(L".aBc").get_type(), code("ABCD"));
}

TEST(FileTypes, AddingBeforeTheFirstLookUpKeepsTheCommonTypesInFront) {
    EXPECT_TRUE(CFileType::register_type(code("MINE"), "png"));
    EXPECT_EQ(CFileType("png").get_type(), code("PNGf"));
    EXPECT_EQ(mainExtension(CFileType(code("MINE"))), L"png");
}

TEST(FileTypes, LettersOutsideAsciiAreLowerCasedToo) {
    EXPECT_TRUE(CFileType::register_type(code("UML "), L"\u00C4\u0416"));
    EXPECT_EQ(CFileType(L"\u00E4\u0436").get_type(), code("UML "));
    EXPECT_TRUE(CFileType::register_type(code("LAT1"), "\xD6"));
    EXPECT_EQ(CFileType(L"\u00F6").get_type(), code("LAT1"));
}

TEST(FileTypes, ANullExtensionThrowsCodeThree) {
    try {
        CFileType::register_type(code("NULL"), static_cast<const char*>(nullptr));
        ADD_FAILURE() << "nothing thrown";
    } catch (const CException& error) {
        EXPECT_EQ(error.get_code(), 3u);
    }
    EXPECT_THROW(CFileType::register_type(code("NULL"), static_cast<const wchar_t*>(nullptr)),
                 CException);
}

TEST(FileTypes, CanBeSetAndCompared) {
    CFileType type;
    type.set_type(code("TEXT"));
    EXPECT_EQ(type, CFileType("txt"));
    EXPECT_FALSE(type == CFileType("pdf"));
    EXPECT_EQ(type.get_type(), 0x54455854u);
}

TEST_F(PathFileType, ComesFromTheExtensionAlsoOfAPathThatLeadsNowhere) {
    EXPECT_EQ(typeOf("/no such/File.PDF"), code("PDF "));
}

TEST_F(PathFileType, StaysAsItWasWithoutAnExtensionOrWithAnUnknownOne) {
    write("plain", "");
    write("file.xyz", "");
    EXPECT_EQ(typeOf(path("plain")), kBefore);
    EXPECT_EQ(typeOf(path("file.xyz")), kBefore);
    EXPECT_EQ(typeOf("/no such/file.xyz"), kBefore);
    EXPECT_EQ(typeOf(""), kBefore);
}

TEST_F(PathFileType, OfAnUnknownExtensionComesFromTheFinderInformation) {
    write("file.xyz", "");
    write("file.pdf", "");
    write("plain", "");
    write("zero.xyz", "");
    const std::string record = "W8BNMSWD" + std::string(24, '\0');
    if (!setFinderInformation("file.xyz", record) || !setFinderInformation("file.pdf", record) ||
        !setFinderInformation("plain", record) ||
        !setFinderInformation("zero.xyz", std::string(32, '\0'))) {
        ASSERT_EQ(errno, ENOTSUP);
        GTEST_SKIP() << "no extended attributes here";
    }
    EXPECT_EQ(typeOf(path("file.xyz")), code("W8BN"));
    EXPECT_EQ(typeOf(path("file.pdf")), code("PDF "));
    EXPECT_EQ(typeOf(path("plain")), kBefore);
    EXPECT_EQ(typeOf(path("zero.xyz")), kBefore);
}
