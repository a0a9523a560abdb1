#include "ICUBridge.h"

namespace quorvane::ICUBridge {

icu::UnicodeString toICU(const QString &text)
{
    return icu::UnicodeString(reinterpret_cast<const UChar *>(text.utf16()), int32_t(text.size()));
}

QString fromICU(const icu::UnicodeString &text)
{
    return QString(reinterpret_cast<const QChar *>(text.getBuffer()), text.length());
}

icu::Locale locale(const QString &name)
{
    const QByteArray bytes = name.toUtf8();
    if (name.contains(u'-') && !name.contains(u'_')) {
        UErrorCode status = U_ZERO_ERROR;
        icu::Locale tagged = icu::Locale::forLanguageTag(bytes.constData(), status);
        if (U_SUCCESS(status))
            return tagged;
    }
    return icu::Locale(bytes.constData());
}

std::unique_ptr<icu::TimeZone> zone(const QString &id)
{
    return std::unique_ptr<icu::TimeZone>(icu::TimeZone::createTimeZone(toICU(id)));
}

bool isUnknown(const icu::TimeZone &zone)
{
    return zone == icu::TimeZone::getUnknown();
}

} // namespace quorvane::ICUBridge
