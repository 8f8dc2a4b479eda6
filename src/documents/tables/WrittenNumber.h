#pragma once

#include <optional>
#include <string_view>

namespace millichart::documents {

/// A number as people write it, read with a decimal point and with a decimal comma; nothing where that
/// reading makes no sense.
///
///     1,250.5    1.250,5    1 250    1'250    12,34,567    groups of digits
///     45%    $12    12 €    ¥ 12                           the number alone
///     (12)    −12    -$12                                  below 0
struct WrittenNumber {
    std::optional<double> ByPoint;
    std::optional<double> ByComma;

    std::optional<double> By(char mark) const { return mark == ',' ? ByComma : ByPoint; }

    bool IsNumber() const { return ByPoint || ByComma; }

    /// As 1,250 is, which may be more than a thousand or little more than one.
    bool IsOpen() const { return ByPoint && ByComma && *ByPoint != *ByComma; }
};

WrittenNumber ReadWritten(std::string_view cell);

} // namespace millichart::documents
