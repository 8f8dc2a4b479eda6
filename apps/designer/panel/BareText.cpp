#include "panel/BareText.h"

#include <QRegularExpression>

namespace designer {

QString BareText(const QString& text) {
    static const QRegularExpression inBrackets(QStringLiteral("\\(&.\\)|…$|[:：]$"));
    static const QRegularExpression mark(QStringLiteral("&(.)"));
    return QString(text).remove(inBrackets).replace(mark, QStringLiteral("\\1"));
}

} // namespace designer
