#include "documents/tables/SheetRows.h"
#include "documents/tables/ZipFile.h"
#include "penlode/text/Digits.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace millichart::documents {
namespace {

using pugi::xml_document;
using pugi::xml_node;

/// Before this day all is one off: the first program of its kind took 1900 for a leap year.
constexpr double kFirstOfMarch1900 = 61.0;
constexpr double kDaysTo1970 = 25569.0;
constexpr double kDaysBetweenSystems = 1462.0; ///< from 1900 to 1904

bool Load(const ZipFile& file, const std::string& part, xml_document& document) {
    const std::optional<std::string> text = file.Part(part);
    return text && document.load_buffer(text->data(), text->size());
}

/// The texts of a cell or a shared one: runs of rich text, but no phonetic guides.
std::string TextOf(xml_node node) {
    std::string text;
    for (const xml_node child : node.children()) {
        if (LocalName(child.name()) == "t") {
            text += child.text().get();
        } else if (LocalName(child.name()) == "r") {
            text += Child(child, "t").text().get();
        }
    }
    return text;
}

/// Does a format such as "yyyy-mm-dd" show a date? Quoted texts, colours in brackets and escaped letters say
/// nothing.
bool IsDateFormat(std::string_view format) {
    for (std::size_t i = 0; i < format.size(); ++i) {
        switch (format[i]) {
        case '"':
            i = std::min(format.find('"', i + 1), format.size());
            break;
        case '[':
            i = std::min(format.find(']', i), format.size());
            break;
        case '\\':
        case '_':
            ++i;
            break;
        default:
            if (std::string_view("ymdhsYMDHS").find(format[i]) != std::string_view::npos) {
                return format != "General" && format != "Standard";
            }
        }
    }
    return false;
}

bool IsDateFormat(int number) {
    return (number >= 14 && number <= 22) || (number >= 27 && number <= 36) ||
           (number >= 45 && number <= 47) || (number >= 50 && number <= 58);
}

class Workbook {
public:
    Workbook(const ZipFile& file, SheetRows& rows) : m_file(file), m_rows(rows) {
        LoadTexts();
        LoadFormats();
    }

    void Read(const std::string& sheet) {
        xml_document workbook;
        xml_document links;
        if (!Load(m_file, "xl/workbook.xml", workbook) ||
            !Load(m_file, "xl/_rels/workbook.xml.rels", links)) {
            m_rows.SetFault(kBroken);
            return;
        }
        const xml_node root = workbook.document_element();
        const std::string_view epoch = Attribute(Child(root, "workbookPr"), "date1904");
        m_isFrom1904 = epoch == "1" || epoch == "true";
        std::map<std::string, std::string, std::less<>> parts;
        for (const xml_node link : Children(links.document_element(), "Relationship")) {
            const std::string target(Attribute(link, "Target"));
            parts.emplace(Attribute(link, "Id"), target.starts_with('/') ? target.substr(1) : "xl/" + target);
        }
        std::vector<SheetEntry> entries;
        for (const xml_node entry : Children(Child(root, "sheets"), "sheet")) {
            const auto part = parts.find(Attribute(entry, "id"));
            entries.push_back({std::string(Attribute(entry, "name")),
                               part == parts.end() ? "" : part->second,
                               {},
                               Attribute(entry, "state").ends_with("idden")});
        }
        ReadSheet(entries, sheet, m_rows,
                  [this](const SheetEntry& entry, SheetRows&) { ReadPart(entry.Part); });
    }

private:
    static constexpr const char* kBroken =
        "cannot be read: the workbook is broken or encrypted, or larger than 256 MB when unpacked";

    void LoadTexts() {
        xml_document document;
        if (Load(m_file, "xl/sharedStrings.xml", document)) {
            for (const xml_node text : Children(document.document_element(), "si")) {
                m_texts.push_back(TextOf(text));
            }
        }
    }

    void LoadFormats() {
        xml_document document;
        if (!Load(m_file, "xl/styles.xml", document)) {
            return;
        }
        std::set<int> own;
        for (const xml_node format : Children(Child(document.document_element(), "numFmts"), "numFmt")) {
            if (IsDateFormat(Attribute(format, "formatCode"))) {
                own.insert(penlode::NumberOf<int>(Attribute(format, "numFmtId")).value_or(-1));
            }
        }
        for (const xml_node style : Children(Child(document.document_element(), "cellXfs"), "xf")) {
            const int number = penlode::NumberOf<int>(Attribute(style, "numFmtId")).value_or(0);
            m_areDates.push_back(IsDateFormat(number) || own.contains(number));
        }
    }

    /// Rows and cells may leave out where they stand: then each follows the one before.
    void ReadPart(const std::string& part) {
        xml_document document;
        if (!Load(m_file, part, document)) {
            m_rows.SetFault(kBroken);
            return;
        }
        std::size_t line = 0;
        for (const xml_node row : Child(document.document_element(), "sheetData").children()) {
            line = penlode::NumberOf<std::size_t>(Attribute(row, "r")).value_or(line + 1);
            std::size_t column = 0;
            for (const xml_node cell : row.children()) {
                column = ColumnOf(Attribute(cell, "r")).value_or(column + 1);
                if (line == 0 || line > kMostRows || column > kMostColumns) {
                    m_rows.SetFault(kBroken);
                    return;
                }
                m_rows.Put(line - 1, column - 1, CellText(cell));
            }
        }
    }

    /// 28 for "AB7".
    static std::optional<std::size_t> ColumnOf(std::string_view reference) {
        std::size_t column = 0;
        for (const char c : reference) {
            if (c < 'A' || c > 'Z' || column > kMostColumns) {
                break;
            }
            column = column * 26 + static_cast<std::size_t>(c - 'A' + 1);
        }
        return column == 0 ? std::nullopt : std::optional(column);
    }

    std::string CellText(xml_node cell) const {
        const std::string_view type = Attribute(cell, "t");
        const std::string_view value = Child(cell, "v").text().get();
        if (type == "inlineStr") {
            return TextOf(Child(cell, "is"));
        }
        if (type == "s") {
            const std::size_t index = penlode::NumberOf<std::size_t>(value).value_or(m_texts.size());
            return index < m_texts.size() ? m_texts[index] : "";
        }
        if (type == "b") {
            return value == "1" ? "TRUE" : "FALSE";
        }
        const std::optional<double> number =
            type.empty() || type == "n" ? penlode::NumberOf<double>(value) : std::nullopt;
        return number ? NumberText(*number, Attribute(cell, "s")) : std::string(value);
    }

    std::string NumberText(double number, std::string_view style) const {
        const std::size_t format = penlode::NumberOf<std::size_t>(style).value_or(m_areDates.size());
        if (format >= m_areDates.size() || !m_areDates[format]) {
            return penlode::PlainDigits(number);
        }
        const bool isTimeAlone = number >= 0.0 && number < 1.0;
        const double days = m_isFrom1904                 ? number + kDaysBetweenSystems
                            : number < kFirstOfMarch1900 ? number + 1.0
                                                         : number;
        return DateOfDays(isTimeAlone ? number : days - kDaysTo1970, isTimeAlone);
    }

    static constexpr std::size_t kMostRows = std::size_t{1} << 20U;
    static constexpr std::size_t kMostColumns = std::size_t{1} << 14U;

    const ZipFile& m_file;
    SheetRows& m_rows;
    std::vector<std::string> m_texts;
    std::vector<bool> m_areDates; ///< by a cell's style
    bool m_isFrom1904 = false;
};

} // namespace

void ReadXlsx(const ZipFile& file, const std::string& sheet, SheetRows& rows) {
    Workbook(file, rows).Read(sheet);
}

} // namespace millichart::documents
