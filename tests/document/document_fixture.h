// A clean record and a file of its own for every test of the document.
#pragma once

#include "document/document.h"

#include "tests/support/files.h"
#include "tests/support/message_log.h"

#include <gtest/gtest.h>

namespace test {

class DocumentTest : public testing::Test {
protected:
    DocumentTest() {
        modINIDocument::g_Document = {};
        modINIDocument::g_strINIFilePath = folder_.File("Sites.ini");
    }
    ~DocumentTest() override {
        modINIDocument::g_Document = {};
        modINIDocument::g_strINIFilePath.clear();
    }

    /// Puts these bytes in the document's file.
    static void FileHolds(std::string_view bytes) {
        WriteBytes(modINIDocument::g_strINIFilePath, bytes);
    }
    static std::string FileBytes() { return ReadBytes(modINIDocument::g_strINIFilePath); }

    TemporaryFolder folder_;
    MessageLog log_;
};

} // namespace test
