#pragma once

#include <string>
#include <string_view>

namespace millichart {

/// A number by its decimal digits, so that rounding, scaling and writing see what people see and not what a
/// double makes of it. Internal to the library.
struct Decimal {
    bool IsNegative = false;
    std::string Digits; ///< neither the first nor the last is a 0; none for the number 0
    int Point = 0;      ///< the number is 0.DIGITS times ten to this power

    /// The shortest that gives the double back; 0 for one that is not finite.
    static Decimal Of(double value);

    bool IsZero() const { return Digits.empty(); }

    /// Of ten, in 1.25 × 10³.
    int Exponent() const { return Point - 1; }

    /// How many decimals there are; below 0 for a number that ends in zeros: -2 for 1200.
    int Decimals() const { return static_cast<int>(Digits.size()) - Point; }

    Decimal TimesTenTo(int power) const { return {IsNegative, Digits, IsZero() ? 0 : Point + power}; }

    /// To so many decimals, halves away from 0. Below 0, to tens, hundreds and so on.
    Decimal Rounded(int decimals) const;

    /// All digits, with zeros up to so many decimals if it has fewer, and `separator` between the thousands.
    std::string Text(int decimals, std::string_view separator = {}) const;
};

} // namespace millichart
