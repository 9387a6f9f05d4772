#include "tests/deployment/fake_host.h"

#include "platform/program.h"
#include "platform/system_error.h"

#include <filesystem>

namespace {

using modDeployment::DeployFiles;
using modDeployment::g_bolDeploymentSucceeded;
using platform::Icon;
using platform::PathExists;
using Labels = std::vector<std::string>;

class DeploysFiles : public test::DeploymentTest {
protected:
    void Include(int version) {
        host_.includesMDAC = true;
        host_.selected.at(static_cast<std::size_t>(version)) = true;
    }
    void Lose(const std::string& name) { std::filesystem::remove(source_.File(name)); }
    bool Arrived(const std::string& name) const { return PathExists(target_.File(name)); }
    /// The one box that was shown.
    const platform::Message& Box() const {
        EXPECT_EQ(log_.Messages().size(), 1u);
        EXPECT_EQ(log_.Messages().at(0).buttons, platform::Buttons::Ok);
        return log_.Messages().at(0);
    }
};

/// What the system says of a file that is not there.
std::string MissingFileLines() {
    return "Error:2\r\nError Description:" + platform::SystemErrorFromNumber(2).description;
}

const std::string kMissingSettings =
    "Error: Queueshift was unable to deploy your INI file to the folder specified.\r\n\r\n"
    "Please check your file and folder permissions.";
const std::string kProtectedSettings =
    "Warning: Queueshift was unable to deploy your INI file to the folder specified.\r\n\r\n"
    "The file already exists and is currently write protected.\r\n"
    "If you saved your INI file to the same folder as your deployment folder,\r\n"
    "then you can ignore this warning, becuase your INI file is already deployed.\r\n"
    "If not, then please check your file and folder permissions.";

TEST_F(DeploysFiles, WithoutAnInstallerEngineControlsAndSettingsArrive) {
    DeployFiles();
    EXPECT_EQ(test::ReadBytes(target_.File("QueueshiftEngine.exe")),
              "stand-in for QueueshiftEngine.exe");
    EXPECT_EQ(test::ReadBytes(target_.File("MSCOMCTL.OCX")), "stand-in for MSCOMCTL.OCX");
    EXPECT_EQ(test::ReadBytes(target_.File("MSWINSCK.OCX")), "stand-in for MSWINSCK.OCX");
    EXPECT_EQ(test::ReadBytes(target_.File("Sites.ini")), "[GENERAL]\r\n");
    EXPECT_EQ(target_.EntryCount(), 4);
    EXPECT_TRUE(log_.Messages().empty());
    EXPECT_TRUE(g_bolDeploymentSucceeded);
    EXPECT_EQ(host_.labels, (Labels{"Copying Queueshift Engine ...", "Copying INI file ..."}));
}

TEST_F(DeploysFiles, WithAnInstallerItArrivesFirst) {
    Include(1);
    DeployFiles();
    EXPECT_EQ(test::ReadBytes(target_.File("MDAC_TYP2.7SP1.EXE")),
              "stand-in for MDAC_TYP2.7SP1.EXE");
    EXPECT_EQ(target_.EntryCount(), 5);
    EXPECT_TRUE(log_.Messages().empty());
    EXPECT_TRUE(g_bolDeploymentSucceeded);
    EXPECT_EQ(host_.labels, (Labels{"Copying MDAC file ...", "Copying Queueshift Engine ...",
                                    "Copying INI file ..."}));
}

TEST_F(DeploysFiles, FilesOfAnEarlierDeploymentAreReplaced) {
    test::WriteBytes(target_.File("QueueshiftEngine.exe"), "old engine");
    test::WriteBytes(target_.File("Sites.ini"), "old settings");
    DeployFiles();
    EXPECT_EQ(test::ReadBytes(target_.File("QueueshiftEngine.exe")),
              "stand-in for QueueshiftEngine.exe");
    EXPECT_EQ(test::ReadBytes(target_.File("Sites.ini")), "[GENERAL]\r\n");
    EXPECT_TRUE(g_bolDeploymentSucceeded);
}

TEST_F(DeploysFiles, AMissingInstallerStopsEverything) {
    Include(0);
    Lose("MDAC_TYP2.5SP3.EXE");
    DeployFiles();
    EXPECT_EQ(Box().caption, "Error");
    EXPECT_EQ(Box().icon, Icon::Critical);
    EXPECT_EQ(Box().text,
              "Error copying MDAC file to deployment folder. \r\n"
              "Please verify your deployment folder path, ensure that you have downloaded the\r\n"
              "additional MDAC files from the Queueshift website\r\n"
              "(http://www.queueshift.example/downloads)\r\n"
              "or you have configured your MDAC files as described in the User's Guide.\r\n\r\n" +
                  MissingFileLines());
    EXPECT_FALSE(g_bolDeploymentSucceeded);
    EXPECT_EQ(target_.EntryCount(), 0);
    EXPECT_EQ(host_.labels, Labels{"Copying MDAC file ..."});
}

TEST_F(DeploysFiles, AnInstallerWithoutAVersionCannotBeCopied) {
    host_.includesMDAC = true;
    DeployFiles();
    EXPECT_EQ(Box().text.substr(0, 46), "Error copying MDAC file to deployment folder. ");
    EXPECT_EQ(target_.EntryCount(), 0);
}

TEST_F(DeploysFiles, WithAnInstallerEachMissingEngineFileIsAnEngineError) {
    Include(2);
    for (const auto name : {"QueueshiftEngine.exe", "MSCOMCTL.OCX", "MSWINSCK.OCX"}) {
        const test::TemporaryFolder target;
        host_.folder = target.Path();
        const test::MessageLog log;
        g_bolDeploymentSucceeded = true;
        Lose(name);
        DeployFiles();
        ASSERT_EQ(log.Messages().size(), 1u) << name;
        EXPECT_EQ(log.Messages()[0].caption, "Error");
        EXPECT_EQ(log.Messages()[0].icon, Icon::Critical);
        EXPECT_EQ(log.Messages()[0].text,
                  "Error copying Queueshift Engine file to deployment folder. \r\n"
                  "Please verify that you have permissions to your deployment folder.\r\n\r\n" +
                      MissingFileLines());
        EXPECT_FALSE(g_bolDeploymentSucceeded);
        EXPECT_FALSE(PathExists(target.File("Sites.ini")));
        EXPECT_EQ(target.EntryCount(), 3) << "a failed copy does not stop the next";
        test::WriteBytes(source_.File(name), "back again");
    }
}

TEST_F(DeploysFiles, WithoutAnInstallerEachMissingEngineFileIsASettingsProblem) {
    for (const auto name : {"QueueshiftEngine.exe", "MSCOMCTL.OCX", "MSWINSCK.OCX"}) {
        const test::TemporaryFolder target;
        host_.folder = target.Path();
        const test::MessageLog log;
        g_bolDeploymentSucceeded = true;
        Lose(name);
        DeployFiles();
        ASSERT_EQ(log.Messages().size(), 1u) << name;
        // The settings did arrive, so the box speaks of a protected file.
        EXPECT_EQ(log.Messages()[0].caption, "INI File Write Warning");
        EXPECT_EQ(log.Messages()[0].text, kProtectedSettings);
        EXPECT_FALSE(g_bolDeploymentSucceeded);
        EXPECT_TRUE(PathExists(target.File("Sites.ini")));
        test::WriteBytes(source_.File(name), "back again");
    }
}

TEST_F(DeploysFiles, SettingsSavedInTheDeploymentFolderAreAWarning) {
    modINIDocument::g_strINIFilePath = target_.File("Sites.ini");
    test::WriteBytes(target_.File("Sites.ini"), "[SUPPORT]\r\n");
    for (const bool includesMDAC : {false, true}) {
        host_.includesMDAC = includesMDAC;
        host_.selected[0] = true;
        const test::MessageLog log;
        g_bolDeploymentSucceeded = true;
        DeployFiles();
        ASSERT_EQ(log.Messages().size(), 1u);
        EXPECT_EQ(log.Messages()[0].caption, "INI File Write Warning");
        EXPECT_EQ(log.Messages()[0].icon, Icon::Exclamation);
        EXPECT_EQ(log.Messages()[0].text, kProtectedSettings);
        EXPECT_FALSE(g_bolDeploymentSucceeded);
        EXPECT_EQ(test::ReadBytes(target_.File("Sites.ini")), "[SUPPORT]\r\n");
    }
}

TEST_F(DeploysFiles, ProtectedSettingsInTheFolderAreAWarningAndStay) {
    test::WriteBytes(target_.File("Sites.ini"), "deployed before");
    test::Protect(target_.File("Sites.ini"));
    DeployFiles();
    EXPECT_EQ(Box().caption, "INI File Write Warning");
    EXPECT_EQ(test::ReadBytes(target_.File("Sites.ini")), "deployed before");
}

TEST_F(DeploysFiles, AFolderInThePlaceOfTheSettingsIsAnError) {
    std::filesystem::create_directory(target_.File("Sites.ini"));
    DeployFiles();
    EXPECT_EQ(Box().caption, "Error Deploying INI File");
    EXPECT_EQ(Box().icon, Icon::Critical);
    EXPECT_EQ(Box().text, kMissingSettings);
    EXPECT_FALSE(g_bolDeploymentSucceeded);
}

TEST_F(DeploysFiles, SettingsThatCannotBeReadAreAnError) {
    modINIDocument::g_strINIFilePath = saved_.File("missing.ini");
    for (const bool includesMDAC : {false, true}) {
        host_.includesMDAC = includesMDAC;
        host_.selected[0] = true;
        const test::MessageLog log;
        g_bolDeploymentSucceeded = true;
        DeployFiles();
        ASSERT_EQ(log.Messages().size(), 1u);
        EXPECT_EQ(log.Messages()[0].caption, "Error Deploying INI File");
        EXPECT_EQ(log.Messages()[0].icon, Icon::Critical);
        EXPECT_EQ(log.Messages()[0].text, kMissingSettings);
        EXPECT_FALSE(g_bolDeploymentSucceeded);
    }
}

TEST_F(DeploysFiles, AnEngineErrorNamesTheLastFileThatFailed) {
    Include(0);
    Lose("QueueshiftEngine.exe");
    test::WriteBytes(target_.File("MSWINSCK.OCX"), "protected");
    test::Protect(target_.File("MSWINSCK.OCX"));
    DeployFiles();
    const int denied = std::filesystem::path::preferred_separator == '/' ? 13 : 5;
    EXPECT_NE(Box().text.find("Error:" + std::to_string(denied) + "\r\nError Description:" +
                              platform::SystemErrorFromNumber(denied).description),
              std::string::npos)
        << Box().text;
}

TEST_F(DeploysFiles, TheFolderIsUsedAsTyped) {
    host_.folder += std::filesystem::path::preferred_separator == '/' ? "/" : "\\";
    DeployFiles();
    EXPECT_TRUE(Arrived("Sites.ini"));
    EXPECT_TRUE(log_.Messages().empty());
}

TEST_F(DeploysFiles, TheFirstSelectedVersionNamesTheInstaller) {
    EXPECT_EQ(modDeployment::MDACFileName(), "");
    host_.selected = {false, false, true};
    EXPECT_EQ(modDeployment::MDACFileName(), "MDAC_TYP2.8.EXE");
    host_.selected = {false, true, true};
    EXPECT_EQ(modDeployment::MDACFileName(), "MDAC_TYP2.7SP1.EXE");
    host_.selected = {true, true, true};
    EXPECT_EQ(modDeployment::MDACFileName(), "MDAC_TYP2.5SP3.EXE");
}

TEST(DeploymentHost, FilesComeFromTheProgramsFolderByDefault) {
    class Plain : public modDeployment::Host {
        std::string DeploymentFolder() const override { return {}; }
        bool IncludesMDAC() const override { return false; }
        bool IsMDACVersionSelected(int) const override { return false; }
        void Advance(std::string_view) override {}
    };
    EXPECT_EQ(Plain().SourceFolder(), platform::ProgramFolder());
}

} // namespace
