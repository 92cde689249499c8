#include "tools/files/ContentCopier.h"

#include <copyfile.h>

#include "tools/files/Descriptor.h"

namespace tools {

// Shared blocks are for files that are not there yet; between two that are open the system copies,
// and keeps holes when it is told to, as far as both file systems know them. It has taken an empty
// file for an error.
void ContentCopier::copy(int from, const struct stat& status, int to, const Told& told) {
    if (status.st_size == 0)
        return;
    checked(::fcopyfile(from, to, nullptr, COPYFILE_DATA | COPYFILE_DATA_SPARSE));
    told(static_cast<std::uint64_t>(status.st_size));
}

} // namespace tools
