#include "tools/files/Flush.h"

#include <fcntl.h>
#include <unistd.h>

#include "tools/files/Descriptor.h"

namespace tools {

// The disk begins while the next files are still being made. Only a hint, so its failure is none.
void flushSoon(int file) {
    ::sync_file_range(file, 0, 0, SYNC_FILE_RANGE_WRITE);
}

// One call for the whole file system costs less than one for each file and folder.
void flushAll(int folder) {
    checked(::syncfs(folder));
}

void flushFolder(int folder) {
    checked(::fsync(folder));
}

} // namespace tools
