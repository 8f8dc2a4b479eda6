#include "ChartData.h"

#include "Csv.h"
#include "Fields.h"
#include "InputFile.h"
#include "UserError.h"
#include "penlode/StringUtil.h"
#include "penlode/TextForms.h"

#include <filesystem>
#include <string_view>

namespace cli {
namespace {

using penlode::CStringUtil;

constexpr const char* kTwoCells = "a name and a value";

/// Reads the names and values of one CSV file, and tells what is wrong in it.
class NamedValuesReader {
public:
    NamedValuesReader(std::string file, std::vector<Message>& messages)
        : m_file(std::move(file)), m_messages(messages) {}

    NamedValues Read(std::string_view text) {
        if (!IsUtf8(text)) {
            Tell(0, "another encoding", "UTF-8; a spreadsheet program calls it \"CSV UTF-8\"");
            return {};
        }
        const CsvTable table = ParseCsv(text);
        if (table.OpenQuote != 0) {
            Tell(table.OpenQuote, "a quote that never closes", "a closing quote");
            return {};
        }
        for (const CsvRow& row : table.Rows) {
            ReadRow(row, &row == &table.Rows.front());
        }
        if (m_read.Values.empty() && !HasErrors(m_messages)) {
            Tell(0, "no rows", "rows of a name and a value");
        }
        return std::move(m_read);
    }

private:
    void ReadRow(const CsvRow& row, bool isFirst) {
        double value = 0.0;
        if (row.Cells.size() != 2) {
            Tell(row.Line, row.Cells.size() == 1 ? "1 cell" : std::to_string(row.Cells.size()) + " cells",
                 kTwoCells);
        } else if (ParseNumber(row.Cells[1], value)) {
            m_read.Names.push_back(CStringUtil::Utf8ToAnsi(row.Cells[0]));
            m_read.Values.push_back(value);
        } else if (!isFirst) {
            Tell(row.Line, '"' + row.Cells[1] + '"', penlode::kFloatForm);
        }
    }

    void Tell(std::size_t line, const std::string& found, const std::string& wanted) {
        m_messages.push_back({m_file, Severity::Error, line, "", found, wanted});
    }

    std::string m_file;
    std::vector<Message>& m_messages;
    NamedValues m_read;
};

NamedValues ReadNamedValues(const std::string& file, std::vector<Message>& messages) {
    std::vector<Message> own;
    NamedValues read;
    try {
        read = NamedValuesReader(ShownName(file), own).Read(ReadInput(file));
    } catch (const UserError& error) {
        own.push_back({ShownName(file), Severity::Error, 0, "", "", "", error.Reason()});
    }
    messages.insert(messages.end(), own.begin(), own.end());
    return read;
}

std::string Beside(const std::string& folder, const std::string& name) {
    return (std::filesystem::path(folder) / name).string();
}

} // namespace

NamedValues LoadNamedValues(ChartStream& stream, const DataSource& source) {
    NamedValues data;
    stream.Push("data", -1);
    const bool hasFile = stream.Has("csv");
    if (stream.Has("values") || (!hasFile && !source.NamedByUser)) {
        data.Values = LoadNumbers(stream, "values");
    }
    const std::string named = hasFile ? LoadText(stream, "csv", "") : "";
    if (hasFile && stream.Has("values")) {
        stream.Refuse("csv", named, "either values or csv, not both");
    }
    stream.Pop();
    if (source.NamedByUser) {
        return ReadNamedValues(*source.NamedByUser, *source.Messages);
    }
    return hasFile ? ReadNamedValues(Beside(source.Folder, CStringUtil::AnsiToUtf8(named)), *source.Messages)
                   : data;
}

} // namespace cli
