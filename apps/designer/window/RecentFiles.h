#pragma once

#include <QStringList>

namespace designer {

/// The files that were open last, latest first, as the user's settings keep them; those that are gone are
/// left out.
QStringList RecentFiles();
void AddRecentFile(const QString& file);

} // namespace designer
