#include <cstdlib>

#include <gtest/gtest.h>

namespace {

/// The tests know the bytes of page 1252, whatever language the machine speaks.
class WesternEuropean : public testing::Environment {
public:
    void SetUp() override { ASSERT_EQ(setenv("LC_ALL", "C.UTF-8", 1), 0); }
};

const auto* const g_environment = testing::AddGlobalTestEnvironment(new WesternEuropean);

} // namespace
