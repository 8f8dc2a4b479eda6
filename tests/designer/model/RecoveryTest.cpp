#include "model/Recovery.h"

#include "designer/model/OwnFolder.h"
#include "documents/Files.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace {

using namespace designer;
namespace fs = std::filesystem;

const millichart::ChartKind& Kind(const char* name) {
    return *millichart::FindChartKind(name);
}

class RecoveryTest : public testing::Test {
protected:
    test::OwnFolder m_own;
    std::string m_folder = m_own.Path("kept");
};

Editor Unsaved() {
    Editor editor = Editor::New(Kind("pie"));
    editor.ChangeTable("odd", 0, [](DataTable& table) {
        table.SetText(0, 0, "甲\n乙");
        table.SetText(1, 1, "缺");
        table.SetText(2, 1, "-4");
        table.SetText(1, 2, "a\tb");
        table.SetText(9, 3, "5");
        table.SetHeading(1, "产量");
        table.SetHeading(3, "出口");
    });
    return editor;
}

TEST_F(RecoveryTest, WhatWasNotSavedComesBackWholeOnceItsProgramIsGone) {
    const Editor editor = Unsaved();
    {
        RecoveryFile file(m_folder);
        ASSERT_EQ(file.Keep(editor), "");
        EXPECT_TRUE(FindRecovered(m_folder).empty()) << "it still runs";
        if (fs::path::preferred_separator == '/') {
            EXPECT_EQ(fs::status(m_folder).permissions() & fs::perms::all, fs::perms::owner_all);
        }
    }
    const std::vector<Recovered> found = FindRecovered(m_folder);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].File, "");
    EXPECT_EQ(found[0].Time.size(), 16U);
    const Editor again = Recover(found[0]);
    EXPECT_EQ(again.Tables(), editor.Tables());
    EXPECT_TRUE(again.Document().Content == editor.Document().Content);
    EXPECT_FALSE(again.IsSaved());
    EXPECT_FALSE(again.CanUndo());
    Forget(found[0]);
    EXPECT_TRUE(fs::is_empty(m_folder));
}

TEST_F(RecoveryTest, ASavedOrDroppedDocumentLeavesNothing) {
    Editor editor = Unsaved();
    RecoveryFile file(m_folder);
    ASSERT_EQ(file.Keep(editor), "");
    ASSERT_EQ(file.Keep(editor), "");
    EXPECT_FALSE(fs::is_empty(m_folder));
    ASSERT_EQ(editor.Save(m_own.Path("recovered.chart.json")), "");
    ASSERT_EQ(file.Keep(editor), "");
    EXPECT_TRUE(fs::is_empty(m_folder));
    editor.Undo();
    ASSERT_EQ(file.Keep(editor), "");
    EXPECT_FALSE(fs::is_empty(m_folder));
    file.Drop();
    EXPECT_TRUE(fs::is_empty(m_folder));
}

TEST_F(RecoveryTest, ItComesBackUnderItsNameAndFindsItsTable) {
    const std::string home = m_own.Path("home");
    fs::create_directories(home);
    std::ofstream(home + "/a.csv") << "A,1\nB,2\n";
    std::ofstream(home + "/a.chart.json") << R"({"kind": "pie", "data": {"csv": "a.csv"}})";
    {
        Editor editor = Editor::Open(home + "/a.chart.json");
        editor.Change("title", [](millichart::ChartDocument& document) { document.Title = "new"; });
        RecoveryFile(m_folder).Keep(editor);
    }
    const std::vector<Recovered> found = FindRecovered(m_folder);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].File, home + "/a.chart.json");
    Editor again = Recover(found[0]);
    EXPECT_EQ(again.Document().Title, "new");
    EXPECT_EQ(again.Tables().at(0).Text(1, 1), "2");
    EXPECT_FALSE(again.IsFileOthers());
    EXPECT_EQ(again.Save(again.File()), "");
}

TEST_F(RecoveryTest, ADamagedCopyIsPassedOverWhereverItIsDamaged) {
    RecoveryFile(m_folder).Keep(Unsaved());
    const std::string kept = FindRecovered(m_folder).at(0).Kept;
    const std::string whole = millichart::ReadFile(kept).Text;
    const auto isFound = [&](const std::string& bytes) {
        std::ofstream(kept, std::ios::binary) << bytes;
        return !FindRecovered(m_folder).empty();
    };
    EXPECT_TRUE(isFound(whole));
    for (std::size_t at = 0; at < whole.size(); at += 1 + whole.size() / 150) {
        EXPECT_FALSE(isFound(whole.substr(0, at))) << at;
        std::string changed = whole;
        changed[at] = static_cast<char>(changed[at] ^ 1);
        EXPECT_FALSE(isFound(changed)) << at;
    }
    EXPECT_FALSE(isFound(whole + "x"));
    const Editor none = Recover({kept, "", ""});
    EXPECT_FALSE(none.Document().IsSound());
    EXPECT_TRUE(none.Tables().empty());
}

TEST_F(RecoveryTest, AFolderThatCannotBeMadeIsTold) {
    std::ofstream(m_folder) << "a file";
    EXPECT_NE(RecoveryFile(m_folder).Keep(Unsaved()), "");
    EXPECT_TRUE(FindRecovered(m_folder).empty());
}

} // namespace
