#include "documents/large/LargeRows.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace millichart {
namespace {

/// Rows may change between two looks at them, and the columns of the picture with them.
constexpr int kMostLooks = 3;

std::int32_t Clamped(std::int64_t time) {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(time, Limits::min(), Limits::max()));
}

/// The columns in the table's own times.
std::vector<std::int32_t> Uncounted(const std::vector<std::int32_t>& columns, const TimeCount& count) {
    std::vector<std::int32_t> starts;
    starts.reserve(columns.size());
    for (const std::int32_t column : columns) {
        starts.push_back(Clamped(count.Uncounted(column)));
    }
    return starts;
}

void Count(CurveData& data, const TimeCount& count) {
    for (std::vector<std::int32_t>& times : data.Times) {
        for (std::int32_t& time : times) {
            time = Clamped(count.Counted(time));
        }
    }
}

/// None while a chart does not tell them.
template <class Chart>
std::vector<std::int32_t> ColumnsOf(const Chart& chart, const penlode::IGraphicsEngine& engine) {
    if constexpr (requires { chart.DataColumns(engine); }) {
        return chart.DataColumns(engine);
    } else {
        return {};
    }
}

bool HasErrors(const std::vector<penlode::Diagnostic>& told) {
    return std::any_of(told.begin(), told.end(), [](const penlode::Diagnostic& one) {
        return one.Severity == penlode::Severity::Error;
    });
}

} // namespace

std::int64_t TimeCount::Uncounted(std::int64_t time) const {
    const std::int64_t since = time * Unit - First;
    return since / Each + (since % Each > 0 ? 1 : 0);
}

std::vector<penlode::Diagnostic>
documents::TakeShownRows(const LargeRows& rows, const penlode::IGraphicsEngine& engine, CBasicCurve& chart) {
    std::vector<penlode::Diagnostic> told;
    std::vector<std::int32_t> columns = ColumnsOf(chart, engine);
    for (int look = 0; look < kMostLooks; ++look) {
        CurveData data = rows.Source->Thinned(Uncounted(columns, rows.Count), told);
        if (HasErrors(told)) {
            break;
        }
        Count(data, rows.Count);
        chart.SetCurveData(std::move(data.Values), std::move(data.Times));
        chart.Layout();
        std::vector<std::int32_t> now = ColumnsOf(chart, engine);
        if (now == columns) {
            break;
        }
        columns = std::move(now);
    }
    return told;
}

} // namespace millichart
