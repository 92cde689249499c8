#include "cp/CFSRefConverter.h"

#include "cp/CException.h"
#include "tests/cp/FolderTest.h"

using namespace Corvaldine::CP;

namespace {

using FSRefConverter = FolderTest;

const FSRef& ref(CFSRefConverter& converter) {
    return converter;
}
const CPath& back(CFSRefConverter& converter) {
    return converter;
}

} // namespace

TEST_F(FSRefConverter, APathBecomesAReferenceAndAPathAgain) {
    write("file", "");
    CFSRefConverter from(path("file"));
    const FSRef file = ref(from);
    EXPECT_EQ(from.get_status(), 0);
    EXPECT_NE(file.inode, 0u);
    CFSRefConverter to(file);
    EXPECT_EQ(back(to), path("file"));
}

TEST_F(FSRefConverter, AReferenceIsToWhatALinkLeadsTo) {
    write("file", "");
    std::filesystem::create_symlink("file", at("link"));
    CFSRefConverter direct(path("file"));
    CFSRefConverter linked(path("link"));
    EXPECT_EQ(ref(direct), ref(linked));
}

TEST_F(FSRefConverter, APathThatLeadsNowhereThrowsCodeZero) {
    for (const CPath& nowhere : {path("missing"), CPath()}) {
        CFSRefConverter converter(nowhere);
        try {
            static_cast<void>(ref(converter));
            ADD_FAILURE() << "nothing thrown";
        } catch (const CException& error) {
            EXPECT_EQ(error.get_code(), 0u);
        }
        EXPECT_EQ(converter.get_status(), -43);
    }
}

TEST_F(FSRefConverter, APathThatIsNotTextHasAStatusOfItsOwn) {
    CFSRefConverter converter(CPath(std::wstring(1, static_cast<wchar_t>(0xD800))));
    EXPECT_THROW(static_cast<void>(ref(converter)), CException);
    EXPECT_EQ(converter.get_status(), -8764);
}

TEST_F(FSRefConverter, WhatWasMadeOnceStays) {
    write("file", "");
    CFSRefConverter converter(path("file"));
    const FSRef first = ref(converter);
    std::filesystem::remove(at("file"));
    EXPECT_EQ(ref(converter), first);
    EXPECT_EQ(back(converter), path("file"));
}

TEST_F(FSRefConverter, AReferenceToSomethingReplacedHasNoPath) {
    write("file", "");
    CFSRefConverter from(path("file"));
    const FSRef old = ref(from);
    write("other", "");
    std::filesystem::rename(at("other"), at("file"));
    CFSRefConverter to(old);
    EXPECT_THROW(static_cast<void>(back(to)), CException);
    EXPECT_EQ(to.get_status(), -43);
}

TEST_F(FSRefConverter, ALongPathComesBackWhole) {
    std::filesystem::path deep = folder.path();
    for (int i = 0; i < 8; ++i)
        deep /= std::string(200, 'd');
    std::filesystem::create_directories(deep);
    CFSRefConverter from((CPath(deep.string())));
    CFSRefConverter to(ref(from));
    EXPECT_EQ(back(to), CPath(deep.string()));
}

TEST_F(FSRefConverter, TheOldStyleFormNamesFolderAndFile) {
    write("file", "");
    CFSRefConverter parent((top()));
    CFSRefConverter converter(path("file"));
    FSSpec old;
    ASSERT_TRUE(converter.get_fsspec(old));
    EXPECT_EQ(old.name, "file");
    EXPECT_EQ(old.parID, ref(parent).inode);
    EXPECT_EQ(old.vRefNum, ref(parent).device);
    CFSRefConverter missing(path("missing"));
    EXPECT_FALSE(missing.get_fsspec(old));
}
