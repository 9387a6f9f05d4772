// A host without a window: what its controls hold is set by the test.
#pragma once

#include "deployment/deployment.h"

#include "document/document.h"

#include "tests/support/files.h"
#include "tests/support/message_log.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace test {

class FakeHost : public modDeployment::Host {
public:
    FakeHost() { modDeployment::SetHost(this); }
    ~FakeHost() override { modDeployment::SetHost(nullptr); }
    FakeHost(const FakeHost&) = delete;
    FakeHost& operator=(const FakeHost&) = delete;

    std::string DeploymentFolder() const override { return folder; }
    std::string SourceFolder() const override { return source; }
    bool IncludesMDAC() const override { return includesMDAC; }
    bool IsMDACVersionSelected(int index) const override {
        return selected.at(static_cast<std::size_t>(index));
    }
    void Advance(std::string_view label) override { labels.emplace_back(label); }

    std::string folder;
    std::string source;
    bool includesMDAC = false;
    std::vector<bool> selected = {false, false, false};
    std::vector<std::string> labels;
};

/// A saved document, a folder to deploy to and one with stand-ins for the product's files.
class DeploymentTest : public testing::Test {
protected:
    DeploymentTest() {
        host_.folder = target_.Path();
        host_.source = source_.Path();
        for (const auto name : {"QueueshiftEngine.exe", "MSCOMCTL.OCX", "MSWINSCK.OCX",
                                "MDAC_TYP2.5SP3.EXE", "MDAC_TYP2.7SP1.EXE", "MDAC_TYP2.8.EXE"}) {
            WriteBytes(source_.File(name), std::string("stand-in for ") + name);
        }
        modINIDocument::g_strINIFilePath = saved_.File("Sites.ini");
        modINIDocument::g_strINIFileTitle = "Sites.ini";
        WriteBytes(saved_.File("Sites.ini"), "[GENERAL]\r\n");
        modDeployment::g_bolDeploymentSucceeded = true;
    }
    ~DeploymentTest() override {
        modINIDocument::g_strINIFilePath.clear();
        modINIDocument::g_strINIFileTitle.clear();
        modDeployment::g_bolDeploymentSucceeded = false;
    }

    TemporaryFolder source_;
    TemporaryFolder saved_;
    TemporaryFolder target_;
    FakeHost host_;
    MessageLog log_;
};

} // namespace test
