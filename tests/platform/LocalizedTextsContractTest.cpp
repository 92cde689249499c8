#include <gtest/gtest.h>
#include <optional>

#include "platform/posix/EnglishTexts.h"
#include "tests/fakes/FakeLocalizedTexts.h"
#include "tests/support/LocalizedTextsContract.h"

namespace tests {

struct English {
    const ports::LocalizedTexts& texts(const tests::TemporaryFolder& folder) {
        return m_texts.emplace(folder.path());
    }
    std::optional<posix::EnglishTexts> m_texts;
};

struct Pretended {
    const ports::LocalizedTexts& texts(const tests::TemporaryFolder& folder) {
        if (const auto path = posix::localizedFile(folder.path(), "en", "ReadMe.html"))
            m_texts.files["ReadMe.html"] = *path;
        return m_texts;
    }
    fakes::FakeLocalizedTexts m_texts;
};

using TextHosts = testing::Types<English, Pretended>;
INSTANTIATE_TYPED_TEST_SUITE_P(Texts, LocalizedTextsContract, TextHosts);

} // namespace tests
