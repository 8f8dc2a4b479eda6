#include "documents/large/CsvCurves.h"

#include "documents/large/ByteSource.h"
#include "documents/large/CsvRows.h"
#include "documents/large/OuterRows.h"
#include "documents/large/PipeCells.h"
#include "documents/large/RowBlocks.h"
#include "documents/large/RunThinner.h"
#include "documents/large/StreamWatch.h"
#include "documents/large/TimeSpread.h"
#include "penlode/engine/LineThinning.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>
#include <utility>

namespace millichart::documents {
namespace {

using penlode::Diagnostic;
using Starts = std::span<const std::int32_t>;

constexpr std::size_t kPiece = std::size_t{1} << 20U;
constexpr std::size_t kLongestRow = std::size_t{1} << 25U;
constexpr std::size_t kBlock = std::size_t{1} << 14U;
constexpr std::size_t kBlocksMemory = std::size_t{8} << 20U;
constexpr std::size_t kCellsMemory = std::size_t{16} << 20U;

/// The cell in which a time is; from 0, which is before the first start.
std::size_t CellOf(double time, Starts starts) {
    const auto end = std::upper_bound(starts.begin(), starts.end(), static_cast<std::int32_t>(time));
    return static_cast<std::size_t>(end - starts.begin());
}

CurveRow Counted(const CurveRow& row, const TimeScale& scale) {
    return {static_cast<double>(scale.TimeOf(row.Time)), row.Value};
}

Extremes Counted(Extremes rows, const TimeScale& scale) {
    for (CurveRow* const row : {&rows.First, &rows.Low, &rows.High, &rows.Last}) {
        *row = Counted(*row, scale);
    }
    return rows;
}

/// All curves of a table, thinned.
class Thinners {
public:
    Thinners(std::size_t curves, CurveData& data) {
        data.Values.resize(curves);
        data.Times.resize(curves);
        for (std::size_t curve = 0; curve < curves; ++curve) {
            m_each.emplace_back(data.Values[curve], data.Times[curve]);
        }
    }

    RunThinner& operator[](std::size_t curve) { return m_each[curve]; }

    void Finish() {
        for (RunThinner& each : m_each) {
            each.Finish();
        }
    }

private:
    std::vector<RunThinner> m_each;
};

/// Of a cell whose rows came in any order.
void Add(const LooseCell& rows, const TimeScale& scale, Starts starts, RunThinner& thinner) {
    const bool isGapFirst =
        rows.HasGap() && (rows.Rows.Count == 0 || rows.FirstGap.Time < rows.Rows.First.Time);
    if (isGapFirst) {
        thinner.AddGap(Counted(rows.FirstGap, scale));
    }
    if (rows.Rows.Count != 0) {
        const Extremes counted = Counted(rows.Rows, scale);
        const std::size_t cell = CellOf(counted.First.Time, starts);
        std::array<CurveRow, 4> list;
        const std::size_t count = counted.List(list);
        if (cell == CellOf(counted.Last.Time, starts)) {
            thinner.Add(counted, cell);
        } else {
            for (std::size_t i = 0; i < count; ++i) {
                thinner.Add(list[i], CellOf(list[i].Time, starts));
            }
        }
    }
    if (rows.HasGap() && (!isGapFirst || rows.LastGap.Time > rows.FirstGap.Time)) {
        thinner.AddGap(Counted(rows.LastGap, scale));
    }
}

class CsvCurves final : public LargeCurves {
public:
    CsvCurves(const TableInput& input, const TableForm& form, LineRules rules, std::vector<Diagnostic>& told)
        : m_input(input), m_rules(std::move(rules)), m_rows(m_input, form, told),
          m_isPipe(!m_input.Stream->Size()), m_blocks(m_rules, kBlock, kBlocksMemory),
          m_cells(m_rules, kCellsMemory) {}

    CsvRows& Rows() { return m_rows; }

    /// All rows, once.
    void Read();

    CurveData Extent(std::vector<Diagnostic>& diagnostics) override;
    CurveData Thinned(Starts starts, std::vector<Diagnostic>& diagnostics) override;

private:
    void Take(const PlainRow& row, std::size_t line, std::uint64_t begin, std::uint64_t end);
    std::size_t KeptCurves();
    bool ReadBlock(std::size_t block);
    bool IsWithin(const RowBlocks::Block& block, std::size_t& cell, Starts starts) const;
    template <class OnBlock, class OnRow>
    void ReadAgain(Starts starts, std::vector<Diagnostic>& diagnostics, const OnBlock& onBlock,
                   const OnRow& onRow);
    void ThinInOrder(Starts starts, Thinners& thinners, std::vector<Diagnostic>& diagnostics);
    void ThinLoose(Starts starts, Thinners& thinners, std::vector<Diagnostic>& diagnostics);
    void ThinCells(Starts starts, Thinners& thinners);

    TableInput m_input;
    LineRules m_rules;
    CsvRows m_rows;
    bool m_isPipe;
    TimeSpread m_times;
    OuterRows m_outer;
    RowBlocks m_blocks; ///< of a file
    PipeCells m_cells;  ///< of a pipe
    double m_lastTime = 0.0;
    std::size_t m_lineOutOfOrder = 0;
    std::string m_text; ///< what was read last
    TimeScale m_scale;
    std::size_t m_curves = 0;
};

void CsvCurves::Take(const PlainRow& row, std::size_t line, std::uint64_t begin, std::uint64_t end) {
    if (m_times.IsEmpty()) {
        m_outer.Begin(row.Values.size());
    } else if (row.Time < m_lastTime && m_lineOutOfOrder == 0) {
        m_lineOutOfOrder = line;
    }
    m_lastTime = row.Time;
    m_times.Take(row.Time, row.Decimals, m_rows.Times());
    m_outer.Take(row.Time, line, row.Values);
    if (m_isPipe) {
        m_cells.Take(row);
    } else {
        m_blocks.Take(row, line, begin, end, m_lineOutOfOrder == 0);
    }
}

void CsvCurves::Read() {
    ByteSource& stream = *m_input.Stream;
    const std::unique_ptr<StreamWatch> watch = WatchStream(m_input.Input.Name);
    m_text.resize(kPiece + 1);
    std::size_t held = 0; // bytes of rows that have not ended
    std::uint64_t at = 0; // of the first of these in the stream
    std::uint64_t above = m_rows.Begin();
    std::size_t line = m_rows.BeginLine();
    for (bool isEnd = false; !isEnd && m_rows.IsReadable();) {
        if (held > kLongestRow) {
            m_rows.Reader().Fail(
                "found a row of more than 32 MB, maybe by a quote that never closes, expected "
                "shorter ones",
                line);
            return;
        }
        if (held + 1 == m_text.size()) { // a row longer than all that was read
            m_text.resize(2 * held + 1);
        }
        const std::size_t room = m_text.size() - 1 - held;
        const std::size_t read = stream.Read(m_text.data() + held, room);
        isEnd = read < room;
        held += read;
        m_text[held] = '\0';
        const std::size_t passed = static_cast<std::size_t>(std::min<std::uint64_t>(above, held));
        above -= passed;
        const std::string_view text(m_text.data() + passed, held - passed);
        const std::uint64_t begin = at + passed;
        const std::size_t done =
            passed +
            m_rows.Scan(text, isEnd, line, [&](const PlainRow& row, const char* first, const char* behind) {
                Take(row, line, begin + static_cast<std::uint64_t>(first - text.data()),
                     begin + static_cast<std::uint64_t>(behind - text.data()));
            });
        held -= done;
        at += done;
        std::memmove(m_text.data(), m_text.data() + done, held);
        if (watch) {
            const std::optional<std::uint64_t> size = stream.Size();
            watch->Tell(m_rows.Rows(),
                        size ? std::optional(static_cast<double>(at) / static_cast<double>(*size))
                             : std::nullopt);
        }
    }
    if (!stream.Fault().empty()) {
        m_rows.Reader().Fail(stream.Fault(), 0);
    }
}

/// Columns that a spreadsheet program added are no curves, unless the document names them. One is left.
std::size_t CsvCurves::KeptCurves() {
    const std::size_t curves = m_rows.Curves();
    const std::size_t filled = curves - std::min(m_rows.Reader().Result().EmptyColumns, curves);
    return std::min(std::max({filled, m_rules.Names, std::size_t{1}}), curves);
}

CurveData CsvCurves::Extent(std::vector<Diagnostic>& diagnostics) {
    TableReader& reader = m_rows.Reader();
    m_rows.End();
    if (m_lineOutOfOrder != 0 && !reader.HasErrors()) {
        reader.WarnAtLine(m_lineOutOfOrder,
                          "the times are not in order; the line is drawn in the order of the times");
    }
    diagnostics.insert(diagnostics.end(), reader.Diagnostics().begin(), reader.Diagnostics().end());
    if (reader.HasErrors() || m_times.IsEmpty()) {
        return {};
    }
    m_scale = m_times.Scale(m_rows.Times(), m_rows.AreOfOneDay());
    m_curves = KeptCurves();
    CurveData data;
    data.CurveNames = reader.Result().Heading;
    data.Labels = m_scale.Labels;
    data.Origin = reader.Result().Origin;
    data.Origin.Dates = m_scale.Dates;
    data.Origin.Lines.clear();
    data.Values.resize(m_curves);
    std::vector<std::int32_t> times;
    for (const OuterRows::Row& row : m_outer.List()) {
        times.push_back(m_scale.TimeOf(row.Time));
        data.Origin.Lines.push_back(static_cast<std::uint32_t>(row.Line));
        for (std::size_t curve = 0; curve < m_curves; ++curve) {
            data.Values[curve].push_back(row.Values[curve]);
        }
    }
    data.Times.assign(m_curves, times);
    return data;
}

CurveData CsvCurves::Thinned(Starts starts, std::vector<Diagnostic>& diagnostics) {
    CurveData data;
    Thinners thinners(m_curves, data);
    if (m_isPipe) {
        ThinCells(starts, thinners);
    } else if (m_lineOutOfOrder != 0) {
        ThinLoose(starts, thinners, diagnostics);
    } else {
        ThinInOrder(starts, thinners, diagnostics);
    }
    thinners.Finish();
    return data;
}

/// Its bytes into the text.
bool CsvCurves::ReadBlock(std::size_t block) {
    const std::vector<RowBlocks::Block>& blocks = m_blocks.Blocks();
    const std::uint64_t begin = blocks[block].Begin;
    const std::uint64_t end = block + 1 < blocks.size() ? blocks[block + 1].Begin : m_blocks.End();
    const auto size = static_cast<std::size_t>(end - begin);
    m_text.resize(size + 1);
    const bool isRead = m_input.Stream->Seek(begin) && m_input.Stream->Read(m_text.data(), size) == size;
    m_text[size] = '\0';
    return isRead;
}

/// Does it lie within one cell, and is that all there is to say?
bool CsvCurves::IsWithin(const RowBlocks::Block& block, std::size_t& cell, Starts starts) const {
    cell = CellOf(m_scale.TimeOf(block.FirstTime), starts);
    return !block.HasGap && block.Rows >= penlode::kMinDataLinePoints &&
           cell == CellOf(m_scale.TimeOf(block.LastTime), starts);
}

/// Hands blocks that lie within a cell to `onBlock`, and the rows of others to `onRow`.
template <class OnBlock, class OnRow>
void CsvCurves::ReadAgain(Starts starts, std::vector<Diagnostic>& diagnostics, const OnBlock& onBlock,
                          const OnRow& onRow) {
    const std::vector<RowBlocks::Block>& blocks = m_blocks.Blocks();
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        if (std::size_t cell = 0; IsWithin(blocks[i], cell, starts)) {
            onBlock(i, cell);
            continue;
        }
        std::size_t rows = 0;
        if (ReadBlock(i)) {
            std::size_t line = blocks[i].Line;
            const std::string_view text(m_text.data(), m_text.size() - 1);
            m_rows.Scan(text, true, line, [&](const PlainRow& row, const char*, const char*) {
                const auto time = static_cast<double>(m_scale.TimeOf(row.Time));
                const std::size_t own = CellOf(time, starts);
                for (std::size_t curve = 0; curve < m_curves; ++curve) {
                    onRow(curve, CurveRow{time, ShownValue(row.Values[curve], m_rules, curve)}, own);
                }
                ++rows;
            });
        }
        if (rows != blocks[i].Rows) {
            diagnostics.push_back(penlode::Error("", "has changed while it was read"));
            diagnostics.back().File = m_input.Input.Name;
            return;
        }
    }
}

void CsvCurves::ThinInOrder(Starts starts, Thinners& thinners, std::vector<Diagnostic>& diagnostics) {
    ReadAgain(
        starts, diagnostics,
        [&](std::size_t block, std::size_t cell) {
            for (std::size_t curve = 0; curve < m_curves; ++curve) {
                thinners[curve].Add(Counted(m_blocks.Of(block, curve), m_scale), cell);
            }
        },
        [&](std::size_t curve, const CurveRow& row, std::size_t cell) {
            if (IsGap(row.Value, m_rules)) {
                thinners[curve].AddGap(row);
            } else {
                thinners[curve].Add(row, cell);
            }
        });
}

/// Rows that are in no order are put into their columns.
void CsvCurves::ThinLoose(Starts starts, Thinners& thinners, std::vector<Diagnostic>& diagnostics) {
    std::vector<LooseCell> cells((starts.size() + 1) * m_curves);
    ReadAgain(
        starts, diagnostics,
        [&](std::size_t block, std::size_t cell) {
            for (std::size_t curve = 0; curve < m_curves; ++curve) {
                cells[cell * m_curves + curve].Rows.Merge(Counted(m_blocks.Of(block, curve), m_scale));
            }
        },
        [&](std::size_t curve, const CurveRow& row, std::size_t cell) {
            LooseCell& own = cells[cell * m_curves + curve];
            if (IsGap(row.Value, m_rules)) {
                own.AddGap(row);
            } else {
                own.Rows.Merge(row);
            }
        });
    for (std::size_t i = 0; i < cells.size(); ++i) {
        Add(cells[i], TimeScale(), starts, thinners[i % m_curves]);
    }
}

void CsvCurves::ThinCells(Starts starts, Thinners& thinners) {
    for (std::size_t cell = 0; cell < m_cells.Count(); ++cell) {
        for (std::size_t curve = 0; curve < m_curves; ++curve) {
            Add(m_cells.Of(cell, curve), m_scale, starts, thinners[curve]);
        }
    }
}

} // namespace

std::shared_ptr<LargeCurves> OpenCsvCurves(const TableInput& input, const TableForm& form,
                                           const LineRules& rules, std::vector<Diagnostic>& diagnostics,
                                           Diagnostic& reason) {
    std::vector<Diagnostic> told; // again by whoever reads the table if its rows cannot be read one by one
    auto curves = std::make_shared<CsvCurves>(input, form, rules, told);
    CsvRows& rows = curves->Rows();
    if (rows.HasShape()) {
        curves->Read();
    }
    if (!rows.IsReadable() || !rows.HasShape()) {
        reason = rows.Reason();
        return nullptr;
    }
    diagnostics.insert(diagnostics.end(), told.begin(), told.end());
    return curves;
}

} // namespace millichart::documents
