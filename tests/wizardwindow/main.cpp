#include <gmock/gmock.h>

#include "tests/ui/Stage.h"

int main(int argc, char** argv) {
    // so that the loop tells when it waits, and only then (see WizardWindow)
    qputenv("QT_NO_GLIB", "1");
    const stage::Surroundings surroundings;
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
