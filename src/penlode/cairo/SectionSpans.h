#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace penlode {

/// An area that is cut into thin upright sections, each of which holds spans from top to bottom. It grows by
/// spans, in any order.
class SectionSpans {
public:
    /// Heights grow downwards; without extent where the bottom is not below the top.
    struct Span {
        std::int32_t Top = 0;
        std::int32_t Bottom = 0;

        bool IsEmpty() const { return Top >= Bottom; }
    };

    explicit SectionSpans(std::size_t sections) : m_latest(sections) {}

    std::size_t Size() const { return m_latest.size(); }

    /// A span in each section from `first` on; those without extent add nothing.
    void Add(std::size_t first, std::span<const std::int32_t> tops, std::span<const std::int32_t> bottoms) {
        Span* const latest = m_latest.data() + first;
        for (std::size_t i = 0; i < tops.size(); ++i) {
            const Span span{tops[i], bottoms[i]};
            Span& last = latest[i];
            if (span.IsEmpty()) {
                continue;
            }
            if (last.IsEmpty()) {
                last = span;
            } else if (span.Top <= last.Bottom && span.Bottom >= last.Top) {
                last = {std::min(last.Top, span.Top), std::max(last.Bottom, span.Bottom)};
            } else {
                Begin(first + i, span);
            }
        }
    }

    /// Calls `visit` with each section and each of its spans, which neither meet nor overlap.
    template <class Visit> void ForEach(Visit&& visit) {
        Merge();
        std::size_t next = 0;
        std::vector<Span> spans;
        for (std::size_t section = 0; section < m_latest.size(); ++section) {
            spans.clear();
            for (; next < m_earlier.size() && m_earlier[next].Section == section; ++next) {
                spans.push_back(m_earlier[next].Covered);
            }
            Unite(spans, m_latest[section]);
            for (const Span span : spans) {
                visit(section, span);
            }
        }
    }

private:
    struct Earlier {
        std::size_t Section;
        Span Covered;
    };

    static void Unite(std::vector<Span>& sorted, Span span);
    void Begin(std::size_t section, Span span);
    void Merge();

    std::vector<Span> m_latest; ///< of each section the span that grew last; mostly the only one
    std::vector<Earlier> m_earlier;
    std::size_t m_mergeAt = 1U << 18U; ///< so many earlier spans are worth looking for what overlaps
};

} // namespace penlode
