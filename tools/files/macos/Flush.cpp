#include "tools/files/Flush.h"

#include <fcntl.h>
#include <unistd.h>

#include "tools/files/Descriptor.h"

namespace tools {

// Hands it to the drive, which may keep it in memory of its own.
void flushSoon(int file) {
    checked(::fsync(file));
}

// Empties the drive's own memory, whatever it is that lies there. Not every file system can.
void flushAll(int folder) {
    if (::fcntl(folder, F_FULLFSYNC) != 0)
        checked(::fsync(folder));
}

void flushFolder(int folder) {
    flushAll(folder);
}

} // namespace tools
