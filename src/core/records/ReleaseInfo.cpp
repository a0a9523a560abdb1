#include "ReleaseInfo.h"

using namespace Qt::StringLiterals;

namespace quorvane {

ReleaseInfo Codec<ReleaseInfo>::decode(const QJsonValue &value, const CodingPath &path)
{
    const ObjectReader r(value, path);
    return ReleaseInfo{r.required<QString>("version"_L1), r.optional<QString>("build"_L1),
                       r.required<qint64>("size"_L1), r.required<QString>("filename"_L1),
                       r.optional<QList<QString>>("notes"_L1)};
}

QJsonValue Codec<ReleaseInfo>::encode(const ReleaseInfo &i)
{
    return ObjectWriter()
        .set("version"_L1, i.version)
        .set("build"_L1, i.build)
        .set("size"_L1, i.size)
        .set("filename"_L1, i.filename)
        .set("notes"_L1, i.notes)
        .object();
}

} // namespace quorvane
