scrivel_test(macfiles_test
    AliasRecordTest.cpp
    AppleDoubleTest.cpp
    IconFamilyTest.cpp
    MacRomanTest.cpp
    ResourceForkTest.cpp
    VersionResourceTest.cpp
    LINKS scrivel_macfiles scrivel_cp
)
if(NOT APPLE)
    scrivel_test(finderfiles_test
        FinderFileStoreTest.cpp
        StagedFileTest.cpp
        LINKS scrivel_finderfiles
    )
endif()
