#include "tools/files/FolderChain.h"

#include <fcntl.h>

namespace tools {

namespace {

constexpr std::size_t kMostOpen = 16;

std::string_view firstComponent(std::string_view path) {
    return path.substr(0, path.find('/'));
}

std::string_view afterFirst(std::string_view path) {
    const std::size_t slash = path.find('/');
    return slash == std::string_view::npos ? std::string_view() : path.substr(slash + 1);
}

} // namespace

std::string_view parentPath(std::string_view path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string_view::npos ? std::string_view() : path.substr(0, slash);
}

std::string_view leafName(std::string_view path) {
    return path.substr(path.rfind('/') + 1);
}

int FolderChain::of(std::string_view path) {
    std::string_view rest = path;
    std::size_t shared = 0;
    while (!rest.empty() && shared < m_chain.size() &&
           m_chain[shared].name == firstComponent(rest)) {
        ++shared;
        rest = afterFirst(rest);
    }
    if (shared > 0 && !m_chain[shared - 1].folder.isOpen()) {
        shared = 0;
        rest = path;
    }
    m_chain.erase(m_chain.begin() + static_cast<std::ptrdiff_t>(shared), m_chain.end());
    int number = shared == 0 ? m_top : m_chain.back().folder.number();
    for (; !rest.empty(); rest = afterFirst(rest)) {
        std::string name(firstComponent(rest));
        Descriptor opened(checked(
            ::openat(number, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC)));
        number = opened.number();
        m_chain.push_back({std::move(name), std::move(opened)});
        if (m_chain.size() > kMostOpen)
            m_chain[m_chain.size() - 1 - kMostOpen].folder.close();
    }
    return number;
}

} // namespace tools
