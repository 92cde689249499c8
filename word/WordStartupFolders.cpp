#include "word/WordStartupFolders.h"

namespace ec {

void WordStartupFolders::readCustomizerData() {
    constexpr std::string_view kData = "SVCustomizerData";
    const std::string bundle = m_needs.bundles.mainBundle();
    m_wordStartupParts = m_needs.bundles.infoStrings(bundle, kData, "StartupPaths");
    m_wordTemplateDirs = m_needs.bundles.infoStrings(bundle, kData, "Templates");
}

void WordStartupFolders::constructWordAndStartupPaths() {
    m_needs.log.logMessage("constructWordAndStartupPaths: nothing to do");
}

} // namespace ec
