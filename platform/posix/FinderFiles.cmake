# Finder information, aliases and folder icons where the file system has no forks.
if(APPLE)
    return()
endif()
scrivel_library(scrivel_finderfiles
    FinderFileStore.cpp
    StagedFile.cpp
    ../linux/FinderFileCalls.cpp
    LINKS scrivel_macfiles scrivel_ports
)
