#include "word/WordPathList.h"

#include "cp/CaseFolding.h"
#include "word/PairRecord.h"

namespace ec {

void WordPathList::add(const std::vector<std::string>& recordsOrPaths) {
    for (const std::string& entry : recordsOrPaths) {
        std::string path = PairRecord::split(entry).word;
        if (m_folded.insert(Corvaldine::CP::case_folded(path)).second)
            m_paths.push_back(std::move(path));
    }
}

} // namespace ec
