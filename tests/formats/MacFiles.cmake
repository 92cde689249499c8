scrivel_test(macfiles_test
    AliasRecordTest.cpp
    AppleDoubleTest.cpp
    IconFamilyTest.cpp
    MacRomanTest.cpp
    ResourceForkTest.cpp
    VersionResourceTest.cpp
    LINKS scrivel_macfiles
)
