#include "penlode/cairo/SectionSpans.h"

#include <algorithm>
#include <utility>

namespace penlode {
namespace {

/// How high a row of tiles is.
constexpr std::int32_t kTileHeight = 4096;

} // namespace

void SectionSpans::Begin(std::size_t section, Span span) {
    m_earlier.push_back({section, m_latest[section]});
    m_latest[section] = span;
    if (m_earlier.size() >= m_mergeAt) {
        for (std::size_t i = 0; i < m_latest.size(); ++i) {
            m_earlier.push_back({i, std::exchange(m_latest[i], {})});
        }
        Merge();
        FindCovered();
        m_mergeAt = std::max(m_mergeAt, 2 * m_earlier.size());
    }
}

void SectionSpans::Merge() {
    std::sort(m_earlier.begin(), m_earlier.end(), [](const Earlier& a, const Earlier& b) {
        return a.Section != b.Section ? a.Section < b.Section : a.Covered.Top < b.Covered.Top;
    });
    std::size_t kept = 0;
    for (const Earlier& next : m_earlier) {
        if (next.Covered.IsEmpty()) {
            continue;
        }
        Earlier* last = kept == 0 ? nullptr : &m_earlier[kept - 1];
        if (last != nullptr && last->Section == next.Section && next.Covered.Top <= last->Covered.Bottom) {
            last->Covered.Bottom = std::max(last->Covered.Bottom, next.Covered.Bottom);
        } else {
            m_earlier[kept++] = next;
        }
    }
    m_earlier.resize(kept);
}

/// What is found here was merged: in one section no two spans meet.
void SectionSpans::FindCovered() {
    const std::size_t tiles = (m_latest.size() + kTileSections - 1) / kTileSections;
    std::int32_t lowest = 0;
    for (const Earlier& e : m_earlier) {
        lowest = std::max(lowest, e.Covered.Bottom);
    }
    m_tileRows = static_cast<std::size_t>(lowest / kTileHeight);
    std::vector<std::size_t> sections(tiles * m_tileRows);
    for (const auto& [section, covered] : m_earlier) {
        const std::int32_t end = covered.Bottom / kTileHeight;
        for (std::int32_t row = (covered.Top + kTileHeight - 1) / kTileHeight; row < end; ++row) {
            ++sections[section / kTileSections * m_tileRows + static_cast<std::size_t>(row)];
        }
    }
    m_covered.assign(sections.size(), false);
    for (std::size_t i = 0; i < sections.size(); ++i) {
        const std::size_t first = i / m_tileRows * kTileSections;
        m_covered[i] = sections[i] == std::min(kTileSections, m_latest.size() - first);
    }
}

bool SectionSpans::IsCovered(std::size_t tile, Span span) const {
    const auto first = static_cast<std::size_t>(span.Top / kTileHeight);
    const auto last = static_cast<std::size_t>((span.Bottom - 1) / kTileHeight);
    for (std::size_t row = first; row <= last; ++row) {
        if (row >= m_tileRows || !m_covered[tile * m_tileRows + row]) {
            return false;
        }
    }
    return true;
}

void SectionSpans::Unite(std::vector<Span>& sorted, Span span) {
    if (span.IsEmpty()) {
        return;
    }
    const auto first =
        std::find_if(sorted.begin(), sorted.end(), [&](const Span& s) { return s.Bottom >= span.Top; });
    auto end = first;
    for (; end != sorted.end() && end->Top <= span.Bottom; ++end) {
        span = {std::min(span.Top, end->Top), std::max(span.Bottom, end->Bottom)};
    }
    sorted.insert(sorted.erase(first, end), span);
}

} // namespace penlode
