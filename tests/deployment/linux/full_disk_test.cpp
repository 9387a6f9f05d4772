// A deployment folder on a disk that is full, and one that vanishes in the middle.
#include "tests/deployment/fake_host.h"

#include "tests/platform/linux/small_disk.h"

#include <filesystem>

namespace {

using modDeployment::CreateBatchFile;
using modDeployment::CreateHTMLFile;
using modDeployment::DeployFiles;
using modDeployment::g_bolDeploymentSucceeded;
namespace fs = std::filesystem;

class DeploysToAFullDisk : public test::DeploymentTest {
protected:
    void SetUp() override {
        if (!disk_.Mounted()) {
            GTEST_SKIP() << "a disk of its own needs root";
        }
        test::WriteBytes(target_.File("Sites.ini"), "old");
        test::WriteBytes(target_.File("Sites.ini.bat"), "old");
        disk_.Fill();
        host_.includesMDAC = true;
        host_.selected = {true, false, false};
    }
    [[nodiscard]] std::vector<std::string> Captions() const {
        std::vector<std::string> captions;
        for (const auto& box : log_.Messages()) {
            captions.push_back(box.caption);
        }
        return captions;
    }

    test::SmallDisk disk_{target_.Path()};
};

TEST_F(DeploysToAFullDisk, TheBoxSaysThatNoSpaceIsLeftAndNothingHalfIsThere) {
    DeployFiles();
    ASSERT_EQ(log_.Messages().size(), 1u);
    EXPECT_NE(log_.Messages()[0].text.find("Error:28\r\nError Description:No space left on device"),
              std::string::npos)
        << log_.Messages()[0].text;
    EXPECT_FALSE(g_bolDeploymentSucceeded);
    EXPECT_EQ(target_.EntryCount(), 3);
}

TEST_F(DeploysToAFullDisk, OldSettingsAndGeneratedFilesStay) {
    host_.includesMDAC = false;
    DeployFiles();
    CreateBatchFile();
    CreateHTMLFile();
    EXPECT_EQ(Captions(),
              (std::vector<std::string>{"INI File Write Warning", "Error Deploying Batch File",
                                        "Error Deploying HTML File"}));
    EXPECT_EQ(test::ReadBytes(target_.File("Sites.ini")), "old");
    EXPECT_EQ(test::ReadBytes(target_.File("Sites.ini.bat")), "old");
    EXPECT_EQ(target_.EntryCount(), 3);
}

class VanishingHost : public test::FakeHost {
public:
    void Advance(std::string_view label) override {
        FakeHost::Advance(label);
        if (label == "Copying INI file ...") {
            fs::remove_all(folder);
        }
    }
};

TEST_F(DeploysToAFullDisk, AFolderThatVanishesInTheMiddleIsAnError) {
    const test::TemporaryFolder other;
    VanishingHost host;
    host.folder = other.Subfolder("inner");
    host.source = host_.source;
    DeployFiles();
    EXPECT_EQ(Captions(), std::vector<std::string>{"Error Deploying INI File"});
    EXPECT_FALSE(g_bolDeploymentSucceeded);
    EXPECT_FALSE(fs::exists(host.folder));
}

} // namespace
