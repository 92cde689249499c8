#include "cp/cpprocess.h"

#include <algorithm>
#include <uuid/uuid.h>

#include "cp/private/RunningProcess.h"

namespace Corvaldine::CP {

static_assert(sizeof(uuid_t) == sizeof(CPUUID));

bool cpprocess_id(ProcessSerialNumber* id) {
    if (id == nullptr)
        return false;
    *id = {.highLongOfPSN = 0, .lowLongOfPSN = Private::process_number()};
    return true;
}

bool cpprocess_uuid(CPUUID* uuid) {
    if (uuid == nullptr)
        return false;
    uuid_generate_random(uuid->data());
    return true;
}

bool cpprocess_uuid_to_string(CPUUID uuid, char* buffer, std::int32_t size) {
    char text[37]; // the text form and its NUL
    if (buffer == nullptr || size < static_cast<std::int32_t>(sizeof text))
        return false;
    uuid_unparse_upper(uuid.data(), text);
    std::copy_n(text, sizeof text, buffer);
    return true;
}

bool cpprocess_uuid_from_string(const char* text, CPUUID* uuid) {
    CPUUID parsed;
    if (text == nullptr || uuid == nullptr || uuid_parse(text, parsed.data()) != 0)
        return false;
    *uuid = parsed;
    return true;
}

bool cpprocess_uuid_compare(CPUUID first, CPUUID second) {
    return first == second;
}

} // namespace Corvaldine::CP
