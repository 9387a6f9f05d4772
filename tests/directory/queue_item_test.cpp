#include "directory/queue_item.h"

#include <gtest/gtest.h>

namespace modADPrinters {
namespace {

TEST(QueueItem, CutsTheNameAtItsFirstDash) {
    EXPECT_EQ(QueueItem().Next("SRV01-HP-4000"), "SRV01 >> HP-4000");
    EXPECT_EQ(QueueItem().Next("SRV01-HP"), "SRV01 >> HP");
    EXPECT_EQ(QueueItem().Next("SRV01-"), "SRV01 >> ");
    EXPECT_EQ(QueueItem().Next("-HP"), " >> HP");
    EXPECT_EQ(QueueItem().Next("-"), " >> ");
    EXPECT_EQ(QueueItem().Next("M\u00FCnchen-\u00C9tage-2"), "M\u00FCnchen >> \u00C9tage-2");
}

TEST(QueueItem, ANameWithoutADashTakesThePreviousServer) {
    QueueItem item;
    EXPECT_EQ(item.Next("lonely"), " >> lonely");
    EXPECT_EQ(item.Next("SRV1-HP"), "SRV1 >> HP");
    EXPECT_EQ(item.Next("bare"), "SRV1 >> bare");
    EXPECT_EQ(item.Next(""), "SRV1 >> ");
    EXPECT_EQ(item.Next("-x"), " >> x");
    EXPECT_EQ(item.Next("bare"), " >> bare");
}

TEST(QueueItem, ARecordWithoutANameRepeatsTheOneBefore) {
    QueueItem item;
    EXPECT_EQ(item.Next(std::nullopt), " >> ");
    EXPECT_EQ(item.Next("SRV1-HP"), "SRV1 >> HP");
    EXPECT_EQ(item.Next(std::nullopt), "SRV1 >> HP");
}

} // namespace
} // namespace modADPrinters
