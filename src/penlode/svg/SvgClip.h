#pragma once

#include "penlode/Geometry.h"
#include "penlode/Region.h"
#include "penlode/svg/SvgDocument.h"

#include <span>
#include <string>
#include <vector>

namespace penlode::svg {

/// The attributes of the groups, outermost first, that show what lies in a region of the page and nothing
/// else; none where that is everything.
///
/// An area that one even-odd path can say is a <clipPath>, "all but this shape" being the page's rectangle
/// and the shape. What lies in several areas stands in as many groups; what lies in any of several is a
/// <mask> of white shapes. So every way to combine regions is exact within the page, without a clip path that
/// is clipped itself or made of several shapes, which not every viewer gets right. Of a region of a thousand
/// steps or so, or of more than a hundred areas in one another, the first ones alone cut.
std::vector<std::string> ClipGroups(const Region& region, SizeF page, SvgDefinitions& definitions);

/// One attribute for a group that shows what lies in all of these groups.
std::string MaskAttribute(std::span<const std::string> groups, SizeF page, SvgDefinitions& definitions);

/// The attribute that clips to the even-odd area of path data.
std::string ClipAttribute(const std::string& data, SvgDefinitions& definitions);

} // namespace penlode::svg
