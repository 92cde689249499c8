scrivel_test(zip_test
    ZipDirectoryTest.cpp
    ZipNamesTest.cpp
    ZipWriterTest.cpp
    ZipInTests.h
    LINKS scrivel_zip
)
