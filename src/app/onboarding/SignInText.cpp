#include "onboarding/SignInText.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace quorvane::SignInText {

QString spokenCode(const QString &code)
{
    QStringList parts{u"Code"_s};
    for (const QChar ch : code) {
        if (!ch.isSpace())
            parts.append(QString(ch));
    }
    return parts.join(u' ');
}

} // namespace quorvane::SignInText
