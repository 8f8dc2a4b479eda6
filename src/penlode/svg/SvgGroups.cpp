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
    while (m_containers.back().Handle != container) {
        m_containers.pop_back();
    }
    m_containers.pop_back();
    m_current = false;
}

const std::vector<SvgGroup>& SvgGroups::For(const CSurfaceState& state, SvgDefinitions& definitions) {
    if (m_current && m_clipGeneration == state.ClipGeneration()) {
        return m_groups;
    }
    m_clipGeneration = state.ClipGeneration();
    std::vector<Region> clips = state.DeviceClips();
    if (m_current && clips == m_clips) {
        return m_groups;
    }
    m_groups.clear();
    m_folded.clear();
    m_clipGroups = 0;
    m_clips = std::move(clips);
    std::size_t clipped = 0;
    for (std::size_t i = 0; i < std::min(m_containers.size(), kMaxContainers); ++i) {
        AddClips(clipped, m_containers[i].ClipsOutside, definitions);
        clipped = m_containers[i].ClipsOutside;
        m_groups.push_back({m_containers[i].Handle, {}});
    }
    AddClips(clipped, m_clips.size(), definitions);
    if (!m_folded.empty()) {
        m_groups.push_back({0, MaskAttribute(m_folded, m_page, definitions)});
    }
    m_current = true;
    return m_groups;
}

void SvgGroups::AddClips(std::size_t begin, std::size_t end, SvgDefinitions& definitions) {
    for (std::size_t i = begin; i < end; ++i) {
        for (std::string& attributes : ClipGroups(m_clips[i], m_page, definitions)) {
            if (m_clipGroups < kMaxClipGroups) {
                ++m_clipGroups;
                m_groups.push_back({0, std::move(attributes)});
                continue;
            }
            // A full mask is the first group in the next one.
            if (m_folded.size() == kGroupsInMask) {
                m_folded = {MaskAttribute(m_folded, m_page, definitions)};
            }
            m_folded.push_back(std::move(attributes));
        }
    }
}

} // namespace penlode::svg
