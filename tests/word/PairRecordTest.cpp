#include "word/PairRecord.h"

#include <gtest/gtest.h>

namespace {

using ec::pairRecord;
using ec::PairRecord;

TEST(PairRecord, ARecordIsWordStartupFolderAndVersion) {
    EXPECT_EQ(pairRecord("/W.app", "/S", 16), "/W.app|||/S|||16");
    EXPECT_EQ(PairRecord::split("/W.app|||/S|||16"), (PairRecord{"/W.app", "/S", "16"}));
    EXPECT_EQ((PairRecord{"/W.app", "/S", "2016"}).text(), "/W.app|||/S|||2016");
}

TEST(PairRecord, MissingFieldsAreEmpty) {
    EXPECT_EQ(PairRecord::split("/W.app"), (PairRecord{"/W.app", "", ""}));
    EXPECT_EQ(PairRecord::split("/W.app|||"), (PairRecord{"/W.app", "", ""}));
    EXPECT_EQ(PairRecord::split("|||/S"), (PairRecord{"", "/S", ""}));
    EXPECT_EQ(PairRecord::split(""), PairRecord());
}

TEST(PairRecord, FieldsAfterTheThirdArePassedOver) {
    EXPECT_EQ(PairRecord::split("a|||b|||c|||d"), (PairRecord{"a", "b", "c"}));
}

TEST(PairRecord, OfFourBarsTheFirstThreeSeparate) {
    EXPECT_EQ(PairRecord::split("a||||b"), (PairRecord{"a", "|b", ""}));
    EXPECT_EQ(PairRecord::split("a||b"), (PairRecord{"a||b", "", ""}));
}

} // namespace
