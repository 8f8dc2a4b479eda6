#pragma once

#include <QString>
#include <array>
#include <utility>

namespace designer {

/// What the program speaks, by the names that speakers have for it.
inline constexpr std::array<std::pair<const char*, const char*>, 2> kLanguages{
    {{"zh_CN", "中文"}, {"en", "English"}}};

/// Installs the translations of a language in the place of any before; without a name, of the one that the
/// user chose, or else the first that his system asks for and there is; Chinese if there is none.
void InstallLanguage(const QString& name = {});

/// "zh_CN" or "en".
QString ShownLanguage();

/// For the next start.
void RememberLanguage(const QString& name);

} // namespace designer
