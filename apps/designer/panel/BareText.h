#pragma once

#include <QString>

namespace designer {

/// What a menu's or a label's text is called: "打开(&O)…" is "打开", "Save &as…" is "Save as".
QString BareText(const QString& text);

} // namespace designer
