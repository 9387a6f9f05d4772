// The deployed batch file, run by the system's command interpreter.

#include "tests/deployment/fake_host.h"

#include <windows.h>

#include <algorithm>
#include <cstdlib>

namespace {

using namespace modDeployment;

std::string OwnProgram() {
    std::string path(MAX_PATH, '\0');
    path.resize(GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path;
}

class BatchRun : public test::DeploymentTest {};

TEST_F(BatchRun, StartsTheEngineWithTheDeployedSettingsAsItsOneArgument) {
    host_.folder = target_.Subfolder("a share");
    const std::string engine = host_.folder + "\\QueueshiftEngine.exe";
    ASSERT_TRUE(CopyFileA(OwnProgram().c_str(), engine.c_str(), TRUE) != FALSE);
    CreateBatchFile();

    const std::string batch = host_.folder + "\\Sites.ini.bat";
    std::string bytes = test::ReadBytes(batch);
    ASSERT_NE(bytes.find('\0'), std::string::npos);
    // Wine's interpreter stops reading at a NUL character, Windows' own does not.
    std::erase(bytes, '\0');
    test::WriteBytes(batch, bytes);

    ASSERT_EQ(std::system(("\"\"" + batch + "\"\"").c_str()), 0);
    EXPECT_EQ(test::ReadBytes(engine + ".started"), host_.folder + "\\Sites.ini\n");
}

} // namespace
