#include "documents/Files.h"
#include "documents/tables/OpenTable.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using namespace millichart;
using namespace millichart::documents;

/// A sheet's name, its rows with their lines, and why they ended.
std::string Sheet(const TableInput& input) {
    const std::unique_ptr<RowReader> reader = OpenTable(input);
    std::string text;
    for (TableRow row; reader->Next(row);) {
        text += std::to_string(row.Line) + ":";
        for (const std::string& cell : row.Cells) {
            text += cell + "|";
        }
        text += "\n";
    }
    return reader->Sheet() + "\n" + text + reader->Fault();
}

TableInput File(const std::string& name, const std::string& sheet = {}) {
    TableInput input{ReadFile(MILLICHART_TEST_DATA "/tables/" + name)};
    input.Options.Sheet = sheet;
    return input;
}

} // namespace

TEST(Spreadsheet, GivesWhatAWorkbookStores) {
    EXPECT_EQ(Sheet(File("sales.xlsx")),
              "Sales\n2:|Sales of the year|\n4:|Region|2023|2024|\n5:|北京|1234.5|0.3|\n"
              "6:|South & \"far\"|TRUE|\n7:|West|-3|\n8:|East|#DIV/0!|0.45|\n");
    EXPECT_EQ(Sheet(File("sales.xlsx", "Dates")),
              "Dates\n1:day|value|\n2:2024-01-01|1|\n3:2024-01-03|2|\n4:2024-01-09|4|\n");
    EXPECT_EQ(Sheet(File("sales.xlsx", "Clock")),
              "Clock\n1:at|v|\n2:2024-01-01T06:00:00|1|\n3:2024-01-01T18:00:00|2|\n4:2024-01-02|4|\n");
    EXPECT_EQ(Sheet(File("from1904.xlsx")), "Sheet\n1:d|v|\n2:2024-02-28|1|\n3:2024-03-01|2|\n");
    EXPECT_EQ(Sheet(File("sales.xlsx", "Costs")),
              "\nfound no sheet \"Costs\", expected one of \"空\", \"Sales\", \"Dates\", \"Clock\"");
}

TEST(Spreadsheet, GivesWhatAnOpenDocumentStores) {
    EXPECT_EQ(Sheet(File("sales.ods")),
              "Sales\n1:Region|a|b|\n2:北  x|1234.5|0.45|\n3:South|7|7|\n4:South|7|7|\n");
    EXPECT_EQ(Sheet(File("sales.ods", "Dates")),
              "Dates\n1:2024-01-01|1|\n2:2024-01-02T12:00:00|2|\n3:2024-01-05|3|\n");
}

TEST(Spreadsheet, ThatIsBrokenIsTold) {
    EXPECT_EQ(Sheet({{"t", "\xD0\xCF\x11\xE0..."}}), "\nfound an old or an encrypted workbook, expected "
                                                     ".xlsx, .ods or CSV; a spreadsheet program saves it "
                                                     "as one, without a password");
    EXPECT_EQ(Sheet({{"t", "PK\x03\x04 and no more"}}),
              "\nfound an archive or a broken file, expected .xlsx, .ods or CSV");
    for (const char* name : {"sales.xlsx", "sales.ods"}) {
        const TableInput whole = File(name);
        for (std::size_t at = 4; at < whole.Input.Text.size(); at += 61) {
            TableInput broken = whole;
            broken.Input.Text[at] = static_cast<char>(broken.Input.Text[at] ^ 0x15);
            const std::string said = Sheet(broken);
            EXPECT_FALSE(said.empty());
            broken.Input.Text.resize(at);
            EXPECT_NE(Sheet(broken).find("found an archive or a broken file"), std::string::npos);
        }
    }
}
