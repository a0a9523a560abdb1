#include "model/AppSection.h"

using namespace Qt::StringLiterals;

namespace quorvane::Section {

namespace {
struct Row {
    AppSection section;
    QString id;
    QString title;
    QString symbol;
};

const QList<Row> &table()
{
    static const QList<Row> rows{
        {AppSection::today, u"today"_s, u"Today"_s, u"sun.max"_s},
        {AppSection::bookings, u"bookings"_s, u"Bookings"_s, u"calendar"_s},
        {AppSection::types, u"types"_s, u"Event Types"_s, u"square.stack.3d.up"_s},
        {AppSection::availability, u"availability"_s, u"Availability"_s, u"clock"_s},
        {AppSection::polls, u"polls"_s, u"Polls"_s, u"chart.bar.doc.horizontal"_s},
        {AppSection::insights, u"insights"_s, u"Insights"_s, u"chart.xyaxis.line"_s},
    };
    return rows;
}

const Row &row(AppSection section)
{
    return table().at(qsizetype(section));
}
} // namespace

QList<AppSection> allCases()
{
    QList<AppSection> out;
    for (const Row &r : table())
        out.append(r.section);
    return out;
}

QString id(AppSection section)
{
    return row(section).id;
}
QString title(AppSection section)
{
    return row(section).title;
}
QString symbol(AppSection section)
{
    return row(section).symbol;
}

std::optional<AppSection> fromId(const QString &id)
{
    for (const Row &r : table()) {
        if (r.id == id)
            return r.section;
    }
    return std::nullopt;
}

QString shortcut(AppSection section)
{
    return QString::number(allCases().indexOf(section) + 1);
}

} // namespace quorvane::Section
