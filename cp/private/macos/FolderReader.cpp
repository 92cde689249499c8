#include "cp/private/FolderReader.h"

#include <cerrno>
#include <dirent.h>

#include "cp/private/FileDescriptor.h"
#include "cp/private/TreeWalk.h"

namespace Corvaldine::CP::Private {

struct FolderReader::State {
    struct Close {
        void operator()(DIR* stream) const { ::closedir(stream); }
    };
    int folder = -1;
    std::unique_ptr<DIR, Close> directory;
    bool complete = false;
};

FolderReader::FolderReader() : m_state(std::make_unique<State>()) {}

FolderReader::~FolderReader() = default;

void FolderReader::start(int folder) {
    m_state->folder = folder;
    m_state->complete = false;
    // The stream owns its descriptor and closes it.
    FileDescriptor own(::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    m_state->directory.reset(own.isOpen() ? ::fdopendir(own.number()) : nullptr);
    if (m_state->directory)
        own.release();
}

bool FolderReader::next(Entry& entry) {
    State& state = *m_state;
    while (state.directory) {
        errno = 0;
        // The stream is this object's own, so no other thread reads it.
        const dirent* next = ::readdir(state.directory.get()); // NOLINT(concurrency-mt-unsafe)
        if (next == nullptr) {
            state.complete = errno == 0;
            state.directory.reset();
            break;
        }
        const std::string_view name(next->d_name);
        if (name == "." || name == "..")
            continue;
        entry = {.name = name, .isFolder = is_folder(state.folder, next->d_name, next->d_type)};
        return true;
    }
    return false;
}

bool FolderReader::isComplete() const {
    return m_state->complete;
}

} // namespace Corvaldine::CP::Private
