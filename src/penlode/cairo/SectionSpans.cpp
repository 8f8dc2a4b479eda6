#include "penlode/cairo/SectionSpans.h"

#include <algorithm>
#include <utility>

namespace penlode {

void SectionSpans::Begin(std::size_t section, Span span) {
    m_earlier.push_back({section, m_latest[section]});
    m_latest[section] = span;
    if (m_earlier.size() >= m_mergeAt) {
        for (std::size_t i = 0; i < m_latest.size(); ++i) {
            m_earlier.push_back({i, std::exchange(m_latest[i], {})});
        }
        Merge();
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
