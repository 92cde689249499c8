// ditto for systems without one: the two ways in which the installer calls it.
#include <iostream>
#include <string>
#include <vector>

#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include "tools/ditto/ArchiveFile.h"
#include "tools/ditto/Extraction.h"
#include "tools/ditto/TreeCopy.h"
#include "tools/files/Complaints.h"
#include "tools/files/Folders.h"
#include "tools/files/Progress.h"

namespace {

using namespace tools;

int usage() {
    std::cerr << "usage: ditto -xk --noqtn ARCHIVE FOLDER\n"
                 "       ditto -rsrcFork SOURCE DESTINATION\n";
    return 1;
}

std::uint64_t freeSpace(const std::string& path) {
    struct statvfs space{};
    checked(::statvfs(nearestExisting(path).c_str(), &space));
    const auto blocks = ::geteuid() == 0 ? space.f_bfree : space.f_bavail;
    return static_cast<std::uint64_t>(blocks) * space.f_frsize;
}

void extract(const std::string& archivePath, const std::string& folder, mode_t umask,
             Complaints& complaints) {
    Progress progress;
    std::string subject = archivePath;
    try {
        const ArchiveFile archive(archivePath);
        const formats::ZipReading reading = formats::readZipDirectory(
            archive.size(), [&archive](std::uint64_t at, std::span<std::byte> into) {
                return archive.readAt(at, into);
            });
        if (!reading.directory) {
            complaints.about(archivePath, reading.error);
            return;
        }
        subject = folder;
        if (reading.directory->totalSize() > freeSpace(folder)) {
            complaints.about(folder, "the archive's contents need more space than is free");
            return;
        }
        const Descriptor top = openOrMakeFolder(folder, 0777 & ~umask);
        Extraction({.archive = archive,
                    .directory = *reading.directory,
                    .top = top.number(),
                    .topPath = folder,
                    .umask = umask,
                    .progress = progress,
                    .complaints = complaints})
            .run();
    } catch (const std::exception& error) {
        complaints.about(subject, error);
    }
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    Complaints complaints("ditto");
    // Each file is made with the very mode it shall have.
    const mode_t umask = ::umask(0);
    if (arguments.size() == 4 && arguments[0] == "-xk" && arguments[1] == "--noqtn") {
        extract(arguments[2], arguments[3], umask, complaints);
        return complaints.status();
    }
    if (arguments.size() == 3 && arguments[0] == "-rsrcFork") {
        Progress progress;
        TreeCopy({.umask = umask, .progress = progress, .complaints = complaints})
            .copy(arguments[1], arguments[2]);
        return complaints.status();
    }
    return usage();
}
