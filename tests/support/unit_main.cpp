#include <cstdio>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace {

// A copy of this program under the engine's name stands in for the engine: it stores the arguments
// it was started with, one a line, beside itself.
bool IsEngineStandIn(std::string_view program) {
    return program.ends_with("QueueshiftEngine.exe") || program.ends_with("QueueshiftEngine");
}

int StoreArguments(const std::vector<std::string>& arguments) {
    std::ofstream file(arguments.front() + ".started", std::ios::binary);
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        file << arguments[i] << '\n';
    }
    return file.flush() ? 0 : 1;
}

} // namespace

// A filter that matches nothing is a slip of the caller: a run without a test is no success.
int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv, argv + argc);
    if (IsEngineStandIn(arguments.front())) {
        return StoreArguments(arguments);
    }
    testing::InitGoogleTest(&argc, argv);
    const int result = RUN_ALL_TESTS();
    const auto* run = testing::UnitTest::GetInstance();
    if (!GTEST_FLAG_GET(list_tests) && run->test_to_run_count() == 0) {
        std::fprintf(stderr, "no test was selected: nothing matches --gtest_filter=%s\n",
                     GTEST_FLAG_GET(filter).c_str());
        return 1;
    }
    return result;
}
