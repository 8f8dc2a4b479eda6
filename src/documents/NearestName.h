#pragma once

#include <string>
#include <vector>

namespace millichart::documents {

/// The one of the known names that was probably meant, upper and lower case being alike; empty when none is
/// near.
std::string NearestName(const std::string& name, const std::vector<std::string>& known);

} // namespace millichart::documents
