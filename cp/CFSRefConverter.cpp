#include "cp/CFSRefConverter.h"

#include "cp/CException.h"
#include "cp/private/Catalogue.h"
#include "cp/private/PathConversion.h"

namespace Corvaldine::CP {

CFSRefConverter::operator const FSRef&() {
    if (!makeRef())
        throw CException(CException::null_pointer);
    return *m_ref;
}

CFSRefConverter::operator const CPath&() {
    if (!makePath())
        throw CException(CException::null_pointer);
    return *m_path;
}

bool CFSRefConverter::get_fsspec(FSSpec& spec) {
    if (!makeRef())
        return false;
    m_status = Private::ref_make_spec(*m_ref, spec);
    return m_status == Private::kNoError;
}

bool CFSRefConverter::makeRef() {
    if (m_ref)
        return true;
    if (!m_path) {
        m_status = Private::kNothingToConvert;
        return false;
    }
    const auto path = Private::system_path(*m_path);
    if (!path) {
        m_status = Private::kTextNotConvertible;
        return false;
    }
    FSRef ref;
    m_status = Private::path_make_ref(*path, ref);
    if (m_status != Private::kNoError)
        return false;
    m_ref = ref;
    return true;
}

bool CFSRefConverter::makePath() {
    if (m_path || !m_ref)
        return m_path.has_value();
    std::string path;
    m_status = Private::ref_make_path(*m_ref, path);
    if (m_status != Private::kNoError)
        return false;
    m_path = CPath(path);
    return true;
}

} // namespace Corvaldine::CP
