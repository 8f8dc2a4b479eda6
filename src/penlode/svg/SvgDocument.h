#pragma once

#include "penlode/Geometry.h"
#include "penlode/svg/SvgOptions.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace penlode::svg {

/// What elements refer to by an id: clips, masks and gradients, each written once however often it is used,
/// and numbered in the order of their first use: c1, c2, ..., m1, ... and g1, ...
class SvgDefinitions {
public:
    /// The id of such an element with that content. The id is the element's first attribute.
    std::string ClipPath(const std::string& content) { return Define(m_clips, "", content); }

    std::string Mask(const std::string& attributes, const std::string& content) {
        return Define(m_masks, attributes, content);
    }

    std::string LinearGradient(const std::string& attributes, const std::string& content) {
        return Define(m_gradients, attributes, content);
    }

    /// All elements, one a line; empty if there are none.
    const std::string& Text() const { return m_text; }

private:
    struct Kind {
        std::string Name;
        std::string IdPrefix;
        std::map<std::string, std::string> Ids;
    };

    std::string Define(Kind& kind, const std::string& attributes, const std::string& content);

    Kind m_clips{"clipPath", "c", {}};
    Kind m_masks{"mask", "m", {}};
    Kind m_gradients{"linearGradient", "g", {}};
    std::string m_text;
};

/// A group that elements stand in: a container's, or one that clips what is in it.
struct SvgGroup {
    std::uint32_t Container = 0; ///< 0 for a clip's
    std::string Attributes;      ///< each after a blank; empty for a container's

    friend bool operator==(const SvgGroup&, const SvgGroup&) = default;
};

/// The document so far: elements in their groups. A group is opened when something is written in it, so that
/// no group is empty.
class SvgDocument {
public:
    SvgDocument(SizeF page, SvgOptions options);

    SvgDefinitions& Definitions() { return m_definitions; }

    /// Nothing for an empty element. Closes the open groups that `groups` (outermost first) does not begin
    /// with.
    void Add(const std::vector<SvgGroup>& groups, std::string_view element);

    /// The whole document, open groups closed.
    std::string Text() const;

private:
    std::string Head() const;

    SizeF m_page;
    SvgOptions m_options;
    SvgDefinitions m_definitions;
    std::vector<SvgGroup> m_open;
    std::string m_body;
};

} // namespace penlode::svg
