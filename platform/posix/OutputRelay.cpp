#include "platform/posix/OutputRelay.h"

#include <array>
#include <string>
#include <string_view>

#include "platform/posix/ChildStreams.h"

namespace posix {

int OutputRelay::relay(ChildProcess& child, const std::function<void(int)>& reader,
                       const std::function<void()>& meanwhile) {
    m_fromChild.writing.close();
    std::string kept;
    std::array streams{ChildStream{std::move(m_fromChild.reading), [&](std::string_view bytes) {
                                       if (meanwhile)
                                           kept += bytes;
                                       else
                                           m_toReader.write(bytes);
                                   }}};
    if (meanwhile) {
        waitTakingIn(child, streams, meanwhile);
        m_toReader.read(reader, [&] { m_toReader.write(kept); });
    } else {
        m_toReader.read(reader, [&] { waitTakingIn(child, streams); });
    }
    return child.wait();
}

} // namespace posix
