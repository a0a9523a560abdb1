#include "SceneTable.h"

#include <map>
#include <string>

namespace quorvane::test::SceneTable {

namespace {
// Filled by static initialisers, so it must exist before the first of them runs.
std::map<std::string, Maker> &makers()
{
    static std::map<std::string, Maker> table;
    return table;
}
} // namespace

bool add(const char *group, Maker maker)
{
    return makers().emplace(group, maker).second;
}

QList<Scene> all()
{
    QList<Scene> out;
    for (const auto &[group, maker] : makers())
        out.append(maker());
    return out;
}

} // namespace quorvane::test::SceneTable
