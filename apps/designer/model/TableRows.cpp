// Rows and columns of a table: inserted, removed, moved and sorted.
#include "model/DataTable.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace designer {
namespace {

using Order = std::vector<std::size_t>;

Order AsTheyStand(std::size_t count) {
    Order order(count);
    std::iota(order.begin(), order.end(), std::size_t{0});
    return order;
}

Order WithNew(std::size_t count, std::size_t before, std::size_t added) {
    Order order = AsTheyStand(count);
    order.insert(order.begin() + static_cast<std::ptrdiff_t>(std::min(before, count)), added, Origins::kNew);
    return order;
}

/// Empty when there is nothing to remove.
Order Without(std::size_t count, std::size_t first, std::size_t removed) {
    Order order = AsTheyStand(count);
    const auto from = order.begin() + static_cast<std::ptrdiff_t>(first);
    order.erase(from, from + static_cast<std::ptrdiff_t>(std::min(removed, count - first)));
    return order;
}

Order Moved(std::size_t count, std::size_t first, std::size_t moved, std::size_t before) {
    Order order = AsTheyStand(count);
    const auto at = [&order](std::size_t index) {
        return order.begin() + static_cast<std::ptrdiff_t>(index);
    };
    const std::size_t end = first + std::min(moved, count - first);
    before = std::min(before, count);
    if (before < first) {
        std::rotate(at(before), at(first), at(end));
    } else if (before > end) {
        std::rotate(at(first), at(end), at(before));
    }
    return order;
}

template <class T> std::vector<T> Arranged(std::vector<T> list, const Order& order, const T& fresh) {
    std::vector<T> arranged;
    arranged.reserve(order.size());
    for (const std::size_t index : order) {
        if (index == Origins::kNew) {
            arranged.push_back(fresh);
        } else {
            arranged.push_back(std::move(list[index]));
        }
    }
    return arranged;
}

std::map<std::size_t, std::string> Arranged(const std::map<std::size_t, std::string>& texts,
                                            const Order& order) {
    std::map<std::size_t, std::string> arranged;
    for (std::size_t i = 0; i < order.size() && !texts.empty(); ++i) {
        if (const auto found = texts.find(order[i]); found != texts.end()) {
            arranged.emplace_hint(arranged.end(), i, found->second);
        }
    }
    return arranged;
}

} // namespace

std::size_t Origins::At(std::size_t index) const {
    if (m_isArranged) {
        return m_of[index];
    }
    return index < m_former ? index : kNew;
}

bool Origins::AreMoved() const {
    for (std::size_t i = 0; i < m_of.size(); ++i) {
        if (m_of[i] != i && (m_of[i] != kNew || i < m_former)) {
            return true;
        }
    }
    return false;
}

void Origins::Reset(std::size_t count) {
    m_former = count;
    m_count = count;
    m_isArranged = false;
    m_of.clear();
}

void Origins::Grow(std::size_t count) {
    if (count > m_count) {
        m_count = count;
        if (m_isArranged) {
            m_of.resize(count, kNew);
        }
    }
}

void Origins::Arrange(const std::vector<std::size_t>& order) {
    std::vector<std::size_t> arranged(order.size());
    std::transform(order.begin(), order.end(), arranged.begin(),
                   [this](std::size_t index) { return index == kNew ? kNew : At(index); });
    m_of = std::move(arranged);
    m_isArranged = true;
    m_count = order.size();
}

void DataTable::ArrangeRows(const std::vector<std::size_t>& order) {
    if (m_heads == RowHeads::Names) {
        m_names = Arranged(std::move(m_names), order, {});
    } else {
        m_times = Arranged(std::move(m_times), order, kNoTime);
        m_notTimes = Arranged(m_notTimes, order);
    }
    for (Column& column : m_columns) {
        column.Numbers = Arranged(std::move(column.Numbers), order, std::numeric_limits<double>::quiet_NaN());
        column.Odd = Arranged(column.Odd, order);
    }
    m_rowCount = order.size();
    m_rowOrigins.Arrange(order);
}

void DataTable::ArrangeColumns(const std::vector<std::size_t>& order) {
    const std::vector<double> gaps(m_rowCount, std::numeric_limits<double>::quiet_NaN());
    m_columns = Arranged(std::move(m_columns), order, Column{{}, gaps, {}});
    m_columnOrigins.Arrange(order);
}

void DataTable::InsertRows(std::size_t before, std::size_t count) {
    ArrangeRows(WithNew(m_rowCount, before, count));
}

void DataTable::RemoveRows(std::size_t first, std::size_t count) {
    if (first < m_rowCount) {
        ArrangeRows(Without(m_rowCount, first, count));
    }
}

void DataTable::MoveRows(std::size_t first, std::size_t count, std::size_t before) {
    if (first < m_rowCount) {
        ArrangeRows(Moved(m_rowCount, first, count, before));
    }
}

void DataTable::InsertColumns(std::size_t before, std::size_t count) {
    ArrangeColumns(WithNew(m_columns.size(), before == 0 ? 0 : before - 1, count));
}

void DataTable::RemoveColumns(std::size_t first, std::size_t count) {
    if (first == 0 && count > 0) {
        first = 1;
        --count;
    }
    if (first < ColumnCount() && count > 0) {
        ArrangeColumns(Without(m_columns.size(), first - 1, count));
    }
}

void DataTable::MoveColumns(std::size_t first, std::size_t count, std::size_t before) {
    if (first == 0 && count > 0) {
        first = 1;
        --count;
    }
    if (first < ColumnCount() && count > 0) {
        ArrangeColumns(Moved(m_columns.size(), first - 1, count, before == 0 ? 0 : before - 1));
    }
}

/// Gaps, and with numbers texts, come last whichever way the others go.
std::vector<std::size_t> DataTable::SortedRows(std::size_t column, bool isAscending) const {
    const auto sorted = [&](const auto& isThere, const auto& isLess) {
        Order order = AsTheyStand(m_rowCount);
        const auto end = std::stable_partition(order.begin(), order.end(), isThere);
        std::stable_sort(order.begin(), end, [&](std::size_t a, std::size_t b) {
            return isAscending ? isLess(a, b) : isLess(b, a);
        });
        return order;
    };
    if (column > 0) {
        const std::vector<double>& numbers = Numbers(column);
        if (std::any_of(numbers.begin(), numbers.end(), [](double number) { return !std::isnan(number); })) {
            return sorted([&](std::size_t row) { return !std::isnan(numbers[row]); },
                          [&](std::size_t a, std::size_t b) { return numbers[a] < numbers[b]; });
        }
    } else if (m_heads != RowHeads::Names && m_notTimes.size() < m_rowCount) {
        return sorted([&](std::size_t row) { return m_times[row] != kNoTime; },
                      [&](std::size_t a, std::size_t b) { return m_times[a] < m_times[b]; });
    }
    std::vector<std::string> texts(m_rowCount);
    for (std::size_t row = 0; row < m_rowCount; ++row) {
        texts[row] = Text(row, column);
    }
    return sorted([&](std::size_t row) { return !texts[row].empty(); },
                  [&](std::size_t a, std::size_t b) { return texts[a] < texts[b]; });
}

void DataTable::Sort(std::size_t column, bool isAscending) {
    if (column < ColumnCount()) {
        ArrangeRows(SortedRows(column, isAscending));
    }
}

} // namespace designer
