// The login session that the program runs in. Asked by the composition root before it decides
// whether there will be a window. Any thread.
#pragma once

namespace macoshost {

/// Can this session show windows? A login over ssh and a daemon's session can't. Where the system
/// does not say: no.
bool hasGraphicSession();

} // namespace macoshost
