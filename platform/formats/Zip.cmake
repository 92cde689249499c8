scrivel_library(scrivel_zip
    ZipDirectory.cpp ZipDirectory.h
    ZipLayout.cpp ZipLayout.h
    ZipNames.cpp ZipNames.h
    ZipRecords.h
    ZipWriter.cpp ZipWriter.h
    LINKS PkgConfig::DEFLATE PkgConfig::UTF8PROC)
