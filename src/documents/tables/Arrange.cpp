#include "documents/tables/Arrange.h"

#include "penlode/text/StringUtil.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <string_view>

namespace millichart::documents {
namespace {

using penlode::CStringUtil;
using penlode::Diagnostic;

constexpr std::array<std::string_view, 8> kTotals = {"total", "totals", "grand total", "sum",
                                                     "合计",  "总计",   "总和",        "summe"};

class Arrangement {
public:
    Arrangement(Table& table, const TableForm& form) : m_table(table), m_form(form) {}

    /// Of a row, without its gaps.
    double Sum(std::size_t row) const {
        double sum = 0.0;
        for (const std::vector<double>& column : m_table.Columns) {
            sum += ValueOf(column, row);
        }
        return sum;
    }

    bool HasTotal() const {
        const std::size_t last = Rows() - 1;
        return Rows() > 2 && !m_table.Names.empty() && IsTotal(m_table.Names[last]) &&
               std::all_of(m_table.Columns.begin(), m_table.Columns.end(),
                           [&](const std::vector<double>& column) { return EndsWithSum(column); });
    }

    void Sort(TableOrder order) {
        std::vector<std::size_t> rows(Rows());
        std::iota(rows.begin(), rows.end(), std::size_t{0});
        const auto isBefore = [&](std::size_t a, std::size_t b) {
            switch (order) {
            case TableOrder::Ascending:
                return Sum(a) < Sum(b);
            case TableOrder::Descending:
                return Sum(a) > Sum(b);
            default:
                return m_table.Names.empty() ? m_table.Times[a] < m_table.Times[b]
                                             : m_table.Names[a] < m_table.Names[b];
            }
        };
        std::stable_sort(rows.begin(), rows.end(), isBefore);
        Keep(rows);
    }

    /// The largest rows stay in their order; a last one has the sum of the others.
    void KeepTop(std::size_t count) {
        std::vector<std::size_t> rows(Rows());
        std::iota(rows.begin(), rows.end(), std::size_t{0});
        std::stable_sort(rows.begin(), rows.end(),
                         [this](std::size_t a, std::size_t b) { return Sum(a) > Sum(b); });
        const auto rest = rows.begin() + static_cast<std::ptrdiff_t>(count);
        std::vector<double> sums;
        for (const std::vector<double>& column : m_table.Columns) {
            sums.push_back(std::accumulate(rest, rows.end(), 0.0, [&](double sum, std::size_t row) {
                return sum + ValueOf(column, row);
            }));
        }
        const std::string name = NameOfRest();
        rows.erase(rest, rows.end());
        std::sort(rows.begin(), rows.end());
        Keep(rows);
        for (std::size_t i = 0; i < sums.size(); ++i) {
            m_table.Columns[i].push_back(sums[i]);
        }
        m_table.Names.push_back(name);
        m_table.Origin.Lines.push_back(0);
    }

    std::size_t Rows() const { return m_table.Origin.Lines.size(); }

private:
    double ValueOf(const std::vector<double>& column, std::size_t row) const {
        const double value = column[row];
        return std::isnan(value) || (m_form.Gap && value == *m_form.Gap) ? 0.0 : value;
    }

    static bool IsTotal(const std::string& name) {
        std::string text = CStringUtil::AnsiToUtf8(name);
        std::transform(text.begin(), text.end(), text.begin(),
                       [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
        return std::find(kTotals.begin(), kTotals.end(), text) != kTotals.end();
    }

    /// Figures are often rounded.
    bool EndsWithSum(const std::vector<double>& column) const {
        constexpr double kRounding = 1e-3;
        const std::size_t last = Rows() - 1;
        double sum = 0.0;
        for (std::size_t row = 0; row < last; ++row) {
            sum += ValueOf(column, row);
        }
        return std::abs(sum - ValueOf(column, last)) <= kRounding * std::abs(sum);
    }

    /// In the language of the other names.
    std::string NameOfRest() const {
        const bool areChinese =
            std::any_of(m_table.Names.begin(), m_table.Names.end(), [](const std::string& name) {
                const std::wstring text = CStringUtil::AnsiToWideString(name);
                return std::any_of(text.begin(), text.end(),
                                   [](wchar_t c) { return c >= 0x4E00 && c <= 0x9FFF; });
            });
        return CStringUtil::Utf8ToAnsi(areChinese ? "其他" : "Other");
    }

    template <class T> static void KeepIn(std::vector<T>& list, const std::vector<std::size_t>& rows) {
        std::vector<T> kept;
        kept.reserve(rows.size());
        for (const std::size_t row : rows) {
            kept.push_back(list[row]);
        }
        list = std::move(kept);
    }

    void Keep(const std::vector<std::size_t>& rows) {
        if (!m_table.Names.empty()) {
            KeepIn(m_table.Names, rows);
        }
        if (m_table.Names.empty()) { // else the times count the rows
            KeepIn(m_table.Times, rows);
        }
        KeepIn(m_table.Origin.Lines, rows);
        for (std::vector<double>& column : m_table.Columns) {
            KeepIn(column, rows);
        }
    }

    Table& m_table;
    const TableForm& m_form;
};

} // namespace

void Arrange(Table& table, const TableForm& form, const TableOptions& options,
             std::vector<Diagnostic>& diagnostics) {
    Arrangement arrangement(table, form);
    if (arrangement.Rows() == 0 || table.Columns.empty()) {
        return;
    }
    const auto refuse = [&](const char* place, const std::string& found, const std::string& expected) {
        diagnostics.push_back(penlode::Error(place, found, expected));
        diagnostics.back().File = table.Origin.File;
    };
    if (arrangement.HasTotal()) {
        diagnostics.push_back(penlode::Warning(
            "", "\"" + CStringUtil::AnsiToUtf8(table.Names.back()) +
                    "\" is the sum of the rows above and is shown beside them; leave the row out"));
        PutAt(table.Origin, arrangement.Rows() - 1, 0, diagnostics.back());
    }
    if (form.HasTimes && options.Top != 0) {
        refuse("top", std::to_string(options.Top),
               "nothing for a line chart, whose rows are times and no parts");
        return;
    }
    const bool areTimes = table.Names.empty() && form.HasTimes;
    if (areTimes && (options.Order == TableOrder::Ascending || options.Order == TableOrder::Descending)) {
        refuse("order", "an order by values", "\"name\", as the rows of this line chart are times");
        return;
    }
    if (options.Order != TableOrder::AsItStands) {
        arrangement.Sort(options.Order);
    }
    if (options.Top != 0 && options.Top + 1 < arrangement.Rows()) {
        arrangement.KeepTop(options.Top);
    }
}

} // namespace millichart::documents
