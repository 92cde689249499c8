#include "platform/macos/UnifiedLog.h"

#include <Foundation/Foundation.h>

#include "platform/posix/OneLine.h"

namespace macoshost {

namespace {

NSString* decoded(const std::string& text, NSStringEncoding encoding) {
    return [[NSString alloc] initWithBytes:text.data() length:text.size() encoding:encoding];
}

} // namespace

void UnifiedLog::write(std::string_view text) {
    @autoreleasepool {
        const std::string line = posix::oneLine(text);
        NSString* message = decoded(line, NSUTF8StringEncoding);
        // What is no UTF-8 is shown byte by byte rather than not at all.
        if (!message)
            message = decoded(line, NSISOLatin1StringEncoding);
        NSLog(@"%@", message);
    }
}

} // namespace macoshost
