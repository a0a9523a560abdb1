#include "components/IconMasks.h"

#include <QString>

#include <algorithm>
#include <utility>

namespace quorvane::IconMasks {

const uchar *find(QStringView stem, int side)
{
    using data::Entry;
    const Entry *const end = data::entries + data::entryCount;
    const auto before = [](const Entry &e, const std::pair<QStringView, int> &key) {
        const int order = QLatin1StringView(e.stem).compare(key.first);
        return order < 0 || (order == 0 && e.side < key.second);
    };
    const Entry *at = std::lower_bound(data::entries, end, std::pair{stem, side}, before);
    if (at == end || at->side != side || QLatin1StringView(at->stem) != stem)
        return nullptr;
    return reinterpret_cast<const uchar *>(data::coverage + at->offset);
}

} // namespace quorvane::IconMasks
