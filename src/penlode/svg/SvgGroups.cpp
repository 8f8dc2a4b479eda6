#include "penlode/svg/SvgGroups.h"

#include "penlode/svg/SvgClip.h"

#include <algorithm>
#include <utility>

namespace penlode::svg {

void SvgGroups::Begin(std::uint32_t container, std::size_t clipsOutside) {
    m_containers.push_back({container, clipsOutside});
    m_current = false;
}

void SvgGroups::End(std::uint32_t container) {
    const auto found = std::find_if(m_containers.begin(), m_containers.end(),
                                    [container](const Container& open) { return open.Handle == container; });
    m_containers.erase(found, m_containers.end());
    m_current = false;
}

const std::vector<SvgGroup>& SvgGroups::For(const CSurfaceState& state, SvgDefinitions& definitions) {
    std::vector<Region> clips = state.DeviceClips();
    if (m_current && clips == m_clips) {
        return m_groups;
    }
    m_groups.clear();
    m_clips = std::move(clips);
    std::size_t clipped = 0;
    const auto clipUpTo = [&](std::size_t end) {
        for (; clipped < end; ++clipped) {
            for (std::string& attributes : ClipGroups(m_clips[clipped], m_page, definitions)) {
                m_groups.push_back({0, std::move(attributes)});
            }
        }
    };
    for (std::size_t i = 0; i < std::min(m_containers.size(), kMostContainers); ++i) {
        clipUpTo(m_containers[i].ClipsOutside);
        m_groups.push_back({m_containers[i].Handle, {}});
    }
    clipUpTo(m_clips.size());
    m_current = true;
    return m_groups;
}

} // namespace penlode::svg
