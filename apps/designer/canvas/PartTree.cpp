#include "canvas/PartTree.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace designer {
namespace {

using millichart::ChartPart;
using millichart::PartKind;
using millichart::PlacedPart;

PartGroup GroupOf(PartKind kind) {
    switch (kind) {
    case PartKind::Slice:
    case PartKind::Bar:
    case PartKind::Curve:
    case PartKind::CurvePoint:
        return PartGroup::Data;
    case PartKind::Plot:
    case PartKind::VerAxis:
    case PartKind::HorAxis:
        return PartGroup::Axes;
    case PartKind::Legend:
    case PartKind::LegendSample:
    case PartKind::LegendName:
        return PartGroup::Chart;
    default:
        return PartGroup::Texts;
    }
}

class TreeMaker {
public:
    TreeMaker() { m_nodes.emplace_back(); }

    void Add(const PlacedPart& placed) {
        const std::size_t parent = ParentOf(placed.Part);
        const std::size_t node = Append(parent, {GroupOf(placed.Part.Kind), placed.Part, placed.Box, {}, {}});
        m_nodes[node].Group = PartGroup::Data;
        if (placed.Part.Kind == PartKind::Legend) {
            m_legends[placed.Part.Part] = node;
        }
        for (std::size_t up = parent; up != 0; up = m_nodes[up].Parent) {
            if (!m_nodes[up].IsPart()) {
                m_nodes[up].Box =
                    m_nodes[up].Children.size() == 1 ? placed.Box : Union(m_nodes[up].Box, placed.Box);
            }
        }
    }

    std::vector<PartNode> Take() { return std::move(m_nodes); }

private:
    std::size_t Append(std::size_t parent, PartNode node) {
        node.Parent = parent;
        m_nodes.push_back(std::move(node));
        m_nodes[parent].Children.push_back(m_nodes.size() - 1);
        return m_nodes.size() - 1;
    }

    std::size_t Group(PartGroup group) {
        const auto known = m_groups.find(group);
        if (known != m_groups.end()) {
            return known->second;
        }
        return m_groups[group] = Append(0, {group, {}, {}, {}, {}});
    }

    std::size_t ParentOf(const ChartPart& part) {
        if (part.Kind == PartKind::Bar) {
            const auto key = std::tuple(part.Part, part.Index);
            const auto known = m_barGroups.find(key);
            if (known != m_barGroups.end()) {
                return known->second;
            }
            return m_barGroups[key] = Append(Group(PartGroup::Data), {PartGroup::BarGroup, part, {}, {}, {}});
        }
        if (part.Kind == PartKind::LegendSample || part.Kind == PartKind::LegendName) {
            const auto legend = m_legends.find(part.Part);
            return legend == m_legends.end() ? 0 : legend->second;
        }
        const PartGroup group = GroupOf(part.Kind);
        return group == PartGroup::Chart ? 0 : Group(group);
    }

    std::vector<PartNode> m_nodes;
    std::map<PartGroup, std::size_t> m_groups;
    std::map<std::tuple<std::size_t, std::size_t>, std::size_t> m_barGroups;
    std::map<std::size_t, std::size_t> m_legends;
};

} // namespace

std::vector<PartNode> TreeOf(const std::vector<PlacedPart>& parts) {
    TreeMaker maker;
    for (const PlacedPart& part : parts) {
        maker.Add(part);
    }
    return maker.Take();
}

bool AreAlike(const std::vector<PartNode>& a, const std::vector<PartNode>& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const PartNode& one, const PartNode& other) {
        return one.Group == other.Group && one.Part == other.Part && one.Parent == other.Parent;
    });
}

} // namespace designer
