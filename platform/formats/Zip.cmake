pkg_check_modules(UTF8PROC REQUIRED IMPORTED_TARGET GLOBAL libutf8proc)
scrivel_library(scrivel_zip
    ZipDirectory.cpp ZipDirectory.h
    ZipLayout.cpp ZipLayout.h
    ZipNames.cpp ZipNames.h
    ZipRecords.h
    ZipWriter.cpp ZipWriter.h
    LINKS PkgConfig::DEFLATE PkgConfig::UTF8PROC)
