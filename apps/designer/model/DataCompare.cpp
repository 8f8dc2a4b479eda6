#include "model/DataCompare.h"

#include <limits>

namespace designer {
namespace {

using Texts = std::vector<std::string>;

constexpr std::size_t kRecordBytes = 4096;
/// What a cell of text takes that stands in a tree.
constexpr std::size_t kNodeBytes = 96;

bool AreNamedAlike(const std::monostate&, const std::monostate&) {
    return true;
}

bool AreNamedAlike(const millichart::PieDocument& a, const millichart::PieDocument& b) {
    return a.Data == b.Data && a.Prop.Basic.ComponentName == b.Prop.Basic.ComponentName;
}

bool AreNamedAlike(const millichart::HalfPieDocument& a, const millichart::HalfPieDocument& b) {
    return a.Data == b.Data && a.Prop.Basic.ComponentName == b.Prop.Basic.ComponentName;
}

bool AreNamedAlike(const millichart::HalfPieHalfPieDocument& a, const millichart::HalfPieHalfPieDocument& b) {
    return a.First == b.First && a.Second == b.Second &&
           a.Prop.First.Basic.ComponentName == b.Prop.First.Basic.ComponentName &&
           a.Prop.Second.Basic.ComponentName == b.Prop.Second.Basic.ComponentName;
}

bool AreNamedAlike(const millichart::HalfPieHistogramDocument& a,
                   const millichart::HalfPieHistogramDocument& b) {
    return a.Slices == b.Slices && a.Bars == b.Bars &&
           a.Prop.HalfPie.Basic.ComponentName == b.Prop.HalfPie.Basic.ComponentName &&
           a.Prop.Histogram.Plot.ComponentName == b.Prop.Histogram.Plot.ComponentName;
}

bool AreNamedAlike(const millichart::HistogramDocument& a, const millichart::HistogramDocument& b) {
    return a.Data == b.Data && a.Prop.Plot.ComponentName == b.Prop.Plot.ComponentName;
}

bool AreNamedAlike(const millichart::CurveDocument& a, const millichart::CurveDocument& b) {
    return a.Data == b.Data && a.Prop.Plot.CurveName == b.Prop.Plot.CurveName;
}

std::size_t TextBytes(const Texts& texts) {
    std::size_t bytes = 0;
    for (const std::string& text : texts) {
        constexpr std::size_t kInPlace = 15;
        bytes += sizeof(std::string) + (text.size() > kInPlace ? text.size() : 0);
    }
    return bytes;
}

template <class T> std::size_t ListBytes(const std::vector<std::vector<T>>& lists) {
    std::size_t bytes = 0;
    for (const std::vector<T>& list : lists) {
        bytes += sizeof(list) + list.size() * sizeof(T);
    }
    return bytes;
}

std::size_t DataBytes(const millichart::SliceData& data) {
    return data.Values.size() * sizeof(double) + TextBytes(data.Names);
}

std::size_t DataBytes(const millichart::BarData& data) {
    return ListBytes(data.Values) + TextBytes(data.GroupNames) +
           data.Origin.Lines.size() * sizeof(std::uint32_t);
}

std::size_t DataBytes(const millichart::CurveData& data) {
    return ListBytes(data.Values) + ListBytes(data.Times) + TextBytes(data.Labels) +
           data.Origin.Lines.size() * sizeof(std::uint32_t);
}

} // namespace

bool AreSame(const millichart::ChartDocument& a, const millichart::ChartDocument& b) {
    return a.Title == b.Title && a.Description == b.Description && a.Source == b.Source &&
           penlode::AreEqual(a.Location, b.Location) && a.Options == b.Options && a.Content == b.Content;
}

bool HaveSameData(const millichart::ChartDocument& a, const millichart::ChartDocument& b) {
    if (a.Content.index() != b.Content.index() || a.Options.TimeUnit != b.Options.TimeUnit) {
        return false;
    }
    return std::visit(
        [&b](const auto& document) {
            return AreNamedAlike(document, std::get<std::decay_t<decltype(document)>>(b.Content));
        },
        a.Content);
}

std::size_t BytesOf(const millichart::ChartContent& content) {
    const std::size_t data = std::visit(
        [](const auto& document) -> std::size_t {
            if constexpr (requires { document.Data; }) {
                return DataBytes(document.Data);
            } else if constexpr (requires { document.First; }) {
                return DataBytes(document.First) + DataBytes(document.Second);
            } else if constexpr (requires { document.Bars; }) {
                return DataBytes(document.Slices) + DataBytes(document.Bars);
            } else {
                return 0;
            }
        },
        content);
    return kRecordBytes + data;
}

std::size_t BytesOf(const DataTable& table) {
    const std::size_t head = table.Heads() == RowHeads::Names ? sizeof(std::string) : sizeof(std::int64_t);
    std::size_t bytes = table.RowCount() * (head + (table.ColumnCount() - 1) * sizeof(double));
    for (std::size_t column = 0; column < table.ColumnCount(); ++column) {
        bytes += table.Odd(column).size() * kNodeBytes;
    }
    return bytes;
}

} // namespace designer
