# Finder information, resource forks, aliases, versions and icons, byte by byte.
scrivel_library(scrivel_macfiles
    AliasRecord.cpp
    AppleDouble.cpp
    IconFamily.cpp
    MacRoman.cpp
    ResourceFork.cpp
    VersionResource.cpp
)
