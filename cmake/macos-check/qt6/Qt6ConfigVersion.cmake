# The version of the Qt whose headers are used, as its own package tells it.
file(GLOB qt "/usr/lib/*-linux-gnu/cmake/Qt6/Qt6ConfigVersionImpl.cmake")
include("${qt}")
