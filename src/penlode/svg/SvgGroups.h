#pragma once

#include "penlode/Geometry.h"
#include "penlode/engine/SurfaceState.h"
#include "penlode/svg/SvgDocument.h"

#include <cstdint>
#include <string>
#include <vector>

namespace penlode::svg {

/// The groups that an element stands in now: one for each open container and, inside it, one for its clip.
/// Clips are written when something is drawn in them.
class SvgGroups {
public:
    explicit SvgGroups(SizeF page) : m_page(page) {}

    /// `clipsOutside` are the clips in force when the container is begun.
    void Begin(std::uint32_t container, std::size_t clipsOutside);
    /// Ends the container and all inside it.
    void End(std::uint32_t container);

    const std::vector<SvgGroup>& For(const CSurfaceState& state, SvgDefinitions& definitions);

private:
    /// XML readers refuse a document of more than 256 levels. Containers below this one get no group, and
    /// what clips would need groups of their own beyond that many is said by masks.
    static constexpr std::size_t kMaxContainers = 64;
    static constexpr std::size_t kMaxClipGroups = 130;
    static constexpr std::size_t kGroupsInMask = 64;

    void AddClips(std::size_t begin, std::size_t end, SvgDefinitions& definitions);

    struct Container {
        std::uint32_t Handle;
        std::size_t ClipsOutside;
    };

    SizeF m_page;
    std::vector<Container> m_containers;
    std::vector<Region> m_clips;
    std::vector<SvgGroup> m_groups;
    std::size_t m_clipGroups = 0;
    std::vector<std::string> m_folded; ///< attributes of the groups that a mask stands for
    bool m_current = false;            ///< whether m_groups stand for m_containers and m_clips
    std::uint64_t m_clipGeneration = 0;
};

} // namespace penlode::svg
