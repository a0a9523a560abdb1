#include "Ids.h"

using namespace Qt::StringLiterals;

namespace quorvane::sandbox::Ids {

namespace {

QString letters(QRandomGenerator &rng, QStringView alphabet, int count)
{
    QString out;
    out.reserve(count);
    for (int i = 0; i < count; ++i)
        out.append(alphabet.at(rng.bounded(int(alphabet.size()))));
    return out;
}

} // namespace

QString uuid(QRandomGenerator &rng)
{
    QByteArray bytes(16, Qt::Uninitialized);
    for (char &b : bytes)
        b = char(rng.bounded(256));
    bytes[6] = char((bytes[6] & 0x0F) | 0x40); // version 4
    bytes[8] = char((bytes[8] & 0x3F) | 0x80); // RFC 4122 variant
    const QString h = QString::fromLatin1(bytes.toHex()).toUpper();
    return h.mid(0, 8) + u'-' + h.mid(8, 4) + u'-' + h.mid(12, 4) + u'-' + h.mid(16, 4) + u'-' + h.mid(20);
}

QString hex(QRandomGenerator &rng, int bytes)
{
    QByteArray raw(bytes, Qt::Uninitialized);
    for (char &b : raw)
        b = char(rng.bounded(256));
    return QString::fromLatin1(raw.toHex());
}

QString userCode(QRandomGenerator &rng)
{
    return letters(rng, u"ABCDEFGHJKLMNPQRSTUVWXYZ", 4) + u'-' + letters(rng, u"0123456789", 4);
}

QString meetLink(QRandomGenerator &rng)
{
    const QStringView alphabet = u"abcdefghijklmnopqrstuvwxyz";
    return u"https://meet.google.com/"_s + letters(rng, alphabet, 3) + u'-' + letters(rng, alphabet, 4) + u'-'
           + letters(rng, alphabet, 3);
}

} // namespace quorvane::sandbox::Ids
