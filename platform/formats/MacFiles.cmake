# Finder information, resource forks, aliases, versions and icons, byte by byte.
scrivel_library(scrivel_macfiles
    AppleDouble.cpp
)
