#include "SceneTable.h"

#include <QStringList>

#include <map>
#include <string>

using namespace Qt::StringLiterals;

namespace quorvane::test::SceneTable {

namespace {
// Filled by static initialisers, so it must exist before the first of them runs.
std::map<std::string, Maker> &makers()
{
    static std::map<std::string, Maker> table;
    return table;
}

// Drawn once more in the pseudo translation, whose longer, bracketed texts show a text cut
// off or one left in English.
const QStringList translated{
    u"main-with-data"_s,    u"today-meeting-coming"_s, u"bookings-upcoming-selected"_s, u"availability-hours"_s,
    u"settings-general"_s,  u"settings-account"_s,     u"settings-notifications"_s,     u"share-chips-and-stars"_s,
    u"onboarding-step-0"_s, u"onboarding-step-3"_s,    u"popover-signed-in"_s,
};
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
    const qsizetype drawn = out.size();
    for (qsizetype i = 0; i < drawn; ++i) {
        if (translated.contains(out.at(i).name)) {
            Scene pseudo = out.at(i);
            pseudo.name = u"pseudo-"_s + pseudo.name;
            pseudo.language = u"pseudo"_s;
            out.append(pseudo);
        }
    }
    return out;
}

} // namespace quorvane::test::SceneTable
