#include "documents/tables/SheetRows.h"
#include "documents/tables/ZipFile.h"
#include "penlode/text/Digits.h"

#include <algorithm>

namespace millichart::documents {
namespace {

using pugi::xml_node;

constexpr std::size_t kMostRows = std::size_t{1} << 20U;
constexpr std::size_t kMostColumns = std::size_t{1} << 14U;

std::size_t Repeated(xml_node node, std::string_view attribute, std::size_t most) {
    const std::size_t count = penlode::NumberOf<std::size_t>(Attribute(node, attribute)).value_or(1);
    return std::clamp(count, std::size_t{1}, most);
}

/// The paragraphs of a cell, but not those of its remarks.
class Paragraphs final : public pugi::xml_tree_walker {
public:
    bool for_each(xml_node& node) override {
        const std::string_view name = LocalName(node.name());
        if (name == "annotation") {
            m_remark = depth();
            m_isInRemark = true;
        } else if (m_isInRemark && depth() <= m_remark) {
            m_isInRemark = false;
        }
        if (m_isInRemark) {
            return true;
        }
        if (name == "p" && !Text.empty()) {
            Text += "\n";
        } else if (name == "s") {
            Text.append(Repeated(node, "c", 1000), ' ');
        } else if (name == "tab") {
            Text += "\t";
        } else if (name == "line-break") {
            Text += "\n";
        }
        Text += node.type() == pugi::node_pcdata ? node.value() : "";
        return true;
    }

    std::string Text;

private:
    int m_remark = 0;
    bool m_isInRemark = false;
};

/// "14:30:00" for "PT14H30M00S".
std::string ClockOf(std::string_view duration) {
    std::string clock;
    for (const char c : duration) {
        clock += c >= '0' && c <= '9' ? std::string(1, c) : c == 'H' || c == 'M' ? ":" : "";
        if (c == '.' || c == ',') {
            break;
        }
    }
    return clock;
}

std::string CellText(xml_node cell) {
    const std::string_view type = Attribute(cell, "value-type");
    const std::string_view own = cell.attribute("calcext:value-type").value();
    if (own != "error" && (type == "float" || type == "percentage" || type == "currency")) {
        const std::optional<double> number = penlode::NumberOf<double>(Attribute(cell, "value"));
        return number ? penlode::PlainDigits(*number) : "";
    }
    if (type == "date") {
        const std::string_view date = Attribute(cell, "date-value");
        constexpr std::string_view kMidnight = "T00:00:00";
        return std::string(date.ends_with(kMidnight) ? date.substr(0, date.size() - kMidnight.size()) : date);
    }
    if (type == "time") {
        return ClockOf(Attribute(cell, "time-value"));
    }
    if (type == "boolean") {
        return Attribute(cell, "boolean-value") == "true" ? "TRUE" : "FALSE";
    }
    Paragraphs paragraphs;
    cell.traverse(paragraphs);
    return std::move(paragraphs.Text);
}

void ReadRow(xml_node row, std::size_t line, SheetRows& rows) {
    std::size_t column = 0;
    for (const xml_node cell : row.children()) {
        const std::size_t repeated = Repeated(cell, "number-columns-repeated", kMostColumns);
        const std::string text = LocalName(cell.name()) == "table-cell" ? CellText(cell) : "";
        for (std::size_t i = 0;
             !text.empty() && i < repeated && column + i < kMostColumns && rows.Fault().empty(); ++i) {
            rows.Put(line, column + i, text);
        }
        column += repeated;
    }
}

/// Rows may stand in groups, such as those of a heading. A row that is repeated to the sheet's end is empty.
class SheetWalker final : public pugi::xml_tree_walker {
public:
    explicit SheetWalker(SheetRows& rows) : m_rows(rows) {}

    bool for_each(xml_node& node) override {
        if (LocalName(node.name()) == "table-row") {
            const std::size_t repeated = Repeated(node, "number-rows-repeated", kMostRows);
            const bool isEmpty = !node.find_node([](xml_node inner) {
                return inner.type() == pugi::node_pcdata;
            }) && !node.find_child([](xml_node cell) { return !Attribute(cell, "value-type").empty(); });
            for (std::size_t i = 0;
                 !isEmpty && i < repeated && m_line + i < kMostRows && m_rows.Fault().empty(); ++i) {
                ReadRow(node, m_line + i, m_rows);
            }
            m_line += repeated;
        }
        return m_line < kMostRows && m_rows.Fault().empty();
    }

private:
    SheetRows& m_rows;
    std::size_t m_line = 0;
};

} // namespace

void ReadOds(const ZipFile& file, const std::string& sheet, SheetRows& rows) {
    const std::optional<std::string> text = file.Part("content.xml");
    pugi::xml_document document;
    if (!text || !document.load_buffer(text->data(), text->size())) {
        rows.SetFault(
            "cannot be read: the spreadsheet is broken or encrypted, or larger than 256 MB when unpacked");
        return;
    }
    std::vector<SheetEntry> entries;
    const xml_node body = Child(document.document_element(), "body");
    for (const xml_node table : Children(Child(body, "spreadsheet"), "table")) {
        entries.push_back({std::string(Attribute(table, "name")), "", table});
    }
    ReadSheet(entries, sheet, rows, [](const SheetEntry& entry, SheetRows& into) {
        SheetWalker walker(into);
        xml_node(entry.Node).traverse(walker);
    });
}

} // namespace millichart::documents
