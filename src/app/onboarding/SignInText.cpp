#include "onboarding/SignInText.h"

#include <QCoreApplication>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace quorvane::SignInText {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(SignInText)
};
} // namespace

QString spokenCode(const QString &code)
{
    QStringList parts{Text::tr("Code")};
    for (const QChar ch : code) {
        if (!ch.isSpace())
            parts.append(QString(ch));
    }
    return parts.join(u' ');
}

} // namespace quorvane::SignInText
